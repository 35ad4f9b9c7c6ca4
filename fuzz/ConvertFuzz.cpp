// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is the layout on a line of its own and behind it a vendor's file. The layout is the letter of a
// Barchart format, "u" for Unfair Advantage, or the number of a date format and those of the fields, "0"
// being a field that is not used: "012345" is mm/dd/yy with date, open, high, low, close.

#include "Require.h"
#include "convert/basConvertBarChart.h"
#include "convert/basConvertCSI.h"
#include "convert/basConvertCustom.h"
#include "convert/basConvertSubs.h"
#include "platform/fake/ScriptedDialogs.h"
#include "text/RunTimeError.h"
#include "text/basFields.h"
#include "text/basLines.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::fuzz {

namespace {

class TextSink final : public platform::ByteSink {
public:
    void Write(std::string_view bytes) override { Text += bytes; }

    void Close() override { IsClosed = true; }

    std::string Text;
    bool IsClosed = false;
};

std::unique_ptr<convert::SourceLayout> CustomLayoutOf(convert::CustomChoices const& choices) {
    platform::fake::ScriptedDialogs dialogs;
    auto const description = convert::ReadDescription(choices, dialogs);
    return description ? std::make_unique<convert::CustomLayout>(*description) : nullptr;
}

convert::CustomChoices ChoicesOf(std::string_view digits) {
    convert::CustomChoices choices;
    std::size_t const format = static_cast<unsigned char>(digits.front()) % (convert::DateFormats.size() + 1);
    choices.DateFormat = format < convert::DateFormats.size() ? convert::DateFormats.at(format) : "";
    digits.remove_prefix(1);
    choices.NumFields = std::to_string(digits.size());
    for (std::size_t row = 1; row <= std::min<std::size_t>(digits.size(), convert::MostFields); ++row) {
        std::size_t const name = static_cast<std::size_t>(static_cast<unsigned char>(digits[row - 1])) %
                                 (convert::FieldNames.size() + 1);
        choices.Names[static_cast<std::ptrdiff_t>(row)] =
            name == 0 ? convert::NotUsed : convert::FieldNames.at(name - 1);
    }
    return choices;
}

// Nothing for a description that is refused.
std::unique_ptr<convert::SourceLayout> LayoutOf(std::string_view text) {
    if (auto const format = convert::FormatOfLetter(text)) {
        return std::make_unique<convert::BarchartLayout>(*format);
    }
    if (text == "u" || text.empty()) {
        return std::make_unique<convert::CsiLayout>();
    }
    return CustomLayoutOf(ChoicesOf(text));
}

std::size_t CountLines(std::string_view text) {
    text::TextSource source(text);
    text::LineReader lines(source);
    std::size_t count = 0;
    while (lines.Next()) {
        ++count;
    }
    return count;
}

bool IsNumberUpTo(std::string_view digits, int last) {
    int const number = (digits[0] - '0') * 10 + digits[1] - '0';
    return digits[0] >= '0' && digits[0] <= '9' && digits[1] >= '0' && digits[1] <= '9' && number <= last;
}

void CheckDate(std::string_view date) {
    Require(date.size() == 8 && date[2] == '/' && date[5] == '/');
    Require(IsNumberUpTo(date.substr(0, 2), 12) && date.substr(0, 2) != "00");
    Require(IsNumberUpTo(date.substr(3, 2), 31) && date.substr(3, 2) != "00");
    Require(IsNumberUpTo(date.substr(6, 2), 99));
}

// Seven items, none of which has a comma or blanks at its ends.
void CheckQuoteLine(std::string_view line) {
    constexpr std::string_view Joint = ", ";
    CheckDate(line.substr(0, line.find(Joint)));
    for (int item = 1; item <= 7; ++item) {
        std::size_t const length = std::min(line.find(','), line.size());
        Require(length == 0 || (line[0] != ' ' && line[length - 1] != ' '));
        line.remove_prefix(length);
        Require(line.starts_with(Joint) == (item < 7));
        line.remove_prefix(item < 7 ? Joint.size() : 0);
    }
    Require(line.empty());
}

void CheckQuoteLines(std::string_view output, std::size_t count) {
    for (; !output.empty(); --count) {
        Require(count > 0);
        std::size_t const length = output.find("\r\n");
        Require(length != std::string_view::npos);
        CheckQuoteLine(output.substr(0, length));
        output.remove_prefix(length + 2);
    }
    Require(count == 0);
}

// What a custom file became is a quote file, which converts to itself.
void CheckConvertsToItself(std::string const& output) {
    TextSink again;
    text::TextSource source(output);
    auto const layout = CustomLayoutOf(convert::InitialChoices());
    Require(convert::ConvertRecords(source, again, *layout, "in").empty());
    Require(again.Text == output);
}

void CheckConversion(std::string_view layoutText, std::string_view file) {
    auto const layout = LayoutOf(layoutText);
    if (layout == nullptr) {
        return;
    }
    TextSink sink;
    std::vector<platform::Message> messages;
    text::TextSource source(file);
    auto const fault = text::Trap([&] { messages = convert::ConvertRecords(source, sink, *layout, "in"); });
    Require(!fault || fault->Kind() == text::Fault::Overflow);
    Require(sink.IsClosed == (!fault && messages.empty()));
    if (sink.IsClosed) {
        CheckQuoteLines(sink.Text, CountLines(file));
        if (dynamic_cast<convert::CustomLayout const*>(layout.get()) != nullptr) {
            CheckConvertsToItself(sink.Text);
        }
    } else if (!fault) {
        Require(messages.back().Text.starts_with("Invalid "));
    }
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    std::size_t const lineEnd = std::min(input.find('\n'), size);
    quorvex::fuzz::CheckConversion(input.substr(0, lineEnd), input.substr(std::min(lineEnd + 1, size)));
    return 0;
}
