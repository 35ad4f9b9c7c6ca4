// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WindowsRegistry.h"

#include "platform/windows/WideTexts.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <windows.h>

namespace quorvex::platform::windows {

namespace {

// Closes the key when it goes.
class OpenKey {
public:
    explicit OpenKey(std::wstring const& name) {
        isOpen_ = RegOpenKeyExW(HKEY_LOCAL_MACHINE, name.c_str(), 0, KEY_ALL_ACCESS, &key_) == ERROR_SUCCESS;
        // Only administrators may change that part of the registry; reading is all that is wanted.
        if (!isOpen_) {
            isOpen_ = RegOpenKeyExW(HKEY_LOCAL_MACHINE, name.c_str(), 0, KEY_READ, &key_) == ERROR_SUCCESS;
        }
    }

    OpenKey(OpenKey const&) = delete;
    OpenKey& operator=(OpenKey const&) = delete;

    ~OpenKey() {
        if (isOpen_) {
            RegCloseKey(key_);
        }
    }

    [[nodiscard]] bool IsOpen() const { return isOpen_; }

    [[nodiscard]] HKEY Handle() const { return key_; }

private:
    HKEY key_ = nullptr;
    bool isOpen_ = false;
};

// The text with the values of the variables that it names, such as %SystemRoot%; the text as it is when the
// system cannot tell them.
std::wstring Expanded(std::wstring const& text) {
    DWORD const room = ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
    std::wstring expanded(room, L'\0');
    DWORD const written = ExpandEnvironmentStringsW(text.c_str(), expanded.data(), room);
    return written == 0 || written > room ? text : expanded.substr(0, expanded.find(L'\0'));
}

} // namespace

std::optional<Registry::Value> WindowsRegistry::Query(std::string_view keyName,
                                                      std::string_view valueName) const {
    constexpr std::size_t MostUnits = 1024;
    OpenKey const key{Widened(keyName)};
    std::array<wchar_t, MostUnits> buffer{};
    DWORD size = sizeof buffer;
    DWORD type = REG_NONE;
    // NOLINTNEXTLINE(*-reinterpret-cast): the value is made of bytes, or of units of a text
    auto* const bytes = reinterpret_cast<BYTE*>(buffer.data());
    if (!key.IsOpen() || RegQueryValueExW(key.Handle(), Widened(valueName).c_str(), nullptr, &type, bytes,
                                          &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    if (type == REG_DWORD && size == sizeof(std::uint32_t)) {
        std::uint32_t number = 0;
        std::memcpy(&number, buffer.data(), sizeof number);
        return number;
    }
    if (type != REG_SZ && type != REG_EXPAND_SZ) {
        return std::nullopt;
    }
    std::wstring text(buffer.data(), size / sizeof(wchar_t));
    text.resize(std::min(text.find(L'\0'), text.size())); // the zero at the end may be missing
    return Narrowed(type == REG_EXPAND_SZ ? Expanded(text) : text);
}

} // namespace quorvex::platform::windows
