// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What all converters share: the checks and the conversion of a whole file.
// docs/formats/vendor-files.md describes the files, docs/behaviour.md what is meant in the checks.
#pragma once

#include "convert/SourceLayout.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "text/basFields.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::convert {

// The title of most of the converters' message boxes.
inline constexpr std::string_view ConversionTitle = "Data Conversion Utility";

// The texts in txtSrceFileName and txtDestFileName.
struct FileNames {
    std::string Source;
    std::string Destination;
};

// Whether the names can be those of a conversion; when they cannot, a message was shown. No file is looked
// at, so that an empty destination passes.
[[nodiscard]] bool ValidateFileNames(FileNames const& names, platform::Dialogs& dialogs);

// Writes one quote line for each record of the source, in their order, and closes the destination. Returns
// what there is to tell about the first bad record, behind which nothing was done; nothing when all were
// good. Raises the faults of source and destination, and "Overflow" at line 32,768.
[[nodiscard]] std::vector<platform::Message> ConvertRecords(text::ByteSource& source,
                                                            platform::ByteSink& destination,
                                                            SourceLayout const& layout,
                                                            std::string_view sourceName);

// A message that tells why a file was not converted.
struct Trouble {
    platform::Message Told;
    bool IsOfDestination = false; // it is about that file, else about the source
};

// Converts the source file into the destination file, which is emptied first; what it held is kept. Returns
// why that failed, nothing on success: then there is no destination file any more, or it is untouched if one
// of the two files could not be opened or the old content not be kept. A destination that cannot be deleted
// is left empty, which is told too.
[[nodiscard]] std::vector<Trouble> ConvertFile(FileNames const& names, SourceLayout const& layout,
                                               platform::Files& files);

// "Data file ... created successfully".
[[nodiscard]] std::string SuccessText(std::string_view destination);

// The same as ConvertFile with all messages shown, that of success too.
void ConvertDataFile(FileNames const& names, SourceLayout const& layout, platform::Files& files,
                     platform::Dialogs& dialogs);

// A box with an OK button and the exclamation icon under the converters' title.
[[nodiscard]] platform::Message Complaint(std::string_view text);

} // namespace quorvex::convert
