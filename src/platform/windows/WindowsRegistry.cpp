// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WindowsRegistry.h"

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
    explicit OpenKey(std::string const& name) {
        isOpen_ = RegOpenKeyExA(HKEY_LOCAL_MACHINE, name.c_str(), 0, KEY_ALL_ACCESS, &key_) == ERROR_SUCCESS;
        // Only administrators may change that part of the registry; reading is all that is wanted.
        if (!isOpen_) {
            isOpen_ = RegOpenKeyExA(HKEY_LOCAL_MACHINE, name.c_str(), 0, KEY_READ, &key_) == ERROR_SUCCESS;
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
std::string Expanded(std::string const& text) {
    // In the system's code page the call wants room for one more byte than it tells.
    DWORD const room = ExpandEnvironmentStringsA(text.c_str(), nullptr, 0) + 1;
    std::string expanded(room, '\0');
    DWORD const written = ExpandEnvironmentStringsA(text.c_str(), expanded.data(), room);
    return written == 0 || written > room ? text : expanded.substr(0, expanded.find('\0'));
}

} // namespace

std::optional<Registry::Value> WindowsRegistry::Query(std::string_view keyName,
                                                      std::string_view valueName) const {
    constexpr std::size_t BufferSize = 1024;
    OpenKey const key{std::string(keyName)};
    std::array<BYTE, BufferSize> buffer{};
    DWORD size = BufferSize;
    DWORD type = REG_NONE;
    if (!key.IsOpen() || RegQueryValueExA(key.Handle(), std::string(valueName).c_str(), nullptr, &type,
                                          buffer.data(), &size) != ERROR_SUCCESS) {
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
    std::string text(size, '\0');
    std::memcpy(text.data(), buffer.data(), size);
    text.resize(std::min(text.find('\0'), text.size())); // the zero at the end may be missing
    return type == REG_EXPAND_SZ ? Expanded(text) : text;
}

} // namespace quorvex::platform::windows
