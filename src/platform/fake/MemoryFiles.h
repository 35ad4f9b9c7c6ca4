// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Files.h"
#include "text/RunTimeError.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quorvex::platform::fake {

// A file system in memory for tests. Files are named by their whole path, and listings follow the order of
// paths. A file that is open cannot be removed. It must outlive what it opened.
class MemoryFiles final : public Files {
public:
    [[nodiscard]] std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const override;
    void Replace(std::string const& path, std::string_view content) override;
    void Revise(std::string const& path, Revision const& revise) override;
    void Overwrite(std::string const& path, std::string_view content) override;
    void Append(std::string const& path, std::string_view bytes) override;
    void Keep(std::string const& path) override;
    [[nodiscard]] std::unique_ptr<ByteSink> OpenForOutput(std::string const& path) override;
    void Remove(std::string const& path) override;
    [[nodiscard]] std::uint64_t Length(std::string const& path) const override;
    [[nodiscard]] bool AreSame(std::string const& one, std::string const& other) const override;
    void EnterFolder(std::string const& folder) override;
    [[nodiscard]] std::vector<std::string> List(std::string const& folder,
                                                std::string_view pattern) const override;

    // How many sources and sinks are not closed yet.
    [[nodiscard]] std::size_t OpenCount() const { return open_.size(); }

    // How many files were opened for reading so far.
    [[nodiscard]] int ReadingCount() const { return readingCount_; }

    std::map<std::string, std::string> Contents;

    // The one that was entered, ending with a separator: where AreSame takes bare names to lie.
    std::string CurrentFolder;

    // When set, reading breaks with this fault behind so many bytes.
    std::optional<std::pair<std::size_t, text::Fault>> BreakReading;

    // When set, every Replace, Overwrite, Append and OpenForOutput raises this fault and changes nothing.
    std::optional<text::Fault> BreakWriting;

    // When set, keeping what a file holds raises this fault and changes nothing.
    std::optional<text::Fault> BreakKeeping;

    // When set, a file that is being written takes so many bytes and then raises this fault, on closing when
    // it has taken them all.
    std::optional<std::pair<std::size_t, text::Fault>> BreakOutput;

    // When set, every Remove raises this fault and changes nothing.
    std::optional<text::Fault> BreakRemoving;

private:
    mutable std::multiset<std::string> open_; // the path of every source and sink
    mutable int readingCount_ = 0;
};

} // namespace quorvex::platform::fake
