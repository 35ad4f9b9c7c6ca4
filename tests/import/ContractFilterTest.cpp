// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ContractFilter.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {
namespace {

bool Takes(ContractFilter& filter, std::vector<std::string_view> const& cells) {
    std::vector<Field> fields;
    for (std::string_view const cell : cells) {
        fields.push_back({cell, false});
    }
    return filter.Takes(fields);
}

std::string WhyRefused(ContractFilter const& filter) {
    auto const refused = filter.Refused();
    return refused ? refused->Told.Text : std::string();
}

TEST(ContractFilter, TakesAllRowsOfATableThatNamesNoContracts) {
    ContractFilter filter({}, std::nullopt);
    EXPECT_TRUE(Takes(filter, {"a"}));
    EXPECT_TRUE(Takes(filter, {"b"}));
    EXPECT_TRUE(filter.AreOneContract());
    EXPECT_EQ(WhyRefused(filter), "");
    EXPECT_TRUE(filter.Names().empty());
}

TEST(ContractFilter, RefusesAContractThatNoColumnCanName) {
    ContractFilter filter({}, "ZW");
    EXPECT_TRUE(Takes(filter, {"a"}));
    EXPECT_EQ(WhyRefused(filter), "There is no contract ZW: no column names contracts");
    EXPECT_EQ(filter.Refused()->SettledBy, Choice::Columns);
}

TEST(ContractFilter, TellsContractsApartByAllTheirColumns) {
    ContractFilter filter({0, 2}, std::nullopt);
    EXPECT_TRUE(Takes(filter, {"zw", "1", "Z19"}));
    EXPECT_TRUE(Takes(filter, {"ZW", "2", "z19"}));
    EXPECT_TRUE(filter.AreOneContract()) << "in either case";
    EXPECT_TRUE(Takes(filter, {"ZW", "2"}));
    EXPECT_FALSE(filter.AreOneContract());
    EXPECT_EQ(WhyRefused(filter), "There are several contracts: ZW Z19, ZW");
    EXPECT_EQ(filter.Refused()->SettledBy, Choice::Symbol);
}

TEST(ContractFilter, TakesWhatHasTheNameInAnyColumnOrInAll) {
    for (auto const* wanted : {"Z19", "ZW Z19"}) {
        ContractFilter filter({0, 1}, wanted);
        EXPECT_TRUE(Takes(filter, {"ZW", "Z19"})) << wanted;
        EXPECT_FALSE(Takes(filter, {"ZW", "H20"})) << wanted;
        EXPECT_FALSE(Takes(filter, {"ZW", "H20"})) << wanted << ", as the row before";
        EXPECT_TRUE(Takes(filter, {"ZW", "Z19"})) << wanted;
        EXPECT_EQ(WhyRefused(filter), "");
        EXPECT_EQ(filter.Names(), (std::vector<std::string>{"ZW Z19", "ZW H20"})) << "that is taken in front";
    }
}

TEST(ContractFilter, TakesTheOneWithoutAName) {
    ContractFilter filter({0, 1}, "");
    EXPECT_FALSE(Takes(filter, {"ZW", ""})) << "a part of its name is missing";
    EXPECT_TRUE(Takes(filter, {"", ""}));
    EXPECT_EQ(WhyRefused(filter), "");
    ContractFilter none({0}, "");
    EXPECT_FALSE(Takes(none, {"ZW"}));
    EXPECT_EQ(WhyRefused(none), "There is no contract without a name, but ZW");
}

TEST(ContractFilter, TellsTheFirstDozenAndKeepsTheFirstTwoHundred) {
    ContractFilter filter({0}, "x");
    for (int contract = 1; contract <= 300; ++contract) {
        EXPECT_FALSE(Takes(filter, {std::to_string(contract)}));
    }
    EXPECT_EQ(WhyRefused(filter), "There is no contract x, but 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, ...");
    EXPECT_EQ(filter.Names().size(), 200U);
}

} // namespace
} // namespace quorvex::imports
