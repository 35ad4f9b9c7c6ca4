# One target a subsystem. A target has a level and names the lower-level targets that it may use; it finds the
# headers of those and of nothing else, because every target has an include folder of its own with one
# forwarding header for each header that it lists. An include that the target's edges do not allow fails to
# compile, and an edge that points upwards does not configure.

# add_core(<name> LEVEL <n> FILES <sources and headers> [USES <lower cores>])
function(add_core name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LEVEL" "FILES;USES")
    foreach(used IN LISTS arg_USES)
        if(NOT TARGET quorvex_${used})
            message(FATAL_ERROR "${name} uses ${used}, which is no target of a lower level.")
        endif()
        get_target_property(usedLevel quorvex_${used} QUORVEX_LEVEL)
        if(NOT usedLevel LESS arg_LEVEL)
            message(FATAL_ERROR
                "${name} (level ${arg_LEVEL}) may not use ${used} (level ${usedLevel}): only lower levels.")
        endif()
    endforeach()

    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    set(includeRoot ${PROJECT_BINARY_DIR}/include/${name})
    set(forwarding)
    foreach(header IN LISTS arg_FILES)
        if(header MATCHES "\\.h$")
            file(CONFIGURE OUTPUT ${includeRoot}/${folder}/${header}
                CONTENT "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${header}\"\n")
            list(APPEND forwarding ${includeRoot}/${folder}/${header})
        endif()
    endforeach()

    add_library(quorvex_${name} STATIC ${arg_FILES})
    set_target_properties(quorvex_${name} PROPERTIES QUORVEX_LEVEL ${arg_LEVEL})
    target_sources(quorvex_${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${includeRoot} FILES ${forwarding})
    target_link_libraries(quorvex_${name} PRIVATE quorvex_options)
    foreach(used IN LISTS arg_USES)
        target_link_libraries(quorvex_${name} PUBLIC quorvex_${used})
    endforeach()
    set_property(GLOBAL APPEND PROPERTY QUORVEX_CORES ${name})
endfunction()

# add_core_test(<core> FILES <sources> [USES <more cores>]): the tests of one core, linked to that core alone.
function(add_core_test core)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FILES;USES")
    set(target test_${core})
    add_executable(${target} ${arg_FILES})
    target_link_libraries(${target} PRIVATE quorvex_${core} quorvex_test_support quorvex_options)
    foreach(used IN LISTS arg_USES)
        target_link_libraries(${target} PRIVATE quorvex_${used})
    endforeach()
    # The machine that runs the tests is taken to be in another time zone and to write a decimal comma.
    gtest_discover_tests(${target} TEST_PREFIX "${core}." DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 300 ENVIRONMENT
        "TZ=Asia/Kathmandu;LC_ALL=de_DE.UTF-8;LOCPATH=${PROJECT_BINARY_DIR}/locale")
endfunction()
