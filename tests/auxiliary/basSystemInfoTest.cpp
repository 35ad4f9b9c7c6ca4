// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/basSystemInfo.h"

#include "platform/fake/MemoryFiles.h"
#include "platform/fake/RecordingLauncher.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/Messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace quorvex::auxiliary {
namespace {

using platform::Icon;
using tests::IsOnlyMessage;

class MemoryRegistry final : public platform::Registry {
public:
    [[nodiscard]] std::optional<Value> Query(std::string_view keyName,
                                             std::string_view valueName) const override {
        auto const found = Values.find({std::string(keyName), std::string(valueName)});
        return found == Values.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<std::pair<std::string, std::string>, Value> Values;
};

class SystemInfo : public testing::Test {
protected:
    void Start() { StartSysInfo(Registry, Files, Launcher, Dialogs); }

    void NameTool(std::string const& path) {
        Registry.Values[{"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH"}] = path;
    }

    void NameFolder(std::string const& path) {
        Registry.Values[{"SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO"}] = path;
    }

    MemoryRegistry Registry;
    platform::fake::MemoryFiles Files;
    platform::fake::RecordingLauncher Launcher;
    platform::fake::ScriptedDialogs Dialogs;
};

TEST_F(SystemInfo, AValueIsTextOrHexadecimal) {
    Registry.Values[{"Key", "Text"}] = std::string("C:\\Tool.exe");
    Registry.Values[{"Key", "Number"}] = std::uint32_t{0xBEEF};
    EXPECT_EQ(GetKeyValue(Registry, "Key", "Text"), "C:\\Tool.exe");
    EXPECT_EQ(GetKeyValue(Registry, "Key", "Number"), "&hbeef");
    EXPECT_EQ(GetKeyValue(Registry, "Key", "Missing"), std::nullopt);
    EXPECT_EQ(GetKeyValue(platform::NoRegistry(), "Key", "Text"), std::nullopt);
}

TEST_F(SystemInfo, StartsTheToolThatIsNamed) {
    NameTool("C:\\Info\\Tool.exe");
    NameFolder("C:\\Other");
    Files.Contents["C:\\Other\\MSINFO32.EXE"] = "";
    Start();
    EXPECT_THAT(Launcher.Started, testing::ElementsAre("C:\\Info\\Tool.exe"));
    EXPECT_TRUE(Dialogs.Messages.empty());
}

TEST_F(SystemInfo, StartsTheToolInTheFolderThatIsNamed) {
    NameFolder("C:\\Other");
    Files.Contents["C:\\Other\\MSINFO32.EXE"] = "";
    Start();
    EXPECT_THAT(Launcher.Started, testing::ElementsAre("C:\\Other\\MSINFO32.EXE"));
}

TEST_F(SystemInfo, SaysThatThereIsNone) {
    Start();
    EXPECT_TRUE(IsOnlyMessage(Dialogs.Messages, "System Information Is Unavailable At This Time", "Quorvex",
                              Icon::None));
    Dialogs.Messages.clear();
    NameFolder("C:\\Other"); // where no tool is
    Start();
    EXPECT_TRUE(IsOnlyMessage(Dialogs.Messages, "System Information Is Unavailable At This Time", "Quorvex",
                              Icon::None));
    EXPECT_TRUE(Launcher.Started.empty());
}

TEST_F(SystemInfo, AMissingToolFailsWithoutAnotherTry) {
    NameTool("C:\\Info\\Gone.exe");
    NameFolder("C:\\Other");
    Files.Contents["C:\\Other\\MSINFO32.EXE"] = "";
    Launcher.HasPrograms = false;
    Start();
    EXPECT_TRUE(IsOnlyMessage(Dialogs.Messages, "File not found", "Quorvex", Icon::None));
    EXPECT_TRUE(Launcher.Started.empty());
}

} // namespace
} // namespace quorvex::auxiliary
