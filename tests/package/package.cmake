# What an integrator does: installs the library, moves it elsewhere, builds a copy of the example against it, and runs
# what came of it, all without a display.
#   cmake -DBUILD=<folder> -DSOURCE=<folder> -DSCRATCH=<folder> -DOPTIONS=<options>
#         -DLIBRARY_FLAGS=<flags> -P package.cmake

function(run what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output TIMEOUT 250)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what}: ${result}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect text pattern what)
    if(NOT text MATCHES "${pattern}")
        message(FATAL_ERROR "${what}: no \"${pattern}\" in\n${text}")
    endif()
endfunction()

function(build project)
    run("Configuring ${project}" ${CMAKE_COMMAND} -S ${SCRATCH}/${project} -B ${SCRATCH}/${project}-build ${OPTIONS}
        -DCMAKE_CXX_FLAGS=${LIBRARY_FLAGS} -DCMAKE_PREFIX_PATH=${SCRATCH}/moved)
    run("Building ${project}" ${CMAKE_COMMAND} --build ${SCRATCH}/${project}-build)
endfunction()

# The tree works wherever it is moved to, and does not tell where it was made.
file(REMOVE_RECURSE ${SCRATCH})
run("Installing" ${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/installed)
file(RENAME ${SCRATCH}/installed ${SCRATCH}/moved)
file(GLOB package_files ${SCRATCH}/moved/lib/cmake/ZelControlCenter/*.cmake)
foreach(file IN LISTS package_files)
    file(READ ${file} text)
    foreach(folder IN ITEMS ${SCRATCH} ${BUILD} ${SOURCE})
        string(FIND "${text}" "${folder}/" position)
        if(NOT position EQUAL -1)
            message(FATAL_ERROR "${file} names ${folder}")
        endif()
    endforeach()
endforeach()
foreach(path IN ITEMS bin/torvane-settings bin/platforms lib resources/languages)
    if(NOT EXISTS ${SCRATCH}/moved/${path})
        message(FATAL_ERROR "The installed tree has no ${path}")
    endif()
endforeach()

# Every public header compiles on its own; both ways to name it find it.
file(GLOB headers RELATIVE ${SCRATCH}/moved/include/zel
     ${SCRATCH}/moved/include/zel/*.h ${SCRATCH}/moved/include/zel/platform/*.h
     ${SCRATCH}/moved/include/zel/base/*.h)
set(sources "")
foreach(header IN LISTS headers)
    string(REGEX REPLACE "[/.]" "_" name ${header})
    file(WRITE ${SCRATCH}/headers/${name}.cpp "#include <zel/${header}>\n#include <${header}>\n")
    list(APPEND sources ${name}.cpp)
endforeach()
list(JOIN sources " " sources)
file(WRITE ${SCRATCH}/headers/CMakeLists.txt
     "cmake_minimum_required(VERSION 3.20)\nproject(Headers LANGUAGES CXX)\nset(CMAKE_CXX_STANDARD 17)\n"
     "find_package(ZelControlCenter REQUIRED)\n"
     "add_library(headers OBJECT ${sources})\ntarget_link_libraries(headers PRIVATE Zel::ControlCenter)\n")
build(headers)

file(COPY ${SOURCE}/examples/viewer DESTINATION ${SCRATCH})
build(viewer)

# Asked for a platform that nobody has, the toolkit names those that it finds, and ends.
set(ENV{QT_QPA_PLATFORM} nothing)
execute_process(COMMAND ${SCRATCH}/moved/bin/torvane-settings WORKING_DIRECTORY /
                OUTPUT_VARIABLE output ERROR_VARIABLE output)
expect("${output}" "plugins are: [^\n]*offscreen" "The installed editor")

set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{HOME} ${SCRATCH}/home)
set(ENV{XDG_CONFIG_HOME} ${SCRATCH}/home/config)
set(ENV{XDG_CACHE_HOME} ${SCRATCH}/home/cache)
set(folder ${SCRATCH}/home/config/TorvaneViewer)
file(WRITE ${folder}/Settings.ini
     "[General]\nenablediag=true\n[raytracer]\nquality=Nonsense\n[Resources]\nLODTrianglesCap=100000\n")
run("The viewer" ${SCRATCH}/viewer-build/torvane-viewer --once ${SOURCE}/examples/viewer/models/ring.knot)
file(READ ${folder}/Settings.ini settings)
file(READ ${folder}/log.txt log)
foreach(line IN ITEMS quality=Medium Ratios=1/0.75/0.5/0.25/0.1 LODTrianglesCap=100000 cacheSize=1024
        "cacheDirectory=${SCRATCH}/home/cache/TorvaneViewer/" "ImageFolder=${folder}/Screenshots")
    # Not by a pattern: a path may hold what means something in one.
    string(FIND "${settings}" "\n${line}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "The settings: no \"${line}\" in\n${settings}")
    endif()
endforeach()
# The cap allows 1000 facets of the model's 6000.
expect("${log}" "painting (9[5-9][0-9]|10[0-4][0-9]) facets" "The log")
if(log MATCHES "warning\\] (QObject|QMetaObject)")
    message(FATAL_ERROR "A slot or signal is missing:\n${log}")
endif()
