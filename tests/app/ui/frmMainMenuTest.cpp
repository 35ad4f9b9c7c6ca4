// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/MenuTable.h"
#include "app/ui/basResources.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/CarriedImage.h"
#include "windows/RunningWindow.h"
#include "windows/WindowTest.h"

#include <QAccessible>
#include <QDir>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

namespace quorvex::tests {

using namespace Qt::StringLiterals;
using platform::pictures::FromQt;

namespace {

QStringList const ExpectedMenu = {
    u"mnuFile \"&File\""_s,
    u"  mnuFileOpen \"&Open\""_s,
    u"  mnuFileClose \"&Close\""_s,
    u"  Sep1000 \"-\""_s,
    u"  mnuFileEdit \"&Edit\""_s,
    u"  mnuFileSaveAs \"Save &As...\""_s,
    u"  Sep2000 \"-\""_s,
    u"  mnuFileConvert \"Con&vert\""_s,
    u"    mnuFileConvertCSI \"Commodity Systems, Inc.\""_s,
    u"    mnuFileConvertBARCHART \"Barchart\""_s,
    u"    mnuSep393 \"-\""_s,
    u"    mnuFileConvertCustom \"Custom\""_s,
    u"  Sep3000 \"-\""_s,
    u"  mnuFilePrint \"&Print\""_s,
    u"  mnuFilePrintSetup \"Print Set&up\""_s,
    u"  mnuFileSep \"-\""_s,
    u"  mnuFileProperties \"P&roperties\""_s,
    u"  mnuFileSep7 \"-\""_s,
    u"  mnuFileExit \"E&xit\""_s,
    u"mnuParameters \"&Parameters\""_s,
    u"  mnuParametersNew \"&New\""_s,
    u"  mnuParametersOpen \"&Open\""_s,
    u"  mnuParametersSep11 \"-\""_s,
    u"  mnuParametersSave \"&Save\""_s,
    u"  mnuParametersSaveAs \"Save &As...\""_s,
    u"  mnuQuotesSep1 \"-\""_s,
    u"  mnuParametersAutomate \"&Automate\""_s,
    u"    mnuParametersAutomate1 \"&One Cycle\""_s,
    u"    mnuParametersAutomate2 \"&Two Cycles\""_s,
    u"    mnuParametersAutomate3 \"T&hree Cycles\""_s,
    u"  mnuQuotesSep2 \"-\""_s,
    u"  mnuParametersPrint \"&Print\""_s,
    u"mnuRefresh \"&Refresh\""_s,
    u"mnuForecast \"F&orecast\""_s,
    u"mnuCorrelation \"&Correlation\""_s,
    u"mnuPreferences \"Pr&eferences\""_s,
    u"mnuLegend \"&Legend\""_s,
    u"mnuHelp \"&Help\""_s,
    u"  mnuHelpReadMe \"&Read Me\""_s,
    u"  mnuHelpQuickStart \"&Quick Start\""_s,
    u"  mnuHelpUserManual \"&User Manual\""_s,
    u"  mnuHelpSep11 \"-\""_s,
    u"  mnuHelpIndex \"&Index\""_s,
    u"  mnuHelpCommoditySymbols \"&Commodity Symbols\""_s,
    u"  mnuHelpSep \"-\""_s,
    u"  mnuHelpAbout \"&About Quorvex\""_s,
};

// Every item below the actions as 'name "caption"', indented by its depth.
QStringList Outline(QList<QAction*> const& actions, QString const& indent) {
    QStringList lines;
    for (QAction* action : actions) {
        QString const caption = action->isSeparator() ? u"-"_s : action->text();
        lines.append(u"%1%2 \"%3\""_s.arg(indent, action->objectName(), caption));
        if (QMenu const* menu = action->menu(); menu != nullptr) {
            lines += Outline(menu->actions(), indent + u"  "_s);
        }
    }
    return lines;
}

QList<QAction*> AllItems(QList<QAction*> const& actions) {
    QList<QAction*> items;
    for (QAction* action : actions) {
        items.append(action);
        if (QMenu const* menu = action->menu(); menu != nullptr) {
            items += AllItems(menu->actions());
        }
    }
    return items;
}

} // namespace

class frmMainMenuTest final : public WindowTest {
    Q_OBJECT

private Q_SLOTS:

