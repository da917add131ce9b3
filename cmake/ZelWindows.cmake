# What programs and libraries need on Windows: a version, an icon and a manifest, and beside them the DLLs of Qt and of
# the compiler, so that the tree runs from any folder.

set(zel_windows_resources ${PROJECT_SOURCE_DIR}/resources/windows)

# zel_describe(<target> <description>): compiles the version into a target, and the icon and the manifest into a program.
function(zel_describe target ZEL_DESCRIPTION)
    string(REPLACE . , ZEL_VERSION_NUMBERS ${PROJECT_VERSION})
    set(generated ${PROJECT_BINARY_DIR}/resources/${target})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL EXECUTABLE)
        set(ZEL_FILE ${target}.exe)
        set(ZEL_FILE_TYPE VFT_APP)
        set(ZEL_PROGRAM_RESOURCES "1 ICON \"${zel_windows_resources}/torvane-settings.ico\"\n1 24 \"${generated}.manifest\"")
        configure_file(${zel_windows_resources}/program.manifest.in ${generated}.manifest @ONLY)
    else()
        set(ZEL_FILE ${target}.dll)
        set(ZEL_FILE_TYPE VFT_DLL)
        set(ZEL_PROGRAM_RESOURCES "")
    endif()
    configure_file(${zel_windows_resources}/file.rc.in ${generated}.rc @ONLY)
    target_sources(${target} PRIVATE ${generated}.rc)
    if(MSVC)
        target_link_options(${target} PRIVATE /MANIFEST:NO) # The one above.
    endif()
endfunction()

# The start menu opens the editor by it.
add_executable(torvane-settings-start ${PROJECT_SOURCE_DIR}/host/windows/torvane-settings-start.cpp)
install(TARGETS torvane-settings-start RUNTIME DESTINATION bin)
set_target_properties(torvane-settings torvane-settings-start PROPERTIES WIN32_EXECUTABLE ON)

zel_describe(torvane-settings "Torvane Settings")
zel_describe(torvane-settings-start "Torvane Settings")
zel_describe(torvane-settings-check "Torvane Settings Check")
zel_describe(ZelControlCenter "Torvane Settings Control Center")

# Where the DLLs are that ours ask for. What is found nowhere is a part of Windows.
set(zel_dll_folders ${ZEL_QT_BINS} ${QT_LIBRARY_DIR}) # The second is where a Qt 4 may keep them.
if(MINGW)
    foreach(dll libstdc++-6.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
                        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
        get_filename_component(folder ${path} DIRECTORY)
        list(APPEND zel_dll_folders ${folder})
    endforeach()
    get_filename_component(folder ${CMAKE_CXX_COMPILER} DIRECTORY)
    list(APPEND zel_dll_folders ${folder})
endif()
if(QtSingleApplication_LIBRARY)
    get_filename_component(folder ${QtSingleApplication_LIBRARY} DIRECTORY)
    list(APPEND zel_dll_folders ${folder} ${folder}/../bin)
endif()

add_custom_target(ZelDlls ALL
    COMMAND ${CMAKE_COMMAND} -DBIN=${ZEL_STAGE}/bin "-DFOLDERS=${zel_dll_folders}" -DOBJDUMP=${CMAKE_OBJDUMP}
            -P ${CMAKE_CURRENT_LIST_DIR}/ZelGatherDlls.cmake
    DEPENDS torvane-settings torvane-settings-start torvane-settings-check VERBATIM)
add_dependencies(ZelInstalled ZelDlls)
install(DIRECTORY ${ZEL_STAGE}/bin/ DESTINATION bin FILES_MATCHING PATTERN *.dll)
if(MSVC)
    set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION bin)
    include(InstallRequiredSystemLibraries)
endif()

# Tests of a cross build run under Wine, by its own name, because Debian's script of the name "wine" is in another package.
if(CMAKE_CROSSCOMPILING AND ZEL_BUILD_TESTS)
    find_program(ZEL_WINE NAMES wine64 wine PATHS /usr/lib/wine)
    if(NOT ZEL_WINE)
        message(STATUS "ZEL_BUILD_TESTS: left out, they need Wine")
        set(ZEL_BUILD_TESTS OFF)
    endif()
endif()
