// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basMessages.h"

#include "platform/fake/ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace quorvex::platform {
namespace {

void ExpectOnly(fake::ScriptedDialogs const& dialogs, std::string const& text, Icon icon) {
    ASSERT_EQ(dialogs.Messages.size(), 1U);
    EXPECT_EQ(dialogs.Messages[0].Text, text);
    EXPECT_EQ(dialogs.Messages[0].Title, "Quorvex");
    EXPECT_EQ(dialogs.Messages[0].Shown, icon);
    EXPECT_EQ(dialogs.Messages[0].Offered, Buttons::Ok);
}

TEST(Messages, AWarningHasTheExclamationIcon) {
    fake::ScriptedDialogs dialogs;
    ShowWarning(dialogs, "Mind the gap");
    ExpectOnly(dialogs, "Mind the gap", Icon::Exclamation);
}

TEST(Messages, AnErrorShowsItsDescriptionWithoutAnIcon) {
    fake::ScriptedDialogs dialogs;
    ShowError(dialogs, text::RunTimeError(text::Fault::Overflow));
    ExpectOnly(dialogs, "Overflow", Icon::None);
}

TEST(Messages, AFileIsReplacedAfterAYesAlone) {
    fake::ScriptedDialogs dialogs;
    dialogs.Answers = {Answer::Yes, Answer::No};
    EXPECT_TRUE(MayReplace(dialogs, "S&P.dat", "Save As"));
    EXPECT_FALSE(MayReplace(dialogs, "S&P.dat", "Save As"));
    ASSERT_EQ(dialogs.Messages.size(), 2U);
    EXPECT_EQ(dialogs.Messages[0].Text, "S&P.dat already exists.\nDo you want to replace it?");
    EXPECT_EQ(dialogs.Messages[0].Title, "Save As");
    EXPECT_EQ(dialogs.Messages[0].Shown, Icon::Exclamation);
    EXPECT_EQ(dialogs.Messages[0].Offered, Buttons::YesNo);
}

} // namespace
} // namespace quorvex::platform
