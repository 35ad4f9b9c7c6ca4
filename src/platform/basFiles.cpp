// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basFiles.h"

#include "text/RunTimeError.h"

#include <array>
#include <cstddef>

namespace quorvex::platform {

namespace {

#ifdef _WIN32
constexpr std::string_view FolderEnds = "/\\:";
#else
constexpr std::string_view FolderEnds = "/\\";
#endif

} // namespace

std::string ReadWholeFile(Files const& files, std::string const& path) {
    constexpr std::size_t BufferSize = 4096;
    std::array<char, BufferSize> buffer{};
    std::string content;
    auto const source = files.OpenForInput(path);
    while (std::size_t const count = source->Read(buffer)) {
        content.append(buffer.data(), count);
    }
    return content;
}

std::optional<std::string> ReadFileIfThere(Files const& files, std::string const& path) {
    std::optional<std::string> content;
    auto const error = text::Trap([&] { content = ReadWholeFile(files, path); });
    if (error && error->Kind() != text::Fault::FileNotFound) {
        throw text::RunTimeError(error->Kind());
    }
    return content;
}

bool IsThere(Files const& files, std::string const& path) {
    auto const error = text::Trap([&] { static_cast<void>(files.Length(path)); });
    return !error ||
           (error->Kind() != text::Fault::FileNotFound && error->Kind() != text::Fault::PathNotFound &&
            error->Kind() != text::Fault::BadFileName);
}

std::string_view BareName(std::string_view path) {
    return path.substr(path.find_last_of(FolderEnds) + 1); // 0 when there is none
}

} // namespace quorvex::platform
