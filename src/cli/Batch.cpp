// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/OrderedWork.h"
#include "batch/QuoteFileNames.h"
#include "batch/basResume.h"
#include "cli/AnalysisSession.h"
#include "cli/BatchLines.h"
#include "cli/BatchObjects.h"
#include "cli/BatchProgress.h"
#include "cli/BatchTable.h"
#include "cli/ForecastTest.h"
#include "cli/PipeFiles.h"
#include "cli/SearchOptions.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "cli/WholeNumber.h"
#include "platform/basFiles.h"
#include "platform/disk/DiskFolders.h"
#include "platform/disk/HostFile.h"
#include "platform/disk/HostInterruption.h"
#include "text/RunTimeError.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::cli {

namespace {

using platform::disk::HostInterruption;

struct BatchOptions {
    std::vector<std::string> Paths;
    std::string ListPath; // of the option "--files-from"; empty without it
    bool IsRecursive = false;
    AnalysisOptions Analysis; // its quote file is each file in turn
    bool HasTest = false;
    TestOptions Test;
    int Jobs = evaluation::UsualJobs();
    bool WritesObjects = false;
    std::string OutputPath{PipeName};
    bool IsResumed = false;
};

bool GoesOn() {
    return !HostInterruption::HasCome();
}

batch::PathSource PathsOf(BatchOptions const& options) {
    if (options.ListPath.empty()) {
        return batch::PathsOf(options.Paths);
    }
    return batch::PathsOfList(options.ListPath == PipeName
                                  ? platform::disk::OpenStandardInputWhile(GoesOn)
                                  : platform::disk::OpenFileOrPipe(options.ListPath));
}

// How many columns of cycles the table has.
int CycleCount(app::AnalysisRequest const& request) {
    return request.ParameterPath ? cycles::CycleCount
           : request.Search      ? request.Search->CycleCount
                                 : request.AutomatedCycles;
}

std::unique_ptr<BatchLines> LinesOf(BatchOptions const& options) {
    if (options.WritesObjects) {
        return std::make_unique<BatchObjects>(options.HasTest);
    }
    return std::make_unique<BatchTable>(CycleCount(options.Analysis.Request), options.HasTest);
}

// Analyses the file as "analyse" and "evaluate" do. Nothing when it was ended early. For any thread.
std::optional<AnalysedFile> AnalyseFile(batch::BatchFile const& file, BatchOptions const& options) {
    AnalysedFile analysed;
    analysed.File = file;
    if (!file.Refusal.empty()) {
        analysed.Messages->push_back(file.Refusal);
        return analysed;
    }
    AnalysisOptions one = options.Analysis;
    one.QuotePath = file.Path;
    MessageSink const sink = [messages = analysed.Messages, path = file.Path](std::string_view name,
                                                                              std::string_view message) {
        std::string const about = name == path ? "" : std::string(name) + ": ";
        messages->push_back(about + InOneLine(message));
    };
    analysed.Session = std::make_unique<AnalysisSession>(one, sink);
    analysed.Result = analysed.Session->Analyse();
    if (!analysed.Result || !options.HasTest) {
        return analysed;
    }
    ConsoleDialogs dialogs(file.Path, sink);
    analysed.ForecastTest = TestForecasts(analysed.Session->Program(), one.Request.ParameterPath.has_value(),
                                          options.Test, dialogs, [](double) { return GoesOn(); });
    return analysed.ForecastTest || dialogs.HasShown() ? std::optional(std::move(analysed)) : std::nullopt;
}

// Where the lines go, and what an earlier run has left there.
class BatchOutput {
public:
    BatchOutput(BatchOptions const& options, BatchLines const& lines)
        : path_(options.OutputPath),
          isResumed_(options.IsResumed),
          lines_(lines) {}

    // Whether the path is that of the output, which is none of the quotes.
    [[nodiscard]] bool Is(std::string const& path) const {
        return path_ != PipeName && platform::BareName(path) == platform::BareName(path_) &&
               files_.AreSame(path, path_);
    }

    // Opens it, behind the lines of an earlier run where they are wanted, whose files are taken. Returns what
    // that has left, with a refusal when nothing was opened. Raises the faults of the file.
    [[nodiscard]] batch::EarlierRun Open(batch::NextFile const& next, batch::DoAgain const& doAgain) {
        batch::EarlierRun earlier;
        if (path_ == PipeName) {
            sink_ = platform::disk::OpenStandardOutput();
        } else {
            earlier = OpenFile(next, doAgain);
        }
        if (earlier.Refusal.empty()) {
            Write((earlier.Length == 0 ? lines_.Head() : "") + earlier.LastLine);
        }
        return earlier;
    }

    void Write(std::string_view text) const { sink_->Write(text); }

