# How every target of this project is compiled.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(ZEL_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

option(ZEL_WARNINGS_AS_ERRORS "Stop at the first compiler warning, as the presets of this project do" OFF)
option(ZEL_HARDENING "Let the compiler and the linker guard against memory errors" ON)
set(ZEL_SANITIZE "" CACHE STRING "Sanitizers to build with, separated by commas")

# Only what the compiler knows, and only the C++ one: the resources of Windows have a compiler of their own.
set(zel_gnu_like $<COMPILE_LANG_AND_ID:CXX,GNU,Clang,AppleClang>)
set(zel_msvc $<COMPILE_LANG_AND_ID:CXX,MSVC>)
add_compile_options("$<${zel_gnu_like}:-Wall;-Wextra>" "$<${zel_msvc}:/W4;/utf-8;/Zc:__cplusplus>")
# A library with symbols that are unique in the process is never unloaded.
add_compile_options($<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fno-gnu-unique>)
if(ZEL_WARNINGS_AS_ERRORS)
    add_compile_options($<${zel_gnu_like}:-Werror> $<${zel_msvc}:/WX>)
endif()
if(ZEL_HARDENING AND CMAKE_SYSTEM_NAME STREQUAL Linux)
    # Not with sanitizers, which do the same and more, nor without optimisation, which the first one needs.
    if(NOT ZEL_SANITIZE)
        add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>" -fstack-protector-strong)
    endif()
    add_link_options(LINKER:-z,relro,-z,now)
endif()
if(ZEL_SANITIZE)
    add_compile_options(-fsanitize=${ZEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZEL_SANITIZE})
endif()
