# The translations: built from resources/languages into the runnable tree, and beside them the toolkit's own texts, as
# those of its boxes, under a name that does not tell which toolkit it is.

set(zel_languages ${ZEL_STAGE}/resources/languages)
file(GLOB zel_translations CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/languages/Torvane_*.ts)
set_source_files_properties(${zel_translations} PROPERTIES OUTPUT_LOCATION ${zel_languages})
cmake_language(CALL ${ZEL_QT_ADD_TRANSLATION} zel_translation_files ${zel_translations})
add_custom_target(ZelTranslations ALL DEPENDS ${zel_translation_files})
add_dependencies(torvane-settings ZelTranslations)

# Where the toolkit names a language otherwise than we do.
set(zel_toolkit_code_zh zh_CN)
foreach(translation IN LISTS zel_translations)
    string(REGEX REPLACE ".*/Torvane_(.*)\\.ts" "\\1" code ${translation})
    set(toolkit_code ${code})
    if(DEFINED zel_toolkit_code_${code})
        set(toolkit_code ${zel_toolkit_code_${code}})
    endif()
    set(toolkit_file ${ZEL_QT_TRANSLATIONS}/${ZEL_QT_CATALOG}_${toolkit_code}.qm)
    if(NOT EXISTS ${toolkit_file})
        continue()
    endif()
    if(WIN32)
        configure_file(${toolkit_file} ${zel_languages}/Toolkit_${code}.qm COPYONLY)
    else()
        file(CREATE_LINK ${toolkit_file} ${zel_languages}/Toolkit_${code}.qm SYMBOLIC)
    endif()
endforeach()
