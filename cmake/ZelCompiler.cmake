# How every target of this project is compiled.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

option(ZEL_WARNINGS_AS_ERRORS "Stop at the first compiler warning" ON)
set(ZEL_SANITIZE "" CACHE STRING "Sanitizers to build with, separated by commas")

# Only what the compiler knows, and only the C++ one: the resources of Windows have a compiler of their own.
set(zel_gnu_like $<COMPILE_LANG_AND_ID:CXX,GNU,Clang,AppleClang>)
add_compile_options($<${zel_gnu_like}:-Wall> $<${zel_gnu_like}:-Wextra>)
# A library with symbols that are unique in the process is never unloaded.
add_compile_options($<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fno-gnu-unique>)
if(ZEL_WARNINGS_AS_ERRORS)
    add_compile_options($<${zel_gnu_like}:-Werror>)
endif()
if(MSVC)
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:/utf-8> $<$<COMPILE_LANGUAGE:CXX>:/Zc:__cplusplus>)
endif()
if(ZEL_SANITIZE)
    add_compile_options(-fsanitize=${ZEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ZEL_SANITIZE})
endif()
