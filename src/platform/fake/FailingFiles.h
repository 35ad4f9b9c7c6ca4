// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/fake/ForwardingFiles.h"
#include "text/RunTimeError.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::platform::fake {

// What is asked of files and of what was opened. A revision is asked for twice: before the file is read, and
// when it shall be replaced by what was made of it.
enum class FileCall : std::uint8_t {
    OpenForInput,
    Read,
    Replace,
    Revise,
    ReplaceRevised,
    Overwrite,
    Append,
    Keep,
    OpenForOutput,
    Write,
    Close,
    Remove,
    Length,
    EnterFolder,
    List,
};

[[nodiscard]] std::string_view NameOf(FileCall call);

// The call that goes wrong.
struct Failure {
    int Number = 1; // of the call; the first is 1
    text::Fault Raised = text::Fault::DiskFull;
    bool Lasts = false; // all calls behind it fail like it
};

// Other files of which one call fails, as badly as Files allows: an Append and a Write take half of their
// bytes, a Replace has kept the old content, a file that is not found by Remove is gone, a sink is closed. A
// List gives nothing. AreSame cannot fail. Calls may come from several threads.
class FailingFiles final : public ForwardingFiles {
public:
    explicit FailingFiles(Files& behind) : ForwardingFiles(behind) {}

    [[nodiscard]] std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const override;
    void Replace(std::string const& path, std::string_view content) override;
    void Revise(std::string const& path, Revision const& revise) override;
    void Overwrite(std::string const& path, std::string_view content) override;
    void Append(std::string const& path, std::string_view bytes) override;
    void Keep(std::string const& path) override;
    [[nodiscard]] std::unique_ptr<ByteSink> OpenForOutput(std::string const& path) override;
    void Remove(std::string const& path) override;
    [[nodiscard]] std::uint64_t Length(std::string const& path) const override;
    void EnterFolder(std::string const& folder) override;
    [[nodiscard]] std::vector<std::string> List(std::string const& folder,
                                                std::string_view pattern) const override;

    // Counts the calls from now on and lets that one fail. Nothing may be open and no thread at work.
    void FailAt(Failure const& failure);

    // From now on nothing fails.
    void Recover();

    // The first call that has failed since; nothing when none has.
    [[nodiscard]] std::optional<FileCall> Failed() const;

    // What a source gives at once at the most, in bytes.
    std::size_t PieceSize = std::numeric_limits<std::size_t>::max();

private:
    friend class FailingSource;
    friend class FailingSink;

    [[nodiscard]] bool Fails(FileCall call) const;

    void Raise() const { throw text::RunTimeError(failure_->Raised); }

    // Raises the fault when this call is to fail.
    void Meet(FileCall call) const;

    std::optional<Failure> failure_;
    mutable std::atomic<int> callCount_ = 0;
    mutable std::atomic<int> failed_ = NoCall; // of FileCall

    static constexpr int NoCall = -1;
};

} // namespace quorvex::platform::fake
