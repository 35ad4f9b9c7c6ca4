// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The file of settings, as the profile functions of Windows keep one. docs/formats/profile-ini.md describes
// the format.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::platform {

struct ProfileEntry {
    std::string_view Key;
    std::string_view Value;
};

// Sections and keys are found without regard to the case of ASCII letters. REQUIRES of all routines: section
// and keys are plain names, without blanks around them, brackets and equals signs.
class Profile {
public:
    Profile() = default;
    Profile(Profile const&) = delete;
    Profile& operator=(Profile const&) = delete;
    virtual ~Profile() = default;

    // The values of the keys, bare and cut as basProfileTexts.h tells. The default as it is given where the
    // file has no such key, and for all of them when it cannot be read.
    [[nodiscard]] virtual std::vector<std::string>
    ReadStrings(std::string_view section, std::span<ProfileEntry const> defaults) const = 0;

    // The same of one key.
    [[nodiscard]] std::string ReadString(std::string_view section, std::string_view key,
                                         std::string_view defaultText) const {
        ProfileEntry const entry{key, defaultText};
        return ReadStrings(section, {&entry, 1}).front();
    }

    // Writes the values as they are, creating file, section and keys where they are missing. All of them are
    // written or, on a fault, none. Raises the faults of Files, and "Invalid procedure call or argument" for
    // a value that does not fit on one line.
    virtual void WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) = 0;
};

// For runs that keep no settings.
class NoProfile final : public Profile {
public:
    [[nodiscard]] std::vector<std::string>
    ReadStrings(std::string_view, std::span<ProfileEntry const> defaults) const override {
        std::vector<std::string> values;
        for (ProfileEntry const& entry : defaults) {
            values.emplace_back(entry.Value);
        }
        return values;
    }

    void WriteStrings(std::string_view, std::span<ProfileEntry const>) override {}
};

} // namespace quorvex::platform
