// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The commands of the converters with a fault in each of their calls of files.

#include "Conversion.h"
#include "ConversionEndings.h"
#include "convert/basConvertBarChart.h"
#include "convert/basConvertCSI.h"
#include "convert/basSourcePreview.h"
#include "support/EveryFault.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace quorvex::convert {
namespace {

using tests::ExpectSafe;
using tests::MetFault;
using tests::Trial;

class Converter final : public SourceBoxes {
public:
    void ShowSourceName(std::string const& name) override { Name = name; }

    void ShowSourceContents(std::string const& contents) override { Shown = contents; }

    platform::fake::MemoryFiles Files;
    platform::fake::FailingFiles Failing{Files};
    platform::fake::ScriptedDialogs Dialogs;
    std::string Name = "former.txt";
    std::string Shown = "former";
};

Trial TrialOf(std::shared_ptr<Converter> const& converter, std::function<void(Converter&)> const& run) {
    return {.Disk = converter->Files,
            .Files = converter->Failing,
            .Run =
                [converter, run] {
                    converter->Dialogs.Messages.clear();
                    run(*converter);
                },
            .Memory = [converter] { return converter->Name + '\n' + converter->Shown; },
            .Told = [converter] { return BoxesOf(converter->Dialogs); }};
}

struct Vendor {
    char const* Name;
    std::shared_ptr<SourceLayout const> Layout;
    char const* Line;
};

std::vector<Vendor> Vendors() {
    platform::fake::ScriptedDialogs dialogs;
    auto const choices = ChoicesOf({"date", "open", "high", "low", "close", "volume", "open interest"});
    return {{"CSI", std::make_shared<CsiLayout>(), "20020115,1145.00,1150.00,1140.00,1148.00,25000,400000"},
            {"Barchart", std::make_shared<BarchartLayout>(BarchartFormat::Y),
             "SPH2,020115,1145.00,1150.00,1140.00,1148.00"},
            {"Custom", std::make_shared<CustomLayout>(ReadDescription(choices, dialogs).value()),
             "01/15/02,1145.00,1150.00,1140.00,1148.00,25000,400000"}};
}

TEST(ConversionUnderFaults, LeavesNothingHalfConverted) {
    constexpr int Lines = 1700; // two pieces of output
    for (Vendor const& vendor : Vendors()) {
        std::string source;
        for (int line = 0; line < Lines; ++line) {
            source += std::string(vendor.Line) + "\r\n";
        }
        ASSERT_TRUE(Convert(source, *vendor.Layout).Output) << vendor.Name;
        auto const make = [&] {
            auto const converter = std::make_shared<Converter>();
            converter->Failing.PieceSize = 50'000;
            converter->Files.Contents = {{UsualNames.Source, source}, {UsualNames.Destination, "older"}};
            Trial trial = TrialOf(converter, [layout = vendor.Layout](Converter& running) {
                ConvertDataFile(UsualNames, *layout, running.Failing, running.Dialogs);
            });
            trial.Ends = EndOfConversion;
            return trial;
        };
        ExpectSafe(vendor.Name, make, {"OpenForInput", "Keep", "OpenForOutput", "Read", "Write", "Close"});
    }
}

TEST(ConversionUnderFaults, BrowseShowsAllOfAFileOrNothing) {
    auto const make = [] {
        auto const converter = std::make_shared<Converter>();
        converter->Failing.PieceSize = 10;
        converter->Files.Contents["C:\\in.txt"] = "one line\r\nand another one\r\n";
        Trial trial = TrialOf(converter, [](Converter& running) {
            running.Dialogs.Paths = {"C:\\in.txt"};
            BrowseForSource(CsiTexts(), running.Failing, running.Dialogs, running);
        });
        trial.Ends = [converter](MetFault const& met) { return EndOfBrowse(met, converter->Name); };
        trial.MayHold = [](std::string const&, std::string const&, std::string const& now) {
            return now == "\n" || now == "C:\\in.txt\n";
        };
        return trial;
    };
    ExpectSafe("Browse", make, {"Length", "OpenForInput", "Read"});
}

} // namespace
} // namespace quorvex::convert
