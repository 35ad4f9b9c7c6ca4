// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basConvertCSI.h"

#include "Conversion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvex::convert {
namespace {

using testing::ElementsAre;

ConversionResult ConvertCsi(std::string const& source) {
    return Convert(source, CsiLayout());
}

TEST(Csi, ConvertsARecord) {
    EXPECT_EQ(ConvertCsi("20020115,1145.00,1150.00,1140.00,1148.00,25000,400000\r\n").Output,
              "01/15/02, 1145.00, 1150.00, 1140.00, 1148.00, 25000, 400000\r\n");
}

TEST(Csi, DropsTheCentury) {
    EXPECT_EQ(ConvertCsi("19991231,1,2,3,4,5,6\n20000101,1,2,3,4,5,6\n").Output,
              "12/31/99, 1, 2, 3, 4, 5, 6\r\n01/01/00, 1, 2, 3, 4, 5, 6\r\n");
}

TEST(Csi, RefusesAnEighthFieldWithOneMessage) {
    auto const result = ConvertCsi("20020115,1,2,3,4,5,6\r\n20020116,1,2,3,4,5,6,H2\r\n");
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes, ElementsAre(ExclamationBox("Invalid record at line 2 in\nfile C:\\in.txt")));
}

TEST(Csi, TakesATrailingComma) {
    EXPECT_EQ(ConvertCsi("20020115,1,2,3,4,5,6,\r\n").Output, "01/15/02, 1, 2, 3, 4, 5, 6\r\n");
}

TEST(Csi, KeepsEmptyFields) {
    EXPECT_EQ(ConvertCsi("20020115,1,,3,4,, \r\n").Output, "01/15/02, 1, , 3, 4, , \r\n");
}

TEST(Csi, RefusesADateWithDashes) {
    auto const result = ConvertCsi("2002-01-15,1,2,3,4,5,6\r\n");
    EXPECT_EQ(result.Output, std::nullopt);
    EXPECT_THAT(result.Boxes,
                ElementsAre(ExclamationBox("Invalid field value at line 1 in file\nC:\\in.txt")));
}

TEST(Csi, HelpsInFourSteps) {
    auto const help = CsiHelpMessage();
    EXPECT_EQ(help.Title, "Data Conversion Utility");
    EXPECT_EQ(help.Shown, platform::Icon::Information);
    EXPECT_EQ(help.Offered, platform::Buttons::Ok);
    EXPECT_EQ(help.Text,
              "Locate the existing CSI text file using the Browse button.\n\n"
              "Confirm that the field layout in the lower text area matches the required format.\n\n"
              "Type in a valid destination file name.\n\n"
              "Click on the Convert button.");
}

TEST(Csi, WindowSaysWhatFilesAreWanted) {
    auto const& texts = CsiTexts();
    EXPECT_EQ(texts.Caption, "Data Conversion Utility - Commodity Systems, Inc.");
    EXPECT_EQ(texts.SourceCaption, "CSI Source File Name");
    EXPECT_EQ(texts.DefaultName, "*.txt");
    EXPECT_EQ(texts.Filter,
              "Text Files (*.txt)|*.txt|Comma Separated Values (*.csv)|*.csv|All Files (*.*)|*.*");
    EXPECT_EQ(texts.Top,
              "\nTraders who subscribe to Commodity Systems, Inc., data services will be familiar with the "
              "on-line software interface called 'Unfair Advantage' (UA). \n\nUse the UA Export Files under "
              "the Portfolio option to create single-contract ASCII text files with the following "
              "comma-delimited field layout:\n\n               yyyymmdd,   open,   high,   low,   close,   "
              "volume,   open interest   <CR>\n");
}

} // namespace
} // namespace quorvex::convert
