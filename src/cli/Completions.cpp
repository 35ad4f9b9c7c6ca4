// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/Completions.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::cli {

namespace {

struct CompletedOption {
    std::vector<std::string> Names; // with their dashes
    std::string Description;
    bool TakesValue = false;
    std::vector<std::string> Values; // empty: any
};

// The application itself, whose path is empty, or a sub-command, which may have some of its own.
struct CompletedCommand {
    std::string Path; // "convert csi"
    std::string Description;
    std::vector<CompletedOption> Options;
    std::vector<std::pair<std::string, std::string>> SubCommands; // name and description
};

std::string Joined(std::vector<std::string> const& words, std::string_view separator) {
    std::string text;
    for (std::string const& word : words) {
        text += (text.empty() ? "" : std::string(separator)) + word;
    }
    return text;
}

// "ymd|mdy|dmy" names words to choose from. One with a blank or an end of a file's name is none of these.
std::vector<std::string> WordsOf(std::string const& type) {
    bool const isChoice =
        type.find('|') != std::string::npos && std::ranges::all_of(type, [](unsigned char letter) {
            return std::islower(letter) != 0 || std::isdigit(letter) != 0 || letter == '-' || letter == '|';
        });
    return isChoice ? CLI::detail::split(type, '|') : std::vector<std::string>();
}

CompletedOption Describe(CLI::Option const& option) {
    CompletedOption described;
    for (std::string const& name : option.get_snames()) {
        described.Names.push_back('-' + name);
    }
    for (std::string const& name : option.get_lnames()) {
        described.Names.push_back("--" + name);
    }
    described.Description = option.get_description();
    described.TakesValue = option.get_items_expected_max() > 0;
    described.Values = WordsOf(option.get_type_name());
    return described;
}

void AddCommands(CLI::App const& app, std::string const& path, std::vector<CompletedCommand>& commands) {
    CompletedCommand command{path, app.get_description(), {}, {}};
    for (CLI::Option const* option : app.get_options()) {
        if (option->nonpositional()) {
            command.Options.push_back(Describe(*option));
        }
    }
    auto const subCommands = app.get_subcommands([](CLI::App const*) { return true; });
    for (CLI::App const* each : subCommands) {
        command.SubCommands.emplace_back(each->get_name(), each->get_description());
    }
    commands.push_back(std::move(command));
    for (CLI::App const* each : subCommands) {
        AddCommands(*each, path.empty() ? each->get_name() : path + ' ' + each->get_name(), commands);
    }
}

std::vector<CompletedCommand> CommandsOf(CLI::App const& app) {
    std::vector<CompletedCommand> commands;
    AddCommands(app, "", commands);
    return commands;
}

// Between single quotes, as every one of the shells reads it literally.
std::string Quoted(std::string_view text, std::string_view quotationMark) {
    std::string quoted = "'";
    for (char const letter : text) {
        quoted += letter == '\'' ? std::string(quotationMark) : std::string(1, letter);
    }
    return quoted + '\'';
}

std::string Quoted(std::string_view text) {
    return Quoted(text, R"('\'')");
}

// The cases of all paths, for a pattern of the shell.
std::string PathPattern(std::vector<CompletedCommand> const& commands) {
    std::vector<std::string> paths;
    for (CompletedCommand const& command : commands) {
        if (!command.Path.empty()) {
            paths.push_back(Quoted(command.Path));
        }
    }
    return Joined(paths, "|");
}

// The cases of "<command>/<option>" for one option.
std::string ValuePattern(CompletedCommand const& command, CompletedOption const& option) {
    std::vector<std::string> cases;
    for (std::string const& name : option.Names) {
        cases.push_back(Quoted(command.Path + '/' + name));
    }
    return Joined(cases, "|");
}

std::vector<std::string> NamesOf(CompletedCommand const& command) {
    std::vector<std::string> names;
    for (CompletedOption const& option : command.Options) {
        names.insert(names.end(), option.Names.begin(), option.Names.end());
    }
    return names;
}

// "name:description", where a colon of the description is none of the pair.
std::string ZshPair(std::string const& name, std::string const& description) {
    std::string text = name + ':';
    for (char const letter : description) {
        text += letter == ':' ? "\\:" : std::string(1, letter);
    }
    return Quoted(text);
}

std::string FishOption(CompletedCommand const& command, CompletedOption const& option) {
    auto const quoted = [](std::string const& text) { return Quoted(text, R"(\')"); };
    std::string line = "complete -c quorvex-cli -n " + quoted("__quorvex_cli_is '" + command.Path + "'");
    for (std::string const& name : option.Names) {
        line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    if (!option.Values.empty()) {
        line += " -x -a " + quoted(Joined(option.Values, " "));
    } else if (option.TakesValue) {
        line += " -r";
    }
    return line + " -d " + quoted(option.Description) + '\n';
}

} // namespace

std::string BashCompletions(CLI::App const& app) {
    auto const commands = CommandsOf(app);
    std::string script = R"(# Completions of quorvex-cli for bash, made from its options.
_quorvex_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command= words= word
    COMPREPLY=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case ${command:+$command }$word in
            )" + PathPattern(commands) +
                         R"() command=${command:+$command }$word ;;
        esac
    done
    case $command/$previous in
)";
    for (CompletedCommand const& command : commands) {
        for (CompletedOption const& option : command.Options) {
            if (option.TakesValue) {
                script += "        " + ValuePattern(command, option) +
                          ") words=" + Quoted(Joined(option.Values, " ")) + " ;;\n";
            }
        }
    }
    script += R"(        *)
            case $command in
)";
    for (CompletedCommand const& command : commands) {
        std::vector<std::string> names;
        for (auto const& [name, description] : command.SubCommands) {
            names.push_back(name);
        }
        script += "                " + Quoted(command.Path) + ") words=" + Quoted(Joined(names, " "));
        script += "; [[ $current == -* ]] && words=" + Quoted(Joined(NamesOf(command), " ")) + " ;;\n";
    }
    return script + R"(            esac
            ;;
    esac
    COMPREPLY=($(compgen -W "$words" -- "$current"))
}
complete -o default -F _quorvex_cli quorvex-cli
)";
}

