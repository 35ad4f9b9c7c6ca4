# Sets QUORVEX_VERSION. The version stands in the source alone.
set(header ${PROJECT_SOURCE_DIR}/src/app/Program.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
file(STRINGS ${header} line REGEX "ProgramVersion = ")
if(NOT line MATCHES "\"([0-9.]+[a-z]?)\"")
    message(FATAL_ERROR "${header} tells no version.")
endif()
set(QUORVEX_VERSION ${CMAKE_MATCH_1})
