# Run by cpack between the installation into its own folder and the making of the Debian packages: what only a package
# for Debian wants otherwise than `install` makes it. Stops where the packages would lack something.

cmake_policy(VERSION 3.20)
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return() # Such as the package of the sources.
endif()

# Without the first two a package would depend on nothing.
foreach(tool file=file dpkg-shlibdeps=dpkg-dev dpkg-gensymbols=dpkg-dev gzip=gzip strip=binutils)
    string(REPLACE "=" ";" tool ${tool})
    list(GET tool 0 name)
    list(GET tool 1 package)
    find_program(ZEL_${name} ${name} PATHS ENV PATH NO_DEFAULT_PATH) # Where they are run from.
    if(NOT ZEL_${name})
        message(FATAL_ERROR "The Debian packages need ${name}: install ${package}")
    endif()
endforeach()

# The umask is for the files of who packs.
file(GLOB_RECURSE folders LIST_DIRECTORIES ON ${CPACK_TEMPORARY_DIRECTORY}/*)
foreach(folder IN LISTS folders)
    if(IS_DIRECTORY ${folder} AND NOT IS_SYMLINK ${folder})
        file(CHMOD ${folder} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                   WORLD_READ WORLD_EXECUTE)
    endif()
endforeach()

file(GLOB programs ${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/torvane-settings/bin/torvane-*
                   ${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/torvane-settings/lib/*.so.${CPACK_PACKAGE_VERSION})
foreach(program IN LISTS programs)
    execute_process(COMMAND strip --strip-unneeded --remove-section=.comment ${program} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# As dh_compress does, without the time: manual pages, and documents above 4 KiB; not the examples.
file(GLOB_RECURSE files ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/* ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*)
list(FILTER files EXCLUDE REGEX "/(examples/.*|copyright)$")
foreach(file IN LISTS files)
    file(SIZE ${file} size)
    if(size GREATER 4096 OR file MATCHES "/(man[1-9]/[^/]*|changelog)$")
        execute_process(COMMAND gzip -9 -n ${file} COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()

list(FILTER programs INCLUDE REGEX "\\.so\\.")
list(TRANSFORM programs PREPEND -e)
if(programs)
    execute_process(COMMAND dpkg-gensymbols -q -c0 -ptorvane-settings ${programs} -v${CPACK_PACKAGE_VERSION}
                            -I${CPACK_ZEL_SYMBOLS_TEMPLATE} -O${CPACK_ZEL_SYMBOLS} COMMAND_ERROR_IS_FATAL ANY)
endif()

# The editor starts only with the platform plug-in, from a package that the dependencies of its libraries bring with them.
file(GLOB platforms ${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/torvane-settings/bin/platforms)
if(platforms)
    file(READ_SYMLINK ${platforms} target)
    get_filename_component(target /usr/lib/torvane-settings/bin/${target}/libqxcb.so ABSOLUTE)
    execute_process(COMMAND dpkg-query --search ${target} OUTPUT_VARIABLE owner ERROR_QUIET)
endif()
if(NOT owner MATCHES "libqt5gui5")
    message(FATAL_ERROR "The package would have no platform plug-in: \"${target}\" is not a file of libqt5gui5")
endif()
