# Each shell is offered the options that --help lists, behind each sub-command its own.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/CompanionHelp.cmake)
set(bash ${QUORVEX_COMPLETIONS}/quorvex-cli)
set(zsh ${QUORVEX_COMPLETIONS}/_quorvex-cli)
set(fish ${QUORVEX_COMPLETIONS}/quorvex-cli.fish)
file(READ ${zsh} zshScript)
file(READ ${fish} fishScript)

# Those of the build are what the program makes.
file(MAKE_DIRECTORY ${QUORVEX_MADE})
foreach(shell bash zsh fish)
    cmake_path(GET ${shell} FILENAME name)
    execute_process(COMMAND ${QUORVEX_MAKER} ${shell} ${QUORVEX_MADE}/${name} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${QUORVEX_MADE}/${name} ${${shell}}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Sets the variable to what bash offers for the last of these words, for nothing typed yet when that is EMPTY.
function(complete_in_bash variable)
    list(LENGTH ARGN last)
    list(JOIN ARGN "' '" words)
    string(REGEX REPLACE "EMPTY$" "" words "${words}")
    execute_process(COMMAND bash -c "source ${bash}; COMP_WORDS=(quorvex-cli '${words}'); COMP_CWORD=${last}; _quorvex_cli
        printf '%s\n' \"\${COMPREPLY[@]}\"" OUTPUT_VARIABLE offered COMMAND_ERROR_IS_FATAL ANY)
    string(STRIP "${offered}" offered)
    string(REPLACE "\n" ";" offered "${offered}")
    set(${variable} ${offered} PARENT_SCOPE)
endfunction()

# Fails unless both are the same, in any order.
function(expect_same what offered listed)
    list(REMOVE_ITEM offered -h --help)
    list(REMOVE_ITEM listed -h --help)
    list(SORT offered)
    list(SORT listed)
    if(NOT "${offered}" STREQUAL "${listed}")
        message(SEND_ERROR "${what} offers ${offered}\nand not ${listed}")
    endif()
endfunction()

function(expect_options command listed)
    separate_arguments(words UNIX_COMMAND "${command}")
    complete_in_bash(offered ${words} -)
    expect_same("bash: ${command}" "${offered}" "${listed}")

    string(REGEX MATCH "\n    \\('${command}'\\)\n        subcommands=([^;]|;[^;])*" section "${zshScript}")
    string(REGEX MATCHALL "\n            '--?[a-z-]+:" offered "${section}")
    list(TRANSFORM offered REPLACE "\n            '(.*):" "\\1")
    expect_same("zsh: ${command}" "${offered}" "${listed}")

    string(REGEX MATCHALL "__quorvex_cli_is .'${command}.''( -[ls] [a-z-]+)+" lines "${fishScript}")
    string(REGEX MATCHALL " -[ls] [a-z-]+" offered "${lines}")
    list(TRANSFORM offered REPLACE " -l " "--")
    list(TRANSFORM offered REPLACE " -s " "-")
    expect_same("fish: ${command}" "${offered}" "${listed}")
endfunction()

expect_options("" "${used}")
foreach(name IN LISTS names)
    separate_arguments(words UNIX_COMMAND "${name}")
    read_help(options ignored ${words})
    expect_options(${name} "${options}")
endforeach()

complete_in_bash(offered EMPTY)
expect_same("bash" "${offered}" "${commands}")
complete_in_bash(offered conv)
expect_same("bash: conv" "${offered}" convert)
complete_in_bash(offered import Wheat.csv --date-order EMPTY)
expect_same("bash: import --date-order" "${offered}" "ymd;mdy;dmy")
complete_in_bash(offered import W)
expect_same("bash: import W" "${offered}" "")

# Where there are these shells, they can read it.
foreach(shell bash zsh fish)
    find_program(${shell}Program ${shell})
    if(${shell}Program)
        execute_process(COMMAND ${${shell}Program} -n ${${shell}} COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
