// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/Chart.h"

#include "app/layout/basLayout.h"
#include "cli/AnalysisSession.h"
#include "cli/ChartJson.h"
#include "cli/StandardStreams.h"
#include "platform/RecordingCanvas.h"
#include "platform/basMessages.h"
#include "text/basTexts.h"

#include <array>
#include <charconv>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace quorvex::cli {

namespace {

// Twips to the pixel.
constexpr double PixelSize = 15;

struct WindowSize {
    double Width = 1100 * PixelSize;
    double Height = 800 * PixelSize;
};

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

std::array<app::layout::Rectangle, 4> ChartPlaces(WindowSize const& size) {
    return app::layout::LayoutMainWindow(size.Width, size.Height, app::layout::IconStripHeight).Charts;
}

// Returns whether the text is a width and a height joined by an x, large enough for the charts.
bool ReadSize(std::string_view text, WindowSize& size) {
    size.Width = TakeTwips(text);
    if (size.Width == 0 || !text.starts_with('x')) {
        return false;
    }
    text.remove_prefix(1);
    size.Height = TakeTwips(text);
    return text.empty() && ChartPlaces(size).back().Height > 0;
}

CLI::Validator IsSize() {
    return {[](std::string const& text) {
                WindowSize size;
                return ReadSize(text, size) ? std::string() : text + " is no size";
            },
            ""};
}

CLI::Validator IsChartFile() {
    return {[](std::string const& text) {
                bool const good = text == "-" || text::UpperCase(text).ends_with(".JSON");
                return good ? std::string() : text + " does not end with .json";
            },
            ""};
}

platform::RecordingCanvas BoxOf(app::layout::Rectangle const& place) {
    return {place.Width, place.Height};
}

bool WriteChart(std::string const& path, std::string const& charts, AnalysisSession& session) {
    return path == "-"
               ? Print(charts)
               : platform::RunReported(session.Dialogs(), [&] { session.Files().Replace(path, charts); });
}

ExitStatus Chart(ChartOptions const& options) {
    WindowSize size;
    if (!options.Size.empty()) {
        ReadSize(options.Size, size);
    }
    auto const places = ChartPlaces(size);
    AnalysisSession session(options.Analysis);
    if (!session.Analyse()) {
        return ExitStatus::Refused;
    }
    auto pic1 = BoxOf(places[0]);
    auto pic2 = BoxOf(places[1]);
    auto pic3 = BoxOf(places[2]);
    auto pic4 = BoxOf(places[3]);
    session.DrawCharts({pic1, pic2, pic3, pic4});
    return session.Status(WriteChart(options.OutputPath, ChartJson({&pic1, &pic2, &pic3, &pic4}), session));
}

} // namespace

void AddChart(CLI::App& app, ExitStatus& status) {
    auto const options = std::make_shared<ChartOptions>();
    CLI::App* command = app.add_subcommand("chart", "Write the drawing operations of the four charts");
    AddAnalysisOptions(*command, options->Analysis);
    command
        ->add_option("--size", options->Size,
                     "Outer size of the window in twips, 15 to the pixel [16500x12000]")
        ->type_name("WxH")
        ->check(IsSize());
    command->add_option("-o", options->OutputPath, "File to write, - for standard output")
        ->type_name("FILE.json")
        ->required()
        ->check(IsChartFile());
    command->callback([options, &status] { status = Chart(*options); });
}

} // namespace quorvex::cli
