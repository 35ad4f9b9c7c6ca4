// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "text/RunTimeError.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

#include <string>
#include <vector>

namespace quorvex::cli {

namespace {

ExitStatus FormatNumbers(std::string const& formatText, std::vector<std::string> const& numbers) {
    text::NumberFormat const format(formatText);
    ExitStatus status = ExitStatus::Success;
    for (std::string const& number : numbers) {
        std::string line;
        if (auto const error = text::Trap([&] { line = format.Format(text::StrictNumber(number)) + '\n'; })) {
            Complain(number, error->what());
            status = ExitStatus::Refused;
        } else if (!Print(line)) {
            return ExitStatus::Refused;
        }
    }
    return status;
}

} // namespace

void AddFormat(CLI::App& app, ExitStatus& status) {
    CLI::App* command = app.add_subcommand("format", "Print numbers in a number format, one a line");
    command->footer("quorvex-cli format F NUMBER...\n"
                    "  F                           Number format, such as \"####0.00\"\n"
                    "  NUMBER                      Number with a point as decimal mark");
    // Formats and negative numbers may look like options, so everything behind the command's name is taken as
    // it is.
    command->prefix_command();
    command->callback([command, &status] {
        std::vector<std::string> arguments = command->remaining();
        if (arguments.size() < 2) {
            throw CLI::RequiredError("F and one NUMBER at least");
        }
        std::string const format = arguments.front();
        bool const separated = arguments[1] == "--"; // the conventional end of options
        arguments.erase(arguments.begin(), arguments.begin() + (separated ? 2 : 1));
        status = FormatNumbers(format, arguments);
    });
}

} // namespace quorvex::cli
