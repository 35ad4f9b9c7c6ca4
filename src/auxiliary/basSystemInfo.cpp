// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/basSystemInfo.h"

#include "platform/basMessages.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace quorvex::auxiliary {

namespace {

std::string TextOf(platform::Registry::Value const& value) {
    if (auto const* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    constexpr int Hexadecimal = 16;
    std::array<char, 8> digits{};
    auto const end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   std::get<std::uint32_t>(value), Hexadecimal)
                         .ptr;
    return "&h" + std::string(digits.data(), end);
}

// The whole path of the tool; nothing when the system has none.
std::optional<std::string> FindTool(platform::Registry const& registry, platform::Files const& files) {
    constexpr std::string_view ToolName = "MSINFO32.EXE";
    if (auto path = GetKeyValue(registry, R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)", "PATH")) {
        return path;
    }
    auto const folder = GetKeyValue(registry, R"(SOFTWARE\Microsoft\Shared Tools Location)", "MSINFO");
    if (!folder || files.List(*folder + "\\", ToolName).empty()) {
        return std::nullopt;
    }
    return *folder + "\\" + std::string(ToolName);
}

} // namespace

std::optional<std::string> GetKeyValue(platform::Registry const& registry, std::string_view keyName,
                                       std::string_view valueName) {
    auto const value = registry.Query(keyName, valueName);
    return value ? std::optional(TextOf(*value)) : std::nullopt;
}

void StartSysInfo(platform::Registry const& registry, platform::Files const& files,
                  platform::Launcher& launcher, platform::Dialogs& dialogs) {
    auto const tool = FindTool(registry, files);
    if (!tool) {
        dialogs.Show(
            {"System Information Is Unavailable At This Time", std::string(platform::ApplicationTitle)});
        return;
    }
    platform::RunReported(dialogs, [&] { launcher.Start(*tool); });
}

} // namespace quorvex::auxiliary
