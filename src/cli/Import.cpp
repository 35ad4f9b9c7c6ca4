// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ConsoleDialogs.h"
#include "cli/ImportJson.h"
#include "cli/ImportReport.h"
#include "cli/PipeFiles.h"
#include "cli/SettingOptions.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "cli/WholeNumber.h"
#include "import/basBars.h"
#include "import/basTelling.h"
#include "platform/basMessages.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"
#include "text/RunTimeError.h"
#include "text/basDates.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::cli {

namespace {

using imports::Choice;
using imports::Choices;
using imports::Role;

struct ImportOptions {
    std::string SourcePath;
    std::string OutputPath;
    std::string IntoPath;
    Choices Chosen;
    std::string Columns;
    std::string From;
    std::string To;
    bool IsStrict = false;
    bool Replaces = false;
    bool IsDryRun = false;
    bool Json = false;
    std::optional<std::string> Format;
    std::size_t Days = static_cast<std::size_t>(quotes::MaxQuotes);

    [[nodiscard]] std::string const& Target() const { return IntoPath.empty() ? OutputPath : IntoPath; }
};

// In the order in which they are told.
template <class Value>
using Words = std::vector<std::pair<std::string, Value>>;

Words<imports::Encoding> const EncodingWords = {{"utf-8", imports::Encoding::Utf8},
                                                {"utf-16le", imports::Encoding::Utf16LittleEndian},
                                                {"utf-16be", imports::Encoding::Utf16BigEndian},
                                                {"windows-1252", imports::Encoding::Windows1252}};
Words<imports::Separator> const SeparatorWords = {{"comma", imports::Separator::Comma},
                                                  {"semicolon", imports::Separator::Semicolon},
                                                  {"tab", imports::Separator::Tab},
                                                  {"bar", imports::Separator::Bar},
                                                  {"blanks", imports::Separator::Blanks}};
Words<imports::DateOrder> const OrderWords = {{"ymd", imports::DateOrder::YearMonthDay},
                                              {"mdy", imports::DateOrder::MonthDayYear},
                                              {"dmy", imports::DateOrder::DayMonthYear}};
Words<imports::DecimalMark> const DecimalWords = {{"point", imports::DecimalMark::Point},
                                                  {"comma", imports::DecimalMark::Comma}};
Words<int> const FractionWords = {{"none", imports::NoFraction},
                                  {"2", 2},
                                  {"4", 4},
                                  {"8", 8},
                                  {"16", 16},
                                  {"32", 32},
                                  {"64", 64},
                                  {"128", 128}};
Words<Role> const RoleWords = {{"date", Role::Date},     {"time", Role::Time},
                               {"open", Role::Open},     {"high", Role::High},
                               {"low", Role::Low},       {"close", Role::Close},
                               {"volume", Role::Volume}, {"open-interest", Role::OpenInterest},
                               {"symbol", Role::Symbol}, {"not-used", Role::Unused}};

template <class Value>
std::string Listed(Words<Value> const& words) {
    std::string list;
    for (auto const& word : words) {
        list.append(list.empty() ? "" : "|").append(word.first);
    }
    return list;
}

template <class Value>
std::optional<Value> ValueOf(std::string_view typed, Words<Value> const& words) {
    auto const word = std::ranges::find(words, typed, &std::pair<std::string, Value>::first);
    return word == words.end() ? std::nullopt : std::optional(word->second);
}

// What to say to settle what a table leaves open.
std::string HowToSettle(Choice choice) {
    switch (choice) {
    case Choice::None:
        return {};
    case Choice::Encoding:
        return ". Give --encoding " + Listed(EncodingWords);
    case Choice::Separator:
        return ". Give --separator " + Listed(SeparatorWords);
    case Choice::Columns:
        return ". Give --columns, such as close=5,volume=Vol";
    case Choice::DateOrder:
        return ". Give --date-order " + Listed(OrderWords);
    case Choice::Decimal:
        return ". Give --decimal " + Listed(DecimalWords);
    case Choice::Fraction:
        return ". Give --fraction " + Listed(FractionWords);
    case Choice::Symbol:
        return ". Give --symbol NAME (\"\" for one without a name), or --columns not-used=N for a column "
               "that does "
               "not name the contract";
    case Choice::Bars:
        return ". Give --any-bars to take each row for a day";
    }
    return {};
}

// Takes "date,open,..." for all columns in their order, or "close=Last,volume=7" for some of them. Returns
// false when it is neither.
bool ReadColumns(std::string_view typed, Choices& choices) {
    choices.Columns.clear();
    choices.OnlyChosenColumns = typed.find('=') == std::string_view::npos;
    for (bool isMore = true; isMore;) {
        std::size_t const length = std::min(typed.find(','), typed.size());
        std::string_view const item = typed.substr(0, length);
        isMore = length < typed.size();
        typed.remove_prefix(isMore ? length + 1 : length);
        std::size_t const equals = item.find('=');
        auto const role = ValueOf(item.substr(0, equals), RoleWords);
        bool const hasColumn = equals != std::string_view::npos && equals + 1 < item.size();
        if (!role || hasColumn == choices.OnlyChosenColumns) {
            return false;
        }
        choices.Columns.push_back(
            {hasColumn ? std::string(item.substr(equals + 1)) : std::to_string(choices.Columns.size() + 1),
             *role});
    }
    return true;
}

CLI::Validator IsColumnList() {
    return {[](std::string const& text) {
                Choices choices;
                return ReadColumns(text, choices) ? std::string() : text + " is no list of columns";
            },
            ""};
}

CLI::Validator IsDay() {
    return {
        [](std::string const& text) { return text::ParseDate(text) ? std::string() : text + " is no date"; },
        ""};
}

imports::Limits LimitsOf(ImportOptions const& options) {
    return {text::ParseDate(options.From), text::ParseDate(options.To), options.IsStrict};
}

// Returns whether the source could be read; when not, its fault was told.
bool ReadSource(ImportOptions const& options, ImportResult& result) {
    ConsoleDialogs dialogs(InputName(options.SourcePath));
    PipeFiles const files;
    return platform::RunReported(dialogs, [&] {
        auto const source = files.OpenForInput(options.SourcePath);
        result.Read = imports::ImportTable(*source, options.Chosen, LimitsOf(options));
    });
}

bool WriteNewFile(ImportOptions const& options, ImportResult& result) {
    result.File = imports::MakeQuoteFile(result.Read, options.Days);
    if (options.IsDryRun || options.Target().empty() || !result.File.HasNews()) {
        return true;
    }
    ConsoleDialogs dialogs(OutputName(options.Target()));
    PipeFiles files;
    result.IsWritten = platform::RunReported(
        dialogs, [&] { files.Replace(options.Target(), imports::QuoteText(result.File.Days)); });
    return result.IsWritten;
}

void Update(ImportOptions const& options, text::ByteSource& old, ImportResult& result) {
    result.File = imports::UpdateQuoteFile(old, result.Read, options.Replaces, options.Days);
}

// Of two that bring the file up to date at the same time both succeed.
bool UpdateFile(ImportOptions const& options, ImportResult& result) {
    ConsoleDialogs dialogs(options.IntoPath);
    PipeFiles files;
    return platform::RunReported(dialogs, [&] {
        if (options.IsDryRun) {
            Update(options, *files.OpenForInput(options.IntoPath), result);
            return;
        }
        files.Revise(options.IntoPath, [&](auto const& content) -> std::optional<std::string> {
            if (!content) {
                throw text::RunTimeError(text::Fault::FileNotFound);
            }
            text::TextSource old(*content);
            Update(options, old, result);
            result.IsWritten = result.File.HasNews();
            return result.IsWritten ? std::optional(imports::QuoteText(result.File.Days)) : std::nullopt;
        });
    });
}

// Where the quotes themselves go to standard output, what is wrong with them goes to standard error.
void ComplainOfRows(ImportResult const& result) {
    if (!result.File.Refused && result.Read.DaysApart > 1) {
        Complain(result.Source, imports::DescribeBars(result.Read.DaysApart));
    }
    std::string const rounding = imports::DescribeRounding(result.File, result.CurrencyFormat);
    if (!rounding.empty()) {
        Complain(result.Source, rounding);
    }
    for (imports::Finding const& finding : result.Read.LeftOut.Kept) {
        Complain(result.Source, imports::FindingText(finding) + ", left out");
    }
    if (result.Read.LeftOut.Count > result.Read.LeftOut.Kept.size()) {
        Complain(result.Source, std::to_string(result.Read.LeftOut.Count) + " rows are left out in all");
    }
}

ExitStatus Tell(ImportOptions const& options, ImportResult const& result) {
    auto const& refused = result.File.Refused;
    if (refused) {
        Complain(result.Source, imports::FindingText(refused->Told) + HowToSettle(refused->SettledBy));
    }
    bool isTold = true;
    if (options.Target() == PipeName && !options.IsDryRun) {
        ComplainOfRows(result);
    } else if (options.Json) {
        isTold = Print(ImportJson(result));
    } else {
        isTold = Print(ImportReport(result));
    }
    return isTold && !refused ? ExitStatus::Success : ExitStatus::Refused;
}

ExitStatus Import(ImportOptions const& options) {
    ImportResult result;
    result.Source = InputName(options.SourcePath);
    result.Target = options.Target();
    result.IsReplacing = options.Replaces;
    result.CurrencyFormat = options.Format.value_or(
        std::string(settings::SettingRowOf(&settings::Settings::CurrencyFormat).Default));
    if (!ReadSource(options, result)) {
        return ExitStatus::Refused;
    }
    bool const isUpdate = !options.IntoPath.empty() && !result.Read.Refused;
    bool const isDone = isUpdate ? UpdateFile(options, result) : WriteNewFile(options, result);
    return isDone ? Tell(options, result) : ExitStatus::Refused;
}

// Throws what each option alone cannot tell.
void RequireSense(ImportOptions const& options) {
    if (options.SourcePath == options.Target() && options.Target() != PipeName) {
        throw CLI::ValidationError("The table and the quote file are the same file");
    }
    auto const limits = LimitsOf(options);
    if (limits.From && limits.To && *limits.From > *limits.To) {
        throw CLI::ValidationError("--from " + options.From + " lies behind --to " + options.To);
    }
    if (options.Json && options.OutputPath == PipeName && !options.IsDryRun) {
        throw CLI::ValidationError("-o - and --json cannot both have standard output");
    }
}

// Without a description of its own: the help names the words as the type of the option.
template <class Value>
CLI::Validator IsOneOf(Words<Value> const& words) {
    return {[&words](std::string const& typed) {
                return ValueOf(typed, words) ? std::string() : typed + " is not " + Listed(words);
            },
            ""};
}

// An option whose words stand for values.
template <class Value>
void AddWords(CLI::App& command, std::string const& name, std::optional<Value>& value,
              Words<Value> const& words, std::string const& about) {
    command
        .add_option_function<std::string>(
            name, [&value, &words](std::string const& word) { value = ValueOf(word, words); }, about)
        ->type_name(Listed(words))
        ->check(IsOneOf(words));
}

void AddChoices(CLI::App& command, ImportOptions& options) {
    AddWords(command, "--encoding", options.Chosen.Encoding, EncodingWords, "Characters of the table");
    AddWords(command, "--separator", options.Chosen.Separator, SeparatorWords, "What separates its columns");
    AddWords(command, "--date-order", options.Chosen.DateOrder, OrderWords, "Order of year, month and day");
    AddWords(command, "--decimal", options.Chosen.Decimal, DecimalWords, "Decimal mark of its numbers");
    AddWords(command, "--fraction", options.Chosen.Fraction, FractionWords,
             "Denominator of prices such as 118'16");
    command
        .add_option("--columns", options.Columns,
                    "All columns in their order (date, time, open, high, low, close, volume, open-interest, "
                    "symbol, not-used), or some of them by heading or number: close=Last,volume=7")
        ->type_name("LIST")
        ->check(IsColumnList());
    // Not as an optional text, which would be none when it is empty.
    command
        .add_option_function<std::string>(
            "--symbol", [&options](std::string const& name) { options.Chosen.Symbol = name; },
            "Contract to take, where there are several, \"\" for the one without a name")
        ->type_name("NAME");
    command.add_flag("--any-bars", options.Chosen.TakesAnyBars,
                     "Take rows of weeks or months, too, each for a day");
    command.add_option("--from", options.From, "First day to take")->type_name("mm/dd/yy")->check(IsDay());
    command.add_option("--to", options.To, "Last day to take")->type_name("mm/dd/yy")->check(IsDay());
    command.add_option("--days", options.Days, "Most days of the quote file, the latest of them [500]")
        ->type_name("N")
        ->transform(WholeNumberBetween(quotes::MinQuotes, quotes::MaxQuotes));
    AddFormatOption(command, options.Format);
    command.add_flag("--strict", options.IsStrict, "Refuse a table of which a row would be left out");
}

} // namespace

