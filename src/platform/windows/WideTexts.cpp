// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WideTexts.h"

#include <cstddef>
#include <windows.h>

namespace quorvex::platform::windows {

namespace {

std::wstring WidenedFrom(UINT codePage, std::string_view text) {
    int const length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // no code page makes more of a byte than one unit
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(codePage, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

// That of the machine. The process itself may be told to have UTF-8 for its own.
UINT SystemCodePage() {
    DWORD codePage = 0;
    constexpr int Units = sizeof codePage / sizeof(wchar_t);
    // NOLINTNEXTLINE(*-reinterpret-cast): the call puts the number where it takes a text
    if (GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                       reinterpret_cast<LPWSTR>(&codePage), Units) == 0) {
        return CP_ACP;
    }
    return codePage;
}

} // namespace

std::wstring Widened(std::string_view text) {
    return WidenedFrom(CP_UTF8, text);
}

bool IsUtf8(std::string_view text) {
    return text.empty() || MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(),
                                               static_cast<int>(text.size()), nullptr, 0) != 0;
}

std::wstring WidenedFromCodePage(std::string_view text) {
    return WidenedFrom(SystemCodePage(), text);
}

std::string Narrowed(std::wstring_view text) {
    constexpr std::size_t MostBytes = 3; // of a unit
    std::string narrow(text.size() * MostBytes, '\0');
    narrow.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                            static_cast<int>(narrow.size()), nullptr, nullptr)));
    return narrow;
}

} // namespace quorvex::platform::windows
