# An installation into an empty folder has everything in its place, and tells the version of the sources.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${QUORVEX_PREFIX})
set(ENV{DESTDIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${QUORVEX_BUILD} --prefix ${QUORVEX_PREFIX}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

set(documents share/doc/quorvex)
set(icons share/icons/hicolor)
set(expected bin/quorvex-cli share/man/man1/quorvex-cli.1 share/bash-completion/completions/quorvex-cli
    share/zsh/vendor-completions/_quorvex-cli share/fish/vendor_completions.d/quorvex-cli.fish
    ${documents}/copyright ${documents}/CHANGELOG.md ${documents}/behaviour.md)

# Expects a copy of everything that a folder of the sources holds.
function(expect_folder source place)
    file(GLOB names RELATIVE ${QUORVEX_FOLDER}/${source} ${QUORVEX_FOLDER}/${source}/*)
    if(NOT names)
        message(FATAL_ERROR "${source} is empty.")
    endif()
    list(TRANSFORM names PREPEND ${place}/)
    set(expected ${expected} ${names} PARENT_SCOPE)
endfunction()
expect_folder(resources/help ${documents}/help)
expect_folder(resources/samples ${documents}/examples)
expect_folder(docs/formats ${documents}/formats)

if(QUORVEX_DESKTOP)
    list(APPEND expected bin/Quorvex share/man/man1/Quorvex.1 share/applications/Quorvex.desktop
        share/metainfo/org.example.quorvex.metainfo.xml ${icons}/scalable/apps/Quorvex.svg)
    foreach(size 16 24 32 48 64 96 128 192 256)
        set(image ${icons}/${size}x${size}/apps/Quorvex.png)
        list(APPEND expected ${image})
        # Width and height stand behind the head of the first chunk.
        math(EXPR padded "4294967296 + ${size}" OUTPUT_FORMAT HEXADECIMAL)
        string(SUBSTRING ${padded} 3 -1 digits)
        if(EXISTS ${QUORVEX_PREFIX}/${image})
            file(READ ${QUORVEX_PREFIX}/${image} dimensions OFFSET 16 LIMIT 8 HEX)
            if(NOT dimensions STREQUAL "${digits}${digits}")
                message(SEND_ERROR "${image} is ${dimensions} instead of ${size} pixels wide and high.")
            endif()
        endif()
    endforeach()
endif()

file(GLOB_RECURSE found RELATIVE ${QUORVEX_PREFIX} ${QUORVEX_PREFIX}/*)
foreach(name IN LISTS expected)
    if(NOT name IN_LIST found)
        message(SEND_ERROR "${name} is not installed.")
    endif()
endforeach()
foreach(name IN LISTS found)
    if(NOT name IN_LIST expected)
        message(SEND_ERROR "${name} is installed and should not be.")
    endif()
endforeach()

execute_process(COMMAND ${QUORVEX_PREFIX}/bin/quorvex-cli --version OUTPUT_VARIABLE told COMMAND_ERROR_IS_FATAL ANY)
if(NOT told STREQUAL "quorvex-cli ${QUORVEX_VERSION}\n")
    message(SEND_ERROR "The sources are version ${QUORVEX_VERSION}; the companion tells ${told}")
endif()
file(GLOB manuals ${QUORVEX_PREFIX}/share/man/man1/*)
foreach(manual IN LISTS manuals)
    file(STRINGS ${manual} title REGEX "^\\.TH .* \"Quorvex ${QUORVEX_VERSION}\" ")
    if(NOT title)
        message(SEND_ERROR "${manual} does not tell the version ${QUORVEX_VERSION}.")
    endif()
endforeach()
