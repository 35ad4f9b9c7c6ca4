# What a program carries for Windows: icon, version, and a manifest that asks for UTF-8, long paths and sharp pixels.

if(WIN32)
    enable_language(RC)
    # One folder has everything.
    set(CMAKE_INSTALL_BINDIR .)
    set(CMAKE_INSTALL_DOCDIR Documents)
    if(CMAKE_RC_COMPILER MATCHES "windres")
        # As UTF-8; the same bytes whenever it runs.
        set(CMAKE_RC_FLAGS "--codepage=65001")
    endif()
    find_program(QUORVEX_ICOTOOL icotool)
    # Of 2.0.b: 2,0,0,0.
    string(REGEX MATCHALL "[0-9]+" QUORVEX_VERSION_NUMBERS "${QUORVEX_VERSION}.0.0.0.0")
    list(SUBLIST QUORVEX_VERSION_NUMBERS 0 4 QUORVEX_VERSION_NUMBERS)
    list(JOIN QUORVEX_VERSION_NUMBERS "," QUORVEX_VERSION_NUMBERS)
endif()

# Makes an icon file of the drawing, in the sizes in pixels that Windows shows, and sets the variable to it.
function(add_icon_file variable)
    if(NOT QUORVEX_ICOTOOL OR NOT QUORVEX_RSVG_CONVERT)
        message(FATAL_ERROR "The icon needs icotool, of the package icoutils, and rsvg-convert, of librsvg2-bin.")
    endif()
    set(drawing ${PROJECT_SOURCE_DIR}/resources/images/Quorvex.svg)
    set(icon ${PROJECT_BINARY_DIR}/Quorvex.ico)
    set(images "")
    set(commands "")
    foreach(size 16 20 24 32 40 48 64 256)
        set(image ${PROJECT_BINARY_DIR}/icon-${size}.png)
        list(APPEND commands COMMAND ${QUORVEX_RSVG_CONVERT} --width ${size} --height ${size} --output ${image} ${drawing})
        if(size EQUAL 256)
            list(APPEND images --raw=${image}) # as PNG
        else()
            list(APPEND images ${image})
        endif()
    endforeach()
    add_custom_command(OUTPUT ${icon} ${commands}
        COMMAND ${QUORVEX_ICOTOOL} --create --output=${icon} ${images}
        DEPENDS ${drawing} VERBATIM)
    set(${variable} ${icon} PARENT_SCOPE)
endfunction()

# The manifest alone, for a test.
function(add_windows_manifest target)
    if(WIN32)
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}-manifest.rc)
        file(CONFIGURE OUTPUT ${source} CONTENT "1 24 \"${PROJECT_SOURCE_DIR}/packaging/windows/Quorvex.manifest\"\n")
        target_sources(${target} PRIVATE ${source})
        set_source_files_properties(${source} PROPERTIES
            OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/windows/Quorvex.manifest)
    endif()
endfunction()

# add_windows_resources(<program> <what it is, for Windows' own lists>): all of it.
function(add_windows_resources target description)
    if(WIN32)
        if(NOT TARGET quorvex_icon)
            add_icon_file(icon)
            add_custom_target(quorvex_icon DEPENDS ${icon})
        endif()
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
        configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/Quorvex.rc.in ${source} @ONLY)
        target_sources(${target} PRIVATE ${source})
        set_source_files_properties(${source} PROPERTIES
            OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/windows/Quorvex.manifest)
        add_dependencies(${target} quorvex_icon)
    endif()
endfunction()

# link_static_qt(<program> [WIDGETS]): links a program, with windows or without, with the static Qt: with the platform
# without a display, which comes only to who asks for it, and with Qt's libraries whole and in front of everything else.
#
# GCC takes it that an inline function spares those registers which the copy in the calling object file spares (-fipa-ra).
# The linker keeps the first copy that it meets, and Qt crashed in one of ours. With Qt's libraries in front that copy is
# one of Qt's own; the program's objects are compiled without that assumption. What nobody needs is left out all the same.
function(link_static_qt target)
    if(WIN32 AND TARGET Qt6::QOffscreenIntegrationPlugin)
        set(libraries "")
        set(names Gui QGifPlugin QICOPlugin QJpegPlugin QWindowsIntegrationPlugin QOffscreenIntegrationPlugin Core)
        if(ARGN STREQUAL WIDGETS)
            list(PREPEND names PrintSupport Widgets QWindowsVistaStylePlugin)
        endif()
        foreach(library IN LISTS names)
            list(APPEND libraries $<TARGET_FILE:Qt6::${library}>)
        endforeach()
        target_link_options(${target} PRIVATE LINKER:--whole-archive ${libraries} LINKER:--no-whole-archive)
        target_link_libraries(${target} PRIVATE Qt6::QOffscreenIntegrationPlugin)
    endif()
endfunction()
