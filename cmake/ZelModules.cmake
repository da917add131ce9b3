# The library is made of modules, one for each source folder. A module sees the headers of its own folder and of the
# modules that it may use, and no others.

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)

# zel_add_module(<name> SOURCES <file>... PUBLIC_HEADERS <file>... LINK <target>...)
# LINK names Qt or platform targets, and modules whose headers this one may include.
function(zel_add_module name)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_HEADERS;LINK" ${ARGN})
    add_library(${name} OBJECT ${ARG_SOURCES} ${ARG_PUBLIC_HEADERS})
    # Public, because a program that has the objects compiled in does not import them from the library.
    target_compile_definitions(${name} PUBLIC ZelControlCenter_EXPORTS)
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}
                                              ${PROJECT_BINARY_DIR}/generated)
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
    set_property(GLOBAL APPEND PROPERTY ZEL_MODULES ${name})
    foreach(header IN LISTS ARG_PUBLIC_HEADERS)
        set_property(GLOBAL APPEND PROPERTY ZEL_PUBLIC_HEADERS ${CMAKE_CURRENT_SOURCE_DIR}/${header})
    endforeach()
endfunction()
