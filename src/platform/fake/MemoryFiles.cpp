// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/MemoryFiles.h"

#include "platform/basFiles.h"
#include "text/basFolders.h"

#include <algorithm>
#include <utility>

namespace quorvex::platform::fake {

namespace {

using OpenPaths = std::multiset<std::string>;

// Keeps the path among the open ones while it lives.
class OpenMark {
public:
    OpenMark(OpenPaths& paths, std::string const& path) : paths_(paths), mark_(paths.insert(path)) {}

    OpenMark(OpenMark const&) = delete;
    OpenMark& operator=(OpenMark const&) = delete;

    ~OpenMark() { paths_.erase(mark_); }

private:
    OpenPaths& paths_;
    OpenPaths::iterator mark_;
};

// Behind so many bytes the device fails.
using Break = std::optional<std::pair<std::size_t, text::Fault>>;

class MemorySource final : public text::ByteSource {
public:
    MemorySource(std::string_view content, Break broken, OpenPaths& paths, std::string const& path)
        : readable_(broken ? content.substr(0, broken->first) : content),
          break_(broken),
          mark_(paths, path) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        std::size_t const count = readable_.Read(buffer);
        if (count == 0 && break_) {
            throw text::RunTimeError(break_->second);
        }
        return count;
    }

private:
    text::TextSource readable_;
    Break break_;
    OpenMark mark_;
};

class MemorySink final : public ByteSink {
public:
    MemorySink(std::string& content, Break broken, OpenPaths& paths, std::string const& path)
        : content_(content),
          break_(std::move(broken)),
          mark_(std::in_place, paths, path) {}

    void Write(std::string_view bytes) override {
        std::size_t const room = break_ ? break_->first - content_.size() : bytes.size();
        content_ += bytes.substr(0, room);
        if (room < bytes.size()) {
            throw text::RunTimeError(break_->second);
        }
    }

    void Close() override {
        mark_.reset();
        if (break_) {
            throw text::RunTimeError(break_->second);
        }
    }

private:
    std::string& content_;
    Break break_;
    std::optional<OpenMark> mark_; // nothing when closed
};

} // namespace

std::unique_ptr<text::ByteSource> MemoryFiles::OpenForInput(std::string const& path) const {
    auto const file = Contents.find(path);
    if (file == Contents.end()) {
        throw text::RunTimeError(text::Fault::FileNotFound);
    }
    ++readingCount_;
    return std::make_unique<MemorySource>(file->second, BreakReading, open_, path);
}

void MemoryFiles::Replace(std::string const& path, std::string_view content) {
    if (BreakWriting) {
        throw text::RunTimeError(*BreakWriting);
    }
    auto const file = Contents.find(path);
    if (file != Contents.end() && file->second != content) {
        Keep(path);
    }
    Contents[path] = content;
}

void MemoryFiles::Revise(std::string const& path, Revision const& revise) {
    if (auto const content = revise(ReadFileIfThere(*this, path))) {
        Replace(path, *content);
    }
}

void MemoryFiles::Overwrite(std::string const& path, std::string_view content) {
    if (BreakWriting) {
        throw text::RunTimeError(*BreakWriting);
    }
    Contents[path] = content;
}

void MemoryFiles::Append(std::string const& path, std::string_view bytes) {
    if (BreakWriting) {
        throw text::RunTimeError(*BreakWriting);
    }
    auto const file = Contents.find(path);
    if (file == Contents.end()) {
        throw text::RunTimeError(text::Fault::FileNotFound);
    }
    file->second += bytes;
}

void MemoryFiles::Keep(std::string const& path) {
    auto const file = Contents.find(path);
    if (file == Contents.end() || file->second.empty()) {
        return;
    }
    if (BreakKeeping) {
        throw text::RunTimeError(*BreakKeeping);
    }
    Contents[path + std::string(BackupMark)] = file->second;
}

std::unique_ptr<ByteSink> MemoryFiles::OpenForOutput(std::string const& path) {
    Overwrite(path, {});
    return std::make_unique<MemorySink>(Contents[path], BreakOutput, open_, path);
}

void MemoryFiles::Remove(std::string const& path) {
    if (BreakRemoving) {
        throw text::RunTimeError(*BreakRemoving);
    }
    if (open_.contains(path)) {
        throw text::RunTimeError(text::Fault::PermissionDenied);
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

bool MemoryFiles::AreSame(std::string const& one, std::string const& other) const {
    auto const pathOf = [this](std::string const& path) {
        return path.find_first_of("\\/") == std::string::npos ? CurrentFolder + path : path;
    };
    return pathOf(one) == pathOf(other) && (Contents.contains(one) || Contents.contains(other));
}

void MemoryFiles::EnterFolder(std::string const& folder) {
    CurrentFolder = folder;
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
