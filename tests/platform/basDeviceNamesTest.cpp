// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/basDeviceNames.h"

#include <gtest/gtest.h>

namespace quorvex::platform::disk {
namespace {

TEST(NamesNoFileOnWindows, DevicesWithAnyExtensionInEitherCase) {
    for (auto const* path :
         {"NUL", "nul.txt", "Con", "aux.dat~", "prn.a.b", "C:\\Quotes\\com1.txt", "lpt9", "COM\xC2\xB9",
          "nul .txt", "CONIN$", "conout$", "nul\\a.txt", "C:nul", "C:/Quotes/NUL", "\\\\?\\C:\\NUL"}) {
        EXPECT_TRUE(NamesNoFileOnWindows(path)) << path;
    }
}

TEST(NamesNoFileOnWindows, StreamsAndPathsOfDevices) {
    for (auto const* path :
         {"a.txt:b", "C:a.txt:b", "C:\\Quotes\\a.txt:b:$DATA", "1:a.txt", "\\\\.\\C:", "//./pipe/a"}) {
        EXPECT_TRUE(NamesNoFileOnWindows(path)) << path;
    }
}

TEST(NamesNoFileOnWindows, FilesWithSimilarNames) {
    for (auto const* path : {"",
                             "a.txt",
                             "null.txt",
                             "a.nul",
                             "com.txt",
                             "com0.txt",
                             "com10",
                             "lp",
                             "c",
                             "console",
                             "$",
                             "C:\\Quotes\\a.txt",
                             "c:a.txt",
                             "..\\a.txt",
                             "./a",
                             "\\\\server\\share\\a.txt",
                             "\\\\?\\C:\\Quotes\\a.txt",
                             "COM\xC2\xB4",
                             "\\",
                             "W\xC3\xA4hrung.txt"}) {
        EXPECT_FALSE(NamesNoFileOnWindows(path)) << path;
    }
}

} // namespace
} // namespace quorvex::platform::disk
