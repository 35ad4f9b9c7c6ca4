// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "settings/Settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quorvex::settings {
namespace {

TEST(Settings, HaveTheirDefaultsWithoutAnIniFile) {
    auto const settings = DefaultSettings("C:\\Quorvex");
    EXPECT_EQ(settings.DataPath, "C:\\Quorvex\\");
    EXPECT_EQ(settings.ChartType, "Daily Bar Chart");
    EXPECT_EQ(settings.DataSource, "Close Only");
    EXPECT_EQ(settings.MovingAverageIndex, "3");
    EXPECT_EQ(settings.CurrencyFormat, "####0.00");
}

TEST(Settings, OfferTheirDefaults) {
    for (SettingRow const& row : SettingTable()) {
        if (row.Key != "DataPath") {
            EXPECT_NE(std::find(row.Offered.begin(), row.Offered.end(), row.Default), row.Offered.end())
                << row.Key;
        }
    }
}

TEST(Settings, AreReadAndWrittenInOneOrderAndOnceEach) {
    std::vector<std::string_view> keys;
    std::set<std::string*> members;
    Settings settings;
    for (SettingRow const& row : SettingTable()) {
        keys.push_back(row.Key);
        members.insert(&(settings.*row.Member));
    }
    std::vector<std::string_view> const expected = {"DataPath", "ChartType", "DataSource",
                                                    "MovingAverageIndex", "CurrencyFormat"};
    EXPECT_EQ(keys, expected);
    EXPECT_EQ(members.size(), keys.size());
}

} // namespace
} // namespace quorvex::settings
