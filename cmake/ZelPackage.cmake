# The Debian package that `cpack` makes: the runnable tree below /opt, and what a desktop needs to start it.

set(ZEL_PACKAGE_PREFIX /opt/torvane-settings)

configure_file(resources/desktop/torvane-settings-start ${PROJECT_BINARY_DIR}/torvane-settings-start @ONLY)
install(PROGRAMS ${PROJECT_BINARY_DIR}/torvane-settings-start DESTINATION /usr/bin COMPONENT desktop EXCLUDE_FROM_ALL)
install(FILES resources/desktop/torvane-settings.desktop DESTINATION /usr/share/applications COMPONENT desktop
        EXCLUDE_FROM_ALL)
foreach(size 48 128 256)
    install(FILES resources/icons/torvane-settings-${size}.png
            DESTINATION /usr/share/icons/hicolor/${size}x${size}/apps RENAME torvane-settings.png COMPONENT desktop
            EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME torvane-settings)
set(CPACK_PACKAGE_VENDOR Torvane)
set(CPACK_PACKAGE_CONTACT "Torvane <support@torvane.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Settings editor of the Torvane 3D viewer")
set(CPACK_PACKAGING_INSTALL_PREFIX ${ZEL_PACKAGE_PREFIX})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${ZEL_STAGE}/lib)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-open-sans)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-noto-cjk, qttranslations5-l10n")
set(CPACK_STRIP_FILES ON)

# One package of the two components that a user needs; headers and the CMake package stay with the developers.
set(CPACK_COMPONENTS_ALL runtime desktop)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
include(CPack)
