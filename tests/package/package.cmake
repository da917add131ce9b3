# What an integrator does: installs the library, moves it elsewhere, builds a copy of the example against it, and runs
# what came of it, all without a display.
#   cmake -DBUILD=<folder> -DSOURCE=<folder> -DSCRATCH=<folder> -DOPTIONS=<options>
#         -DLIBRARY_FLAGS=<flags> -P package.cmake

function(run what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output TIMEOUT 900)
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

# build(<project> <suffix of the build folder> <option>...)
function(build project suffix)
    set(folder ${SCRATCH}/${project}-build${suffix})
    run("Configuring ${project}" ${CMAKE_COMMAND} -S ${SCRATCH}/${project} -B ${folder} ${OPTIONS} ${ARGN})
    run("Building ${project}" ${CMAKE_COMMAND} --build ${folder})
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

# Every public header compiles on its own, and the smallest host with it, under the warnings and the defines of strict
# teams. Not by the imported target, whose headers would not be warned of.
set(strict "-Werror -Wall -Wextra -Wpedantic -Wshadow -Wconversion -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII \
-DQT_NO_KEYWORDS -DQT_STRICT_ITERATORS -DQT_NO_URL_CAST_FROM_STRING")
file(GLOB_RECURSE headers RELATIVE ${SCRATCH}/moved/include ${SCRATCH}/moved/include/*.h)
set(sources "\"${SOURCE}/examples/minimal/main.cpp\"")
foreach(header IN LISTS headers)
    string(MAKE_C_IDENTIFIER ${header} name)
    file(WRITE ${SCRATCH}/strict/${name}.cpp "#include <${header}>\n")
    list(APPEND sources ${name}.cpp)
endforeach()
list(JOIN sources " " sources)
file(WRITE ${SCRATCH}/strict/CMakeLists.txt
     "cmake_minimum_required(VERSION 3.20)\nproject(Strict LANGUAGES CXX)\n"
     "set(CMAKE_AUTOMOC ON)\nfind_package(Qt5 REQUIRED COMPONENTS Widgets)\nadd_library(strict OBJECT ${sources})\n"
     "target_include_directories(strict PRIVATE \"${SCRATCH}/moved/include\")\n"
     "target_link_libraries(strict PRIVATE Qt5::Widgets)\n")
build(strict g++ -DCMAKE_CXX_COMPILER=g++ -DCMAKE_CXX_STANDARD=17 -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=${strict})
build(strict clang++ -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_STANDARD=20 -DCMAKE_BUILD_TYPE=Debug
      -DCMAKE_CXX_FLAGS=${strict})

# A program in C, built by pkg-config, links every public function that is not inline.
set(ENV{PKG_CONFIG_PATH} ${SCRATCH}/moved/lib/pkgconfig)
run("pkg-config" pkg-config --cflags --libs zelcontrolcenter)
separate_arguments(flags UNIX_COMMAND "${output}")
set(compile_flags ${flags})
list(FILTER compile_flags INCLUDE REGEX "^-[ID]")
run("Listing the public functions" /usr/bin/python3 ${SOURCE}/tests/package/interface.py ${SCRATCH}/moved/include
    ${compile_flags})
file(WRITE ${SCRATCH}/interface.c "${output}")
run("Linking the public functions" gcc -fPIC -Werror -Wall -Wextra -std=c99 ${SCRATCH}/interface.c -o ${SCRATCH}/interface
    ${flags} ${LIBRARY_FLAGS})
run("The public functions" ${SCRATCH}/interface)

# A project that the sources are a part of.
file(WRITE ${SCRATCH}/part/CMakeLists.txt
     "cmake_minimum_required(VERSION 3.20)\nproject(Part LANGUAGES CXX)\nset(CMAKE_AUTOMOC ON)\ninclude(FetchContent)\n"
     "find_package(Qt5 REQUIRED COMPONENTS Widgets)\nFetchContent_Declare(center SOURCE_DIR \"${SOURCE}\")\n"
     "FetchContent_MakeAvailable(center)\nadd_library(part OBJECT \"${SOURCE}/examples/minimal/main.cpp\")\n"
     "target_link_libraries(part PRIVATE Zel::ControlCenter)\n"
     "file(READ \${ZelControlCenter_DEFAULTS} defaults)\n")
run("Configuring a part" ${CMAKE_COMMAND} -S ${SCRATCH}/part -B ${SCRATCH}/part-build ${OPTIONS})
run("Building against a part" ${CMAKE_COMMAND} --build ${SCRATCH}/part-build --target part)

# A component that does not exist is called by its name, and the version is one of those that the library keeps to.
function(expect_find request expected)
    file(WRITE ${SCRATCH}/find/CMakeLists.txt "cmake_minimum_required(VERSION 3.20)\nproject(Find LANGUAGES CXX)\n"
         "find_package(ZelControlCenter ${request})\n"
         "message(\"result: \${ZelControlCenter_FOUND} \${ZelControlCenter_NOT_FOUND_MESSAGE}\")\n")
    run("Asking for ${request}" ${CMAKE_COMMAND} -S ${SCRATCH}/find -B ${SCRATCH}/find-build ${OPTIONS}
        -DCMAKE_PREFIX_PATH=${SCRATCH}/moved -UZelControlCenter_DIR)
    expect("${output}" "result: ${expected}" "Asking for ${request}")
endfunction()
expect_find("1.1 COMPONENTS ControlCenter Platform" "1")
expect_find("1.1 COMPONENTS Widgets" "(0|FALSE) There is no component \"Widgets\"")
expect_find("1.0" "0")
expect_find("1.2" "0")

foreach(example IN ITEMS minimal viewer)
    file(COPY ${SCRATCH}/moved/share/doc/ZelControlCenter/examples/${example} DESTINATION ${SCRATCH})
    build(${example} "" -DCMAKE_CXX_FLAGS=${LIBRARY_FLAGS} -DCMAKE_PREFIX_PATH=${SCRATCH}/moved)
endforeach()

# Asked for a platform that does not exist, Qt names those that it finds, and ends.
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
run("The viewer" ${SCRATCH}/viewer-build/torvane-viewer --once)
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
