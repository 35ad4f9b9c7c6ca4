// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cycles/CycleParameterSet.h"
#include "cycles/basForecast.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/PictureReadings.h"
#include "platform/qt/PictureBox.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <QDialog>
#include <memory>
#include <vector>

namespace Ui {
class frmForecast;
}

namespace quorvex::chart::ui {

// The forecast: the last 25 closes and the 25 estimated values as lists and as a chart. Computed anew
// whenever the window is activated.
class frmForecast final : public QDialog, private platform::PictureReadings {
    Q_OBJECT

public:
    // All must outlive the window. The commands stand in the context menu of its chart.
    frmForecast(QWidget* parent, quotes::QuoteSeries const& series, cycles::CycleParameterSet const& set,
                settings::Settings const& settings, platform::Files& files, platform::Dialogs& dialogs,
                std::vector<platform::qt::PictureCommand> commands);
    ~frmForecast() override;

    // Shows the window and waits until it is closed.
    void RunModal();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddMenu();
    void Compute();
    [[nodiscard]] std::string Caption() const;
    void FillLists();
    void Draw();
    void Print();

    // platform::PictureReadings
    [[nodiscard]] int Columns() const override;
    [[nodiscard]] int ColumnAt(double place) const override;
    [[nodiscard]] double PlaceOf(int column) const override;
    [[nodiscard]] std::string Describe(int column) const override;

    quotes::QuoteSeries const& series_;
    cycles::CycleParameterSet const& set_;
    settings::Settings const& settings_;
    platform::Dialogs& dialogs_;
    cycles::ForecastCurve values_;
    cycles::ForecastDates dates_;
    bool isComputed_ = false; // false as well when a fault ended the computation
    bool isFaultShown_ = false;
    std::unique_ptr<Ui::frmForecast> ui_;
};

} // namespace quorvex::chart::ui
