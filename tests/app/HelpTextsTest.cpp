// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The help documents tell of everything that the program offers.

#include "app/MenuTable.h"
#include "settings/Settings.h"
#include "support/HelpDocuments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace quorvex::app {
namespace {

TEST(IndexDocument, HasAnEntryForEveryMenuItem) {
    std::map<std::string, std::ptrdiff_t> items; // how many items have the caption
    for (MenuRow const& row : MenuTable()) {
        if (row.Caption != SeparatorCaption) {
            std::string caption(row.Caption);
            std::erase(caption, '&');
            ++items[caption];
        }
    }
    for (MenuRow const& row : ChartMenuTable()) {
        std::string caption(row.Caption);
        std::erase(caption, '&');
        items.emplace(caption, 1); // the charts share an entry
    }
    auto const entries = tests::ReadIndexEntries();
    for (auto const& [caption, count] : items) {
        EXPECT_GE(std::ranges::count(entries, caption, &tests::IndexEntry::Name), count) << caption;
    }
}

TEST(IndexDocument, NamesEverythingThatThePreferencesOffer) {
    std::string const text = tests::TextOf(tests::ReadHelp("Quorvex-Index.rtf"));
    for (settings::SettingRow const& row : settings::SettingTable()) {
        if (row.Member == &settings::Settings::ChartType || row.Member == &settings::Settings::DataSource) {
            for (auto const& offered : row.Offered) {
                EXPECT_THAT(text, testing::HasSubstr(std::string(offered)));
            }
        }
    }
}

TEST(IndexDocument, TellsWhereTheEditorSaysHowASaveEnded) {
    int told = 0;
    for (auto const& entry : tests::ReadIndexEntries()) {
        if ((entry.Name == "Save" || entry.Name == "Save As...") &&
            entry.Place == "File menu of the editor") {
            EXPECT_THAT(entry.Explanation, testing::HasSubstr("status line"));
            ++told;
        }
    }
    EXPECT_EQ(told, 2);
}

TEST(IndexDocument, HasAnEntryForEveryPartOfTheImportWindow) {
    auto const entries = tests::ReadIndexEntries();
    for (char const* name : {"As Found Out", "Columns", "Contract", "Dates", "Decimal Mark", "Encoding",
                             "Findings", "Fraction", "From and To", "Import", "Latest", "Name",
                             "Replace changed figures", "Separator", "Table", "Update"}) {
        EXPECT_TRUE(std::ranges::any_of(entries, [&](tests::IndexEntry const& entry) {
            return entry.Name == name && entry.Place.ends_with("Import window");
        })) << name;
    }
}

TEST(QuickStartDocument, LeadsToTheContextMenusOfTheCharts) {
    std::string const text = tests::TextOf(tests::ReadHelp("Quorvex-QuickStart.rtf"));
    for (MenuRow const& row : ChartMenuTable()) {
        std::string caption(row.Caption);
        std::erase(caption, '&');
        EXPECT_THAT(text, testing::HasSubstr(caption));
    }
}

TEST(ReadMeDocument, NamesEverySettingWithItsDefault) {
    std::string const text = tests::TextOf(tests::ReadHelp("Quorvex-ReadMe.rtf"));
    for (settings::SettingRow const& row : settings::SettingTable()) {
        EXPECT_THAT(text, testing::HasSubstr(std::string(row.Key) + "\n"));
        EXPECT_THAT(text, testing::HasSubstr(std::string(row.Default)));
    }
}

} // namespace
} // namespace quorvex::app
