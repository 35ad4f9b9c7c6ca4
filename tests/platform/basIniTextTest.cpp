// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/basIniText.h"

#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::platform::disk {
namespace {

// The value of DataPath in Globals; "(none)" when there is none.
std::string DataPathIn(std::string_view file) {
    return std::string(FindIniValue(file, "Globals", "DataPath").value_or("(none)"));
}

std::string WithDataPath(std::string file, std::string_view value) {
    SetIniValue(file, "Globals", "DataPath", value);
    return file;
}

TEST(FindIniValue, FindsAKeyOfItsSection) {
    EXPECT_EQ(DataPathIn("[Globals]\r\nDataPath=C:\\Quotes\\\r\nChartType=x\r\n"), "C:\\Quotes\\");
    EXPECT_EQ(DataPathIn("[Other]\r\nDataPath=a\r\n[Globals]\r\nDataPath=b\r\n[More]\r\nDataPath=c"), "b");
    EXPECT_EQ(DataPathIn("[Globals]\r\nDataPath="), "");
}

TEST(FindIniValue, FindsNothingWhereThereIsNothing) {
    for (char const* const file :
         {"", "\r\n", "DataPath=x", "[Globals]", "[Globals]\r\n", "[Globals]\r\nDataPath\r\n",
          "[Globals]\r\nDataPaths=x", "[Globals]\r\nDataPat=x", "[Globals]\r\n;DataPath=x",
          "[Globals]\r\n#DataPath=x", "[Other]\r\nDataPath=x", "DataPath=x\r\n[Globals]",
          "[Globals\r\nDataPath=x", "[Globals]\r\n[Other]\r\nDataPath=x", "[Globals2]\r\nDataPath=x"}) {
        EXPECT_EQ(DataPathIn(file), "(none)") << file;
    }
}

TEST(FindIniValue, TakesNamesInEitherCase) {
    EXPECT_EQ(DataPathIn("[gLOBALS]\r\ndatapath=x"), "x");
    EXPECT_EQ(DataPathIn("[GLOBALS]\r\nDATAPATH=x"), "x");
}

TEST(FindIniValue, DropsBlanksAndTabsAroundNamesAndValue) {
    EXPECT_EQ(DataPathIn("\t [Globals]  ; remark\r\n \tDataPath \t=\t  C:\\My Quotes\\ \t\r\n"),
              "C:\\My Quotes\\");
    EXPECT_EQ(DataPathIn("[ Globals ]\r\nDataPath=x"), "x");
}

TEST(FindIniValue, KeepsWhatLooksLikeSyntaxInsideTheValue) {
    EXPECT_EQ(DataPathIn("[Globals]\r\nDataPath=a=b;c#d [e] % \\\r\n"), "a=b;c#d [e] % \\");
}

TEST(FindIniValue, EndsLinesAnyWay) {
    EXPECT_EQ(DataPathIn("[Globals]\nDataPath=x\nChartType=y\n"), "x");
    EXPECT_EQ(DataPathIn("[Globals]\rDataPath=x\rChartType=y\r"), "x");
    EXPECT_EQ(DataPathIn("\n\r\n\r[Globals]\n\r\nDataPath=x"), "x");
}

TEST(FindIniValue, TakesTheFirstOfTwo) {
    EXPECT_EQ(DataPathIn("[Globals]\r\nDataPath=first\r\ndatapath=second\r\n"), "first");
    EXPECT_EQ(DataPathIn("[Globals]\r\nDataPath=first\r\n[GLOBALS]\r\nDataPath=second\r\n"), "first");
    EXPECT_EQ(DataPathIn("[Globals]\r\nChartType=x\r\n[Globals]\r\nDataPath=second\r\n"), "(none)");
}

TEST(FindIniValue, SkipsAByteOrderMark) {
    EXPECT_EQ(DataPathIn("\xEF\xBB\xBF[Globals]\r\nDataPath=x"), "x");
}

TEST(FindIniValue, PassesOtherBytesThrough) {
    EXPECT_EQ(DataPathIn("[Globals]\r\nDataPath=W\xC3\xA4hrung\\\xE4\xFF\x01\r\n"),
              "W\xC3\xA4hrung\\\xE4\xFF\x01");
}

TEST(FindIniValue, ReadsVeryLongLines) {
    std::string const value(1'000'000, 'v');
    EXPECT_EQ(DataPathIn("[Globals]\r\n" + std::string(1'000'000, 'k') + "=1\r\nDataPath=" + value), value);
}

TEST(SetIniValue, MakesSectionAndKey) {
    EXPECT_EQ(WithDataPath("", "x"), "[Globals]\r\nDataPath=x\r\n");
    EXPECT_EQ(WithDataPath("[Other]\r\nDataPath=a", "x"),
              "[Other]\r\nDataPath=a\r\n[Globals]\r\nDataPath=x\r\n");
    EXPECT_EQ(WithDataPath("[Other]\n", "x"), "[Other]\n[Globals]\r\nDataPath=x\r\n");
    EXPECT_EQ(WithDataPath("\xEF\xBB\xBF", "x"), "\xEF\xBB\xBF[Globals]\r\nDataPath=x\r\n");
    EXPECT_EQ(WithDataPath("[Globals]", "x"), "[Globals]\r\nDataPath=x\r\n");
    EXPECT_EQ(WithDataPath("\xEF\xBB\xBF[Globals]\r", "x"), "\xEF\xBB\xBF[Globals]\rDataPath=x\r\n");
}

TEST(SetIniValue, AddsAKeyBehindTheLastEntryOfItsSection) {
    EXPECT_EQ(
        WithDataPath(
            "[Globals]\r\nChartType=y\r\n; a remark\r\nflag\r\n\r\n; the others\r\n[Other]\r\nz=1\r\n", "x"),
        "[Globals]\r\nChartType=y\r\n; a remark\r\nflag\r\nDataPath=x\r\n\r\n; the "
        "others\r\n[Other]\r\nz=1\r\n");
    EXPECT_EQ(WithDataPath("[Globals]\r\n# a remark\r\n\r\n[Other]\r\n", "x"),
              "[Globals]\r\nDataPath=x\r\n# a remark\r\n\r\n[Other]\r\n");
    EXPECT_EQ(WithDataPath("[Globals]\r\nChartType=y", "x"), "[Globals]\r\nChartType=y\r\nDataPath=x\r\n");
    EXPECT_EQ(WithDataPath("[Globals]\r\na=1\r\n[Globals]\r\nDataPath=second\r\n", "x"),
              "[Globals]\r\na=1\r\nDataPath=x\r\n[Globals]\r\nDataPath=second\r\n");
}

TEST(SetIniValue, ChangesTheValueAndNoOtherByte) {
    std::string const before = "\xEF\xBB\xBF# made by hand\n"
                               "orphan=1\r\n"
                               "\r\n"
                               ";DataPath=in a remark\r\n"
                               "[Other]   ; remark\r\n"
                               "key  =  a ; b   \r"
                               "key=second\r\n"
                               "\n\n"
                               "[Broken\r\n"
                               "DataPath=of the other\r\n"
                               "  ; indented\r\n"
                               "\t[ gLOBALS ]\r\n"
                               "no value\r\n"
                               "=no key\r\n"
                               " dataPATH\t= \t";
    std::string const after = " \t\r\n"
                              "DataPath=second\r\n"
                              "bytes=\xE4\xFF\x1A\r\n"
                              "[Other]\r\n"
                              "third=1\r\n"
                              "[Globals]\r\n"
                              "DataPath=of the second section\r\n"
                              "[Tail]";
    EXPECT_EQ(WithDataPath(before + "C:\\Old Quotes\\" + after, "D:\\New=[1];#2"),
              before + "D:\\New=[1];#2" + after);
    EXPECT_EQ(WithDataPath(before + "x" + after, ""), before + after);
    EXPECT_EQ(WithDataPath("[Globals]\r\nDataPath=", "x"), "[Globals]\r\nDataPath=x");
    EXPECT_EQ(WithDataPath("[Globals]\r\nDataPath =  \r\n", "x"), "[Globals]\r\nDataPath =x  \r\n");
}

TEST(SetIniValue, LeavesTheSpellingOfAValueThatIsTheSame) {
    std::string const file = "[Globals]\r\nDataPath = 'C:\\Quotes\\' \r\n";
    EXPECT_EQ(WithDataPath(file, "C:\\Quotes\\"), file);
    EXPECT_EQ(WithDataPath(file, "C:\\quotes\\"), "[Globals]\r\nDataPath = C:\\quotes\\ \r\n");
}

TEST(SetIniValue, RefusesAFileInUtf16) {
    for (std::string_view const mark : {"\xFF\xFE", "\xFE\xFF"}) {
        std::string file(mark);
        auto const error = text::Trap([&] { SetIniValue(file, "Globals", "DataPath", "x"); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Kind(), text::Fault::TypeMismatch);
        EXPECT_EQ(file, mark);
    }
}

} // namespace
} // namespace quorvex::platform::disk
