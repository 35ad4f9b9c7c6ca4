// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/ChosenColumns.h"
#include "import/ImportSource.h"
#include "import/PreparedFile.h"
#include "import/ui/TablePreview.h"
#include "import/ui/TableThread.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <QComboBox>
#include <QDialog>
#include <QStringListModel>
#include <QTimer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Ui {
class frmImport;
}

namespace quorvex::imports::ui {

// Shows what a vendor's table is taken for and what is wrong with it, lets the user choose otherwise, and
// writes its days into a quote file, a new one or one that it brings up to date. It reads the table anew
// after every choice, and not longer than it is open. Nothing is written of a table that is refused.
class frmImport final : public QDialog {
    Q_OBJECT

public:
    // All must outlive the window.
    frmImport(QWidget* parent, quotes::QuoteSeries const& series, settings::Settings const& settings,
              platform::Files& files, platform::Dialogs& dialogs);
    ~frmImport() override;

    // Shows the window with the table and waits until it is closed. Returns the quote file that was written,
    // nothing when none was.
    [[nodiscard]] std::optional<ImportedFile> RunModal(ImportSource const& source);

    void done(int result) override;

private:
    void PrepareTables();
    void FillBoxes();
    void ConnectBoxes();

    // Lets the box set this choice; what stands first in it sets none.
    template <class Values, class Value, class Name>
    void Bind(QComboBox& box, Values const& values, std::optional<Value> Choices::*choice, Name nameOf);

    void ClearChoices();

    // Reads the table by the choices.
    void StartReading();
    void WaitForTyping();
    void EndReading();

    // Or about to begin.
    [[nodiscard]] bool IsReading() const { return number_ != 0 || typing_.isActive(); }

    void Take(TableNews const& news);
    [[nodiscard]] bool TakeLimits(Limits& limits);

    void OrderTabs();

    // What the file of the name becomes, of which nothing is written yet.
    void PrepareFile();

    void ShowPlan(Plan const& plan);
    void ShowChoices(Plan const& plan);
    void ShowState();
    void ShowButtons();
    [[nodiscard]] QString ResultText() const;
    [[nodiscard]] QStringList FindingTexts() const;

    [[nodiscard]] std::string SuggestedName() const;
    [[nodiscard]] std::string TargetPath() const;
    void Browse();
    void Import();
    void Update();
    void Write(std::string const& path, QuoteFile const& file);

    quotes::QuoteSeries const& series_;
    settings::Settings const& settings_;
    platform::Files& files_;
    platform::Dialogs& dialogs_;
    ImportSource source_;
    Choices chosen_;
    ChosenColumns roles_;
    std::shared_ptr<TableLook const> look_;
    std::shared_ptr<Conversion const> read_; // none while the table is read, and after a fault
    PreparedFile prepared_;                  // of the table that was read, and the name
    std::string fault_;                      // why the table could not be read
    QTimer typing_;                          // runs while a date is being typed
    int number_ = 0;                         // of the reading whose news count, 0 when none does
    std::optional<ImportedFile> imported_;
    std::unique_ptr<Ui::frmImport> ui_;
    TablePreview* preview_;
    QStringListModel findings_;
    TableThread thread_; // the last member: it reports to the others
};

} // namespace quorvex::imports::ui
