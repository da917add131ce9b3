# Copies into BIN the DLLs that the programs, the DLLs and the plug-ins there ask for and that are in one of FOLDERS.

cmake_minimum_required(VERSION 3.20)

set(CMAKE_GET_RUNTIME_DEPENDENCIES_PLATFORM windows+pe)
if(OBJDUMP)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_TOOL objdump)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_COMMAND ${OBJDUMP})
endif()
file(GLOB programs ${BIN}/*.exe)
set(offered "")
set(names "")
foreach(folder IN LISTS FOLDERS)
    file(GLOB dlls ${folder}/*.dll)
    foreach(dll IN LISTS dlls)
        get_filename_component(name ${dll} NAME)
        if(NOT name IN_LIST names)
            list(APPEND names ${name})
            list(APPEND offered ${dll})
        endif()
    endforeach()
endforeach()

# What an earlier build has copied may come from another Qt.
foreach(dll IN LISTS offered)
    get_filename_component(name ${dll} NAME)
    if(EXISTS ${BIN}/${name})
        file(COPY ${dll} DESTINATION ${BIN})
    endif()
endforeach()

# What is copied may ask for more.
set(copied TRUE)
while(copied)
    set(copied FALSE)
    file(GLOB_RECURSE libraries ${BIN}/*.dll)
    file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programs} LIBRARIES ${libraries}
         PRE_EXCLUDE_REGEXES "^api-ms-" "^ext-ms-" POST_EXCLUDE_REGEXES ".*"
         UNRESOLVED_DEPENDENCIES_VAR missing)
    string(TOLOWER "${missing}" missing)
    foreach(dll IN LISTS offered)
        get_filename_component(name ${dll} NAME)
        string(TOLOWER ${name} lower)
        if(lower IN_LIST missing AND NOT EXISTS ${BIN}/${name})
            file(COPY ${dll} DESTINATION ${BIN})
            set(copied TRUE)
        endif()
    endforeach()
endwhile()
