// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SilentDialogs.h"
#include "TemporaryQuoteFile.h"
#include "platform/MousePointer.h"
#include "platform/Printer.h"
#include "platform/disk/DiskFiles.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <QSize>
#include <QStringList>
#include <QTableWidget>
#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>

namespace quorvex::bench {

// The editor with generated days, and a dialog as large with a plain table of the same cells.
class EditWork {
public:
    // REQUIRES: a QApplication.
    EditWork();

    // Makes the window with all 500 days, paints it, and closes it.
    void OpenEditor();
    void OpenTable();

    // Shows both with the first hundred days and runs the routine, which may use what follows.
    void UseBoth(std::function<void()> const& routine);

    // End the program when the editor does not come to have as many rows.
    void AppendToEditor() const;
    void PasteIntoEditor() const;
    void PasteIntoTable();

    // Both have a hundred days again.
    void UndoInEditor() const;
    void ShortenTable();

private:
    static constexpr int FewDays = 100;

    // Series and text of the same days.
    struct Days {
        explicit Days(std::string_view text);

        TemporaryQuoteFile File;
        settings::Settings Settings;
        quotes::QuoteSeries Series;
        QStringList Lines; // with tabs between the fields
    };

    void OpenEditorOf(Days& days, std::function<void(QWidget&)> const& look);
    [[nodiscard]] static std::unique_ptr<QTableWidget> MakeTable(Days const& days);
    static void SetRow(QTableWidget& table, int row, QString const& line);
    void RequireRows(int count) const;

    std::unique_ptr<Days> all_;
    std::unique_ptr<Days> few_;
    QString pasted_; // the days behind those
    QSize size_;     // of the window
    platform::disk::DiskFiles files_;
    platform::NoPrintQueue printer_;
    platform::NoMousePointer pointer_;
    SilentDialogs dialogs_;
    QWidget* editor_ = nullptr; // while both are shown
    QTableWidget* table_ = nullptr;
};

} // namespace quorvex::bench
