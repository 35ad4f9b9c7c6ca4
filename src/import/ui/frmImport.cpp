// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/frmImport.h"

#include "import/basTelling.h"
#include "import/ui/ChoiceTexts.h"
#include "platform/basFiles.h"
#include "platform/basMessages.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"
#include "quotes/basQuotes.h"
#include "text/RunTimeError.h"
#include "text/basDates.h"
#include "text/basTexts.h"
#include "ui_frmImport.h"

#include <QDir>
#include <QSignalBlocker>
#include <algorithm>
#include <exception>
#include <utility>

namespace quorvex::imports::ui {

namespace {

using platform::pictures::FromQt;
using platform::pictures::ToQt;

constexpr int RowHeight = 22;
constexpr int PlanRowsShown = 9;
constexpr int TypingPause = 400; // milliseconds, after which a date is taken for typed

template <class Value>
QString OnlyName(std::vector<Value> const& values) {
    return values.size() == 1 ? ToQt(NameOf(values.front())) : QString();
}

} // namespace

frmImport::frmImport(QWidget* parent, quotes::QuoteSeries const& series, settings::Settings const& settings,
                     platform::Files& files, platform::Dialogs& dialogs)
    : QDialog(parent),
      series_(series),
      settings_(settings),
      files_(files),
      dialogs_(dialogs),
      ui_(std::make_unique<Ui::frmImport>()),
      preview_(new TablePreview(this)),
      thread_(
          [this](TableNews const& news) {
              QMetaObject::invokeMethod(
                  this, [this, news] { Take(news); }, Qt::QueuedConnection);
          },
          files) {
    ui_->setupUi(this);
    PrepareTables();
    FillBoxes();
    ConnectBoxes();
}

frmImport::~frmImport() = default;

void frmImport::PrepareTables() {
    ui_->tblTable->setModel(preview_);
    ui_->tblTable->horizontalHeader()->setHighlightSections(false);
    ui_->boxes->Follow(*ui_->tblTable);
    ui_->tblTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui_->tblTable->verticalHeader()->setDefaultSectionSize(RowHeight);
    ui_->tblTable->verticalHeader()->setHighlightSections(false);
    QTableWidget& plan = *ui_->tblPlan;
    plan.verticalHeader()->hide();
    plan.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    plan.verticalHeader()->setDefaultSectionSize(RowHeight);
    plan.horizontalHeader()->setHighlightSections(false);
    plan.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    plan.horizontalHeader()->setStretchLastSection(true);
    plan.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    plan.setMinimumHeight(PlanRowsShown * RowHeight + plan.horizontalHeader()->sizeHint().height() +
                          2 * plan.frameWidth());
    ui_->lstFindings->setModel(&findings_);
    QSizePolicy policy = ui_->prgImport->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the buttons stay where they are
    ui_->prgImport->setSizePolicy(policy);
}

template <class Values, class Value, class Name>
void frmImport::Bind(QComboBox& box, Values const& values, std::optional<Value> Choices::*choice,
                     Name nameOf) {
    box.addItem(Automatic());
    for (auto const& value : values) {
        box.addItem(nameOf(value));
    }
    connect(&box, &QComboBox::activated, this, [this, &box, &values, choice](int index) {
        chosen_.*choice =
            index == 0 ? std::nullopt : std::optional<Value>(values.at(static_cast<std::size_t>(index - 1)));
        if (&box == ui_->cboSeparator || &box == ui_->cboEncoding) {
            roles_.Clear(); // the columns are others now
        }
        StartReading();
    });
}

void frmImport::FillBoxes() {
    auto const name = [](auto value) { return ToQt(NameOf(value)); };
    Bind(*ui_->cboEncoding, EncodingChoices, &Choices::Encoding, name);
    Bind(*ui_->cboSeparator, SeparatorChoices, &Choices::Separator, name);
    Bind(*ui_->cboDates, DateOrderChoices, &Choices::DateOrder, name);
    Bind(*ui_->cboDecimal, DecimalChoices, &Choices::Decimal, name);
    Bind(*ui_->cboFraction, FractionChoices, &Choices::Fraction, FractionName);
}

void frmImport::ConnectBoxes() {
    connect(ui_->boxes, &RoleBoxes::RoleChosen, this, [this](int column, int choice) {
        roles_.Choose(column, RoleChoices.at(static_cast<std::size_t>(choice)));
        StartReading();
    });
    connect(ui_->cboSymbol, &QComboBox::activated, this, [this](int index) {
        chosen_.Symbol = ui_->cboSymbol->ContractAt(index);
        StartReading();
    });
    connect(ui_->chkAnyBars, &QCheckBox::toggled, this, [this](bool takes) {
        chosen_.TakesAnyBars = takes;
        StartReading();
    });
    connect(ui_->cmdAsFound, &QPushButton::clicked, this, [this] {
        ClearChoices();
        StartReading();
    });
    for (QLineEdit* box : {ui_->txtFrom, ui_->txtTo}) {
        connect(box, &QLineEdit::textChanged, this, [this] { WaitForTyping(); });
        connect(box, &QLineEdit::editingFinished, this, [this] {
            if (typing_.isActive()) {
                StartReading();
            }
        });
    }
    typing_.setSingleShot(true);
    typing_.setInterval(TypingPause);
    connect(&typing_, &QTimer::timeout, this, [this] { StartReading(); });
    auto const prepare = [this] {
        PrepareFile();
        ShowState();
    };
    connect(ui_->txtQuoteFile, &QLineEdit::textChanged, this, prepare);
    connect(ui_->spnDays, &QSpinBox::valueChanged, this, prepare);
    connect(ui_->chkReplace, &QCheckBox::toggled, this, prepare);
    auto const guard = [this](void (frmImport::*routine)()) {
        return [this, routine] { platform::qt::RunGuarded(*this, [this, routine] { (this->*routine)(); }); };
    };
    connect(ui_->cmdBrowse, &QPushButton::clicked, this, guard(&frmImport::Browse));
    connect(ui_->cmdImport, &QPushButton::clicked, this, guard(&frmImport::Import));
    connect(ui_->cmdUpdate, &QPushButton::clicked, this, guard(&frmImport::Update));
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

std::optional<ImportedFile> frmImport::RunModal(ImportSource const& source) {
    source_ = source;
    imported_.reset();
    std::string const name =
        source.Text ? std::string("pasted table") : std::string(platform::BareName(source.Path));
    platform::qt::SetCaption(*this, "Quorvex - Import - [" + name + "]");
    platform::qt::CentreForm(*this);
    ClearChoices();
    {
        QSignalBlocker const from(ui_->txtFrom);
        QSignalBlocker const to(ui_->txtTo);
        QSignalBlocker const replace(ui_->chkReplace);
        QSignalBlocker const file(ui_->txtQuoteFile);
        ui_->txtFrom->clear();
        ui_->txtTo->clear();
        ui_->chkReplace->setChecked(false);
        ui_->txtQuoteFile->setText(ToQt(SuggestedName()));
    }
    ui_->cboEncoding->setEnabled(!source.Text);
    StartReading();
    ui_->txtQuoteFile->setFocus();
    ui_->txtQuoteFile->selectAll();
    exec();
    return imported_;
}

void frmImport::done(int result) {
    thread_.Stop();
    typing_.stop();
    number_ = 0;
    source_ = {};
    look_.reset();
    read_.reset();
    prepared_.Clear();
    preview_->Show({});
    QDialog::done(result);
}

void frmImport::ClearChoices() {
    chosen_ = {};
    roles_.Clear();
    for (QComboBox* box :
         {ui_->cboEncoding, ui_->cboSeparator, ui_->cboDates, ui_->cboDecimal, ui_->cboFraction}) {
        box->setCurrentIndex(0);
    }
    ui_->cboSymbol->Offer({}, std::nullopt);
    QSignalBlocker const bars(ui_->chkAnyBars);
    ui_->chkAnyBars->setChecked(false);
}

bool frmImport::TakeLimits(Limits& limits) {
    struct Box {
        QLineEdit const& Edit;
        std::optional<text::CalendarDay>& Day;
    };

    for (Box const& box : {Box{*ui_->txtFrom, limits.From}, Box{*ui_->txtTo, limits.To}}) {
        std::string const typed = FromQt(box.Edit.text().trimmed());
        box.Day = text::ParseDate(typed);
        if (!box.Day && !typed.empty()) {
            fault_ = typed + " is no date such as 01/31/24.";
            return false;
        }
    }
    if (limits.From && limits.To && *limits.From > *limits.To) {
        fault_ = "From " + text::FormatDate(*limits.From) + " lies behind To " +
                 text::FormatDate(*limits.To) + ".";
        return false;
    }
    return true;
}

// A date that is being typed is none yet, and each key would begin the reading anew.
void frmImport::WaitForTyping() {
    fault_.clear();
    read_.reset();
    ui_->prgImport->setValue(0);
    typing_.start();
    EndReading();
}

void frmImport::StartReading() {
    typing_.stop();
    fault_.clear();
    read_.reset();
    chosen_.Columns = roles_.Columns();
    ui_->prgImport->setValue(0);
    Limits limits;
    if (TakeLimits(limits)) {
        number_ = thread_.Start({source_, chosen_, limits});
        PrepareFile();
        ShowState();
    } else {
        EndReading();
    }
}

void frmImport::EndReading() {
    thread_.Stop();
    number_ = 0;
    PrepareFile();
    ShowState();
}

void frmImport::Take(TableNews const& news) {
    if (news.Number != number_) {
        return; // of a reading that was ended
    }
    if (news.Looked) {
        look_ = news.Looked;
        preview_->Show(look_);
        ui_->boxes->ShowRoles(*preview_);
        ui_->boxes->FitColumns();
        OrderTabs();
        ShowPlan(look_->Made);
        ShowChoices(look_->Made);
    } else if (!news.IsOver) {
        ui_->prgImport->setValue(static_cast<int>(news.Share * ui_->prgImport->maximum()));
    }
    if (!news.IsOver) {
        return;
    }
    read_ = news.Read;
    if (read_) {
        preview_->ShowFindings(*read_);
        ShowChoices(read_->Used);
        ui_->cboSymbol->Offer(read_->Symbols, chosen_.Symbol);
    }
    if (news.Fault) {
        platform::qt::RunGuarded(*this, [&] {
            if (auto const fault = text::Trap([&] { std::rethrow_exception(news.Fault); })) {
                fault_ = std::string(fault->Description()) + ".";
            }
        });
    }
    EndReading();
}

// The boxes above the table come with its first columns.
void frmImport::OrderTabs() {
    QWidget* before = ui_->cmdAsFound;
    for (QComboBox* box : ui_->boxes->Boxes()) {
        setTabOrder(std::exchange(before, box), box);
    }
    setTabOrder(before, ui_->tblTable);
}

void frmImport::PrepareFile() {
    if (!read_ || read_->Refused) {
        prepared_.Clear();
        return;
    }
    prepared_.Prepare(
        *read_, {TargetPath(), static_cast<std::size_t>(ui_->spnDays->value()), ui_->chkReplace->isChecked()},
        files_);
}

void frmImport::ShowPlan(Plan const& plan) {
    auto const rows = PlanRows(plan);
    QTableWidget& table = *ui_->tblPlan;
    table.setRowCount(static_cast<int>(rows.size()));
    int index = 0;
    for (PlanRow const& row : rows) {
        int column = 0;
        for (std::string const* text : {&row.Is, &row.Column, &row.Why}) {
            auto* item = new QTableWidgetItem(ToQt(*text));
            item->setToolTip(item->text());
            table.setItem(index, column++, item);
        }
        ++index;
    }
    table.scrollToTop();
}

void frmImport::ShowChoices(Plan const& plan) {
    ui_->cboEncoding->setItemText(0, Found(chosen_.Encoding ? QString() : ToQt(NameOf(plan.EncodedIn))));
    ui_->cboSeparator->setItemText(0, Found(chosen_.Separator ? QString() : ToQt(NameOf(plan.SeparatedBy))));
    ui_->cboDates->setItemText(0, Found(chosen_.DateOrder ? QString() : OnlyName(plan.DateOrders)));
    ui_->cboDecimal->setItemText(0, Found(chosen_.Decimal ? QString() : OnlyName(plan.Decimals)));
}

void frmImport::ShowState() {
    ui_->lblResult->setText(ResultText());
    findings_.setStringList(FindingTexts());
    ShowButtons();
}

QString frmImport::ResultText() const {
    if (IsReading()) {
        return QStringLiteral("Reading...");
    }
    if (!read_) {
        return ToQt(fault_);
    }
    QString const text = ToQt(DescribeConversion(*read_));
    return read_->Refused ? text + HowToSettle(read_->Refused->SettledBy)
                          : text + u'\n' + ToQt(prepared_.Describe());
}

QStringList frmImport::FindingTexts() const {
    QStringList texts;
    if (!read_) {
        return texts;
    }
    // In front: behind a thousand rows that are left out nobody would find it.
    if (std::string const rounding = prepared_.Rounding(settings_.CurrencyFormat); !rounding.empty()) {
        texts.append(ToQt(rounding));
    }
    for (auto const& lines : {prepared_.Changes(), FindingLines(*read_)}) {
        for (std::string const& line : lines) {
            texts.append(ToQt(line));
        }
    }
    if (preview_->ColumnsInAll() > MostShownColumns) {
        texts.append(QStringLiteral("Of %1 columns the first %2 are shown")
                         .arg(preview_->ColumnsInAll())
                         .arg(MostShownColumns));
    }
    return texts;
}

// While a table is read Enter writes nothing.
void frmImport::ShowButtons() {
    bool const isReading = IsReading();
    ui_->prgImport->setVisible(isReading);
    ui_->cmdCancel->setVisible(isReading);
    ui_->cmdClose->setVisible(!isReading);
    bool const canUpdate = prepared_.CanUpdate();
    ui_->cmdImport->setEnabled(prepared_.CanImport());
    ui_->cmdUpdate->setEnabled(canUpdate || prepared_.MayReadNextTime());
    ui_->cmdUpdate->setDefault(canUpdate);
    ui_->cmdImport->setDefault(prepared_.CanImport() && !canUpdate);
    ui_->chkReplace->setEnabled(prepared_.HasChanges());
}

std::string frmImport::SuggestedName() const {
    if (source_.Text) {
        return series_.HasQuotes() ? series_.QuoteFileName : "Pasted.txt";
    }
    std::string const source(platform::BareName(source_.Path));
    std::string const stem = source.substr(0, source.rfind('.'));
    std::string const name = stem + ".txt";
    // One that is there is meant, however it is spelled.
    bool const isPattern = name.find_first_of("*?") != std::string::npos;
    auto const there = isPattern ? std::vector<std::string>() : files_.List(settings_.DataPath, name);
    std::string const& found = there.empty() ? name : there.front();
    return settings_.DataPath + found == source_.Path ? stem + " quotes.txt" : found;
}

std::string frmImport::TargetPath() const {
    QString const typed = ui_->txtQuoteFile->text().trimmed();
    if (typed.isEmpty()) {
        return {};
    }
    return QDir::isAbsolutePath(typed) ? FromQt(typed) : settings_.DataPath + FromQt(typed);
}

void frmImport::Browse() {
    std::string const path = TargetPath();
    std::string const name(platform::BareName(path));
    std::string const chosen = dialogs_.AskWhereToSave(
        {.Title = "Quote File",
         .Folder = path.empty() ? settings_.DataPath : path.substr(0, path.size() - name.size()),
         .Name = name,
         .Filter = "Quote files (*.txt)|*.txt",
         .Ending = "txt"});
    if (chosen.empty()) {
        return;
    }
    bool const isInDataFolder = chosen == settings_.DataPath + std::string(platform::BareName(chosen));
    ui_->txtQuoteFile->setText(ToQt(isInDataFolder ? platform::BareName(chosen) : std::string_view(chosen)));
}

void frmImport::Import() {
    std::string const path = TargetPath();
    std::string const name(platform::BareName(path));
    if (!quotes::RequireQuoteFileName(name, dialogs_)) {
        return;
    }
    if (!platform::IsThere(files_, path) || platform::MayReplace(dialogs_, name, "Import")) {
        Write(path, prepared_.Made());
    }
}

// The file may be another one by now than when it was looked at, and a fault that kept it from being read may
// be gone.
void frmImport::Update() {
    PrepareFile();
    ShowState();
    prepared_.RequireFile();
    if (prepared_.CanUpdate()) {
        Write(TargetPath(), prepared_.Updated());
    }
}

void frmImport::Write(std::string const& path, QuoteFile const& file) {
    files_.Replace(path, QuoteText(file.Days));
    std::string const name(platform::BareName(path));
    imported_ = ImportedFile{path.substr(0, path.size() - name.size()), name};
    accept();
}

} // namespace quorvex::imports::ui
