# What `install` makes: the runnable tree, the public headers and a CMake package.

include(CMakePackageConfigHelpers)

set(zel_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZelControlCenter)
get_property(zel_public_headers GLOBAL PROPERTY ZEL_PUBLIC_HEADERS)
get_property(zel_platform_libraries GLOBAL PROPERTY ZEL_PLATFORM_LIBRARIES)
file(GLOB zel_platform_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/*.h)

install(FILES ${zel_public_headers} DESTINATION include/zel)
install(FILES ${zel_platform_headers} DESTINATION include/zel/platform)
install(TARGETS torvane-settings RUNTIME DESTINATION bin)
install(TARGETS ZelControlCenter ZelPlatform ${zel_platform_libraries} EXPORT ZelTargets
        RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(DIRECTORY ${ZEL_STAGE}/bin/ DESTINATION bin
        FILES_MATCHING REGEX "/(${ZEL_PLUGIN_PATTERN})$")
install(EXPORT ZelTargets NAMESPACE Zel:: DESTINATION ${zel_package_dir})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZelControlCenterConfig.cmake.in
                              ${PROJECT_BINARY_DIR}/ZelControlCenterConfig.cmake
                              INSTALL_DESTINATION ${zel_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZelControlCenterConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZelControlCenterConfig.cmake
              ${PROJECT_BINARY_DIR}/ZelControlCenterConfigVersion.cmake
        DESTINATION ${zel_package_dir})
