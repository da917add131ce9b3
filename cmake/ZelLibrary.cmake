# The shared library, made of all modules.

get_property(zel_modules GLOBAL PROPERTY ZEL_MODULES)
get_property(zel_public_headers GLOBAL PROPERTY ZEL_PUBLIC_HEADERS)

add_library(ZelControlCenter SHARED)
add_library(Zel::ControlCenter ALIAS ZelControlCenter)
set_target_properties(ZelControlCenter PROPERTIES EXPORT_NAME ControlCenter)
# The modules' objects go into the library; users of the library need neither their include folders nor their links.
foreach(module IN LISTS zel_modules)
    target_sources(ZelControlCenter PRIVATE $<TARGET_OBJECTS:${module}>)
endforeach()
target_sources(ZelControlCenter PRIVATE $<TARGET_OBJECTS:ZelResources>)
target_link_libraries(ZelControlCenter
                      PUBLIC ZelPlatform ${ZEL_QT_CORE} ${ZEL_QT_WIDGETS}
                      PRIVATE ZelSingleApplication $<$<NOT:$<BOOL:${WIN32}>>:acl$<SEMICOLON>attr>)
# Users name a header with its folder, <zel/Version.h>: its bare name could be one of their own. For a project that this one
# is a part of, the headers lie in such a folder before they are installed.
set(zel_include ${PROJECT_BINARY_DIR}/include)
target_include_directories(ZelControlCenter INTERFACE $<INSTALL_INTERFACE:include> $<BUILD_INTERFACE:${zel_include}>)
target_compile_features(ZelControlCenter PUBLIC cxx_std_17)

# The classes show their members, so a new minor version may change the layout of their objects; releases and revisions
# do not. The package's version file promises the same.
get_property(zel_platform_libraries GLOBAL PROPERTY ZEL_PLATFORM_LIBRARIES)
foreach(library IN ITEMS ZelControlCenter LISTS zel_platform_libraries)
    set_target_properties(${library} PROPERTIES VERSION ${PROJECT_VERSION}
                                                SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endforeach()

# zel_offer_headers(<folder> <header>...)
function(zel_offer_headers folder)
    file(MAKE_DIRECTORY ${zel_include}/${folder})
    foreach(header IN LISTS ARGN)
        get_filename_component(name ${header} NAME)
        if(WIN32)
            configure_file(${header} ${zel_include}/${folder}/${name} COPYONLY)
        else()
            file(CREATE_LINK ${header} ${zel_include}/${folder}/${name} SYMBOLIC)
        endif()
    endforeach()
endfunction()
file(REMOVE_RECURSE ${zel_include})
file(GLOB ZEL_PLATFORM_HEADERS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/*.h)
zel_offer_headers(zel ${zel_public_headers})
zel_offer_headers(zel/platform ${ZEL_PLATFORM_HEADERS})
zel_offer_headers(zel/base ${PROJECT_SOURCE_DIR}/base/ZelExport.h)

# Tests and benchmarks include as the modules do.
if(ZEL_IS_TOP_LEVEL)
    foreach(header IN LISTS zel_public_headers)
        get_filename_component(folder ${header} DIRECTORY)
        target_include_directories(ZelControlCenter INTERFACE $<BUILD_INTERFACE:${folder}>)
    endforeach()
endif()
