# Qt, and the single place that knows which of its versions is used.

set(ZEL_QT 5 CACHE STRING "Major version of Qt: 5, or 4 as the viewer itself uses it")
set_property(CACHE ZEL_QT PROPERTY STRINGS 5 4)

if(ZEL_QT EQUAL 5)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Network LinguistTools)
    set(ZEL_QT_CORE Qt5::Core)
    set(ZEL_QT_WIDGETS Qt5::Widgets)
    set(ZEL_QT_NETWORK Qt5::Network)
    get_target_property(ZEL_QMAKE Qt5::qmake IMPORTED_LOCATION)
    set(ZEL_QT_ADD_TRANSLATION qt5_add_translation)
    set(ZEL_QT_CATALOG qtbase)
elseif(ZEL_QT EQUAL 4)
    find_package(Qt4 4.8 REQUIRED QtCore QtGui QtNetwork)
    set(ZEL_QT_CORE Qt4::QtCore)
    set(ZEL_QT_WIDGETS Qt4::QtGui)
    set(ZEL_QT_NETWORK Qt4::QtNetwork)
    set(ZEL_QMAKE ${QT_QMAKE_EXECUTABLE})
    set(ZEL_QT_ADD_TRANSLATION qt4_add_translation)
    set(ZEL_QT_CATALOG qt)
else()
    message(FATAL_ERROR "ZEL_QT is \"${ZEL_QT}\"; it must be 5 or 4")
endif()

foreach(kind PLUGINS TRANSLATIONS)
    execute_process(COMMAND ${ZEL_QMAKE} -query QT_INSTALL_${kind}
                    OUTPUT_VARIABLE ZEL_QT_${kind} OUTPUT_STRIP_TRAILING_WHITESPACE
                    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
