// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/TemporaryFile.h"

#include "platform/disk/HostFile.h"
#include "text/RunTimeError.h"

#include <array>
#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <string_view>

namespace quorvex::platform::disk {

namespace {

void WriteAll(text::ByteSource& bytes, ByteSink& sink) {
    constexpr std::size_t BufferSize = 65'536;
    std::array<char, BufferSize> buffer; // NOLINT(*-member-init): filled before it is read
    while (std::size_t const count = bytes.Read(buffer)) {
        sink.Write(std::string_view(buffer.data(), count));
    }
    sink.Close();
}

} // namespace

// Built on the empty one, so that a fault below already finds an object to remove the file.
TemporaryFile::TemporaryFile(std::filesystem::path const& target, text::ByteSource& bytes,
                             std::filesystem::path const& rightsOf)
    : TemporaryFile() {
    bool const hasRights = KindOfHostFile(rightsOf) != HostFileKind::None;
    std::random_device random;
    std::unique_ptr<ByteSink> sink;
    std::filesystem::path path;
    while (sink == nullptr) {
        path = target.parent_path() / (".quorvex-" + std::to_string(random()) + ".tmp");
        sink = CreateNewHostFile(path, hasRights);
    }
    path_ = path;
    WriteAll(bytes, *sink);
    sink.reset();
    if (hasRights) {
        CopyHostFileRights(rightsOf, path_);
    }
}

TemporaryFile::~TemporaryFile() {
    if (!path_.empty()) {
        // Left behind, it is only in the way.
        static_cast<void>(text::Trap([this] { RemoveHostFile(path_); }));
    }
}

void TemporaryFile::MoveTo(std::filesystem::path const& target) {
    MoveHostFile(path_, target);
    path_.clear();
}

} // namespace quorvex::platform::disk
