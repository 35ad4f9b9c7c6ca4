// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/MainDialogs.h"

#include "cycles/ui/frmParameter.h"
#include "platform/qt/FileDialogs.h"
#include "platform/qt/QtDialogs.h"
#include "quotes/ui/frmQuotes.h"

namespace quorvex::app::ui {

namespace {

template <class Chooser>
std::optional<std::string> ChooseIn(QPointer<Chooser>& chooser, QWidget& window,
                                    std::span<std::string const> names) {
    if (chooser.isNull()) {
        chooser = new Chooser(&window);
    }
    return chooser->Choose(names);
}

} // namespace

platform::Answer MainDialogs::Show(platform::Message const& message) {
    return platform::qt::ShowMessageBox(window_, message);
}

std::string MainDialogs::Ask(platform::Question const& question) {
    return platform::qt::AskInputBox(window_, question);
}

std::optional<std::string> MainDialogs::Choose(platform::FileKind kind, std::span<std::string const> names) {
    return kind == platform::FileKind::Quotes ? ChooseIn(quotes_, window_, names)
                                              : ChooseIn(parameter_, window_, names);
}

std::string MainDialogs::AskForFile(platform::FileQuestion const& question) {
    return platform::qt::AskForFile(window_, question);
}

std::string MainDialogs::AskWhereToSave(platform::SaveQuestion const& question) {
    return platform::qt::AskWhereToSave(window_, question);
}

} // namespace quorvex::app::ui
