// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The settings on a disk that fails.

#include "platform/disk/DiskProfile.h"
#include "platform/fake/ScriptedDialogs.h"
#include "prefs/basPreferences.h"
#include "settings/basProfiles.h"
#include "support/EveryFault.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quorvex::prefs {
namespace {

using tests::Ending;
using tests::ExpectSafe;
using tests::MetFault;
using tests::Trial;

std::string const IniPath = "C:\\Quorvex\\Quorvex.INI";

struct StoredSettings {
    StoredSettings() {
        Files.Contents[IniPath] = "; mine\r\n[Globals]\r\nDataPath=D:\\q\\\r\nChartType=Line Chart\r\n"
                                  "MovingAverageIndex=9\r\nCurrencyFormat=####0.000\r\n[Tail]\r\nx=1\r\n";
        Failing.PieceSize = 50;
    }

    platform::fake::MemoryFiles Files;
    platform::fake::FailingFiles Failing{Files};
    platform::disk::DiskProfile Profile{IniPath, Failing};
    settings::Settings Held = settings::DefaultSettings("C:\\Quorvex");
    platform::fake::ScriptedDialogs Dialogs;
};

Trial TrialOf(std::shared_ptr<StoredSettings> const& stored, std::function<void()> const& run) {
    return {.Disk = stored->Files,
            .Files = stored->Failing,
            .Run =
                [stored, run] {
                    stored->Dialogs.Messages.clear();
                    run();
                },
            .Memory =
                [stored] {
                    std::string text;
                    for (settings::SettingRow const& row : settings::SettingTable()) {
                        text += stored->Held.*row.Member + '\n';
                    }
                    return text;
                },
            .Told = [stored] { return tests::DescribeAll(stored->Dialogs.Messages); }};
}

// A file that cannot be read gives all defaults: one of them among the others would be saved with these.
TEST(PreferencesUnderFaults, AreThoseOfTheFileOrTheDefaults) {
    auto const make = [] {
        auto const stored = std::make_shared<StoredSettings>();
        Trial trial = TrialOf(
            stored, [stored] { settings::ReadProfile(stored->Held, stored->Profile, "C:\\Quorvex"); });
        trial.Ends = [](MetFault const&) { return Ending{}; };
        return trial;
    };
    ExpectSafe("start", make, {"OpenForInput", "Read"});
}

// For this run of the program they are taken over even so.
TEST(PreferencesUnderFaults, AreSavedOrTheFileStaysAsItIs) {
    auto const make = [] {
        auto const stored = std::make_shared<StoredSettings>();
        Trial trial = TrialOf(stored, [stored] {
            PreferencesFields fields;
            fields.Boxes = {"E:\\new\\", "Candlestick Chart", "Close Only", "5", "####0"};
            SaveSettings(fields, stored->Held, stored->Profile, stored->Dialogs);
        });
        trial.MayHold = [](std::string const&, std::string const& after, std::string const& now) {
            return now == after;
        };
        return trial;
    };
    ExpectSafe("Save Settings", make, {"Revise", "ReplaceRevised"});
}

} // namespace
} // namespace quorvex::prefs