std::string ZshCompletions(CLI::App const& app) {
    auto const commands = CommandsOf(app);
    std::string script = R"(#compdef quorvex-cli
# Completions of quorvex-cli for zsh, made from its options.
local command= word
local -a subcommands options
for word in "${(@)words[2,CURRENT-1]}"; do
    case ${command:+$command }$word in
        ()" + PathPattern(commands) +
                         R"() command=${command:+$command }$word ;;
    esac
done
case $command/$words[CURRENT-1] in
)";
    for (CompletedCommand const& command : commands) {
        for (CompletedOption const& option : command.Options) {
            if (option.TakesValue) {
                script += "    (" + ValuePattern(command, option) + ") " +
                          (option.Values.empty() ? "_files" : "compadd -- " + Joined(option.Values, " ")) +
                          "; return ;;\n";
            }
        }
    }
    script += "esac\ncase $command in\n";
    for (CompletedCommand const& command : commands) {
        script += "    (" + Quoted(command.Path) + ")\n        subcommands=(";
        for (auto const& [name, description] : command.SubCommands) {
            script += "\n            " + ZshPair(name, description);
        }
        script += ")\n        options=(";
        for (CompletedOption const& option : command.Options) {
            for (std::string const& name : option.Names) {
                script += "\n            " + ZshPair(name, option.Description);
            }
        }
        script += ")\n        ;;\n";
    }
    return script + R"(esac
if [[ $PREFIX == -* ]]; then
    _describe option options
elif (($#subcommands)); then
    _describe command subcommands
else
    _files
fi
)";
}

std::string FishCompletions(CLI::App const& app) {
    auto const commands = CommandsOf(app);
    std::vector<std::string> paths;
    for (CompletedCommand const& command : commands) {
        if (!command.Path.empty()) {
            paths.push_back('\'' + command.Path + '\'');
        }
    }
    std::string script = R"(# Completions of quorvex-cli for fish, made from its options.
function __quorvex_cli_is --description 'Whether this is the sub-command so far'
    set -l found
    for word in (commandline -opc)[2..-1]
        if contains -- (string join ' ' -- $found $word) )" +
                         Joined(paths, " ") + R"(
            set -a found $word
        end
    end
    test (string join ' ' -- $found | string collect --allow-empty) = $argv[1]
end
)";
    for (CompletedCommand const& command : commands) {
        for (auto const& [name, description] : command.SubCommands) {
            script += "complete -c quorvex-cli -f -n " +
                      Quoted("__quorvex_cli_is '" + command.Path + "'", R"(\')") + " -a " + name + " -d " +
                      Quoted(description, R"(\')") + '\n';
        }
        for (CompletedOption const& option : command.Options) {
            script += FishOption(command, option);
        }
    }
    return script;
}

} // namespace quorvex::cli
