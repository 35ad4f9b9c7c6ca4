# What is installed beside the two programs, for which their own folders have the rule, and the version of all of it.

include(GNUInstallDirs)

# The version stands in the source alone.
set(header ${PROJECT_SOURCE_DIR}/src/app/Program.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
file(STRINGS ${header} line REGEX "ProgramVersion = ")
if(NOT line MATCHES "\"([0-9.]+[a-z]?)\"")
    message(FATAL_ERROR "${header} tells no version.")
endif()
set(QUORVEX_VERSION ${CMAKE_MATCH_1})

# Installs a manual page of the first section. It is not compressed; packages do that.
function(install_manual name)
    set(page ${PROJECT_BINARY_DIR}/man/${name}.1)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/man/${name}.1.in ${page} @ONLY)
    install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
# The program carries help documents and samples itself; these are for those who use the companion alone.
install(DIRECTORY resources/help DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY resources/samples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)
install(DIRECTORY docs/formats DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES docs/behaviour.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(UNIX)
    install_manual(quorvex-cli)
endif()
if(Qt6_FOUND AND UNIX AND NOT APPLE)
    install_manual(Quorvex)
    install(FILES packaging/Quorvex.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES packaging/org.example.quorvex.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    install_icons()
endif()