    void Close() const { sink_->Close(); }

private:
    [[nodiscard]] batch::EarlierRun OpenFile(batch::NextFile const& next, batch::DoAgain const& doAgain) {
        batch::EarlierRun earlier;
        earlier.Refusal = Take();
        if (earlier.Refusal.empty() && isResumed_) {
            earlier = batch::ReadEarlierRun(*files_.OpenForInput(path_), lines_, next, doAgain);
        }
        if (earlier.Refusal.empty()) {
            platform::disk::ShortenHostFile(platform::disk::HostPath(path_), earlier.Length);
        }
        return earlier;
    }

    // Opens the file, if it may be written over, for this run alone. Returns the refusal.
    [[nodiscard]] std::string Take() {
        if (!platform::IsThere(files_, path_)) {
            files_.OpenForOutput(path_)->Close();
        } else if (!MayBeBatchLines(FirstBytes())) {
            return "It is there and was not written by batch: it stays as it is";
        }
        sink_ = platform::disk::OpenHeldHostFileToAppend(platform::disk::HostPath(path_));
        return sink_ ? "" : "Another run is writing it";
    }

    [[nodiscard]] std::string FirstBytes() const {
        constexpr std::size_t Enough = 256;
        std::array<char, Enough> bytes{};
        auto const source = files_.OpenForInput(path_);
        return {bytes.data(), source->Read(bytes)};
    }

    std::string path_;
    bool isResumed_;
    BatchLines const& lines_;
    platform::disk::DiskFiles files_;
    std::unique_ptr<platform::ByteSink> sink_;
};

class Batch {
public:
    Batch(BatchOptions const& options, platform::Console const& console)
        : options_(options),
          isWatched_(console.ShowsErrors()),
          progress_(console) {}

    [[nodiscard]] ExitStatus Run() {
        bool const isReady = HasGoodParameters() &&
                             Guard(InputName(options_.ListPath), [&] { names_ = Names(); }) && OpenOutput();
        if (!isReady) {
            return GoesOn() ? ExitStatus::Unfinished : ExitStatus::Interrupted;
        }
        if (isWatched_) {
            CountFiles();
        }
        bool const isWritten = Guard(OutputName(options_.OutputPath), [&] {
            isWhole_ = DoFiles() && hasSeenEnd_;
            output_.Close();
        });
        progress_.End(isWhole_);
        if (!isWritten || !isWhole_) {
            return GoesOn() ? ExitStatus::Unfinished : ExitStatus::Interrupted;
        }
        return progress_.HasRefused() ? ExitStatus::Refused : ExitStatus::Success;
    }

private:
    // Returns whether there was no fault, which is told as one of the file of this name.
    template <class Routine>
    [[nodiscard]] bool Guard(std::string const& name, Routine&& routine) {
        auto const error = text::Trap(std::forward<Routine>(routine));
        if (error) {
            progress_.Complain(name, {std::string(error->Description())});
        }
        return !error;
    }

    // Looks once at the parameter file, rather than let every file complain of it.
    [[nodiscard]] bool HasGoodParameters() const {
        return !options_.Analysis.Request.ParameterPath ||
               AnalysisSession(options_.Analysis).TakeParameters();
    }

    [[nodiscard]] std::unique_ptr<batch::QuoteFileNames> Names() const {
        batch::QuoteFileNames::Options names;
        names.IsRecursive = options_.IsRecursive;
        names.PassOver = [this](std::string const& path) { return output_.Is(path); };
        return std::make_unique<batch::QuoteFileNames>(PathsOf(options_), folders_, std::move(names));
    }

    // Names that can be gone through twice are counted first, to tell how much is left.
    void CountFiles() {
        using platform::disk::HostFileKind;
        using platform::disk::HostPath;
        bool const areLasting =
            options_.ListPath.empty() ||
            (options_.ListPath != PipeName &&
             platform::disk::KindOfHostFile(HostPath(options_.ListPath)) == HostFileKind::File);
        if (!areLasting) {
            return;
        }
        std::uint64_t count = 0;
        // A list that cannot be read any more is told of when its files are done.
        auto const error = text::Trap([&] {
            auto const names = Names();
            while (GoesOn() && names->Next()) {
                ++count;
            }
        });
        if (!error) {
            progress_.SetWhole(count);
        }
    }

    [[nodiscard]] bool OpenOutput() {
        std::string refusal;
        bool const isOpen = Guard(OutputName(options_.OutputPath), [&] {
            auto const earlier = output_.Open([this] { return NextFile(); },
                                              [this](batch::BatchFile const& file) {
                                                  auto const result = Do(file);
                                                  return result ? result->Line : std::string();
                                              });
            progress_.AddBefore(earlier.FileCount, earlier.RefusedCount);
            refusal = earlier.Refusal;
        });
        if (!refusal.empty() && GoesOn()) {
            progress_.Complain(OutputName(options_.OutputPath), {refusal});
        }
        return isOpen && refusal.empty();
    }

