# What `install` makes: the runnable tree, the public headers and a CMake package.

include(CMakePackageConfigHelpers)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME runtime)

set(zel_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZelControlCenter)
get_property(zel_public_headers GLOBAL PROPERTY ZEL_PUBLIC_HEADERS)
get_property(zel_platform_libraries GLOBAL PROPERTY ZEL_PLATFORM_LIBRARIES)
file(GLOB zel_platform_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/*.h)

install(FILES ${zel_public_headers} DESTINATION include/zel COMPONENT headers)
install(FILES ${zel_platform_headers} DESTINATION include/zel/platform COMPONENT headers)
install(FILES ${PROJECT_SOURCE_DIR}/base/ZelExport.h ${PROJECT_SOURCE_DIR}/base/ZelQtCompat.h
        DESTINATION include/zel/base COMPONENT headers)
install(TARGETS torvane-settings RUNTIME DESTINATION bin)
install(TARGETS ZelControlCenter ZelPlatform ${zel_platform_libraries} EXPORT ZelTargets
        RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib COMPONENT headers)
foreach(folder IN LISTS ZEL_PLUGIN_FOLDERS)
    if(EXISTS ${ZEL_STAGE}/bin/${folder})
        install(DIRECTORY ${ZEL_STAGE}/bin/${folder} DESTINATION bin)
    endif()
endforeach()
set(ZEL_LANGUAGE_DIR resources/languages)
install(DIRECTORY ${ZEL_STAGE}/${ZEL_LANGUAGE_DIR} DESTINATION resources)
set(ZEL_DEFAULTS resources/Defaults.ini)
install(FILES ${ZEL_STAGE}/${ZEL_DEFAULTS} DESTINATION resources)

install(EXPORT ZelTargets NAMESPACE Zel:: DESTINATION ${zel_package_dir} COMPONENT headers)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZelControlCenterConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/ZelControlCenterConfig.cmake
                              INSTALL_DESTINATION ${zel_package_dir} PATH_VARS ZEL_LANGUAGE_DIR ZEL_DEFAULTS)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZelControlCenterConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZelControlCenterConfig.cmake
              ${PROJECT_BINARY_DIR}/ZelControlCenterConfigVersion.cmake
        DESTINATION ${zel_package_dir} COMPONENT headers)

install(TARGETS torvane-settings-check RUNTIME DESTINATION bin)

# Builds what `install` copies, and nothing else.
add_custom_target(ZelInstalled DEPENDS torvane-settings torvane-settings-check)
