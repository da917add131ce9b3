# The Debian packages that `cpack` makes: torvane-settings, with the runnable tree in a folder of its own and what a desktop
# needs to start it, and libzelcontrolcenter-dev, for those who build on the library.

if(NOT ZEL_QT EQUAL 5)
    message(STATUS "Debian packages: left out, they depend on Qt 5")
    return()
endif()

set(ZEL_PACKAGE_PREFIX /usr/lib/torvane-settings)
set(ZEL_RELEASE_DATE 2024-01-31)
set(ZEL_RELEASE_DATE_RFC "Wed, 31 Jan 2024 12:00:00 +0000")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME torvane-settings)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR Torvane)
set(CPACK_PACKAGE_CONTACT "Torvane <support@torvane.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX ${ZEL_PACKAGE_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/ZelDebianFiles.cmake)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime desktop development debian_development)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${ZEL_STAGE}/lib)

set(CPACK_DEBIAN_EDITOR_PACKAGE_NAME torvane-settings)
set(CPACK_DEBIAN_EDITOR_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_EDITOR_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_EDITOR_PACKAGE_DEPENDS "fonts-open-sans, qttranslations5-l10n")
set(CPACK_DEBIAN_EDITOR_PACKAGE_RECOMMENDS fonts-noto-cjk)
set(CPACK_COMPONENT_EDITOR_DESCRIPTION "The editor changes what the viewer reads when it starts: how it draws,
where it keeps its cache and its pictures, and how it simplifies and imports
models. Brings a checker for the command line, which also repairs damaged
settings.")

set(CPACK_DEBIAN_DEVELOPMENT_GROUP_PACKAGE_NAME libzelcontrolcenter-dev)
set(CPACK_DEBIAN_DEVELOPMENT_GROUP_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_GROUP_PACKAGE_DEPENDS
    "torvane-settings (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), qtbase5-dev")
set(CPACK_COMPONENT_DEVELOPMENT_GROUP_DESCRIPTION "Headers and CMake package of the library that a viewer embeds to show the
settings of Torvane at its side, together with pages of its own. With a guide
and two examples.")

# zel_debian_file(<component> <file> <folder> <name>): one that `install` does not make elsewhere.
function(zel_debian_file component file folder name)
    install(FILES ${file} DESTINATION ${folder} RENAME ${name} COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

# What both have.
foreach(pair IN ITEMS desktop:torvane-settings debian_development:libzelcontrolcenter-dev)
    string(REPLACE ":" ";" pair ${pair})
    list(GET pair 0 component)
    list(GET pair 1 PACKAGE)
    set(folder /usr/share/doc/${PACKAGE})
    configure_file(resources/debian/changelog.in ${PROJECT_BINARY_DIR}/debian/${PACKAGE}.changelog @ONLY)
    zel_debian_file(${component} ${PROJECT_BINARY_DIR}/debian/${PACKAGE}.changelog ${folder} changelog.Debian)
    zel_debian_file(${component} ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${folder} changelog)
    zel_debian_file(${component} ${PROJECT_SOURCE_DIR}/resources/debian/copyright ${folder} copyright)
    zel_debian_file(${component} ${PROJECT_SOURCE_DIR}/docs/third-party.md ${folder} third-party.md)
    zel_debian_file(${component} ${PROJECT_SOURCE_DIR}/resources/debian/${PACKAGE}.lintian-overrides
                    /usr/share/lintian/overrides ${PACKAGE})
endforeach()

# The editor on a desktop.
configure_file(resources/desktop/torvane-settings.in ${PROJECT_BINARY_DIR}/debian/torvane-settings @ONLY)
install(PROGRAMS ${PROJECT_BINARY_DIR}/debian/torvane-settings DESTINATION /usr/bin COMPONENT desktop EXCLUDE_FROM_ALL)
file(CREATE_LINK ../lib/torvane-settings/bin/torvane-settings-check ${PROJECT_BINARY_DIR}/debian/torvane-settings-check
     SYMBOLIC)
zel_debian_file(desktop ${PROJECT_BINARY_DIR}/debian/torvane-settings-check /usr/bin torvane-settings-check)
foreach(page IN ITEMS torvane-settings.1 torvane-settings-check.1)
    zel_debian_file(desktop ${PROJECT_SOURCE_DIR}/resources/desktop/${page} /usr/share/man/man1 ${page})
endforeach()
zel_debian_file(desktop ${PROJECT_SOURCE_DIR}/resources/desktop/torvane-settings.desktop /usr/share/applications
                torvane-settings.desktop)
configure_file(resources/desktop/torvane-settings.metainfo.xml.in ${PROJECT_BINARY_DIR}/debian/metainfo.xml @ONLY)
zel_debian_file(desktop ${PROJECT_BINARY_DIR}/debian/metainfo.xml /usr/share/metainfo invalid.torvane.settings.metainfo.xml)
foreach(size IN ITEMS 16 24 32 48 64 128 256)
    zel_debian_file(desktop ${PROJECT_SOURCE_DIR}/resources/icons/torvane-settings-${size}.png
                    /usr/share/icons/hicolor/${size}x${size}/apps torvane-settings.png)
endforeach()
zel_debian_file(desktop ${PROJECT_SOURCE_DIR}/resources/art/torvane-settings.svg /usr/share/icons/hicolor/scalable/apps
                torvane-settings.svg)

# The library where compilers and CMake look for one: its files lie in the tree.
file(CREATE_LINK ../lib/torvane-settings/include/zel ${PROJECT_BINARY_DIR}/debian/zel SYMBOLIC)
zel_debian_file(debian_development ${PROJECT_BINARY_DIR}/debian/zel /usr/include zel)
foreach(file IN ITEMS ZelControlCenterConfig.cmake ZelControlCenterConfigVersion.cmake)
    file(WRITE ${PROJECT_BINARY_DIR}/debian/cmake/${file}
         "include(\${CMAKE_CURRENT_LIST_DIR}/../../torvane-settings/lib/cmake/ZelControlCenter/${file})\n")
    zel_debian_file(debian_development ${PROJECT_BINARY_DIR}/debian/cmake/${file} /usr/lib/cmake/ZelControlCenter ${file})
endforeach()
zel_install_guide(/usr/share/doc/libzelcontrolcenter-dev COMPONENT debian_development EXCLUDE_FROM_ALL)

include(CPack)
cpack_add_component_group(editor)
cpack_add_component_group(development_group)
cpack_add_component(runtime GROUP editor)
cpack_add_component(desktop GROUP editor)
cpack_add_component(development GROUP development_group)
cpack_add_component(debian_development GROUP development_group)
