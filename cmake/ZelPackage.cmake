# The Debian packages that `cpack` makes: torvane-settings, with the runnable tree in a folder of its own and what a desktop
# needs to start it, and libzelcontrolcenter-dev, for those who build on the library. What they are called and what they
# need is in debian/, from which dpkg-buildpackage makes the same two.

if(NOT ZEL_QT EQUAL 5)
    message(STATUS "Debian packages: left out, they depend on Qt 5")
    return()
endif()

set(zel_debian ${PROJECT_SOURCE_DIR}/debian)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${zel_debian}/control ${zel_debian}/changelog)
set(ZEL_PACKAGE_PREFIX /usr/lib/torvane-settings)
file(READ ${zel_debian}/changelog text)
if(NOT text MATCHES "^torvane-settings \\(${PROJECT_VERSION}\\)")
    message(FATAL_ERROR "debian/changelog does not begin with version ${PROJECT_VERSION}")
endif()
string(REGEX MATCH "\n -- [^\n]*>  ([^\n]*)" ZEL_RELEASE_DATE "${text}")
execute_process(COMMAND date --utc --iso-8601 --date ${CMAKE_MATCH_1} OUTPUT_VARIABLE ZEL_RELEASE_DATE
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

include(${CMAKE_CURRENT_LIST_DIR}/ZelSourcePackage.cmake)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME torvane-settings)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR Torvane)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # Each package has its own.
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON) # Whatever the umask was at configuration.
set(CPACK_PACKAGE_CONTACT "Torvane <support@torvane.invalid>")
# Not that of the sources.
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/debian/prefix.cmake)
file(WRITE ${CPACK_PROJECT_CONFIG_FILE}
     "if(CPACK_GENERATOR STREQUAL \"DEB\")\n    set(CPACK_PACKAGING_INSTALL_PREFIX ${ZEL_PACKAGE_PREFIX})\nendif()\n")
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/ZelDebianFiles.cmake)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime desktop development debian_development)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${ZEL_STAGE}/lib)

