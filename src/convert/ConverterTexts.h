// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the converter windows say.
#pragma once

#include <string_view>

namespace quorvex::convert {

// The texts of one window. Line breaks are LF.
struct ConverterTexts {
    std::string_view WindowName;
    std::string_view Caption;
    std::string_view Top; // lblTop: what the source files are like
    std::string_view SourceCaption;
    std::string_view DefaultName; // what stands in the file dialog's name box at first
    std::string_view Filter;      // of the file dialog: description|pattern, all joined by "|"
};

inline constexpr std::string_view DestinationCaption = "Veltrano Destination File Name";

// A pattern, which is refused as a name: the user has to type one.
inline constexpr std::string_view InitialDestination = R"(C:\Veltrano\Data\*.txt)";

// Where the file dialog starts.
inline constexpr std::string_view BrowseFolder = R"(C:\)";

// The filter of vendors that offer text files first.
inline constexpr std::string_view TextFilesFirst = "Text Files (*.txt)|*.txt"
                                                   "|Comma Separated Values (*.csv)|*.csv"
                                                   "|All Files (*.*)|*.*";

} // namespace quorvex::convert
