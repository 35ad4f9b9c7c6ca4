// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quorvex::platform {

// The machine-wide part of the registry. Only Windows has one.
class Registry {
public:
    // A text in UTF-8 without its terminating zero, or a 32-bit number. A text that is meant to be expanded
    // has the values of the environment's variables in place of their names.
    using Value = std::variant<std::string, std::uint32_t>;

    Registry() = default;
    Registry(Registry const&) = delete;
    Registry& operator=(Registry const&) = delete;
    virtual ~Registry() = default;

    // The value of this name under the key; nothing when either is missing, cannot be opened, is of another
    // type or longer than 1,023 characters.
    [[nodiscard]] virtual std::optional<Value> Query(std::string_view keyName,
                                                     std::string_view valueName) const = 0;
};

// For systems without a registry.
class NoRegistry final : public Registry {
public:
    [[nodiscard]] std::optional<Value> Query(std::string_view, std::string_view) const override {
        return std::nullopt;
    }
};

} // namespace quorvex::platform
