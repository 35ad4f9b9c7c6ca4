// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/ShownEditor.h"

#include "platform/qt/QtDialogs.h"
#include "support/QuoteTexts.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <stdexcept>

namespace quorvex::tests {

platform::Answer WindowDialogs::Show(platform::Message const& message) {
    return platform::qt::ShowMessageBox(parent_, message);
}

std::string WindowDialogs::Ask(platform::Question const& question) {
    return platform::qt::AskInputBox(parent_, question);
}

std::optional<std::string> WindowDialogs::Choose(platform::FileKind, std::span<std::string const>) {
    return std::nullopt;
}

std::string WindowDialogs::AskForFile(platform::FileQuestion const&) {
    return {};
}

std::string WindowDialogs::AskWhereToSave(platform::SaveQuestion const&) {
    return {};
}

ShownEditor::ShownEditor(std::string const& content, std::string const& name)
    : Settings(settings::DefaultSettings(Folder.Text())) {
    // The editor takes the name as it is, so that it saves into the test's folder only under a whole path.
    Series = SeriesOf(content, Settings.CurrencyFormat, name.empty() ? name : Folder.File(name));
    if (!name.empty()) {
        Folder.Write(name, content);
    }
    Window =
        std::make_unique<editor::ui::frmEdit>(nullptr, *Series, Settings, Failing, Dialogs, Printer, Printer);
    grid_ = Window->findChild<editor::ui::SpreadGrid*>(QStringLiteral("Spread"));
}

void ShownEditor::Run(std::function<void()> const& deeds) {
    bool isDone = false;
    Answers.Next([&](QWidget&) {
        deeds();
        isDone = true;
        Window->close();
    });
    Window->RunModal();
    if (!isDone) {
        throw std::logic_error("The editor does not come up");
    }
}

void ShownEditor::Choose(char const* menuItem) const {
    Window->findChild<QAction*>(QLatin1String(menuItem))->trigger();
    QCoreApplication::processEvents();
}

void ShownEditor::GoTo(int row, int column) const {
    grid_->setCurrentIndex(grid_->model()->index(row - 1, column - 1));
}

void ShownEditor::Type(int row, int column, QString const& text) const {
    GoTo(row, column);
    for (QChar const letter : text) {
        QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
    }
    Press(Qt::Key_Return);
}

void ShownEditor::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

QString ShownEditor::Text(int row, int column) const {
    return grid_->model()->index(row - 1, column - 1).data().toString();
}

QString ShownEditor::Status() const {
    return Window->findChild<QLabel*>(QStringLiteral("StatusLine"))->text();
}

QString ShownEditor::Cursor() const {
    QModelIndex const cursor = grid_->currentIndex();
    return QStringLiteral("%1,%2").arg(cursor.row() + 1).arg(cursor.column() + 1);
}

void ShownEditor::ComeBack() const {
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    other.hide();
    Window->activateWindow();
    QCoreApplication::processEvents();
}

} // namespace quorvex::tests
