// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ChosenColumns.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::imports {
namespace {

std::string ListOf(ChosenColumns const& chosen) {
    std::string list;
    for (ColumnChoice const& choice : chosen.Columns()) {
        list.append(list.empty() ? "" : ", ").append(choice.Column).append("=").append(NameOf(choice.Is));
    }
    return list;
}

TEST(ChosenColumns, GiveARoleToTheColumnThatGotItLast) {
    ChosenColumns chosen;
    EXPECT_EQ(ListOf(chosen), "");
    chosen.Choose(1, Role::Open);
    chosen.Choose(4, Role::Open);
    EXPECT_EQ(ListOf(chosen), "5=open");
    chosen.Choose(4, Role::Close);
    EXPECT_EQ(ListOf(chosen), "5=close, 2=open") << "the other one has it again";
    chosen.Choose(1, Role::Volume);
    EXPECT_EQ(ListOf(chosen), "2=volume, 5=close");
    chosen.Clear();
    EXPECT_EQ(ListOf(chosen), "");
}

TEST(ChosenColumns, ShareWhatSeveralCanBe) {
    ChosenColumns chosen;
    chosen.Choose(0, Role::Symbol);
    chosen.Choose(1, Role::Unused);
    chosen.Choose(2, Role::Symbol);
    chosen.Choose(3, Role::Unused);
    EXPECT_EQ(ListOf(chosen), "4=not used, 3=symbol, 2=not used, 1=symbol");
}

} // namespace
} // namespace quorvex::imports
