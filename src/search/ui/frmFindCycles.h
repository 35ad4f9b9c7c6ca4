// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cycles/CycleCurves.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/PictureReadings.h"
#include "quotes/QuoteSeries.h"
#include "search/SearchThread.h"
#include "settings/Settings.h"

#include <QDialog>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Ui {
class frmFindCycles;
}

namespace quorvex::search::ui {

// Looks for the cycles whose composite follows the moving average best, for all numbers of cycles at once,
// and anew whenever its boxes change what is searched. The boxes keep their entries from call to call; a
// longest period that nobody changed is always half the days.
class frmFindCycles final : public QDialog, private platform::PictureReadings {
    Q_OBJECT

public:
    // All must outlive the window. The routine searches.
    frmFindCycles(QWidget* parent, quotes::QuoteSeries const& series, cycles::CycleCurves const& curves,
                  settings::Settings const& settings, platform::Files& files, platform::Dialogs& dialogs,
                  SearchRoutine routine = SearchSeries);
    ~frmFindCycles() override;

    // Shows the window and waits until it is closed. Returns the model of the chosen number of cycles after
    // OK, nothing when the window was closed otherwise.
    [[nodiscard]] std::optional<CycleModel> RunModal();

    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddMenu();
    void PrepareTable();
    void ConnectBoxes();
    void SuggestLongest();
    [[nodiscard]] SearchRequest Request() const;
    void StartSearch();
    void EndSearch(QString const& refusal);
    void Take(SearchNews const& news);

    // The model of the chosen number of cycles, nullptr while there is none.
    [[nodiscard]] CycleModel const* ChosenModel() const;
    [[nodiscard]] int ChosenCount() const;

    void ShowModels();
    void ShowTable(CycleModel const* model);
    [[nodiscard]] QString ResultText(CycleModel const* model) const;
    void Draw();
    void Print();
    [[nodiscard]] std::string Caption() const;

    // platform::PictureReadings
    [[nodiscard]] int Columns() const override;
    [[nodiscard]] int ColumnAt(double place) const override;
    [[nodiscard]] double PlaceOf(int column) const override;
    [[nodiscard]] std::string Describe(int column) const override;

    quotes::QuoteSeries const& series_;
    cycles::CycleCurves const& curves_;
    settings::Settings const& settings_;
    platform::Dialogs& dialogs_;
    std::vector<CycleModel> models_; // of 1, 2 .. cycles, as many as were found yet
    int number_ = 0;                 // of the search whose news count, 0 when none does
    QString refusal_;
    bool isLongestChosen_ = false; // by the user
    std::unique_ptr<Ui::frmFindCycles> ui_;
    SearchThread thread_; // the last member: it reports to the others
};

} // namespace quorvex::search::ui
