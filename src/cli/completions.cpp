// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Writes the completions of the companion for a shell into a file, when the program is built.

#include "cli/Completions.h"

#include "cli/CommandLine.h"
#include "platform/basSvg.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/HostConsole.h"

#include <exception>
#include <iostream>
#include <map>
#include <span>
#include <string>

namespace {

void WriteCompletions(std::string const& shell, std::string const& path) {
    namespace cli = quorvex::cli;
    std::map<std::string, std::string (*)(CLI::App const&)> const makers = {
        {"bash", cli::BashCompletions}, {"fish", cli::FishCompletions}, {"zsh", cli::ZshCompletions}};
    CLI::App app;
    app.set_version_flag("--version");
    quorvex::platform::disk::HostConsole const console;
    cli::Outputs const outputs = {std::make_unique<quorvex::platform::SvgEncoder>(), nullptr};
    auto status = cli::ExitStatus::Success;
    cli::AddSubCommands(app, console, outputs, status);
    quorvex::platform::disk::DiskFiles().Overwrite(path, makers.at(shell)(app));
}

} // namespace

int main(int argc, char** argv) {
    std::span const arguments(argv, static_cast<std::size_t>(argc));
    try {
        WriteCompletions(arguments[1], arguments[2]);
    } catch (std::exception const& error) {
        std::cerr << "quorvex-completions: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
