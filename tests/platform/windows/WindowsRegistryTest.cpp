// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WindowsRegistry.h"

#include <gtest/gtest.h>

#include <string>
#include <windows.h>

namespace quorvex::platform::windows {
namespace {

constexpr wchar_t Place[] = L"Software\\QuorvexTest"; // NOLINT(*-c-arrays): as the calls take it

// The machine-wide part of the registry is a key of the test's own, gone with the object.
class WindowsRegistryTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, Place, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &machine_,
                                  nullptr),
                  ERROR_SUCCESS);
        ASSERT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine_), ERROR_SUCCESS);
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, L"Tool", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_,
                                  nullptr),
                  ERROR_SUCCESS);
    }

    void TearDown() override {
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegCloseKey(key_);
        RegDeleteKeyW(machine_, L"Tool");
        RegCloseKey(machine_);
        RegDeleteKeyW(HKEY_CURRENT_USER, Place);
    }

    void Set(DWORD type, std::wstring const& text) {
        auto const size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        ASSERT_EQ(RegSetValueExW(key_, L"Value", 0, type, reinterpret_cast<BYTE const*>(text.c_str()), size),
                  ERROR_SUCCESS);
    }

    static std::optional<Registry::Value> Value() { return WindowsRegistry().Query("Tool", "Value"); }

    HKEY machine_ = nullptr;
    HKEY key_ = nullptr;
};

TEST_F(WindowsRegistryTest, TellsTextsOfAnyLanguage) {
    Set(REG_SZ, L"C:\\\x5C0F\x9EA6.exe");
    EXPECT_EQ(Value(), Registry::Value("C:\\\xE5\xB0\x8F\xE9\xBA\xA6.exe"));
    Set(REG_SZ, L"");
    EXPECT_EQ(Value(), Registry::Value(""));
}

TEST_F(WindowsRegistryTest, ExpandsVariables) {
    SetEnvironmentVariableW(L"QUORVEX_TEST", L"C:\\\x20AC");
    Set(REG_EXPAND_SZ, L"%QUORVEX_TEST%\\a.exe %NOT_THERE%");
    EXPECT_EQ(Value(), Registry::Value("C:\\\xE2\x82\xAC\\a.exe %NOT_THERE%"));
    Set(REG_SZ, L"%QUORVEX_TEST%");
    EXPECT_EQ(Value(), Registry::Value("%QUORVEX_TEST%"));
}

TEST_F(WindowsRegistryTest, TellsNumbers) {
    DWORD const number = 0xBEEF;
    ASSERT_EQ(
        RegSetValueExW(key_, L"Value", 0, REG_DWORD, reinterpret_cast<BYTE const*>(&number), sizeof number),
        ERROR_SUCCESS);
    EXPECT_EQ(Value(), Registry::Value(std::uint32_t{0xBEEF}));
}

TEST_F(WindowsRegistryTest, TellsNothingOfWhatIsMissingLongOrOfAnotherType) {
    EXPECT_EQ(Value(), std::nullopt);
    EXPECT_EQ(WindowsRegistry().Query("Nowhere", "Value"), std::nullopt);
    Set(REG_SZ, std::wstring(1023, L'x'));
    EXPECT_EQ(Value(), Registry::Value(std::string(1023, 'x')));
    Set(REG_SZ, std::wstring(1024, L'x'));
    EXPECT_EQ(Value(), std::nullopt);
    Set(REG_BINARY, L"x");
    EXPECT_EQ(Value(), std::nullopt);
}

} // namespace
} // namespace quorvex::platform::windows
