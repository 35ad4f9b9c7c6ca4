// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WindowsProfile.h"

#include "platform/basFiles.h"
#include "platform/basProfileTexts.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/TemporaryFile.h"
#include "text/RunTimeError.h"

#include <array>
#include <filesystem>
#include <system_error>
#include <utility>
#include <windows.h>

namespace quorvex::platform::windows {

namespace {

using text::Fault;
using text::RunTimeError;

std::wstring Widened(std::string_view text, UINT codePage) {
    int const length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // no code page makes more of a byte than one unit
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

std::string Narrowed(std::wstring const& wide, UINT codePage) {
    constexpr std::size_t MostBytes = 4; // of a unit, in any code page
    std::string text(wide.size() * MostBytes, '\0');
    text.resize(static_cast<std::size_t>(
        WideCharToMultiByte(codePage, 0, wide.data(), static_cast<int>(wide.size()), text.data(),
                            static_cast<int>(text.size()), nullptr, nullptr)));
    return text;
}

// The text in the system's code page. Raises "Invalid procedure call or argument" for one that it cannot
// spell: writing question marks instead would lose what the user typed.
std::string SystemText(std::string_view text) {
    std::wstring const wide = Widened(text, CP_UTF8);
    std::string system = Narrowed(wide, CP_ACP);
    if (Widened(system, CP_ACP) != wide) {
        throw RunTimeError(Fault::InvalidProcedureCall);
    }
    return system;
}

// What the system gave, unless it reported an error in place of it.
std::filesystem::path Checked(std::filesystem::path path, std::error_code const& error) {
    if (error) {
        throw RunTimeError(Fault::PathNotFound);
    }
    return path;
}

// The profile functions look for a name without its folder among the system's own files.
std::string SystemPath(std::filesystem::path const& path) {
    std::error_code error;
    std::filesystem::path whole = std::filesystem::absolute(path, error);
    std::u8string const text = Checked(std::move(whole), error).u8string();
    return SystemText(std::string(text.begin(), text.end()));
}

std::filesystem::path ScratchFolder() {
    std::error_code error;
    std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    return Checked(std::move(folder), error);
}

std::string ReadBack(disk::TemporaryFile const& file) {
    std::u8string const name = file.Path().u8string();
    return ReadWholeFile(disk::DiskFiles(), std::string(name.begin(), name.end()));
}

} // namespace

WindowsProfile::WindowsProfile(std::string path, Files& files) : path_(std::move(path)), files_(files) {}

std::string WindowsProfile::ReadString(std::string_view section, std::string_view key,
                                       std::string_view defaultText) const {
    std::string value;
    bool isThere = false;
    auto const error = text::Trap([&] {
        std::string const path = SystemPath(disk::HostPath(path_));
        std::array<char, MaxProfileText + 1> buffer{};
        auto const read = [&](char const* missing) {
            DWORD const length =
                GetPrivateProfileStringA(SystemText(section).c_str(), SystemText(key).c_str(), missing,
                                         buffer.data(), static_cast<DWORD>(buffer.size()), path.c_str());
            return std::string(buffer.data(), length);
        };
        value = read("");
        // An empty value is one; only a key that is not there gives the text for missing ones.
        isThere = !value.empty() || read("missing").empty();
    });
    return !error && isThere ? Narrowed(Widened(value, CP_ACP), CP_UTF8) : std::string(defaultText);
}

void WindowsProfile::WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) {
    // The system's function writes over the file, one value at a time. It works on a copy, so that a crash or
    // a full disk costs neither the old values nor half of the new ones.
    std::string const before = ReadFileIfThere(files_, path_);
    text::TextSource bytes(before);
    disk::TemporaryFile const copy(ScratchFolder() / "Quorvex.INI", bytes, disk::HostPath(path_));
    std::string const path = SystemPath(copy.Path());
    for (ProfileEntry const& entry : entries) {
        RequireProfileValue(entry.Value);
        if (WritePrivateProfileStringA(SystemText(section).c_str(), SystemText(entry.Key).c_str(),
                                       SystemText(entry.Value).c_str(), path.c_str()) == 0) {
            throw RunTimeError(Fault::PermissionDenied);
        }
    }
    // Flushes what the system keeps of the file; by its own description the call returns no success.
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
    files_.Replace(path_, ReadBack(copy));
}

} // namespace quorvex::platform::windows
