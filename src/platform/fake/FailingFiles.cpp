// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/FailingFiles.h"

#include <algorithm>
#include <span>
#include <utility>

namespace quorvex::platform::fake {

class FailingSource final : public text::ByteSource {
public:
    FailingSource(std::unique_ptr<text::ByteSource> behind, FailingFiles const& files)
        : behind_(std::move(behind)),
          files_(files) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        files_.Meet(FileCall::Read);
        return behind_->Read(buffer.first(std::min(buffer.size(), files_.PieceSize)));
    }

private:
    std::unique_ptr<text::ByteSource> behind_;
    FailingFiles const& files_;
};

class FailingSink final : public ByteSink {
public:
    FailingSink(std::unique_ptr<ByteSink> behind, FailingFiles const& files)
        : behind_(std::move(behind)),
          files_(files) {}

    void Write(std::string_view bytes) override {
        bool const fails = files_.Fails(FileCall::Write);
        behind_->Write(bytes.substr(0, fails ? bytes.size() / 2 : bytes.size()));
        if (fails) {
            files_.Raise();
        }
    }

    void Close() override {
        behind_->Close();
        files_.Meet(FileCall::Close);
    }

private:
    std::unique_ptr<ByteSink> behind_;
    FailingFiles const& files_;
};

std::string_view NameOf(FileCall call) {
    switch (call) {
    case FileCall::OpenForInput:
        return "OpenForInput";
    case FileCall::Read:
        return "Read";
    case FileCall::Replace:
        return "Replace";
    case FileCall::Revise:
        return "Revise";
    case FileCall::ReplaceRevised:
        return "ReplaceRevised";
    case FileCall::Overwrite:
        return "Overwrite";
    case FileCall::Append:
        return "Append";
    case FileCall::Keep:
        return "Keep";
    case FileCall::OpenForOutput:
        return "OpenForOutput";
    case FileCall::Write:
        return "Write";
    case FileCall::Close:
        return "Close";
    case FileCall::Remove:
        return "Remove";
    case FileCall::Length:
        return "Length";
    case FileCall::EnterFolder:
        return "EnterFolder";
    case FileCall::List:
        return "List";
    }
    return {};
}

std::unique_ptr<text::ByteSource> FailingFiles::OpenForInput(std::string const& path) const {
    Meet(FileCall::OpenForInput);
    return std::make_unique<FailingSource>(ForwardingFiles::OpenForInput(path), *this);
}

void FailingFiles::Replace(std::string const& path, std::string_view content) {
    if (Fails(FileCall::Replace)) {
        ForwardingFiles::Keep(path);
        Raise();
    }
    ForwardingFiles::Replace(path, content);
}

void FailingFiles::Revise(std::string const& path, Revision const& revise) {
    Meet(FileCall::Revise);
    ForwardingFiles::Revise(path, [&](auto const& content) {
        auto revised = revise(content);
        if (revised) {
            Meet(FileCall::ReplaceRevised);
        }
        return revised;
    });
}

void FailingFiles::Overwrite(std::string const& path, std::string_view content) {
    Meet(FileCall::Overwrite);
    ForwardingFiles::Overwrite(path, content);
}

void FailingFiles::Append(std::string const& path, std::string_view bytes) {
    bool const fails = Fails(FileCall::Append);
    ForwardingFiles::Append(path, bytes.substr(0, fails ? bytes.size() / 2 : bytes.size()));
    if (fails) {
        Raise();
    }
}

void FailingFiles::Keep(std::string const& path) {
    Meet(FileCall::Keep);
    ForwardingFiles::Keep(path);
}

std::unique_ptr<ByteSink> FailingFiles::OpenForOutput(std::string const& path) {
    Meet(FileCall::OpenForOutput);
    return std::make_unique<FailingSink>(ForwardingFiles::OpenForOutput(path), *this);
}

void FailingFiles::Remove(std::string const& path) {
    bool const fails = Fails(FileCall::Remove);
    if (!fails || failure_->Raised == text::Fault::FileNotFound) {
        ForwardingFiles::Remove(path);
    }
    if (fails) {
        Raise();
    }
}

std::uint64_t FailingFiles::Length(std::string const& path) const {
    Meet(FileCall::Length);
    return ForwardingFiles::Length(path);
}

void FailingFiles::EnterFolder(std::string const& folder) {
    Meet(FileCall::EnterFolder);
    ForwardingFiles::EnterFolder(folder);
}

std::vector<std::string> FailingFiles::List(std::string const& folder, std::string_view pattern) const {
    return Fails(FileCall::List) ? std::vector<std::string>() : ForwardingFiles::List(folder, pattern);
}

void FailingFiles::FailAt(Failure const& failure) {
    failure_ = failure;
    callCount_ = 0;
    failed_ = NoCall;
}

void FailingFiles::Recover() {
    failure_.reset();
}

std::optional<FileCall> FailingFiles::Failed() const {
    int const call = failed_;
    return call == NoCall ? std::nullopt : std::optional(static_cast<FileCall>(call));
}

bool FailingFiles::Fails(FileCall call) const {
    if (!failure_) {
        return false;
    }
    int const number = ++callCount_;
    bool const fails = number == failure_->Number || (failure_->Lasts && number > failure_->Number);
    if (fails) {
        int none = NoCall;
        failed_.compare_exchange_strong(none, static_cast<int>(call));
    }
    return fails;
}

void FailingFiles::Meet(FileCall call) const {
    if (Fails(call)) {
        Raise();
    }
}

} // namespace quorvex::platform::fake
