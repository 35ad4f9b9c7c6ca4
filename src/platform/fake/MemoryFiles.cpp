// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/MemoryFiles.h"

#include "text/basFolders.h"

#include <algorithm>

namespace quorvex::platform::fake {

namespace {

// Gives out the text up to the place where the device fails.
class BreakingSource final : public text::ByteSource {
public:
    BreakingSource(std::string_view text, std::size_t good, text::Fault fault)
        : readable_(text.substr(0, good)),
          fault_(fault) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        std::size_t const count = readable_.Read(buffer);
        if (count == 0) {
            throw text::RunTimeError(fault_);
        }
        return count;
    }

private:
    text::TextSource readable_;
    text::Fault fault_;
};

class MemorySink final : public ByteSink {
public:
    using Break = std::optional<std::pair<std::size_t, text::Fault>>;

    MemorySink(std::string& content, Break broken) : content_(content), break_(broken) {}

    void Write(std::string_view bytes) override {
        std::size_t const room = break_ ? break_->first - content_.size() : bytes.size();
        content_ += bytes.substr(0, room);
        if (room < bytes.size()) {
            throw text::RunTimeError(break_->second);
        }
    }

    void Close() override {
        if (break_) {
            throw text::RunTimeError(break_->second);
        }
    }

private:
    std::string& content_;
    Break break_;
};

} // namespace

std::unique_ptr<text::ByteSource> MemoryFiles::OpenForInput(std::string const& path) const {
    auto const file = Contents.find(path);
    if (file == Contents.end()) {
        throw text::RunTimeError(text::Fault::FileNotFound);
    }
    if (BreakReading) {
        return std::make_unique<BreakingSource>(file->second, BreakReading->first, BreakReading->second);
    }
    return std::make_unique<text::TextSource>(file->second);
}

void MemoryFiles::Replace(std::string const& path, std::string_view content) {
    if (BreakWriting) {
        throw text::RunTimeError(*BreakWriting);
    }
    Contents[path] = content;
}

std::unique_ptr<ByteSink> MemoryFiles::OpenForOutput(std::string const& path) {
    Replace(path, {});
    return std::make_unique<MemorySink>(Contents[path], BreakOutput);
}

void MemoryFiles::Remove(std::string const& path) {
    if (BreakRemoving) {
        throw text::RunTimeError(*BreakRemoving);
    }
    if (Contents.erase(path) == 0) {
        throw text::RunTimeError(text::Fault::FileNotFound);
    }
}

std::uint64_t MemoryFiles::Length(std::string const& path) const {
    auto const file = Contents.find(path);
    if (file == Contents.end()) {
        throw text::RunTimeError(text::Fault::FileNotFound);
    }
    return file->second.size();
}

std::vector<std::string> MemoryFiles::List(std::string const& folder, std::string_view pattern) const {
    std::vector<std::string> names;
    for (auto const& [path, content] : Contents) {
        std::string_view const name = std::string_view(path).substr(std::min(folder.size(), path.size()));
        if (path.starts_with(folder) && name.find_first_of("\\/") == std::string_view::npos &&
            text::MatchesPattern(name, pattern)) {
            names.emplace_back(name);
        }
    }
    return names;
}

} // namespace quorvex::platform::fake
