// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "EditWork.h"

#include "GeneratedQuotes.h"
#include "ShownDialog.h"
#include "editor/ui/frmEdit.h"
#include "quotes/basDisk.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

namespace quorvex::bench {

namespace {

// The first lines of the text.
std::string_view FirstLines(std::string_view text, int count) {
    std::size_t end = 0;
    for (int line = 0; line < count; ++line) {
        end = text.find('\n', end) + 1;
    }
    return text.substr(0, end);
}

QTableView& GridOf(QWidget const& editor) {
    return *editor.findChild<QTableView*>(QStringLiteral("Spread"));
}

void Press(QWidget& widget, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

EditWork::Days::Days(std::string_view text) : File(text), Settings(settings::DefaultSettings(File.Folder())) {
    Series.QuoteFileName = TemporaryQuoteFile::Name;
    platform::disk::DiskFiles const files;
    SilentDialogs dialogs;
    quotes::LoadQuoteFile(Series, Settings, files, dialogs);
    Lines = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
                .replace(QStringLiteral(", "), QStringLiteral("\t"))
                .split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
}

EditWork::EditWork()
    : all_(std::make_unique<Days>(GeneratedQuoteText())),
      few_(std::make_unique<Days>(FirstLines(GeneratedQuoteText(), FewDays))) {
    pasted_ = QStringList(all_->Lines.mid(FewDays)).join(u'\n');
    OpenEditorOf(*all_, [this](QWidget& editor) { size_ = editor.size(); });
}

void EditWork::OpenEditorOf(Days& days, std::function<void(QWidget&)> const& look) {
    editor::ui::frmEdit window(nullptr, days.Series, days.Settings, files_, dialogs_, printer_, pointer_);
    CloseWhenShown(window, [&] { look(window); });
    window.RunModal();
}

void EditWork::OpenEditor() {
    OpenEditorOf(*all_, [](QWidget&) {});
}

std::unique_ptr<QTableWidget> EditWork::MakeTable(Days const& days) {
    constexpr int Columns = 7;
    auto table = std::make_unique<QTableWidget>(static_cast<int>(days.Lines.size()), Columns);
    for (int row = 0; row < table->rowCount(); ++row) {
        SetRow(*table, row, days.Lines[row]);
    }
    return table;
}

void EditWork::SetRow(QTableWidget& table, int row, QString const& line) {
    QStringList const fields = line.split(u'\t');
    for (int column = 0; column < fields.size(); ++column) {
        table.setItem(row, column, new QTableWidgetItem(fields[column]));
    }
}

void EditWork::OpenTable() {
    QDialog dialog;
    (new QVBoxLayout(&dialog))->addWidget(MakeTable(*all_).release());
    dialog.resize(size_);
    CloseWhenShown(dialog);
    dialog.exec();
}

void EditWork::UseBoth(std::function<void()> const& routine) {
    OpenEditorOf(*few_, [&](QWidget& editor) {
        editor_ = &editor;
        auto const table = MakeTable(*few_);
        table_ = table.get();
        table->resize(size_);
        table->show();
        QCoreApplication::processEvents();
        routine();
    });
}

void EditWork::AppendToEditor() const {
    editor_->findChild<QAction*>(QStringLiteral("mnuEditAppend"))->trigger();
    QCoreApplication::processEvents();
    RequireRows(FewDays + 1);
}

void EditWork::PasteIntoEditor() const {
    QTableView& grid = GridOf(*editor_);
    QGuiApplication::clipboard()->setText(pasted_);
    grid.selectionModel()->clear(); // a table goes behind the last row then
    Press(grid, Qt::Key_V);
    QCoreApplication::processEvents();
    RequireRows(quotes::MaxQuotes);
}

void EditWork::RequireRows(int count) const {
    if (GridOf(*editor_).model()->rowCount() != count) {
        qFatal("The editor does not have %d rows.", count); // no exception comes out of an event
    }
}

void EditWork::UndoInEditor() const {
    Press(GridOf(*editor_), Qt::Key_Z);
    QCoreApplication::processEvents();
    RequireRows(FewDays);
}

void EditWork::PasteIntoTable() {
    QGuiApplication::clipboard()->setText(pasted_);
    QStringList const lines = QGuiApplication::clipboard()->text().split(u'\n');
    table_->setRowCount(FewDays + static_cast<int>(lines.size()));
    for (int line = 0; line < lines.size(); ++line) {
        SetRow(*table_, FewDays + line, lines[line]);
    }
    QCoreApplication::processEvents();
}

void EditWork::ShortenTable() {
    table_->setRowCount(FewDays);
    QCoreApplication::processEvents();
}

} // namespace quorvex::bench
