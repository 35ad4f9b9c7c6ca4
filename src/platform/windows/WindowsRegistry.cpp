// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WindowsRegistry.h"

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
    if (type != REG_SZ) {
        return std::nullopt;
    }
    std::string text(size, '\0');
    std::memcpy(text.data(), buffer.data(), size);
    return text.substr(0, text.find('\0'));
}

} // namespace quorvex::platform::windows
