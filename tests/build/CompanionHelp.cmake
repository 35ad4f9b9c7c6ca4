# What the companion's --help lists: sets `names` to its sub-commands, those of others behind these, `commands` to the
# first ones, and `used` to the options of the companion itself.
set(option "--?[a-z][a-z-]*")

# Sets the variable to the options that stand in the text as words of their own.
function(find_options variable text)
    string(REGEX MATCHALL "(^|[^a-z-])${option}" found "${text}")
    list(TRANSFORM found REPLACE "^[^-]" "")
    list(REMOVE_DUPLICATES found)
    set(${variable} ${found} PARENT_SCOPE)
endfunction()

# Sets the variables to the options and sub-commands that the companion lists behind these arguments.
function(read_help optionsVariable commandsVariable)
    execute_process(COMMAND ${QUORVEX_COMPANION} ${ARGN} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\n  -[^ \n]+" lines "${help}")
    find_options(options "${lines}")
    list(REMOVE_ITEM options -h --help)
    set(commands "")
    if(help MATCHES "\nSubcommands:\n(.*)")
        string(REGEX MATCHALL "(^|\n)  [a-z]+" commands "${CMAKE_MATCH_1}")
        list(TRANSFORM commands REPLACE "^\n?  " "")
    endif()
    set(${optionsVariable} ${options} PARENT_SCOPE)
    set(${commandsVariable} ${commands} PARENT_SCOPE)
endfunction()

read_help(used commands)
set(names "")
foreach(command IN LISTS commands)
    read_help(ignored kinds ${command})
    list(TRANSFORM kinds PREPEND "${command} ")
    list(APPEND names ${command} ${kinds})
endforeach()
