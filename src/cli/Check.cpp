// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/EditSession.h"
#include "cli/SettingOptions.h"
#include "cli/SubCommands.h"
#include "editor/basValidate.h"

#include <memory>
#include <optional>
#include <string>

namespace quorvex::cli {

namespace {

struct CheckOptions {
    std::string QuotePath;
    std::optional<std::string> Format;
};

ExitStatus Check(CheckOptions const& options) {
    EditSession session(options.QuotePath, options.Format);
    bool const isGood = session.Open() && !editor::ValidateQuotes(session.Edited(), session.Dialogs());
    return isGood ? ExitStatus::Success : ExitStatus::Refused;
}

} // namespace

void AddCheck(CLI::App& app, ExitStatus& status) {
    auto const options = std::make_shared<CheckOptions>();
    CLI::App* command = app.add_subcommand("check", "Check the quotes as the editor does before it saves");
    command->add_option("QUOTES", options->QuotePath, "Quote file to read")->required()->type_name("");
    AddFormatOption(*command, options->Format);
    command->callback([options, &status] { status = Check(*options); });
}

} // namespace quorvex::cli
