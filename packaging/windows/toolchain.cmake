# What the program is built with for Windows: the compiler, and what packaging/windows/prepare has put into build/.

include(${CMAKE_CURRENT_LIST_DIR}/mingw64.cmake)

# An inline function may be called in the copy of another object file, which uses other registers (see QuorvexWindows.cmake).
set(CMAKE_CXX_FLAGS_INIT "-fno-ipa-ra")

get_filename_component(build ${CMAKE_CURRENT_LIST_DIR}/../../build ABSOLUTE)
list(APPEND CMAKE_FIND_ROOT_PATH ${build}/windows-libraries ${build}/windows-qt)
list(APPEND CMAKE_PREFIX_PATH ${build}/windows-libraries ${build}/windows-qt)

# The host's moc, rcc and uic.
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "")

# Not on the path of Debian 12.
if(EXISTS /usr/lib/wine/wine64)
    set(CMAKE_CROSSCOMPILING_EMULATOR /usr/lib/wine/wine64)
endif()
