# Finds a genuine single-instance library below QtSingleApplication_ROOT: its headers, and either a library or its two
# source files. Defines the target QtSingleApplication::QtSingleApplication.

include(FindPackageHandleStandardArgs)

find_path(QtSingleApplication_INCLUDE_DIR NAMES QtSingleApplication qtsingleapplication.h
          PATH_SUFFIXES include include/QtSolutions include/qtsingleapplication src)
find_library(QtSingleApplication_LIBRARY
             NAMES QtSolutions_SingleApplication-head Qt5Solutions_SingleApplication-2.6
                   QtSolutions_SingleApplication-2.6 QtSingleApplication qtsingleapplication)
find_path(QtSingleApplication_SOURCE_DIR NAMES qtsingleapplication.cpp PATH_SUFFIXES src)

if(QtSingleApplication_LIBRARY)
    set(zel_origin QtSingleApplication_LIBRARY)
else()
    set(zel_origin QtSingleApplication_SOURCE_DIR)
endif()
find_package_handle_standard_args(QtSingleApplication REQUIRED_VARS ${zel_origin} QtSingleApplication_INCLUDE_DIR)

if(QtSingleApplication_FOUND AND NOT TARGET QtSingleApplication::QtSingleApplication)
    if(QtSingleApplication_LIBRARY)
        add_library(QtSingleApplication::QtSingleApplication UNKNOWN IMPORTED)
        set_target_properties(QtSingleApplication::QtSingleApplication PROPERTIES
                              IMPORTED_LOCATION ${QtSingleApplication_LIBRARY})
        target_include_directories(QtSingleApplication::QtSingleApplication
                                   INTERFACE ${QtSingleApplication_INCLUDE_DIR})
    else()
        add_library(GenuineSingleApplication STATIC ${QtSingleApplication_SOURCE_DIR}/qtsingleapplication.cpp
                                                    ${QtSingleApplication_SOURCE_DIR}/qtlocalpeer.cpp)
        # The sources are not ours, so their warnings do not concern this build.
        target_compile_options(GenuineSingleApplication PRIVATE -w)
        if(WIN32) # They hand texts of Qt to functions of Windows that exist in both widths.
            target_compile_definitions(GenuineSingleApplication PRIVATE UNICODE _UNICODE)
        endif()
        target_include_directories(GenuineSingleApplication SYSTEM PUBLIC ${QtSingleApplication_INCLUDE_DIR})
        target_link_libraries(GenuineSingleApplication PUBLIC ${ZEL_QT_WIDGETS} ${ZEL_QT_NETWORK})
        add_library(QtSingleApplication::QtSingleApplication ALIAS GenuineSingleApplication)
    endif()
endif()
