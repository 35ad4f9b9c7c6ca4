# What the static Qt is made with (cmake -C). It is kept for as long as this file stays as it is.

set(CMAKE_BUILD_TYPE Release CACHE STRING "")
# Tells nobody where it was built: it lies elsewhere.
set(CMAKE_INSTALL_PREFIX /quorvex/qt CACHE PATH "")
set(BUILD_SHARED_LIBS OFF CACHE BOOL "")

# The host's moc, rcc and uic.
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "")

foreach(kind EXAMPLES TESTS BENCHMARKS MANUAL_TESTS MINIMAL_STATIC_TESTS)
    set(QT_BUILD_${kind} OFF CACHE BOOL "")
endforeach()

foreach(feature gui widgets printsupport testlib accessibility)
    set(FEATURE_${feature} ON CACHE BOOL "")
endforeach()

# Not used. Debian's patches would have androiddeployqt in every cross build.
foreach(feature network sql xml dbus concurrent vulkan icu glib zstd fontconfig androiddeployqt)
    set(FEATURE_${feature} OFF CACHE BOOL "")
endforeach()
set(INPUT_opengl no CACHE STRING "")
# The platform of that name; DirectWrite does not link without FEATURE_direct2d.
set(FEATURE_direct2d1_1 OFF CACHE BOOL "")
# It needs wintab, which Debian has removed.
set(FEATURE_tabletevent OFF CACHE BOOL "")

# Nothing of the host: Qt brings these libraries along.
set(FEATURE_pkg_config OFF CACHE BOOL "")
foreach(library zlib pcre2 doubleconversion libb2 freetype harfbuzz png jpeg textmarkdownreader)
    set(FEATURE_system_${library} OFF CACHE BOOL "")
endforeach()

# GCC cannot align the stack for AVX on 64-bit Windows.
foreach(feature avx avx2 avx512f)
    set(FEATURE_${feature} OFF CACHE BOOL "")
endforeach()
