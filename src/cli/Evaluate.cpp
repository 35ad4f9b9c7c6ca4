// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisSession.h"
#include "cli/ConsoleDialogs.h"
#include "cli/EvaluationJson.h"
#include "cli/ForecastTest.h"
#include "cli/PictureFiles.h"
#include "cli/PipeFiles.h"
#include "cli/ProgressLine.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "cli/WholeNumber.h"
#include "evaluation/basEvaluation.h"
#include "evaluation/basEvaluationPlot.h"
#include "evaluation/basReport.h"
#include "platform/RecordingCanvas.h"
#include "platform/basMessages.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::cli {

namespace {

struct EvaluateOptions {
    AnalysisOptions Analysis;
    TestOptions Test{.Jobs = evaluation::UsualJobs()};
    bool Json = false;
    std::string PlotPath;
};

CLI::Validator IsPictureFile(platform::PictureEncoder const& encoder) {
    return {[&encoder](std::string const& text) -> std::string {
                auto const kind = platform::PictureKindOf(text);
                if (!kind) {
                    return text + " does not end with .png, .svg or .pdf";
                }
                return encoder.Makes(*kind) ? "" : text + NeedsQt;
            },
            ""};
}

// Nothing after a refusal, which has been told.
std::optional<evaluation::Evaluation> Test(EvaluateOptions const& options, AnalysisSession& session,
                                           platform::Console const& console) {
    bool const hasParameters = options.Analysis.Request.ParameterPath.has_value();
    if (!session.OpenQuotes() || (hasParameters && !session.TakeParameters())) {
        return std::nullopt;
    }
    ProgressLine line(console);
    ConsoleDialogs dialogs(options.Analysis.QuotePath,
                           [&line](std::string_view name, std::string_view message) {
                               line.Erase();
                               Complain(name, message);
                           });
    return TestForecasts(session.Program(), hasParameters, options.Test, dialogs, [&line](double share) {
        line.Show(ProgressText(share));
        return true;
    });
}

bool WritePlot(std::string const& path, evaluation::Evaluation const& evaluation,
               platform::PictureEncoder& encoder) {
    platform::RecordingCanvas canvas(evaluation::PlotWidth, evaluation::PlotHeight);
    evaluation::DrawEvaluation(canvas, evaluation, evaluation::ChooseFan(evaluation));
    std::array<platform::PlacedDrawing, 1> const placed = {{{0, 0, &canvas}}};
    ConsoleDialogs dialogs(path);
    return platform::RunReported(dialogs, [&] {
        platform::PictureSheet const sheet{canvas.Width(), canvas.Height(), placed};
        PipeFiles().Overwrite(path, encoder.Encode(sheet, *platform::PictureKindOf(path)));
    });
}

ExitStatus Evaluate(EvaluateOptions const& options, platform::Console const& console,
                    platform::PictureEncoder& encoder) {
    AnalysisSession session(options.Analysis);
    auto const result = Test(options, session, console);
    if (!result) {
        return ExitStatus::Refused;
    }
    bool const isDrawn = options.PlotPath.empty() || WritePlot(options.PlotPath, *result, encoder);
    bool const isPrinted =
        Print(options.Json ? EvaluationJson(*result) : evaluation::EvaluationReport(*result));
    return session.Status(isDrawn && isPrinted);
}

} // namespace

void AddEvaluate(CLI::App& app, platform::Console const& console, platform::PictureEncoder& encoder,
                 ExitStatus& status) {
    auto const options = std::make_shared<EvaluateOptions>();
    CLI::App* command =
        app.add_subcommand("evaluate", "Test whether cycles forecast one contract of " +
                                           std::to_string(evaluation::FewestDays) + " days or more");
    AddQuoteOptions(*command, options->Analysis);
    command
        ->add_option("--parameters", options->Analysis.Request.ParameterPath,
                     "Test the cycles of a parameter file, too; made of the days tested, they know them")
        ->type_name("FILE.dat");
    AddTestOptions(*command, options->Test);
    command
        ->add_option("--jobs", options->Test.Jobs,
                     "Threads to work with; the result is the same with any number [as many as the machine "
                     "has]")
        ->type_name("N")
        ->transform(WholeNumberBetween(1, evaluation::MostJobs));
    command->add_flag("--json", options->Json, "Print one JSON object instead of a report");
    command
        ->add_option("--plot", options->PlotPath,
                     "Draw errors and forecasts into a file, in the place of one that is there")
        ->type_name(FileKinds(encoder))
        ->check(IsPictureFile(encoder));
    command->callback(
        [options, &console, &encoder, &status] { status = Evaluate(*options, console, encoder); });
}

} // namespace quorvex::cli
