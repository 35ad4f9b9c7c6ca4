// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ConsoleDialogs.h"
#include "cli/PipeFiles.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "convert/basConvertBarChart.h"
#include "convert/basConvertCSI.h"
#include "convert/basConvertCustom.h"
#include "convert/basConvertSubs.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace quorvex::cli {

namespace {

struct ConvertOptions {
    convert::FileNames Names;
    std::string Layout;
    std::string Fields;
    std::string DateFormat;
};

// On the command line a hyphen stands for the blank in a field's name: open-interest, not-used.
std::string FieldName(std::string_view typed) {
    std::string name(typed);
    std::replace(name.begin(), name.end(), '-', ' ');
    return name;
}

// The description that the typed fields give; nothing when there are too many or one of them is unknown.
std::optional<convert::CustomChoices> ReadFields(std::string_view typed) {
    convert::CustomChoices choices;
    std::int16_t count = 0;
    for (bool isMore = true; isMore;) {
        std::size_t const length = std::min(typed.find(','), typed.size());
        isMore = length < typed.size();
        std::string const name = FieldName(typed.substr(0, length));
        bool const isKnown = name == convert::NotUsed ||
                             std::find(convert::FieldNames.begin(), convert::FieldNames.end(), name) !=
                                 convert::FieldNames.end();
        if (!isKnown || count == convert::MostFields) {
            return std::nullopt;
        }
        choices.Names[++count] = name;
        typed.remove_prefix(isMore ? length + 1 : length);
    }
    choices.NumFields = std::to_string(count);
    return choices;
}

CLI::Validator IsLayout() {
    return {[](std::string const& text) {
                return convert::FormatOfLetter(text) ? std::string() : text + " is no layout of Barchart";
            },
            ""};
}

CLI::Validator IsFieldList() {
    return {[](std::string const& text) {
                return ReadFields(text) ? std::string() : text + " is no list of at most ten fields";
            },
            ""};
}

CLI::Validator IsDateFormat() {
    return {[](std::string const& text) {
                auto const& formats = convert::DateFormats;
                bool const good = std::find(formats.begin(), formats.end(), text) != formats.end();
                return good ? std::string() : text + " is no date format that can be converted";
            },
            ""};
}

ExitStatus Convert(convert::FileNames const& names, convert::SourceLayout const& layout) {
    ConsoleDialogs dialogs(names.Source.empty() ? std::string() : OutputName(names.Destination));
    PipeFiles files;
    // From pipe to pipe both names are the same and yet two things.
    bool const isFilter = names.Source == PipeName && names.Destination == PipeName;
    if (!isFilter && !convert::ValidateFileNames(names, dialogs)) {
        return ExitStatus::Refused;
    }
    auto const troubles = convert::ConvertFile(names, layout, files);
    for (convert::Trouble const& trouble : troubles) {
        Complain(trouble.IsOfDestination ? OutputName(names.Destination) : InputName(names.Source),
                 trouble.Told.Text);
    }
    if (!troubles.empty()) {
        return ExitStatus::Refused;
    }
    bool const told = names.Destination == PipeName || Print(convert::SuccessText(names.Destination) + '\n');
    return told ? ExitStatus::Success : ExitStatus::Refused;
}

ExitStatus ConvertCustom(ConvertOptions const& options) {
    ConsoleDialogs dialogs("--fields");
    auto choices = ReadFields(options.Fields).value();
    choices.DateFormat = options.DateFormat;
    auto const description = convert::ReadDescription(choices, dialogs);
    return description ? Convert(options.Names, convert::CustomLayout(*description)) : ExitStatus::Usage;
}

// A kind of conversion. Its file names are the last arguments.
CLI::App* AddKind(CLI::App& command, std::string const& name, std::string const& about,
                  ConvertOptions& options) {
    CLI::App* kind = command.add_subcommand(name, about);
    kind->add_option("SOURCE", options.Names.Source, "File of the vendor, - for standard input")
        ->required()
        ->type_name("");
    kind->add_option("DESTINATION", options.Names.Destination, "Quote file to write, - for standard output")
        ->required()
        ->type_name("");
    return kind;
}

} // namespace

void AddConvert(CLI::App& app, ExitStatus& status) {
    auto const options = std::make_shared<ConvertOptions>();
    CLI::App* command = app.add_subcommand("convert", "Convert a vendor's file into a quote file");
    command->require_subcommand(1);

    CLI::App* barchart = AddKind(*command, "barchart", "Convert a file of Barchart", *options);
    barchart->add_option("--layout", options->Layout, "Layout of the file")
        ->type_name("C|D|E|F|G|N|S|Y")
        ->required()
        ->check(IsLayout());
    barchart->callback([options, &status] {
        auto const format = convert::FormatOfLetter(options->Layout).value();
        status = Convert(options->Names, convert::BarchartLayout(format));
    });

    CLI::App* csi = AddKind(*command, "csi", "Convert a file of Commodity Systems, Inc.", *options);
    csi->callback([options, &status] { status = Convert(options->Names, convert::CsiLayout()); });

    CLI::App* custom = AddKind(*command, "custom", "Convert a comma-separated file", *options);
    custom
        ->add_option("--fields", options->Fields,
                     "What stands in the fields: date, open, high, low, close, volume, open-interest or "
                     "not-used")
        ->type_name("NAME,NAME,...")
        ->required()
        ->check(IsFieldList());
    custom
        ->add_option("--date-format", options->DateFormat,
                     "mm/dd/yy, mm/dd/yyyy, yy/mm/dd, yyyy/mm/dd, yymmdd or yyyymmdd")
        ->type_name("F")
        ->required()
        ->check(IsDateFormat());
    custom->callback([options, &status] { status = ConvertCustom(*options); });
}

} // namespace quorvex::cli
