// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/DiskProfile.h"

#include "platform/basFiles.h"
#include "platform/basProfileTexts.h"
#include "platform/disk/basIniText.h"
#include "text/RunTimeError.h"

#include <utility>

namespace quorvex::platform::disk {

DiskProfile::DiskProfile(std::string path, Files& files) : path_(std::move(path)), files_(files) {}

std::vector<std::string> DiskProfile::ReadStrings(std::string_view section,
                                                  std::span<ProfileEntry const> defaults) const {
    std::string file; // stays empty when it cannot be read
    static_cast<void>(text::Trap([&] { file = ReadWholeFile(files_, path_); }));
    std::vector<std::string> values;
    for (ProfileEntry const& entry : defaults) {
        auto const value = FindIniValue(file, section, entry.Key);
        values.emplace_back(value ? CutProfileText(BareProfileText(*value)) : entry.Value);
    }
    return values;
}

void DiskProfile::WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) {
    files_.Revise(path_, [&](std::optional<std::string> const& content) {
        std::string file = content.value_or("");
        for (ProfileEntry const& entry : entries) {
            RequireProfileValue(entry.Value);
            SetIniValue(file, section, entry.Key, entry.Value);
        }
        return file;
    });
}

} // namespace quorvex::platform::disk
