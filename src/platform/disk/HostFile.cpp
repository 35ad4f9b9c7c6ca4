// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostFile.h"

#include "platform/disk/SystemFile.h"
#include "text/RunTimeError.h"

#include <optional>
#include <utility>

namespace quorvex::platform::disk {

namespace {

using text::Fault;
using text::RunTimeError;

// An open file, closed with its owner.
class HostFile {
public:
    explicit HostFile(SystemFile file) : file_(file) {}

    HostFile(HostFile const&) = delete;
    HostFile& operator=(HostFile const&) = delete;

    ~HostFile() {
        if (file_ != NoSystemFile) {
            // Who wants to know closes the file.
            static_cast<void>(text::Trap([this] { CloseSystemFile(file_); }));
        }
    }

    [[nodiscard]] std::optional<std::size_t> Read(std::span<char> buffer) const {
        return ReadSystemFile(file_, buffer);
    }

    void Write(std::string_view bytes) const {
        while (!bytes.empty()) {
            auto const count = WriteSystemFile(file_, bytes);
            if (count == 0) {
                throw RunTimeError(Fault::DiskFull);
            }
            bytes.remove_prefix(count);
        }
    }

    void Flush() const { FlushSystemFile(file_); }

    // An error that the system reports only on closing is not lost.
    void Close() { CloseSystemFile(std::exchange(file_, NoSystemFile)); }

private:
    SystemFile file_;
};

class HostFileSource final : public text::ByteSource {
public:
    explicit HostFileSource(SystemFile file) : file_(file) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        auto count = file_.Read(buffer);
        while (!count) {
            count = file_.Read(buffer);
        }
        return *count;
    }

private:
    HostFile file_;
};

class EndingFileSource final : public text::ByteSource {
public:
    EndingFileSource(SystemFile file, std::function<bool()> goesOn)
        : awaited_(file),
          file_(file),
          goesOn_(std::move(goesOn)) {}

    [[nodiscard]] std::size_t Read(std::span<char> buffer) override {
        while (goesOn_()) {
            auto const count = AwaitSystemFile(awaited_) ? file_.Read(buffer) : std::nullopt;
            if (count) {
                return *count;
            }
        }
        return 0;
    }

private:
    SystemFile awaited_; // the next one's
    HostFile file_;
    std::function<bool()> goesOn_;
};

class HostFileSink : public ByteSink {
public:
    explicit HostFileSink(SystemFile file) : file_(file) {}

    void Write(std::string_view bytes) override { file_.Write(bytes); }

    void Close() override { file_.Close(); }

protected:
    void Flush() const { file_.Flush(); }

private:
    HostFile file_;
};

// Its content is on the disk once it is closed.
class LastingHostFileSink final : public HostFileSink {
public:
    using HostFileSink::HostFileSink;

    void Close() override {
        auto const error = text::Trap([this] { Flush(); });
        HostFileSink::Close();
        if (error) {
            throw RunTimeError(error->Kind());
        }
    }
};

} // namespace

std::unique_ptr<text::ByteSource> OpenHostFile(std::filesystem::path const& path) {
    return std::make_unique<HostFileSource>(OpenSystemFile(path, Opening::Read, false));
}

std::unique_ptr<ByteSink> CreateHostFile(std::filesystem::path const& path) {
    auto sink = std::make_unique<LastingHostFileSink>(OpenSystemFile(path, Opening::Empty, false));
    FlushSystemFolder(path.parent_path()); // the name of a new file
    return sink;
}

std::unique_ptr<ByteSink> CreateNewHostFile(std::filesystem::path const& path, bool onlyForOwner) {
    SystemFile const file = OpenSystemFile(path, Opening::Create, onlyForOwner);
    if (file == NoSystemFile) {
        return nullptr;
    }
    return std::make_unique<LastingHostFileSink>(file);
}

std::unique_ptr<ByteSink> OpenHostFileToAppend(std::filesystem::path const& path) {
    return std::make_unique<LastingHostFileSink>(OpenSystemFile(path, Opening::Append, false));
}

std::unique_ptr<ByteSink> OpenHeldHostFileToAppend(std::filesystem::path const& path) {
    SystemFile const file = OpenSystemFile(path, Opening::AppendHeld, false);
    auto sink = std::make_unique<LastingHostFileSink>(file);
    return HoldSystemFile(file) ? std::move(sink) : nullptr;
}

std::unique_ptr<text::ByteSource> OpenStandardInput() {
    return std::make_unique<HostFileSource>(DuplicateStandardFile(0));
}

std::unique_ptr<text::ByteSource> OpenStandardInputWhile(std::function<bool()> goesOn) {
    return std::make_unique<EndingFileSource>(DuplicateStandardFile(0), std::move(goesOn));
}

std::unique_ptr<ByteSink> OpenStandardOutput() {
    return std::make_unique<HostFileSink>(DuplicateStandardFile(1));
}

} // namespace quorvex::platform::disk
