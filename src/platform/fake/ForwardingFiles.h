// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Files.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::platform::fake {

// Hands every call on to other files, which must outlive it; a test overrides what it wants otherwise.
class ForwardingFiles : public Files {
public:
    explicit ForwardingFiles(Files& behind) : behind_(behind) {}

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

private:
    Files& behind_;
};

} // namespace quorvex::platform::fake
