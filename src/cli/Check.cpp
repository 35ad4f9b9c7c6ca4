// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/Check.h"

#include "cli/EditSession.h"
#include "editor/basValidate.h"

#include <memory>
#include <string>

namespace quorvex::cli {

namespace {

ExitStatus Check(std::string const& quotePath) {
    EditSession session(quotePath, std::nullopt);
    bool const isGood = session.Open() && editor::ValidateQuotes(session.Edited().Grid, session.Dialogs());
    return isGood ? ExitStatus::Success : ExitStatus::Refused;
}

} // namespace

void AddCheck(CLI::App& app, ExitStatus& status) {
    auto const quotePath = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("check", "Check the quotes as the editor does before it saves");
    command->add_option("QUOTES", *quotePath, "Quote file to read")->required()->type_name("");
    command->callback([quotePath, &status] { status = Check(*quotePath); });
}

} // namespace quorvex::cli
