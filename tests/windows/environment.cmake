# Tests of a build for Windows find the staged DLLs and plug-ins, and run under Wine where the build is a cross build. They
# need a display: Qt's offscreen platform is not made for Windows.

# What they report goes to the standard output, not to a debugger.
set(ZEL_TEST_ENVIRONMENT QT_PLUGIN_PATH=${ZEL_STAGE}/bin QT_FORCE_STDERR_LOGGING=1)
set(ZEL_TEST_PATH PATH=path_list_prepend:${ZEL_STAGE}/bin)
if(CMAKE_CROSSCOMPILING)
    set(ZEL_TEST_LAUNCHER ${ZEL_WINE})
    # Wine keeps "PATH" and "QT_..." of the machine from a program, and hands over these in their place.
    set(ZEL_TEST_ENVIRONMENT WINEPATH=Z:${ZEL_STAGE}/bin WINEQT_PLUGIN_PATH=Z:${ZEL_STAGE}/bin
                             WINEQT_FORCE_STDERR_LOGGING=1 WINEDEBUG=-all)
    set(ZEL_TEST_PATH "")
endif()

set(zel_test_dll $<TARGET_FILE:${ZEL_QT_TEST}>)
if(ZEL_QT EQUAL 4) # Its target is the import library.
    set(zel_test_dll ${ZEL_QT_BINS}/QtTest4.dll)
endif()
# Beside the tests' programs, because it is no part of the product.
add_custom_target(ZelTestDll ALL
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${zel_test_dll} ${PROJECT_BINARY_DIR}/tests VERBATIM)
