// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/ui/frmConvertCustom.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "text/RunTimeError.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <utility>
#include <vector>

namespace quorvex::convert::ui {

namespace {

using platform::pictures::FromQt;
using platform::pictures::ToQt;

// A list that lets one of the texts be chosen or another be typed, and the label that names it.
QComboBox* MakeList(QString const& name, QLabel& label, std::span<std::string_view const> offers,
                    std::string_view text) {
    auto* list = new QComboBox(label.parentWidget());
    list->setObjectName(name);
    list->setAccessibleName(label.text());
    for (std::string_view const offer : offers) {
        list->addItem(ToQt(offer));
    }
    list->setMaxVisibleItems(list->count());
    list->setCurrentText(ToQt(text)); // chooses the item too, which it would not in an editable list
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->lineEdit()->setAccessibleName(label.text()); // it is what has the focus
    label.setBuddy(list);
    return list;
}

QGroupBox* MakeFrame(QWidget& window, char const* name, char const* caption) {
    auto* frame = new QGroupBox(QString::fromLatin1(caption), &window);
    frame->setObjectName(QString::fromLatin1(name));
    return frame;
}

} // namespace

frmConvertCustom::frmConvertCustom(QWidget* parent, platform::Files& files, platform::Dialogs& dialogs,
                                   platform::PrintQueue& printing, std::function<void()> showHelp)
    : ConvertWindow(parent, CustomTexts(), files, dialogs, printing),
      showHelp_(std::move(showHelp)) {
    CustomChoices const choices = InitialChoices();
    AddFileFormat(choices);
    AddFields(choices);
    QList<QWidget*> tabStops = {numFields_, fieldDelimiter_, dateFormat_};
    for (std::int16_t row = 1; row <= MostFields; ++row) {
        tabStops.append(rows_[row].Name);
    }
    PutTabStopsFirst(tabStops);
    constexpr int UsualWidth = 640;
    TakeWidth(UsualWidth);
    // The rows follow what is typed; a number that is not finished is nothing to complain about yet.
    connect(numFields_, &QComboBox::currentTextChanged, this,
            [this] { static_cast<void>(text::Trap([this] { ShowRows(); })); });
    // Once the click that left the entry is over: a message would keep the button pressed.
    connect(
        numFields_->lineEdit(), &QLineEdit::editingFinished, this,
        [this] { platform::qt::RunGuarded(*this, [this] { CheckNumFields(); }); }, Qt::QueuedConnection);
    ShowRows();
}

void frmConvertCustom::AddFileFormat(CustomChoices const& choices) {
    QGroupBox* frame = MakeFrame(*this, "Frame1", "Source File Format");
    auto* row = new QHBoxLayout(frame);
    auto const add = [&](char const* name, char const* caption, std::span<std::string_view const> offers,
                         std::string_view text) {
        auto* label = new QLabel(QString::fromLatin1(caption), frame);
        QComboBox* list = MakeList(QString::fromLatin1(name), *label, offers, text);
        row->addWidget(label);
        row->addWidget(list);
        row->addStretch();
        return list;
    };
    std::vector<std::string> counts;
    for (std::int16_t count = 1; count <= MostFields; ++count) {
        counts.push_back(std::to_string(count));
    }
    std::vector<std::string_view> const numbers(counts.begin(), counts.end());
    numFields_ = add("cboNumFields", "No. of Fields", numbers, choices.NumFields);
    fieldDelimiter_ = add("cboFieldDelimiter", "Field Delimiter", FieldDelimiters, choices.FieldDelimiter);
    dateFormat_ = add("cboDateFormat", "Date Format", DateFormats, choices.DateFormat);
    LayoutFrames().addWidget(frame);
}

void frmConvertCustom::AddFields(CustomChoices const& choices) {
    QGroupBox* frame = MakeFrame(*this, "Frame4", "Source Field Names and Order");
    auto* grid = new QGridLayout(frame);
    for (std::int16_t row = 1; row <= MostFields; ++row) {
        AddField(row, choices.Names[row], *grid);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    LayoutFrames().addWidget(frame);
}

// Five rows stand under each other, the other five beside them.
void frmConvertCustom::AddField(std::int16_t row, std::string const& name, QGridLayout& grid) {
    constexpr int RowsOfColumn = MostFields / 2;
    std::vector<std::string_view> offers = {NotUsed};
    offers.insert(offers.end(), FieldNames.begin(), FieldNames.end());
    auto* caption = new QLabel(QStringLiteral("Field %1").arg(row), grid.parentWidget());
    caption->setObjectName(QStringLiteral("txtField_%1").arg(row));
    rows_[row] = {caption, MakeList(QStringLiteral("cboField_%1").arg(row), *caption, offers, name)};
    int const column = (row - 1) / RowsOfColumn * 2;
    grid.addWidget(caption, (row - 1) % RowsOfColumn, column);
    grid.addWidget(rows_[row].Name, (row - 1) % RowsOfColumn, column + 1);
    for (QWidget* control : {static_cast<QWidget*>(caption), static_cast<QWidget*>(rows_[row].Name)}) {
        QSizePolicy policy = control->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // the window keeps its shape
        control->setSizePolicy(policy);
    }
}

void frmConvertCustom::ShowRows() {
    std::int16_t const count = ShownRows(FromQt(numFields_->currentText()));
    for (std::int16_t row = 1; row <= MostFields; ++row) {
        rows_[row].Caption->setVisible(row <= count);
        rows_[row].Name->setVisible(row <= count);
    }
}

// Enter finishes the entry without leaving it, and like a click on Convert starts a conversion, which itself
// tells what is wrong.
void frmConvertCustom::CheckNumFields() {
    if (numFields_->lineEdit()->hasFocus() || platform::qt::TopmostOf(*this) != this || !isVisible()) {
        return;
    }
    if (auto const fault = text::Trap([this] { ShowRows(); })) {
        Dialogs().Show(Complaint(fault->Description()));
    }
}

std::unique_ptr<SourceLayout> frmConvertCustom::ReadLayout() {
    CustomChoices choices;
    choices.NumFields = FromQt(numFields_->currentText());
    choices.FieldDelimiter = FromQt(fieldDelimiter_->currentText());
    choices.DateFormat = FromQt(dateFormat_->currentText());
    for (std::int16_t row = 1; row <= MostFields; ++row) {
        choices.Names[row] = FromQt(rows_[row].Name->currentText());
    }
    auto const description = ReadDescription(choices, Dialogs());
    return description ? std::make_unique<CustomLayout>(*description) : nullptr;
}

void frmConvertCustom::ShowHelp() {
    showHelp_();
}

} // namespace quorvex::convert::ui
