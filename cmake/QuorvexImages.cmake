# The program's images are drawn as SVG and carried as PNG, in every size that a screen asks for: Qt reads PNG by itself.

find_program(QUORVEX_RSVG_CONVERT rsvg-convert)

# Sizes in pixels: those of 24 and of 16 to 64 logical pixels at 100 to 300 %.
set(QUORVEX_TOOL_IMAGE_SIZES 24 30 36 42 48 60 72)
set(QUORVEX_ICON_SIZES 16 20 24 32 40 48 64 80 96 128 192 256)
# Those of the icon that desktops have a folder for.
set(QUORVEX_DESKTOP_ICON_SIZES 16 24 32 48 64 96 128 192 256)
set(QUORVEX_IMAGE_FOLDER ${PROJECT_BINARY_DIR}/images)

# Adds the rules for the images and sets the variable to a resource file of them, <name>-<pixels>.png under /images.
function(add_images variable)
    if(NOT QUORVEX_RSVG_CONVERT)
        message(FATAL_ERROR "The images need rsvg-convert, of the package librsvg2-bin.")
    endif()
    set(folder ${PROJECT_SOURCE_DIR}/resources/images)
    file(GLOB drawings RELATIVE ${folder} CONFIGURE_DEPENDS ${folder}/*.svg)
    set(rows "")
    foreach(drawing IN LISTS drawings)
        get_filename_component(name ${drawing} NAME_WE)
        set(sizes ${QUORVEX_TOOL_IMAGE_SIZES})
        if(name STREQUAL Quorvex)
            set(sizes ${QUORVEX_ICON_SIZES})
        endif()
        foreach(size IN LISTS sizes)
            set(image ${QUORVEX_IMAGE_FOLDER}/${name}-${size}.png)
            add_custom_command(OUTPUT ${image}
                COMMAND ${QUORVEX_RSVG_CONVERT} --width ${size} --height ${size} --output ${image} ${folder}/${drawing}
                DEPENDS ${folder}/${drawing} VERBATIM)
            string(APPEND rows "  <file alias=\"${name}-${size}.png\">${image}</file>\n")
        endforeach()
    endforeach()
    file(MAKE_DIRECTORY ${QUORVEX_IMAGE_FOLDER})
    set(list ${CMAKE_CURRENT_BINARY_DIR}/Images.qrc)
    file(CONFIGURE OUTPUT ${list} CONTENT
        "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n <qresource prefix=\"/images\">\n${rows} </qresource>\n</RCC>\n" @ONLY)
    set(${variable} ${list} PARENT_SCOPE)
endfunction()

# Installs the program's icon for desktops, in these sizes and as the drawing.
function(install_icons)
    set(theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    foreach(size IN LISTS QUORVEX_DESKTOP_ICON_SIZES)
        install(FILES ${QUORVEX_IMAGE_FOLDER}/Quorvex-${size}.png DESTINATION ${theme}/${size}x${size}/apps
            RENAME Quorvex.png)
    endforeach()
    install(FILES ${PROJECT_SOURCE_DIR}/resources/images/Quorvex.svg DESTINATION ${theme}/scalable/apps)
endfunction()
