# What `install` makes below one folder: the runnable tree (components "runtime", "defaults" and "qt"), and what those need who build
# on the library (component "development"). The tree is one because the program looks for Qt's plug-ins in "bin" and for the
# translations in "resources" beside it, so the names of its folders are fixed.

include(CMakePackageConfigHelpers)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME runtime)

get_property(zel_public_headers GLOBAL PROPERTY ZEL_PUBLIC_HEADERS)
get_property(zel_platform_libraries GLOBAL PROPERTY ZEL_PLATFORM_LIBRARIES)

# The runnable tree. The run paths are final from the start: one that `install` has to change ends with an empty entry until
# then, which stands for the working directory. They name a Qt that the system does not find by itself.
set_target_properties(torvane-settings torvane-settings-check ZelControlCenter ${zel_platform_libraries}
                      PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH_USE_LINK_PATH ON)
install(TARGETS torvane-settings torvane-settings-check RUNTIME DESTINATION bin)
install(TARGETS ZelControlCenter ZelPlatform ${zel_platform_libraries} EXPORT ZelTargets
        RUNTIME DESTINATION bin
        LIBRARY DESTINATION lib NAMELINK_COMPONENT development
        ARCHIVE DESTINATION lib COMPONENT development)
foreach(folder IN LISTS ZEL_PLUGIN_FOLDERS)
    if(EXISTS ${ZEL_STAGE}/bin/${folder})
        install(DIRECTORY ${ZEL_STAGE}/bin/${folder} DESTINATION bin COMPONENT qt)
    endif()
endforeach()
install(DIRECTORY ${ZEL_STAGE}/${ZEL_LANGUAGE_DIR} DESTINATION resources PATTERN Toolkit_* EXCLUDE)
install(DIRECTORY ${ZEL_STAGE}/${ZEL_LANGUAGE_DIR} DESTINATION resources COMPONENT qt FILES_MATCHING PATTERN Toolkit_*)
if(EXISTS ${ZEL_STAGE}/resources/fonts)
    install(DIRECTORY ${ZEL_STAGE}/resources/fonts DESTINATION resources)
endif()
set(ZEL_DEFAULTS resources/Defaults.ini)
install(FILES ${ZEL_STAGE}/${ZEL_DEFAULTS} DESTINATION resources COMPONENT defaults)

# Headers and CMake package.
set(zel_package_dir lib/cmake/ZelControlCenter)
install(FILES ${zel_public_headers} DESTINATION include/zel COMPONENT development)
install(FILES ${ZEL_PLATFORM_HEADERS} DESTINATION include/zel/platform COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/base/ZelExport.h DESTINATION include/zel/base COMPONENT development)
install(EXPORT ZelTargets NAMESPACE Zel:: DESTINATION ${zel_package_dir} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZelControlCenterConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/ZelControlCenterConfig.cmake
                              INSTALL_DESTINATION ${zel_package_dir} PATH_VARS ZEL_LANGUAGE_DIR ZEL_DEFAULTS)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZelControlCenterConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZelControlCenterConfig.cmake
              ${PROJECT_BINARY_DIR}/ZelControlCenterConfigVersion.cmake
        DESTINATION ${zel_package_dir} COMPONENT development)

# What the build systems read that are not CMake.
set(ZEL_LIBRARIES ZelControlCenter)
foreach(library IN LISTS zel_platform_libraries)
    get_target_property(type ${library} TYPE)
    if(type STREQUAL SHARED_LIBRARY)
        list(APPEND ZEL_LIBRARIES ${library})
    endif()
endforeach()
list(TRANSFORM ZEL_LIBRARIES PREPEND -l OUTPUT_VARIABLE ZEL_LINK_FLAGS)
list(JOIN ZEL_LINK_FLAGS " " ZEL_LINK_FLAGS)
set(ZEL_QT_MODULE Qt5Widgets)
if(ZEL_QT EQUAL 4)
    set(ZEL_QT_MODULE QtGui)
endif()
# zel_write_pkgconfig(<file> <prefix>)
function(zel_write_pkgconfig file ZEL_PREFIX)
    configure_file(cmake/zelcontrolcenter.pc.in ${PROJECT_BINARY_DIR}/${file} @ONLY)
endfunction()
if(NOT WIN32)
    zel_write_pkgconfig(zelcontrolcenter.pc "\${pcfiledir}/../..")
    install(FILES ${PROJECT_BINARY_DIR}/zelcontrolcenter.pc DESTINATION lib/pkgconfig COMPONENT development)
endif()

# zel_install_guide(<folder> <install option>...): the guide to embedding, and the examples.
function(zel_install_guide folder)
    install(FILES ${PROJECT_SOURCE_DIR}/docs/embedding.md DESTINATION ${folder} ${ARGN})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${folder} ${ARGN})
endfunction()
set(zel_doc_dir share/doc/ZelControlCenter)
zel_install_guide(${zel_doc_dir} COMPONENT guide)
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/docs/third-party.md DESTINATION ${zel_doc_dir}
        COMPONENT guide)

# Builds what `install` copies, and nothing else.
add_custom_target(ZelInstalled DEPENDS torvane-settings torvane-settings-check)