    void EveryItemStandsInItsPlaceUnderItsNameAndCaption() {
        RunningWindow main;
        QStringList const shown = Outline(main.Window->menuBar()->actions(), QString());
        for (qsizetype line = 0; line < std::min(shown.size(), ExpectedMenu.size()); ++line) {
            QCOMPARE(shown[line], ExpectedMenu[line]);
        }
        QCOMPARE(shown.size(), ExpectedMenu.size());
    }

    void EveryRowOfTheTableIsAnItemAndEveryItemARow() {
        RunningWindow main;
        auto const items = AllItems(main.Window->menuBar()->actions());
        QCOMPARE(static_cast<std::size_t>(items.size()), app::MenuTable().size());
        for (app::MenuRow const& row : app::MenuTable()) {
            QAction const& item = main.Item(platform::pictures::ToQt(row.Name));
            QCOMPARE(item.isSeparator(), row.Caption == app::SeparatorCaption);
        }
        for (QAction const* item : items) {
            std::string const name = FromQt(item->objectName());
            auto const rows = app::MenuTable();
            auto const row = std::ranges::find(rows, name, &app::MenuRow::Name);
            QVERIFY2(row != rows.end(), name.c_str());
            QCOMPARE(row->Run != nullptr, item->menu() == nullptr && !item->isSeparator());
        }
    }

    void InTheFileMenuVOpensConvertAndCCloses() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        main.Answers.Next([&main](QWidget& menu) {
            main.Answers.Next([](QWidget& inner) { QTest::keyClick(&inner, Qt::Key_Escape); });
            QTest::keyClick(&menu, Qt::Key_V);
            QTRY_COMPARE(main.Answers.Shown().last(), u"mnuFileConvert"_s);
            QTest::keyClick(&menu, Qt::Key_C);
        });
        QTest::keyClick(main.Window.get(), Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(main.Answers.IsDone());
        QTRY_COMPARE(main.Window->windowTitle(), u"Quorvex"_s);
        QCOMPARE(main.Answers.Shown(), QStringList({u"mnuFile"_s, u"mnuFileConvert"_s}));
    }

    void TheNameOfConvertIsToldWithoutMarks() {
        RunningWindow main;
        auto* menu = main.Window->findChild<QMenu*>(u"mnuFile"_s);
        QAccessibleInterface* items = QAccessible::queryAccessibleInterface(menu);
        QStringList names;
        for (int item = 0; item < items->childCount(); ++item) {
            names.append(items->child(item)->text(QAccessible::Name));
        }
        QVERIFY2(names.contains(u"Convert"_s), qPrintable(names.join(u' ')));
    }

    void NoItemHasAShortcutKey() {
        RunningWindow main;
        for (QAction const* item : AllItems(main.Window->menuBar()->actions())) {
            QVERIFY2(item->shortcuts().isEmpty(), qPrintable(item->objectName()));
        }
    }

    void EveryItemCanBeSeenAndChosen() {
        RunningWindow main;
        for (QAction const* item : AllItems(main.Window->menuBar()->actions())) {
            QVERIFY2(item->isVisible(), qPrintable(item->objectName()));
            QVERIFY2(item->isEnabled() || item->isSeparator(), qPrintable(item->objectName()));
        }
    }

    void ItemsStayAsTheyAreWhenAFileIsOpenedAndClosed() {
        RunningWindow main;
        auto const enabled = [&main] {
            QString flags;
            for (QAction const* item : AllItems(main.Window->menuBar()->actions())) {
                flags += item->isEnabled() ? u'1' : u'0';
            }
            return flags;
        };
        QString const before = enabled();
        main.OpenQuotes("q060.txt");
        QCOMPARE(enabled(), before);
        main.Choose("mnuFileClose");
        QCOMPARE(enabled(), before);
    }

    void CommandsStandOnTheBarItself() {
        RunningWindow main;
        QStringList commands;
        for (QAction const* item : main.Window->menuBar()->actions()) {
            if (item->menu() == nullptr) {
                commands.append(item->objectName());
            }
        }
        QCOMPARE(commands.join(u' '), u"mnuRefresh mnuForecast mnuCorrelation mnuPreferences mnuLegend"_s);
        QVERIFY(!main.Window->menuBar()->isNativeMenuBar());
    }

