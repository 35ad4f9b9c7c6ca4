// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Files.h"

#include <string_view>

namespace quorvex::platform::disk {

// Opens for reading what the path names, with the faults of Files. Unlike Files it takes pipes and devices
// too, and waits for the other end of a pipe.
[[nodiscard]] std::unique_ptr<text::ByteSource> OpenFileOrPipe(std::string const& path);

// The files of this machine. Pipes and devices are refused like folders.
class DiskFiles final : public Files {
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
};

} // namespace quorvex::platform::disk
