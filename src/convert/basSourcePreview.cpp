// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basSourcePreview.h"

#include "convert/basConvertSubs.h"
#include "convert/basSourceText.h"
#include "platform/basFiles.h"
#include "text/RunTimeError.h"
#include "text/basLines.h"

#include <algorithm>
#include <cstdint>

namespace quorvex::convert {

namespace {

using text::Fault;

constexpr std::uint64_t PreviewCapacity = 65'000; // bytes

// The length of the file, 0 also when there is none.
std::uint64_t LengthIfThere(std::string const& name, platform::Files const& files) {
    std::uint64_t length = 0;
    auto const fault = text::Trap([&] { length = files.Length(name); });
    if (fault && fault->Kind() != Fault::FileNotFound && fault->Kind() != Fault::PathNotFound) {
        throw text::RunTimeError(fault->Kind());
    }
    return length;
}

std::string ReadLines(std::string const& name, platform::Files const& files) {
    std::string contents;
    auto const source = files.OpenForInput(name);
    text::LineReader lines(*source);
    while (auto const line = lines.Next()) {
        contents += ReadableText(*line);
        contents += "\r\n";
    }
    return contents;
}

bool StartsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

// The line with blanks up to the next stop in place of each tab, so that every character is one column wide.
std::string ExpandTabs(std::string_view line) {
    constexpr std::size_t ColumnsOfStop = 8;
    std::string text;
    std::size_t column = 0;
    for (char const byte : line) {
        if (byte == '\t') {
            std::size_t const blanks = ColumnsOfStop - column % ColumnsOfStop;
            text.append(blanks, ' ');
            column += blanks;
        } else {
            text += byte;
            column += StartsCharacter(byte) ? 1U : 0U;
        }
    }
    return text;
}

// How long a start of the text, in bytes, has so many characters of UTF-8 at the most.
std::size_t LengthOfCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        if (StartsCharacter(text[at]) && count-- == 0) {
            break;
        }
    }
    return at;
}

// Prints lines under each other in a font of one width, and starts a page when one is full.
class Listing {
public:
    explicit Listing(platform::Printer& printer) : printer_(printer) {
        constexpr int PointSize = 10;
        printer_.SetFont("Courier New", PointSize, false);
        columns_ = static_cast<std::size_t>(std::max(1.0, printer_.Width() / printer_.TextWidth("0")));
    }

    void Add(std::string_view text) {
        std::string const expanded = ExpandTabs(text);
        std::string_view line = expanded;
        do {
            std::size_t const length = LengthOfCharacters(line, columns_);
            if (printer_.TextY() + printer_.TextHeight() > printer_.Height()) {
                printer_.NewPage();
            }
            PrintLine(printer_, line.substr(0, length));
            line.remove_prefix(length);
        } while (!line.empty());
    }

private:
    platform::Printer& printer_;
    std::size_t columns_ = 0;
};

} // namespace

std::string AcceptChosenFile(std::string const& name, platform::Files const& files) {
    bool fits = false;
    auto const fault = text::Trap([&] { fits = !name.empty() && files.Length(name) <= PreviewCapacity; });
    return fits && !fault ? name : std::string();
}

std::string LoadSourceFile(std::string const& name, platform::Files const& files,
                           platform::Dialogs& dialogs) {
    auto const tell = [&](std::string_view text) {
        dialogs.Show({std::string(text), std::string(ConversionTitle), platform::Icon::None});
    };
    if (name.empty()) {
        tell("Invalid source file name");
        return {};
    }
    std::string contents;
    auto const fault = text::Trap([&] {
        if (LengthIfThere(name, files) == 0) {
            tell("Source file not found");
        } else {
            contents = ReadLines(name, files);
        }
    });
    if (fault) {
        dialogs.Show(Complaint(fault->Description()));
    }
    return contents;
}

void BrowseForSource(ConverterTexts const& texts, platform::Files const& files, platform::Dialogs& dialogs,
                     SourceBoxes& boxes) {
    std::string const chosen = dialogs.AskForFile(
        {std::string(BrowseFolder), std::string(texts.DefaultName), std::string(texts.Filter)});
    std::string const name = AcceptChosenFile(chosen, files);
    boxes.ShowSourceName(name);
    boxes.ShowSourceContents({});
    if (!name.empty()) {
        boxes.ShowSourceContents(LoadSourceFile(name, files, dialogs));
    }
}

void PrintSourceFile(std::string_view name, std::string_view contents, platform::PrintQueue& queue,
                     platform::Dialogs& dialogs) {
    auto const fault = text::Trap([&] {
        auto const printer = queue.Start(name.empty() ? ConversionTitle : platform::BareName(name));
        Listing listing(*printer);
        for (std::string_view const line : {std::string_view(), name, std::string_view()}) {
            listing.Add(line);
        }
        text::TextSource source(contents);
        text::LineReader lines(source);
        while (auto const line = lines.Next()) {
            listing.Add(*line);
        }
        printer->EndDocument();
    });
    if (fault) {
        dialogs.Show(Complaint(fault->Description()));
    }
}

} // namespace quorvex::convert