    void AClickOnACommandOfTheBarRunsIt() {
        RunningWindow main;
        QMenuBar* bar = main.Window->menuBar();
        main.TypeInto(1, 1, u"7"_s);
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(&main.Item(u"mnuRefresh"_s)).center());
        QCOMPARE(main.Cell(1, 1).text(), u"100"_s);
    }

    void TheToolStripHasSixImagesNamedAfterTheirCommands() {
        RunningWindow main;
        auto* strip = main.Window->findChild<QWidget*>(u"picIcon"_s);
        QVERIFY(strip != nullptr);
        QStringList images;
        for (QToolButton const* image : strip->findChildren<QToolButton*>()) {
            QCOMPARE(image->toolTip(), image->accessibleName());
            QVERIFY(!image->icon().pixmap(image->iconSize()).isNull());
            QVERIFY(image->isEnabled());
            images.append(image->objectName() + u' ' + image->toolTip());
        }
        QCOMPARE(images.join(u", "_s), u"imgOpen Open, imgClose Close, imgEdit Edit, imgConvert Convert, "
                                       u"imgPrint Print, imgProperties Properties"_s);
    }

    // The images are read one by one as they are wanted.
    void ImagesAreThoseThatQtTakesOfAllFilesAtOnce() {
        app::ui::LoadResources();
        QDir const folder(u":/images"_s);
        for (QString const& name : {u"imgOpen"_s, u"Quorvex"_s}) {
            QIcon const icon = platform::qt::CarriedImage(name);
            QIcon expected;
            for (QString const& file : folder.entryList({name + u"-*.png"_s})) {
                expected.addFile(folder.filePath(file));
            }
            QVERIFY(!expected.availableSizes().isEmpty());
            QCOMPARE(icon.availableSizes().size(), expected.availableSizes().size());
            for (int const side : {12, 24, 25, 80}) {
                QSize const size(side, side);
                QCOMPARE(icon.actualSize(size), expected.actualSize(size));
                for (double const scale : {1.0, 1.5}) {
                    for (QIcon::Mode const mode : {QIcon::Normal, QIcon::Disabled}) {
                        QCOMPARE(icon.pixmap(size, scale, mode).toImage(),
                                 expected.pixmap(size, scale, mode).toImage());
                    }
                }
            }
        }
    }

    void AnImageThatIsNotCarriedIsEmpty() {
        QIcon const icon = platform::qt::CarriedImage(u"imgNone"_s);
        QVERIFY(icon.isNull());
        QVERIFY(icon.pixmap(24, 24).isNull());
    }

    void ImagesStandFromLeftToRightInsideTheStrip() {
        RunningWindow main;
        auto* strip = main.Window->findChild<QWidget*>(u"picIcon"_s);
        int right = 0;
        for (QToolButton const* image : strip->findChildren<QToolButton*>()) {
            QVERIFY(image->x() >= right);
            QVERIFY(strip->rect().contains(image->geometry()));
            QVERIFY(image->iconSize() == QSize(24, 24));
            right = image->geometry().right();
        }
    }

    void ClickingTheOpenImageShowsTheChooser() {
        RunningWindow main;
        main.Folder.Write("any.txt", "");
        main.Answers.Escape();
        ClickButton(*main.Window, u"imgOpen"_s);
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmQuotes"_s));
    }

    void ClickingTheCloseImageClosesTheFile() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        ClickButton(*main.Window, u"imgClose"_s);
        QCOMPARE(main.Window->windowTitle(), u"Quorvex"_s);
        QVERIFY(!main.Data->Quotes.HasQuotes());
    }

    void ClickingTheConvertImageOpensTheCustomConverter() {
        RunningWindow main;
        main.Answers.Escape();
        ClickButton(*main.Window, u"imgConvert"_s);
        QCOMPARE(main.Answers.Shown(), QStringList(u"frmConvertCustom"_s));
    }

    void ClickingThePrintImagePrints() {
        RunningWindow main;
        main.OpenQuotes("q060.txt");
        ClickButton(*main.Window, u"imgPrint"_s);
        QCOMPARE(main.Printing.Documents.size(), 2U);
    }
};

template struct ListedWindowTest<frmMainMenuTest>;

} // namespace quorvex::tests

#include "frmMainMenuTest.moc"
