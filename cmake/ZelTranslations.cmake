# The translations: built from resources/languages into the runnable tree, and beside them Qt's own, for the texts of its
# boxes, under a name that is the same for every version of Qt.
#   ZEL_QT_LINKS   each such name, with "=" and Qt's file

set(ZEL_LANGUAGE_DIR resources/languages)
if(ZEL_QT EQUAL 4 AND NOT TARGET Qt4::lrelease)
    message(STATUS "Translations: left out, there is no lrelease")
    return()
endif()

set(zel_languages ${ZEL_STAGE}/${ZEL_LANGUAGE_DIR})
file(GLOB zel_translations CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/languages/Torvane_*.ts)
set_source_files_properties(${zel_translations} PROPERTIES OUTPUT_LOCATION ${zel_languages})
cmake_language(CALL ${ZEL_QT_ADD_TRANSLATION} zel_translation_files ${zel_translations})
add_custom_target(ZelTranslations ALL DEPENDS ${zel_translation_files})
add_dependencies(torvane-settings ZelTranslations)

# Languages that have another code in Qt.
set(zel_qt_code_zh zh_CN)
foreach(translation IN LISTS zel_translations)
    string(REGEX REPLACE ".*/Torvane_(.*)\\.ts" "\\1" code ${translation})
    set(qt_code ${code})
    if(DEFINED zel_qt_code_${code})
        set(qt_code ${zel_qt_code_${code}})
    endif()
    set(qt_file ${ZEL_QT_TRANSLATIONS}/${ZEL_QT_CATALOG}_${qt_code}.qm)
    list(APPEND ZEL_QT_LINKS ${ZEL_LANGUAGE_DIR}/Toolkit_${code}.qm=${qt_file})
    if(NOT EXISTS ${qt_file})
        continue()
    endif()
    if(WIN32 OR ZEL_QT EQUAL 4)
        configure_file(${qt_file} ${zel_languages}/Toolkit_${code}.qm COPYONLY)
    else()
        file(CREATE_LINK ${qt_file} ${zel_languages}/Toolkit_${code}.qm SYMBOLIC)
    endif()
endforeach()