void AddImport(CLI::App& app, ExitStatus& status) {
    auto const options = std::make_shared<ImportOptions>();
    CLI::App* command =
        app.add_subcommand("import", "Make a quote file of any vendor's table, or update one");
    command->add_option("SOURCE", options->SourcePath, "Table to read, - for standard input")
        ->required()
        ->type_name("");
    CLI::Option* output =
        command->add_option("-o", options->OutputPath, "Quote file to write, - for standard output")
            ->type_name("QUOTES");
    CLI::Option* into =
        command->add_option("--into", options->IntoPath, "Quote file to bring up to date")
            ->type_name("QUOTES")
            ->excludes(output)
            ->check([](std::string const& name) {
                return name == PipeName ? std::string("no pipe can be brought up to date") : "";
            });
    command->add_flag("--replace", options->Replaces, "Take figures that have changed, too")->needs(into);
    command->add_flag("--dry-run", options->IsDryRun, "Tell what would be done, and write nothing");
    command->add_flag("--json", options->Json, "Print one JSON object instead of a report");
    AddChoices(*command, *options);
    command->callback([options, &status] {
        RequireSense(*options);
        if (!options->Columns.empty()) {
            static_cast<void>(ReadColumns(options->Columns, options->Chosen)); // was checked
        }
        status = Import(*options);
    });
}

} // namespace quorvex::cli
