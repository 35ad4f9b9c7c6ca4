// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WindowsProfile.h"

#include "platform/basFiles.h"
#include "platform/basProfileTexts.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/HostFile.h"
#include "platform/disk/TemporaryFile.h"
#include "platform/windows/WideTexts.h"
#include "text/RunTimeError.h"

#include <array>
#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>
#include <windows.h>

namespace quorvex::platform::windows {

namespace {

using text::Fault;
using text::RunTimeError;

constexpr std::string_view WideMark = "\xFF\xFE"; // in front of UTF-16
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

std::wstring WideText(std::string_view content) {
    return IsUtf8(content) ? Widened(content) : WidenedFromCodePage(content);
}

std::string BytesOf(std::wstring_view text) {
    std::string bytes(text.size() * sizeof(wchar_t), '\0');
    std::memcpy(bytes.data(), text.data(), bytes.size());
    return bytes;
}

// The content of an INI file in the one form in which the profile functions take every character.
std::string Spread(std::string_view content) {
    if (content.starts_with(WideMark)) {
        return std::string(content);
    }
    if (content.starts_with(Utf8Mark)) {
        content.remove_prefix(Utf8Mark.size());
    }
    return std::string(WideMark) + BytesOf(WideText(content));
}

// That form as what the file held before: UTF-16 stays what it is, everything else becomes UTF-8.
std::string Folded(std::string_view wide, std::string_view before) {
    if (before.starts_with(WideMark)) {
        return std::string(wide);
    }
    wide.remove_prefix(WideMark.size());
    std::wstring text(wide.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), wide.data(), text.size() * sizeof(wchar_t));
    return std::string(before.starts_with(Utf8Mark) ? Utf8Mark : "") + Narrowed(text);
}

std::filesystem::path ScratchFile() {
    std::error_code error;
    auto const folder = std::filesystem::temp_directory_path(error);
    if (error) {
        throw RunTimeError(Fault::PathNotFound);
    }
    return folder / "Quorvex.INI";
}

// A copy of the INI file for the profile functions. They write over the file, one value at a time, and keep
// to the code page in any file that is not UTF-16: a copy costs neither old values, when a disk is full or
// the process dies, nor characters.
class ScratchProfile {
public:
    // A scratch file has the rights of the file of this path, when there is one.
    ScratchProfile(std::string_view content, std::string const& path)
        : bytes_(Spread(content)),
          source_(bytes_),
          file_(ScratchFile(), source_, disk::HostPath(path)) {}

    [[nodiscard]] std::wstring Path() const { return file_.Path().native(); }

    [[nodiscard]] std::string Content() const {
        auto const name = file_.Path().u8string();
        return ReadWholeFile(disk::DiskFiles(), std::string(name.begin(), name.end()));
    }

private:
    std::string bytes_;
    text::TextSource source_;
    disk::TemporaryFile file_;
};

// The value as it is read, before it is cut; the text for missing ones when there is none.
std::wstring ReadValue(ScratchProfile const& scratch, std::wstring const& section, std::wstring const& key,
                       wchar_t const* missing) {
    constexpr std::size_t MostUnits = 4096;
    std::array<wchar_t, MostUnits> buffer{};
    DWORD const length = GetPrivateProfileStringW(section.c_str(), key.c_str(), missing, buffer.data(),
                                                  MostUnits, scratch.Path().c_str());
    return {buffer.data(), length};
}

// An empty value is one; only a key that is not there gives the text for missing ones.
std::optional<std::wstring> FindValue(ScratchProfile const& scratch, std::wstring const& section,
                                      std::wstring const& key) {
    std::wstring value = ReadValue(scratch, section, key, L"");
    bool const isThere = !value.empty() || ReadValue(scratch, section, key, L"missing").empty();
    return isThere ? std::optional(std::move(value)) : std::nullopt;
}

void WriteValues(ScratchProfile const& scratch, std::wstring const& section,
                 std::span<ProfileEntry const> entries) {
    for (ProfileEntry const& entry : entries) {
        RequireProfileValue(entry.Value);
        if (!IsUtf8(entry.Value)) {
            throw RunTimeError(Fault::InvalidProcedureCall);
        }
        if (WritePrivateProfileStringW(section.c_str(), Widened(entry.Key).c_str(),
                                       Widened(entry.Value).c_str(), scratch.Path().c_str()) == 0) {
            throw RunTimeError(Fault::PermissionDenied);
        }
    }
    // Flushes what the system keeps of the file; by its own description the call returns no success.
    WritePrivateProfileStringW(nullptr, nullptr, nullptr, scratch.Path().c_str());
}

} // namespace

WindowsProfile::WindowsProfile(std::string path, Files& files) : path_(std::move(path)), files_(files) {}

std::vector<std::string> WindowsProfile::ReadStrings(std::string_view section,
                                                     std::span<ProfileEntry const> defaults) const {
    std::vector<std::string> values;
    auto const error = text::Trap([&] {
        ScratchProfile const scratch(ReadWholeFile(files_, path_), path_);
        for (ProfileEntry const& entry : defaults) {
            auto const value = FindValue(scratch, Widened(section), Widened(entry.Key));
            values.push_back(value ? std::string(CutProfileText(Narrowed(*value)))
                                   : std::string(entry.Value));
        }
    });
    return error ? NoProfile().ReadStrings(section, defaults) : values;
}

void WindowsProfile::WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) {
    files_.Revise(path_, [&](std::optional<std::string> const& content) {
        std::string const before = content.value_or("");
        ScratchProfile const scratch(before, path_);
        WriteValues(scratch, Widened(section), entries);
        return Folded(scratch.Content(), before);
    });
}

} // namespace quorvex::platform::windows
