# Run by cpack between the installation into its own folder and the making of the Debian packages: what only a package
# for Debian wants otherwise than `install` makes it.

cmake_policy(VERSION 3.20)

file(GLOB packages LIST_DIRECTORIES ON ${CPACK_TEMPORARY_DIRECTORY}/*)
foreach(package IN LISTS packages)
    # Manual pages and changes are compressed, without the time.
    file(GLOB_RECURSE files ${package}/usr/share/man/* ${package}/usr/share/doc/*/changelog*)
    foreach(file IN LISTS files)
        execute_process(COMMAND gzip -9 -n ${file} COMMAND_ERROR_IS_FATAL ANY)
    endforeach()

    # A link into Qt is relative, and there only if a package that this one depends on has its target.
    file(GLOB_RECURSE links LIST_DIRECTORIES ON ${package}/usr/lib/torvane-settings/*)
    foreach(link IN LISTS links)
        if(NOT IS_SYMLINK ${link})
            continue()
        endif()
        file(READ_SYMLINK ${link} target)
        if(NOT IS_ABSOLUTE ${target})
            continue()
        endif()
        file(REMOVE ${link})
        execute_process(COMMAND dpkg-query --search ${target} OUTPUT_VARIABLE owner ERROR_QUIET)
        if(owner MATCHES "^(libqt5gui5|qttranslations5-l10n)")
            string(REPLACE ${package} "" place ${link})
            get_filename_component(folder ${place} DIRECTORY)
            file(RELATIVE_PATH target ${folder} ${target})
            file(CREATE_LINK ${target} ${link} SYMBOLIC)
        endif()
    endforeach()
endforeach()
