// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisSession.h"
#include "cli/ChartJson.h"
#include "cli/ChartSheet.h"
#include "cli/ConsoleDialogs.h"
#include "cli/PictureFiles.h"
#include "cli/PipeFiles.h"
#include "cli/SubCommands.h"
#include "platform/basMessages.h"
#include "text/basTexts.h"

#include <charconv>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace quorvex::cli {

namespace {

struct ChartOptions {
    AnalysisOptions Analysis;
    std::string Size;
    std::string OutputPath;
};

// A whole number of twips at the front of the text, which loses it; 0 when there is none.
double TakeTwips(std::string_view& text) {
    constexpr int Largest = 1'000'000;
    int twips = 0;
    auto const result = std::from_chars(text.data(), text.data() + text.size(), twips);
    bool const good = result.ec == std::errc() && twips > 0 && twips <= Largest;
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return good ? twips : 0;
}

// Returns whether the text is a width and a height joined by an x, large enough for the charts.
bool ReadSize(std::string_view text, WindowSize& size) {
    size.Width = TakeTwips(text);
    if (size.Width == 0 || !text.starts_with('x')) {
        return false;
    }
    text.remove_prefix(1);
    size.Height = TakeTwips(text);
    return text.empty() && size.HasCharts();
}

CLI::Validator IsSize() {
    return {[](std::string const& text) {
                WindowSize size;
                return ReadSize(text, size) ? std::string() : text + " is no size";
            },
            ""};
}

CLI::Validator IsChartFile(platform::PictureEncoder const& encoder) {
    return {[&encoder](std::string const& text) -> std::string {
                if (text == PipeName || text::UpperCase(text).ends_with(".JSON")) {
                    return {};
                }
                auto const kind = platform::PictureKindOf(text);
                if (!kind) {
                    return text + " does not end with .png, .svg, .pdf or .json";
                }
                return encoder.Makes(*kind) ? "" : text + NeedsQt;
            },
            ""};
}

bool WriteChart(std::string const& path, ChartSheet const& sheet, platform::PictureEncoder& encoder) {
    ConsoleDialogs dialogs(OutputName(path));
    return platform::RunReported(dialogs, [&] {
        auto const kind = platform::PictureKindOf(path);
        PipeFiles().Overwrite(path, kind ? sheet.Encode(encoder, *kind) : ChartJson(sheet.Drawings()));
    });
}

// Raises the fault of the command line that asks for a picture larger than there can be.
void RequirePicture(ChartSheet const& sheet, ChartOptions const& options) {
    auto const kind = platform::PictureKindOf(options.OutputPath);
    std::string const refusal = kind ? sheet.RefusalOf(*kind) : "";
    if (!refusal.empty()) {
        throw CLI::ValidationError("--size", options.Size + " is " + refusal);
    }
}

ExitStatus Chart(ChartOptions const& options, platform::PictureEncoder& encoder) {
    WindowSize size;
    if (!options.Size.empty()) {
        ReadSize(options.Size, size);
    }
    ChartSheet sheet(size);
    RequirePicture(sheet, options);
    AnalysisSession session(options.Analysis);
    if (!session.Analyse()) {
        return ExitStatus::Refused;
    }
    session.DrawCharts(sheet.Boxes());
    return session.Status(WriteChart(options.OutputPath, sheet, encoder));
}

} // namespace

void AddChart(CLI::App& app, platform::PictureEncoder& encoder, ExitStatus& status) {
    auto const options = std::make_shared<ChartOptions>();
    CLI::App* command = app.add_subcommand("chart", "Draw the four charts into a file");
    AddAnalysisOptions(*command, options->Analysis);
    command
        ->add_option("--size", options->Size,
                     "Outer size of the window in twips, 15 to the pixel [16500x12000]")
        ->type_name("WxH")
        ->check(IsSize());
    command->add_option("-o", options->OutputPath, "File to write, - for JSON on standard output")
        ->type_name(FileKinds(encoder) + "|.json")
        ->required()
        ->check(IsChartFile(encoder));
    command->callback([options, &encoder, &status] { status = Chart(*options, encoder); });
}

} // namespace quorvex::cli
