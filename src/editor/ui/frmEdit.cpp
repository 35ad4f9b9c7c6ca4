// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/frmEdit.h"

#include "editor/basEdit.h"
#include "editor/basListing.h"
#include "editor/basSave.h"
#include "editor/tables/basTables.h"
#include "editor/ui/CellMenu.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/NominalFrame.h"
#include "platform/qt/QtDialogs.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

namespace quorvex::editor::ui {

namespace {

using platform::pictures::ToQt;

constexpr QSize InitialSize(940, 680);

} // namespace

frmEdit::frmEdit(QWidget* parent, quotes::QuoteSeries& series, settings::Settings const& settings,
                 platform::Files& files, platform::Dialogs& dialogs, platform::PrintQueue& printer,
                 platform::MousePointer& pointer)
    : QDialog(parent),
      series_(series),
      settings_(settings),
      files_(files),
      dialogs_(dialogs),
      printer_(printer),
      pointer_(pointer),
      client_(new QWidget(this)),
      spread_(new SpreadGrid(*client_)),
      status_(new StatusLine(*client_)),
      editor_(std::make_unique<Editor>(Editor{spread_->Cells(), *spread_, {}, 0})),
      unsaved_(files) {
    setObjectName(QStringLiteral("frmEdit"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    platform::qt::WindowMenu menu(*this);
    AddFileMenu(menu);
    AddEditMenu(menu);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setMenuBar(&menu.Bar());
    column->addWidget(client_);
    connect(spread_, &SpreadGrid::CellsLeftOut, this, [this] {
        Run([this] {
            dialogs_.Show({"Cells beyond the last row or column of the grid were left out.\n"
                           "Append Row adds a row at its end.",
                           "Edit", platform::Icon::Exclamation});
        });
    });
    connect(spread_, &SpreadGrid::Edited, this, &frmEdit::ForgetStatus);
    connect(spread_, &SpreadGrid::Edited, this, [this] { Record(); });
    connect(spread_, &SpreadGrid::OthersPasted, this, [this](QString const& text) {
        if (auto const reading = tables::FindReading(platform::pictures::FromQt(text)); !reading.empty()) {
            status_->Tell(ToQt("Pasted as it stands: " + reading));
        }
    });
    spread_->OfferTables([this](std::int16_t row, std::string const& text) { return PasteTable(row, text); });
    connect(spread_, &SpreadGrid::UndoWanted, this, Runs([this] { Undo(); }));
    connect(spread_, &SpreadGrid::RedoWanted, this, Runs([this] { Redo(); }));
    connect(spread_, &SpreadGrid::MenuWanted, this, &frmEdit::ShowMenu);
    connect(spread_->model(), &QAbstractItemModel::rowsInserted, this, &frmEdit::ForgetStatus);
    connect(spread_->model(), &QAbstractItemModel::rowsRemoved, this, &frmEdit::ForgetStatus);
    resize(InitialSize.boundedTo(screen()->availableSize()));
}

frmEdit::~frmEdit() = default;

void frmEdit::AddFileMenu(platform::qt::WindowMenu& menu) {
    menu.Menu("mnuFile", "&File")
        .Item("mnuFileSave", "&Save",
              Runs([this] { Finish(SaveEdits(*editor_, series_, settings_, files_, dialogs_)); }))
        .Item("mnuFileSaveAs", "Save &As...",
              Runs([this] { Finish(SaveEditsAs(*editor_, series_, settings_, files_, dialogs_)); }))
        .Separator()
        .Item("mnuFilePrint", "&Print",
              Runs([this] { PrintQuotes(*editor_, series_.QuoteFileName, settings_, printer_, pointer_); }))
        .Separator()
        .Item("mnuFileExit", "E&xit", Runs([this] { accept(); }));
}

void frmEdit::AddEditMenu(platform::qt::WindowMenu& menu) {
    menu.Menu("mnuEdit", "&Edit")
        .Item("mnuEditInsert", "&Insert Row", Runs([this] { InsertRow(*editor_, settings_, dialogs_); }))
        .Item("mnuEditAppend", "&Append Row", Runs([this] { AppendRow(*editor_, settings_, dialogs_); }))
        .Separator()
        .Item("mnuEditDelete", "&Delete Row", Runs([this] { DeleteRow(*editor_, settings_, dialogs_); }))
        .Item("mnuEditHelp", "&Help", Runs([this] { ShowEditHelp(dialogs_); }));
}

frmEdit::Command frmEdit::Runs(Command command) {
    return [this, run = std::move(command)] { Run(run); };
}

void frmEdit::Run(Command const& command) {
    {
        auto const restore = qScopeGuard([this, before = std::exchange(isBusy_, true)] { isBusy_ = before; });
        platform::qt::RunGuarded(*this, [&] {
            spread_->FinishTyping();
            command();
        });
        platform::qt::RunGuarded(*this, [this] { Record(); });
    }
    // Not the menu that the command was chosen from.
    spread_->setFocus();
    // Some desktops tell only now, and some more than once, that a box has closed.
    isUntouched_ = true;
}

void frmEdit::Record(ChangeKind kind) {
    Keep(history_.Record(*editor_), kind);
}

void frmEdit::Undo() {
    ShowUndone(history_.Undo(*editor_));
}

void frmEdit::Redo() {
    ShowUndone(history_.Redo(*editor_));
}

void frmEdit::ShowUndone(Change const& change) {
    if (change.IsShown()) {
        ForgetStatus();
    }
    Keep(change, ChangeKind::Edit);
}

void frmEdit::RestoreUnsaved() {
    std::string told = unsaved_.Restore(*editor_, dialogs_);
    if (told.empty()) {
        return;
    }
    if (unsaved_.HasKept()) {
        told += ". Restore Older Edits brings back those that were made before them";
    }
    Change const change = history_.Record(*editor_);
    GotoPlace(*editor_, change.FirstCell());
    status_->Tell(ToQt(told));
    Keep(change, ChangeKind::Edit);
}

void frmEdit::ForgetUnsaved() {
    if (unsaved_.Forget(dialogs_)) {
        ForgetStatus(); // which may have offered them
    }
}

void frmEdit::Keep(Change const& change, ChangeKind kind) {
    auto const error = text::Trap([&] { unsaved_.Keep(change, kind, *editor_); });
    if (error || change.IsShown()) {
        TellNotKept(error);
    }
}

void frmEdit::TellNotKept(std::optional<text::RunTimeError> const& error) {
    bool const isShown = status_->text().isEmpty() || status_->text() == notKept_;
    notKept_ = error ? ToQt("Unsaved edits cannot be kept: " + std::string(error->Description()) +
                            ". What is not saved is lost when the editor is closed.")
                     : QString();
    if (isShown) {
        ForgetStatus();
    }
}

bool frmEdit::PasteTable(std::int16_t row, std::string const& text) {
    bool const isTable = tables::IsTable(text);
    if (isTable) {
        Run([&] {
            auto const told = tables::PasteTable(*editor_, row, text, series_.Master, settings_, dialogs_);
            if (!told.empty()) {
                status_->Tell(ToQt(told));
            }
        });
    }
    return isTable;
}

void frmEdit::ShowMenu(QPoint place) {
    bool const hasCursor = spread_->currentIndex().isValid();
    ShowCellMenu(*this, place,
                 {{QStringLiteral("mnuCellsUndo"), QStringLiteral("&Undo"), QKeySequence::Undo,
                   history_.CanUndo(), Runs([this] { Undo(); })},
                  {QStringLiteral("mnuCellsRedo"), QStringLiteral("&Redo"), Qt::CTRL | Qt::Key_Y,
                   history_.CanRedo(), Runs([this] { Redo(); })},
                  {},
                  {QStringLiteral("mnuCellsCut"), QStringLiteral("Cu&t"), QKeySequence::Cut, hasCursor,
                   Runs([this] { spread_->Cut(); })},
                  {QStringLiteral("mnuCellsCopy"), QStringLiteral("&Copy"), QKeySequence::Copy, hasCursor,
                   Runs([this] { spread_->Copy(); })},
                  {QStringLiteral("mnuCellsPaste"), QStringLiteral("&Paste"), QKeySequence::Paste, true,
                   Runs([this] { spread_->Paste(); })},
                  {QStringLiteral("mnuCellsClear"), QStringLiteral("C&lear"), Qt::Key_Delete, hasCursor,
                   Runs([this] { spread_->Clear(); })},
                  {},
                  {QStringLiteral("mnuCellsRestore"), RestoreCaption(), {}, unsaved_.HasKept(), Runs([this] {
                       RestoreUnsaved();
                   })},
                  {QStringLiteral("mnuCellsForget"),
                   QStringLiteral("&Forget Unsaved Edits..."),
                   {},
                   unsaved_.HasKept(),
                   Runs([this] { ForgetUnsaved(); })}});
    isUntouched_ = true; // a menu that closes late must not drop what was typed either
}

QString frmEdit::RestoreCaption() const {
    bool const areOlder = unsaved_.HasKept() && unsaved_.AreKeptOlder();
    return areOlder ? QStringLiteral("Re&store Older Edits") : QStringLiteral("Restore Un&saved Edits");
}

void frmEdit::Finish(SaveResult const& result) {
    std::string told = result.Status;
    if (result.IsSaved) {
        history_.Record(*editor_); // the sorting, which was saved as well
        notKept_.clear();
        std::string const left = unsaved_.Saved(*editor_, series_, settings_);
        told += left.empty() ? left : ". " + left;
    }
    if (!told.empty()) {
        status_->Tell(ToQt(told));
    }
}

void frmEdit::ForgetStatus() {
    status_->Tell(notKept_);
}

void frmEdit::RunModal() {
    platform::qt::CentreForm(*this);
    platform::qt::RunGuarded(*this, [this] { LoadQuotes(); });
    isUntouched_ = false;
    spread_->setFocus();
    qApp->installEventFilter(this);
    exec();
    qApp->removeEventFilter(this);
}

void frmEdit::LoadQuotes() {
    PlaceGrid(); // the width of the columns follows from its width
    OpenEditor(*editor_, series_);
    notKept_.clear();
    platform::qt::SetCaption(*this, EditorCaption(series_));
    spread_->GotoCell(editor_->EditCount > 0 ? 1 : 0, 1);
    RebuildGrid(*editor_, settings_);
    history_.Start(*editor_);
    status_->Tell(ToQt(unsaved_.Open(*editor_, series_, settings_)));
}

void frmEdit::PlaceGrid() {
    SizeGrid(*spread_, platform::qt::OuterWidth(client_->size()), platform::qt::OuterHeight(client_->size()));
    int const top = spread_->geometry().bottom() + 1;
    status_->setGeometry(0, top, client_->width(), client_->height() - top);
}

void frmEdit::Activate() {
    PlaceGrid();
    RebuildGrid(*editor_, settings_);
    Record(ChangeKind::Refill);
}

bool frmEdit::event(QEvent* event) {
    // Closing a box of a command activates the window as well. That must not drop what was typed: the user
    // has just been told which cell to mend, and a save may not have come to its end. An activation that is
    // meant comes with the keyboard back from another program, after something was done here.
    if (event->type() == QEvent::WindowActivate && !isBusy_ && !isUntouched_) {
        platform::qt::RunGuarded(*this, [this] { Activate(); });
    }
    return QDialog::event(event);
}

bool frmEdit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) {
        isUntouched_ = false;
    }
    if (watched == client_ && event->type() == QEvent::Resize) {
        // A desktop may change the window's size while a box is open: the command goes on with what was
        // typed.
        platform::qt::RunGuarded(*this, [this] { isBusy_ ? PlaceGrid() : Activate(); });
    }
    return QDialog::eventFilter(watched, event);
}

void frmEdit::keyPressEvent(QKeyEvent* event) {
    // Escape gives up the typing of a cell; pressed once too often, it must not give up all that was typed.
    if (event->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quorvex::editor::ui
