# What is installed beside the two programs, for which their own folders have the rule.

include(GNUInstallDirs)

# Installs a manual page of the first section. It is not compressed; packages do that.
function(install_manual name)
    set(page ${PROJECT_BINARY_DIR}/man/${name}.1)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/man/${name}.1.in ${page} @ONLY)
    install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
install(FILES CHANGELOG.md docs/behaviour.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/formats DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(WIN32)
    # A program folder that can be written is where the window looks for them.
    install(DIRECTORY resources/help/ resources/samples/ DESTINATION . FILES_MATCHING PATTERN *.rtf PATTERN *.txt PATTERN *.dat)
    if(Qt6_FOUND)
        install(FILES packaging/windows/Qt.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
        install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/windows-qt/share/doc/qt/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/Qt)
    endif()
    return()
endif()

# The program carries help documents and samples itself; these are for those who use the companion alone.
install(DIRECTORY resources/help DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY resources/samples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)

install_manual(quorvex-cli)
# Where each shell looks for them.
set(completions ${PROJECT_BINARY_DIR}/completions)
install(FILES ${completions}/quorvex-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${completions}/_quorvex-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${completions}/quorvex-cli.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
if(Qt6_FOUND AND NOT APPLE)
    install_manual(Quorvex)
    install(FILES packaging/Quorvex.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
    install(FILES packaging/org.example.quorvex.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    install_icons()
endif()