# zel_describe_package(<group> <package>): as debian/control does.
function(zel_describe_package group package)
    file(READ ${zel_debian}/control text)
    string(REGEX REPLACE ".*\nPackage: ${package}\n" "\n" text "${text}")
    string(REGEX REPLACE "\n\n.*" "\n" text "${text}")
    string(REPLACE "\${binary:Version}" ${PROJECT_VERSION} text "${text}")
    string(REGEX REPLACE ", \\\${[a-z]+:[A-Za-z]+}" "" text "${text}")
    foreach(field Section Depends Recommends)
        if(text MATCHES "\n${field}: ([^\n]*)")
            string(TOUPPER CPACK_DEBIAN_${group}_PACKAGE_${field} variable)
            set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
        endif()
    endforeach()
    string(REGEX MATCH "\nDescription: (.*)\n" text "${text}")
    string(REPLACE "\n " "\n" text "${CMAKE_MATCH_1}")
    set(CPACK_DEBIAN_${group}_DESCRIPTION "${text}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${group}_PACKAGE_NAME ${package} PARENT_SCOPE)
endfunction()
zel_describe_package(EDITOR torvane-settings)
zel_describe_package(DEVELOPMENT_GROUP libzelcontrolcenter-dev)
set(CPACK_DEBIAN_EDITOR_PACKAGE_SHLIBDEPS ON)

# From these, dpkg-shlibdeps tells which version of the editor a package needs that links the libraries. The next minor
# version does not have them.
math(EXPR next_minor "${PROJECT_VERSION_MINOR} + 1")
set(soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs "")
foreach(library IN LISTS ZEL_LIBRARIES)
    file(APPEND ${PROJECT_BINARY_DIR}/debian/shlibs "lib${library} ${soversion} torvane-settings (>= ${PROJECT_VERSION}),"
         " torvane-settings (<< ${PROJECT_VERSION_MAJOR}.${next_minor}~)\n")
endforeach()
set(CPACK_ZEL_SYMBOLS ${PROJECT_BINARY_DIR}/debian/symbols)
set(CPACK_ZEL_SYMBOLS_TEMPLATE ${zel_debian}/torvane-settings.symbols)
set(CPACK_DEBIAN_EDITOR_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/shlibs ${CPACK_ZEL_SYMBOLS}
                                               ${PROJECT_BINARY_DIR}/debian/conffiles)

# zel_debian_file(<component> <file> <folder> <name>): one that `install` does not make elsewhere.
function(zel_debian_file component file folder name)
    install(FILES ${file} DESTINATION ${folder} RENAME ${name} COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

# What both have.
foreach(pair IN ITEMS desktop=torvane-settings debian_development=libzelcontrolcenter-dev)
    string(REPLACE "=" ";" pair ${pair})
    list(GET pair 0 component)
    list(GET pair 1 package)
    set(folder /usr/share/doc/${package})
    zel_debian_file(${component} ${zel_debian}/changelog ${folder} changelog)
    zel_debian_file(${component} ${zel_debian}/copyright ${folder} copyright)
    zel_debian_file(${component} ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${folder} CHANGELOG.md)
    zel_debian_file(${component} ${PROJECT_SOURCE_DIR}/docs/third-party.md ${folder} third-party.md)
    zel_debian_file(${component} ${zel_debian}/${package}.lintian-overrides /usr/share/lintian/overrides ${package})
endforeach()

zel_debian_file(desktop ${PROJECT_SOURCE_DIR}/docs/administrators.md /usr/share/doc/torvane-settings administrators.md)

# Administrators edit it, and keep what they wrote when the package is upgraded.
set(defaults /etc/torvane-settings/Defaults.ini)
file(WRITE ${PROJECT_BINARY_DIR}/debian/conffiles ${defaults}\n)
file(CREATE_LINK ${defaults} ${PROJECT_BINARY_DIR}/debian/Defaults.ini SYMBOLIC)
zel_debian_file(desktop ${ZEL_STAGE}/${ZEL_DEFAULTS} /etc/torvane-settings Defaults.ini)
zel_debian_file(desktop ${PROJECT_BINARY_DIR}/debian/Defaults.ini ${ZEL_PACKAGE_PREFIX}/resources Defaults.ini)

# The plug-ins and the texts of Qt are where its packages put them. A folder of plug-ins may appear later, with a package
# that the user installs.
foreach(folder IN LISTS ZEL_PLUGIN_FOLDERS)
    list(APPEND ZEL_QT_LINKS bin/${folder}=${ZEL_QT_PLUGINS}/${folder})
endforeach()
foreach(pair IN LISTS ZEL_QT_LINKS)
    string(REPLACE "=" ";" pair ${pair})
    list(GET pair 0 link)
    list(GET pair 1 target)
    get_filename_component(name ${link} NAME)
    get_filename_component(folder ${ZEL_PACKAGE_PREFIX}/${link} DIRECTORY)
    file(RELATIVE_PATH target ${folder} ${target})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/debian/links)
    file(CREATE_LINK ${target} ${PROJECT_BINARY_DIR}/debian/links/${name} SYMBOLIC)
    zel_debian_file(desktop ${PROJECT_BINARY_DIR}/debian/links/${name} ${folder} ${name})
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
zel_write_pkgconfig(debian/zelcontrolcenter.pc ${ZEL_PACKAGE_PREFIX})
zel_debian_file(debian_development ${PROJECT_BINARY_DIR}/debian/zelcontrolcenter.pc
                /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/pkgconfig zelcontrolcenter.pc)
zel_install_guide(/usr/share/doc/libzelcontrolcenter-dev COMPONENT debian_development EXCLUDE_FROM_ALL)

include(CPack)
cpack_add_component_group(editor)
cpack_add_component_group(development_group)
cpack_add_component(runtime GROUP editor)
cpack_add_component(desktop GROUP editor)
cpack_add_component(development GROUP development_group)
cpack_add_component(debian_development GROUP development_group)
