// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is a file of unsaved edits. Its checks would keep every change of the fuzzer out: where an "end"
// line has none, the right one is put in.

#include "Require.h"
#include "editor/basUnsaved.h"
#include "quotes/QuoteSeries.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorvex::fuzz {

namespace {

constexpr std::string_view OpenEnd = "\nend\n";

// The check is the second part of a mark.
std::string EndLine(std::string_view above) {
    std::string const mark = editor::MarkOf(above);
    return "end " + mark.substr(mark.find(' ') + 1) + '\n';
}

std::string WithChecks(std::string_view input) {
    std::string text;
    for (auto end = input.find(OpenEnd); end != std::string_view::npos; end = input.find(OpenEnd)) {
        text += input.substr(0, end + 1);
        text += EndLine(text);
        input.remove_prefix(end + OpenEnd.size());
    }
    return text += input;
}

void CheckKeptEdits(std::string_view input) {
    auto const kept = editor::ReadKeptEdits(WithChecks(input));
    if (!kept) {
        return;
    }
    Require(kept->Before.size() <= quotes::MaxQuotes && kept->After.size() <= quotes::MaxQuotes);
    editor::KeptEditsWriter writer;
    std::string text = writer.Start(kept->Of, kept->Before);
    text += writer.Next({{{1, kept->Before, kept->After}}}, editor::ChangeKind::Edit);
    auto const again = editor::ReadKeptEdits(text);
    Require(again && again->IsWhole && again->Of == kept->Of);
    Require(again->Before == kept->Before && again->After == kept->After);
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    quorvex::fuzz::CheckKeptEdits(input);
    return 0;
}
