# One target a subsystem. A target has a level and names the lower-level targets whose headers its own files or the
# headers that they include need; it is compiled with the include folders of those and of nothing else, because every
# target has an include folder of its own with one forwarding header for each header that it lists. An include that the
# target's edges do not allow fails to compile; an edge that points upwards, or that nothing needs, does not configure.

# Sets the variable to the folders of src that the files include from.
function(included_folders variable)
    set(folders)
    foreach(file IN LISTS ARGN)
        if(file MATCHES "\\.(cpp|h)$" AND NOT IS_ABSOLUTE ${file})
            file(STRINGS ${CMAKE_CURRENT_SOURCE_DIR}/${file} includes REGEX "^#include \"")
            foreach(include IN LISTS includes)
                if(include MATCHES "^#include \"(.+)/[^/]+\"")
                    list(APPEND folders ${CMAKE_MATCH_1})
                endif()
            endforeach()
        endif()
    endforeach()
    list(REMOVE_DUPLICATES folders)
    set(${variable} ${folders} PARENT_SCOPE)
endfunction()

# A source begins with its own header: so the header's includes stand first in what is compiled, which proves that it can
# be included alone.
function(require_own_headers_first)
    foreach(source IN LISTS ARGN)
        string(REGEX REPLACE "\\.cpp$" ".h" header ${source})
        if(source MATCHES "\\.cpp$" AND header IN_LIST ARGN)
            file(STRINGS ${CMAKE_CURRENT_SOURCE_DIR}/${source} first REGEX "^#include " LIMIT_COUNT 1)
            if(NOT first MATCHES "[\"/]${header}\"$")
                message(FATAL_ERROR "${source} begins with ${first} instead of its own header.")
            endif()
        endif()
    endforeach()
endfunction()

# count_reached_lines(<target>): the program's own targets alone, of which it is told. Each process leaves a file of its own:
# to the runtime, two programs of the same libraries may look like one.
function(count_reached_lines target)
    if(QUORVEX_COVERAGE)
        target_compile_options(${target} PRIVATE -fcoverage-mapping
            -fprofile-instr-generate=${PROJECT_BINARY_DIR}/counts/%p.profraw)
    endif()
endfunction()

