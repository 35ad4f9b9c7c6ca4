# Units that hold every source of the program: one of the cores and the companion, one of the windows. clang-tidy spends
# nearly all its time on the headers of the libraries, and so reads them twice instead of forty times. Nothing is built of
# them.

# add_whole(<name> <program> <targets>): a unit of the sources of these targets and of the program, with the include
# folders of all of them.
function(add_whole name program)
    set(rows "")
    set(folders "")
    foreach(target IN LISTS ARGN ITEMS ${program})
        get_target_property(folder ${target} SOURCE_DIR)
        get_target_property(sources ${target} SOURCES)
        list(FILTER sources INCLUDE REGEX "\\.cpp$")
        foreach(source IN LISTS sources)
            string(APPEND rows "#include \"${folder}/${source}\"\n")
        endforeach()
        # Where the headers made of .ui files are.
        list(APPEND folders $<TARGET_PROPERTY:${target},BINARY_DIR>/${target}_autogen/include)
    endforeach()
    set(unit ${PROJECT_BINARY_DIR}/whole/${name}.cxx)
    file(CONFIGURE OUTPUT ${unit} CONTENT "${rows}" @ONLY)
    add_library(quorvex_whole_${name} OBJECT EXCLUDE_FROM_ALL ${unit})
    set_target_properties(quorvex_whole_${name} PROPERTIES UNITY_BUILD OFF)
    target_include_directories(quorvex_whole_${name} PRIVATE ${folders})
    target_link_libraries(quorvex_whole_${name} PRIVATE $<TARGET_PROPERTY:${program},LINK_LIBRARIES> ${ARGN})
    target_compile_definitions(quorvex_whole_${name} PRIVATE $<TARGET_PROPERTY:${program},COMPILE_DEFINITIONS>)
endfunction()

get_property(cores GLOBAL PROPERTY QUORVEX_CORES)
list(TRANSFORM cores PREPEND quorvex_)
add_whole(cores quorvex-cli ${cores})
get_property(windows GLOBAL PROPERTY QUORVEX_WINDOWS)
if(windows)
    list(TRANSFORM windows PREPEND quorvex_)
    add_whole(windows Quorvex ${windows})
endif()
