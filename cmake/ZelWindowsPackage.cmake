# What `cpack` makes for Windows: a zip that runs where it is unpacked, and an installer. The installer knows "/S" (asks
# nothing) and "/D=<folder>"; the uninstaller removes what has been installed, and never the user's settings.

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
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};${PROJECT_NAME};runtime;/")

# The installer's script is our own.
set(CPACK_MODULE_PATH ${zel_windows_resources})
set(CPACK_ZEL_ICON ${zel_windows_resources}/torvane-settings.ico)
include(CPack)
