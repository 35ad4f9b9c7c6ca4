// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvex::bench {

// A quote file in a folder of its own, gone with its owner.
class TemporaryQuoteFile {
public:
    static constexpr std::string_view Name = "generated.txt";

    explicit TemporaryQuoteFile(std::string_view content);
    TemporaryQuoteFile(TemporaryQuoteFile const&) = delete;
    TemporaryQuoteFile& operator=(TemporaryQuoteFile const&) = delete;
    ~TemporaryQuoteFile();

    // The folder with a separator behind it.
    [[nodiscard]] std::string Folder() const;

private:
    std::filesystem::path folder_;
};

} // namespace quorvex::bench
