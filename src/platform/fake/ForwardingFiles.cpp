// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/ForwardingFiles.h"

namespace quorvex::platform::fake {

std::unique_ptr<text::ByteSource> ForwardingFiles::OpenForInput(std::string const& path) const {
    return behind_.OpenForInput(path);
}

void ForwardingFiles::Replace(std::string const& path, std::string_view content) {
    behind_.Replace(path, content);
}

void ForwardingFiles::Revise(std::string const& path, Revision const& revise) {
    behind_.Revise(path, revise);
}

void ForwardingFiles::Overwrite(std::string const& path, std::string_view content) {
    behind_.Overwrite(path, content);
}

void ForwardingFiles::Append(std::string const& path, std::string_view bytes) {
    behind_.Append(path, bytes);
}

void ForwardingFiles::Keep(std::string const& path) {
    behind_.Keep(path);
}

std::unique_ptr<ByteSink> ForwardingFiles::OpenForOutput(std::string const& path) {
    return behind_.OpenForOutput(path);
}

void ForwardingFiles::Remove(std::string const& path) {
    behind_.Remove(path);
}

std::uint64_t ForwardingFiles::Length(std::string const& path) const {
    return behind_.Length(path);
}

bool ForwardingFiles::AreSame(std::string const& one, std::string const& other) const {
    return behind_.AreSame(one, other);
}

void ForwardingFiles::EnterFolder(std::string const& folder) {
    behind_.EnterFolder(folder);
}

std::vector<std::string> ForwardingFiles::List(std::string const& folder, std::string_view pattern) const {
    return behind_.List(folder, pattern);
}

} // namespace quorvex::platform::fake