    [[nodiscard]] bool DoFiles() {
        batch::OrderedWork const work{.Next = [this] { return NextFile(); },
                                      .Do = [this](batch::BatchFile const& file) { return Do(file); },
                                      .Take = [this](auto const& results) { Take(results); }};
        return batch::DoInOrder(work, options_.Jobs, [this] {
            progress_.Show();
            return GoesOn();
        });
    }

    // Nothing after an interruption: what the list had then may be the start of a name.
    [[nodiscard]] std::optional<batch::BatchFile> NextFile() {
        std::optional<batch::BatchFile> file;
        bool const isRead = Guard(InputName(options_.ListPath), [&] { file = names_->Next(); });
        if (!isRead || !GoesOn()) {
            return std::nullopt;
        }
        hasSeenEnd_ = !file;
        return file;
    }

    [[nodiscard]] std::optional<batch::FileResult> Do(batch::BatchFile const& file) const {
        auto const analysed = AnalyseFile(file, options_);
        return analysed ? std::optional(lines_->ResultOf(*analysed)) : std::nullopt;
    }

    void Take(std::vector<batch::FileResult> const& results) {
        std::string lines;
        for (batch::FileResult const& result : results) {
            lines += result.Line;
        }
        output_.Write(lines);
        for (batch::FileResult const& result : results) {
            progress_.Add(result.HasRefused);
            if (!result.Complaints.empty()) {
                progress_.Complain(result.File.Path, result.Complaints);
            }
        }
    }

    BatchOptions const& options_;
    HostInterruption interruption_;
    bool isWatched_;
    BatchProgress progress_;
    platform::disk::DiskFolders folders_;
    std::unique_ptr<BatchLines> lines_ = LinesOf(options_);
    BatchOutput output_{options_, *lines_};
    std::unique_ptr<batch::QuoteFileNames> names_;
    bool hasSeenEnd_ = false; // of the names
    bool isWhole_ = false;    // all files are done
};

void RequireConsistency(BatchOptions const& options) {
    RequirePeriods(options.Analysis.Request.Search);
    if (options.Paths.empty() == options.ListPath.empty()) {
        throw CLI::RequiredError(options.Paths.empty() ? "PATH or --files-from"
                                                       : "Either PATH or --files-from");
    }
    if (options.IsResumed && options.OutputPath == PipeName) {
        throw CLI::ValidationError("--resume needs a file: -o OUT");
    }
}

void AddFileOptions(CLI::App& command, BatchOptions& options) {
    command
        .add_option("PATH", options.Paths,
                    std::string("Quote files, and folders whose files ") + batch::QuotePattern + " are meant")
        ->type_name("");
    command
        .add_option("--files-from", options.ListPath,
                    "Read the paths from a list, one a line; \"-\" for standard input")
        ->type_name("FILE");
    command.add_flag("-r,--recursive", options.IsRecursive, "Go through the folders of folders, too");
}

void AddOutputOptions(CLI::App& command, BatchOptions& options) {
    command
        .add_option_function<std::string>(
            "--format", [&options](std::string const& format) { options.WritesObjects = format == "jsonl"; },
            "Write a table, or an object of \"analyse --json\" for each file [csv]")
        ->type_name("csv|jsonl")
        ->check(CLI::IsMember({"csv", "jsonl"}).description(""));
    command
        .add_option(
            "-o", options.OutputPath,
            "Write the lines into this file, in the place of those of an earlier run [standard output]")
        ->type_name("OUT");
    command.add_flag("--resume", options.IsResumed,
                     "Go on behind the lines that an earlier run has written into OUT");
}

} // namespace

void AddBatch(CLI::App& app, platform::Console const& console, ExitStatus& status) {
    auto const options = std::make_shared<BatchOptions>();
    CLI::App* command =
        app.add_subcommand("batch", "Analyse the quotes of many contracts, a line for each file");
    AddFileOptions(*command, *options);
    AddReadingOptions(*command, options->Analysis, "--price-format");
    AddCycleOptions(*command, options->Analysis);
    auto* const evaluate =
        command->add_flag("--evaluate", options->HasTest, "Test forecasts, too, as \"evaluate\" does");
    for (CLI::Option* option : AddTestOptions(*command, options->Test)) {
        option->needs(evaluate);
    }
    command
        ->add_option(
            "--jobs", options->Jobs,
            "Files to work on at once; the lines are the same with any number [as many as the machine "
            "has]")
        ->type_name("N")
        ->transform(WholeNumberBetween(1, evaluation::MostJobs));
    AddOutputOptions(*command, *options);
    command->callback([options, &console, &status] {
        RequireConsistency(*options);
        status = Batch(*options, console).Run();
    });
}

} // namespace quorvex::cli
