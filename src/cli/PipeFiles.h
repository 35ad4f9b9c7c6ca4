// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/disk/DiskFiles.h"

#include <string>
#include <string_view>

namespace quorvex::cli {

// Where a file is named, this stands for standard input or standard output.
inline constexpr std::string_view PipeName = "-";

// What a complaint calls the file that is read or written under this name.
[[nodiscard]] std::string InputName(std::string_view path);
[[nodiscard]] std::string OutputName(std::string_view path);

// The files of this machine, and besides them what PipeName stands for; the pipes and devices that have a
// name, as a shell makes them, can be read too. What was written on standard output cannot be taken back:
// removing it does nothing.
class PipeFiles final : public platform::Files {
public:
    [[nodiscard]] std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const override;
    void Replace(std::string const& path, std::string_view content) override;
    void Revise(std::string const& path, platform::Revision const& revise) override;
    void Overwrite(std::string const& path, std::string_view content) override;
    void Append(std::string const& path, std::string_view bytes) override;
    void Keep(std::string const& path) override;
    [[nodiscard]] std::unique_ptr<platform::ByteSink> OpenForOutput(std::string const& path) override;
    void Remove(std::string const& path) override;
    [[nodiscard]] std::uint64_t Length(std::string const& path) const override;
    [[nodiscard]] bool AreSame(std::string const& one, std::string const& other) const override;
    void EnterFolder(std::string const& folder) override;
    [[nodiscard]] std::vector<std::string> List(std::string const& folder,
                                                std::string_view pattern) const override;

private:
    platform::disk::DiskFiles disk_;
};

} // namespace quorvex::cli
