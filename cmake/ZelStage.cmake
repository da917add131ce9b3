# The runnable tree that the build makes; `install` makes the same one. At run time the library looks for Qt's
# plug-ins in "bin" and for translations in "resources/languages", both below the working directory.

set(ZEL_STAGE ${PROJECT_BINARY_DIR}/stage)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${ZEL_STAGE}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${ZEL_STAGE}/lib)

# Both trees have the same shape, so one path relative to the loading file serves both.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../lib")

# The first two are Qt 4's: with a screen reader and without its plug-in, Qt 4.8 crashes at the first list.
# Without xcbglintegrations: nothing here draws with OpenGL, and finding its drivers takes as long as building all pages.
set(ZEL_PLUGIN_FOLDERS accessible codecs iconengines imageformats platforminputcontexts platforms platformthemes styles
                       # Without these three, a Wayland session shows no window.
                       wayland-decoration-client wayland-graphics-integration-client wayland-shell-integration)
if(WIN32)
    set(CMAKE_SHARED_LIBRARY_PREFIX "") # MinGW would name them as on Unix.
    set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
endif()

# zel_stage_plugins(<folder>): copies them for Windows; of a Qt that has two variants of each, the one of this build.
function(zel_stage_plugins folder)
    set(other "d(4?)\\.dll$" "\\1.dll")
    if(CMAKE_BUILD_TYPE STREQUAL Debug)
        set(other "(4?)\\.dll$" "d\\1.dll")
    endif()
    file(GLOB plugins ${ZEL_QT_PLUGINS}/${folder}/*.dll)
    list(FILTER plugins EXCLUDE REGEX "/q(minimal|offscreen)[^/]*$")
    foreach(plugin IN LISTS plugins)
        string(REGEX REPLACE ${other} variant ${plugin})
        if(variant STREQUAL plugin OR NOT EXISTS ${variant})
            file(COPY ${plugin} DESTINATION ${ZEL_STAGE}/bin/${folder})
        endif()
    endforeach()
endfunction()

file(MAKE_DIRECTORY ${ZEL_STAGE}/bin ${ZEL_STAGE}/resources/languages)
foreach(folder IN LISTS ZEL_PLUGIN_FOLDERS)
    if(NOT EXISTS ${ZEL_QT_PLUGINS}/${folder})
        continue()
    endif()
    if(WIN32)
        zel_stage_plugins(${folder})
    else()
        file(CREATE_LINK ${ZEL_QT_PLUGINS}/${folder} ${ZEL_STAGE}/bin/${folder} SYMBOLIC)
    endif()
endforeach()

# On Linux the system has the font of the interface; on Windows the editor brings it.
if(WIN32)
    set(ZEL_FONT_DIR /usr/share/fonts/truetype/open-sans CACHE PATH "Where the font of the interface is")
    set(ZEL_FONTS OpenSans-Regular.ttf OpenSans-Italic.ttf OpenSans-Bold.ttf OpenSans-Semibold.ttf)
    foreach(font IN LISTS ZEL_FONTS)
        if(EXISTS ${ZEL_FONT_DIR}/${font})
            file(COPY ${ZEL_FONT_DIR}/${font} DESTINATION ${ZEL_STAGE}/resources/fonts)
        else()
            message(STATUS "Fonts: ${font} is left out, it is not in ZEL_FONT_DIR; cpack will fail")
        endif()
    endforeach()
endif()
