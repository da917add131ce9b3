# Qt, and the single place that knows which of its versions is used, and where its parts are.
#   ZEL_QT_CORE, ZEL_QT_WIDGETS, ZEL_QT_NETWORK   what to link
#   ZEL_QT_PLUGINS, ZEL_QT_TRANSLATIONS           folders
#   ZEL_QT_ADD_TRANSLATION, ZEL_QT_CATALOG        the command that compiles a translation, the name of Qt's own

set(ZEL_QT 5 CACHE STRING "Major version of Qt: 5, or 4 as the viewer itself uses it")
set_property(CACHE ZEL_QT PROPERTY STRINGS 5 4)

# Tools run where the build runs. A Qt that is cross-compiled brings its own; what it lacks, and all tools of one that has
# been built on Windows, come from the Qt of this machine.
file(GLOB zel_host_packages /usr/lib/*/cmake)
file(GLOB zel_tool_folders /usr/lib/qt5/bin /usr/lib/*/qt5/bin)

# zel_use_host_tool(<imported tool>...)
function(zel_use_host_tool)
    foreach(tool IN LISTS ARGN)
        get_target_property(path ${tool} IMPORTED_LOCATION)
        if(NOT path MATCHES "\\.exe$")
            continue()
        endif()
        string(REGEX REPLACE ".*::" "" name ${tool})
        find_program(ZEL_HOST_${name} ${name} PATHS ${zel_tool_folders} NO_DEFAULT_PATH REQUIRED)
        set_target_properties(${tool} PROPERTIES IMPORTED_LOCATION ${ZEL_HOST_${name}})
    endforeach()
endfunction()

if(ZEL_QT EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Network)
    if(CMAKE_CROSSCOMPILING)
        find_package(Qt5LinguistTools 5.15 REQUIRED PATHS ${zel_host_packages} NO_CMAKE_FIND_ROOT_PATH)
        zel_use_host_tool(Qt5::moc Qt5::rcc Qt5::uic)
    else()
        find_package(Qt5LinguistTools 5.15 REQUIRED)
    endif()
    set(ZEL_QT_CORE Qt5::Core)
    set(ZEL_QT_WIDGETS Qt5::Widgets)
    set(ZEL_QT_NETWORK Qt5::Network)
    get_target_property(ZEL_QMAKE Qt5::qmake IMPORTED_LOCATION)
    set(ZEL_QT_ADD_TRANSLATION qt5_add_translation)
    set(ZEL_QT_CATALOG qtbase)
elseif(ZEL_QT EQUAL 4)
    find_package(Qt4 4.8 REQUIRED QtCore QtGui QtNetwork)
    # Many a Qt 4 is built without it. In the PATH may be one that only chooses between versions of Qt.
    find_program(QT_LRELEASE_EXECUTABLE lrelease HINTS ${zel_tool_folders})
    if(QT_LRELEASE_EXECUTABLE AND NOT TARGET Qt4::lrelease)
        add_executable(Qt4::lrelease IMPORTED GLOBAL)
        set_target_properties(Qt4::lrelease PROPERTIES IMPORTED_LOCATION ${QT_LRELEASE_EXECUTABLE})
    endif()
    set(ZEL_QT_CORE Qt4::QtCore)
    set(ZEL_QT_WIDGETS Qt4::QtGui)
    set(ZEL_QT_NETWORK Qt4::QtNetwork)
    set(ZEL_QMAKE ${QT_QMAKE_EXECUTABLE})
    set(ZEL_QT_ADD_TRANSLATION qt4_add_translation)
    set(ZEL_QT_CATALOG qt)
else()
    message(FATAL_ERROR "ZEL_QT is \"${ZEL_QT}\"; it must be 5 or 4")
endif()

foreach(kind BINS PLUGINS TRANSLATIONS)
    if(CMAKE_CROSSCOMPILING AND ZEL_QMAKE MATCHES "\\.exe$")
        string(TOLOWER ${kind} folder)
        string(REPLACE bins bin folder ${folder})
        get_filename_component(ZEL_QT_${kind} ${ZEL_QMAKE}/../../${folder} ABSOLUTE)
        continue()
    endif()
    execute_process(COMMAND ${ZEL_QMAKE} -query QT_INSTALL_${kind}
                    OUTPUT_VARIABLE ZEL_QT_${kind} OUTPUT_STRIP_TRAILING_WHITESPACE
                    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
# Qt's own texts are a package of their own, which a cross-compiled Qt may be without.
file(GLOB zel_catalogues ${ZEL_QT_TRANSLATIONS}/${ZEL_QT_CATALOG}_*.qm)
if(CMAKE_CROSSCOMPILING AND NOT zel_catalogues)
    set(ZEL_QT_TRANSLATIONS /usr/share/qt${ZEL_QT}/translations)
endif()
