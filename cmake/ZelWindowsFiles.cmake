# Run by cpack between the installation into its own folder and the making of the packages for Windows: stops where they
# would lack the font of the interface, without which the build goes on. Sources are packed without it.

foreach(font IN LISTS CPACK_ZEL_FONTS)
    if(CPACK_INSTALL_CMAKE_PROJECTS AND NOT EXISTS ${CPACK_TEMPORARY_DIRECTORY}/resources/fonts/${font})
        message(FATAL_ERROR "The packages would lack ${font}: install fonts-open-sans, or set ZEL_FONT_DIR to a folder with "
                            "it, and run cmake and the build again")
    endif()
endforeach()