# Checks the edges of a target and adds it with its forwarding headers.
function(add_level_target name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LEVEL" "FILES;USES")
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    set(headers ${arg_FILES})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    # Those of its own files, and those that come along with the headers of the edges.
    included_folders(needed ${arg_FILES})
    foreach(used IN LISTS arg_USES)
        if(NOT TARGET quorvex_${used})
            message(FATAL_ERROR "${name} uses ${used}, which is no target of a lower level.")
        endif()
        get_target_property(usedLevel quorvex_${used} QUORVEX_LEVEL)
        if(NOT usedLevel LESS arg_LEVEL)
            message(FATAL_ERROR
                "${name} (level ${arg_LEVEL}) may not use ${used} (level ${usedLevel}): only lower levels.")
        endif()
        get_target_property(along quorvex_${used} QUORVEX_HEADER_FOLDERS)
        if(along)
            list(REMOVE_ITEM along "")
            list(APPEND needed ${along})
        endif()
    endforeach()

    set(includeRoot ${PROJECT_BINARY_DIR}/include/${name})
    set(forwarding)
    require_own_headers_first(${arg_FILES})
    foreach(header IN LISTS headers)
        # Relative, so that a compiler cache serves every checkout of the same sources.
        file(RELATIVE_PATH target ${includeRoot}/${folder} ${CMAKE_CURRENT_SOURCE_DIR}/${header})
        file(CONFIGURE OUTPUT ${includeRoot}/${folder}/${header} CONTENT "#include \"${target}\"\n")
        list(APPEND forwarding ${includeRoot}/${folder}/${header})
    endforeach()

    add_library(quorvex_${name} STATIC ${arg_FILES})
    if(name IN_LIST QUORVEX_SEPARATE)
        set_target_properties(quorvex_${name} PROPERTIES UNITY_BUILD OFF)
    endif()
    included_folders(headerFolders ${headers})
    list(REMOVE_ITEM headerFolders "" ${folder})
    set_target_properties(quorvex_${name} PROPERTIES
        QUORVEX_LEVEL ${arg_LEVEL} QUORVEX_FOLDER "${folder}" QUORVEX_HEADER_FOLDERS "${headerFolders}")
    target_sources(quorvex_${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${includeRoot} FILES ${forwarding})
    target_link_libraries(quorvex_${name} PRIVATE quorvex_options)
    count_reached_lines(quorvex_${name})
    foreach(used IN LISTS arg_USES)
        get_target_property(usedFolder quorvex_${used} QUORVEX_FOLDER)
        if(NOT usedFolder IN_LIST needed)
            message(FATAL_ERROR "${name} names ${used}, and nothing in it includes a header of that.")
        endif()
        # Not linked for the compilation: the folders that the used one can include from stay out of reach.
        target_include_directories(quorvex_${name} PRIVATE ${PROJECT_BINARY_DIR}/include/${used})
        target_link_libraries(quorvex_${name} INTERFACE quorvex_${used})
    endforeach()
endfunction()

# add_core(<name> LEVEL <n> FILES <sources and headers> [USES <lower cores>]): sees neither Qt nor a window.
function(add_core name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LEVEL" "FILES;USES")
    foreach(used IN LISTS arg_USES)
        get_property(usedWindows GLOBAL PROPERTY QUORVEX_WINDOWS)
        if(used IN_LIST usedWindows)
            message(FATAL_ERROR "${name} is a core and may not use the windows of ${used}.")
        endif()
    endforeach()
    add_level_target(${name} LEVEL ${arg_LEVEL} FILES ${arg_FILES} USES ${arg_USES})
    set_property(GLOBAL APPEND PROPERTY QUORVEX_CORES ${name})
endfunction()

set(QUORVEX_QT_DEFINITIONS
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# add_windows(<name> LEVEL <n> FILES <sources, headers and .ui files> [USES <cores, platform_qt>] [EVERY_WINDOW]
#     [WITHOUT_WIDGETS]):
# a target that uses Qt, for builds that have it. Windows of one subsystem do not know those of another; only a target
# that says EVERY_WINDOW does.
function(add_windows name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "EVERY_WINDOW;WITHOUT_WIDGETS" "LEVEL" "FILES;USES")
    get_property(usedWindows GLOBAL PROPERTY QUORVEX_WINDOWS)
    foreach(used IN LISTS arg_USES)
        if(used IN_LIST usedWindows AND NOT used MATCHES "^platform_" AND NOT arg_EVERY_WINDOW)
            message(FATAL_ERROR "${name} may not use the windows of another subsystem (${used}).")
        endif()
    endforeach()
    add_level_target(${name} LEVEL ${arg_LEVEL} FILES ${arg_FILES} USES ${arg_USES})
    # Resources without the times of their files, which would differ from build to build, and packed so that the static Qt
    # for Windows can unpack them.
    set_target_properties(quorvex_${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON
        AUTORCC_OPTIONS "--no-zstd;--format-version;1")
    compile_quickly(quorvex_${name})
    if(arg_WITHOUT_WIDGETS)
        target_link_libraries(quorvex_${name} PUBLIC Qt6::Gui)
    else()
        target_link_libraries(quorvex_${name} PUBLIC Qt6::Widgets Qt6::PrintSupport)
    endif()
    target_compile_definitions(quorvex_${name} PUBLIC ${QUORVEX_QT_DEFINITIONS})
    if(TARGET quorvex_platform_qt AND NOT name STREQUAL platform_qt AND NOT arg_WITHOUT_WIDGETS)
        target_precompile_headers(quorvex_${name} REUSE_FROM quorvex_platform_qt)
    endif()
    set_property(GLOBAL APPEND PROPERTY QUORVEX_WINDOWS ${name})
endfunction()

# The leak sanitizer of Clang 14 once crashed while it scanned memory at the end of a test that had passed, and not again in 28
# runs. It guesses where plugins keep what each thread has of its own, by a header that only old C libraries wrote: the likely
# cause, without which no leak was told wrongly.
set(QUORVEX_NO_GUESSES intercept_tls_get_addr=0)

# The machine that runs the tests is taken to be in another time zone and to write a decimal comma.
set(QUORVEX_TEST_ENVIRONMENT TZ=Asia/Kathmandu LC_ALL=de_DE.UTF-8 LOCPATH=${PROJECT_BINARY_DIR}/locale)

# add_core_test(<core> FILES <sources> [USES <more cores>]): the tests of one core, linked to that core alone.
function(add_core_test core)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FILES;USES")
    set(target test_${core})
    add_executable(${target} ${arg_FILES})
    target_link_libraries(${target} PRIVATE quorvex_${core} quorvex_test_support quorvex_test_options)
    target_precompile_headers(${target} REUSE_FROM quorvex_test_support)
    add_windows_manifest(${target})
    foreach(used IN LISTS arg_USES)
        target_link_libraries(${target} PRIVATE quorvex_${used})
    endforeach()
    if(CMAKE_CROSSCOMPILING OR QUORVEX_SLOWED)
        # All in one process: an emulator, the memory of the sanitizers, and counts that go into files, take longer than most
        # tests.
        add_test(NAME ${core} COMMAND ${target} --gtest_shuffle)
        set_tests_properties(${core} PROPERTIES TIMEOUT 900 ENVIRONMENT "${QUORVEX_TEST_ENVIRONMENT}")
    else()
        gtest_discover_tests(${target} TEST_PREFIX "${core}." DISCOVERY_TIMEOUT 60
            PROPERTIES TIMEOUT 300 ENVIRONMENT "${QUORVEX_TEST_ENVIRONMENT}")
    endif()
endfunction()

# add_windows_program(<name> FILES <sources, one of them with a main function>): a program of Qt Test.
function(add_windows_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FILES")
    set(target test_${name})
    add_executable(${target} ${arg_FILES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_link_libraries(${target} PRIVATE quorvex_test_windows quorvex_test_options)
    target_precompile_headers(${target} REUSE_FROM quorvex_test_windows)
    add_windows_manifest(${target})
    link_static_qt(${target} WIDGETS)
endfunction()

# add_windows_case(<name> COMMAND <program> [<arguments>]): a test that drives windows on a platform without a display.
function(add_windows_case name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "COMMAND")
    add_test(NAME windows.${name} COMMAND ${arg_COMMAND})
    set(leaks ${PROJECT_SOURCE_DIR}/tests/windows/lsan.supp) # of libraries that are not the program's own
    # No test prints on a printer of the machine.
    set_tests_properties(windows.${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
        "${QUORVEX_TEST_ENVIRONMENT};QT_QPA_PLATFORM=offscreen;CUPS_SERVER=/nowhere;LSAN_OPTIONS=suppressions=${leaks}:print_suppressions=0:${QUORVEX_NO_GUESSES}")
endfunction()

# add_windows_tests(<sources>): adds them to the program with the window tests. Each source named <name>Test.cpp holds
# one class of that name, which is a test of its own.
function(add_windows_tests)
    foreach(source IN LISTS ARGN)
        target_sources(test_windows PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${source})
        if(source MATCHES "^(.+)Test\\.cpp$")
            add_windows_case(${CMAKE_MATCH_1} COMMAND test_windows ${CMAKE_MATCH_1}Test)
        endif()
    endforeach()
endfunction()
