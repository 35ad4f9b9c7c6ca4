// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "convert/basConvertCustom.h"
#include "convert/ui/ConvertWindow.h"

#include <functional>
#include <span>
#include <string_view>

class QComboBox;
class QGridLayout;
class QLabel;

namespace quorvex::convert::ui {

// Converts comma-separated files that the user describes.
class frmConvertCustom final : public ConvertWindow {
    Q_OBJECT

public:
    // All must outlive the window; showHelp opens the document on custom files.
    frmConvertCustom(QWidget* parent, platform::Files& files, platform::Dialogs& dialogs,
                     platform::PrintQueue& printing, std::function<void()> showHelp);

protected:
    [[nodiscard]] std::unique_ptr<SourceLayout> ReadLayout() override;
    void ShowHelp() override;

private:
    struct FieldRow {
        QLabel* Caption = nullptr;
        QComboBox* Name = nullptr;
    };

    void AddFileFormat(CustomChoices const& choices);
    void AddFields(CustomChoices const& choices);
    void AddField(std::int16_t row, std::string const& name, QGridLayout& grid);
    void ShowRows();
    void CheckNumFields();

    std::function<void()> showHelp_;
    QComboBox* numFields_ = nullptr;
    QComboBox* fieldDelimiter_ = nullptr;
    QComboBox* dateFormat_ = nullptr;
    text::SlotArray<FieldRow, MostFields> rows_;
};

} // namespace quorvex::convert::ui
