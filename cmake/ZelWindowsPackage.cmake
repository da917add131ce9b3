# What `cpack` makes for Windows: a zip that runs where it is unpacked, and an installer. The installer knows "/S" (asks
# nothing) and "/D=<folder>"; the uninstaller removes what has been installed, and never the user's settings.

include(${CMAKE_CURRENT_LIST_DIR}/ZelSourcePackage.cmake)
set(CPACK_GENERATOR ZIP NSIS)
set(CPACK_PACKAGE_NAME torvane-settings)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR Torvane)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Settings editor of the Torvane 3D viewer")
set(CPACK_PACKAGE_FILE_NAME torvane-settings-${PROJECT_VERSION}-win64)
set(CPACK_PACKAGE_INSTALL_DIRECTORY "Torvane Settings")
set(CPACK_STRIP_FILES ON)

# Only what a user needs: headers and the CMake package stay with the developers.
set(CPACK_MONOLITHIC_INSTALL ON)
foreach(component IN ITEMS runtime defaults qt)
    list(APPEND CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};${PROJECT_NAME};${component};/")
endforeach()
set(CPACK_ZEL_FONTS ${ZEL_FONTS})
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/ZelWindowsFiles.cmake)

# They contain Qt and the compiler's libraries, so the licences of these go with them.
install(FILES ${PROJECT_SOURCE_DIR}/docs/third-party.md DESTINATION licences)
foreach(pair IN ITEMS common-licenses/LGPL-3:LGPL-3 common-licenses/GPL-3:GPL-3 doc/libqt5core5a/copyright:Qt
                      doc/gcc-mingw-w64-base/copyright:GCC doc/mingw-w64-common/copyright:MinGW-w64
                      doc/fonts-open-sans/copyright:OpenSans)
    string(REPLACE ":" ";" pair ${pair})
    list(GET pair 0 text)
    list(GET pair 1 name)
    if(EXISTS /usr/share/${text})
        install(FILES /usr/share/${text} DESTINATION licences RENAME ${name}.txt)
    else()
        message(STATUS "Packages for Windows: add the licence \"${name}\", this machine does not have it")
    endif()
endforeach()

# The installer's script is our own. Only the NSIS of Debian makes installers that are 64-bit programs.
set(CPACK_MODULE_PATH ${zel_windows_resources})
set(CPACK_ZEL_TARGET x86-unicode)
if(CMAKE_HOST_SYSTEM_NAME STREQUAL Linux)
    set(CPACK_ZEL_TARGET amd64-unicode)
endif()
set(CPACK_ZEL_ICON ${zel_windows_resources}/torvane-settings.ico)
include(CPack)
