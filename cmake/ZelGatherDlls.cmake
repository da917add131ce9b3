# Copies into BIN the DLLs that the programs, the DLLs and the plug-ins there ask for and that are in one of FOLDERS.

set(CMAKE_GET_RUNTIME_DEPENDENCIES_PLATFORM windows+pe)
if(OBJDUMP)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_TOOL objdump)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_COMMAND ${OBJDUMP})
endif()
file(GLOB programs ${BIN}/*.exe)
file(GLOB_RECURSE libraries ${BIN}/*.dll)
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programs} LIBRARIES ${libraries} DIRECTORIES ${BIN} ${FOLDERS}
     PRE_EXCLUDE_REGEXES "^api-ms-" "^ext-ms-" POST_EXCLUDE_REGEXES "[Ss]ystem32"
     RESOLVED_DEPENDENCIES_VAR found UNRESOLVED_DEPENDENCIES_VAR windows CONFLICTING_DEPENDENCIES_PREFIX twice)
foreach(dll IN LISTS twice_FILENAMES)
    list(GET twice_${dll} 0 path)
    list(APPEND found ${path})
endforeach()
list(FILTER found EXCLUDE REGEX "^${BIN}/")
file(COPY ${found} DESTINATION ${BIN})
