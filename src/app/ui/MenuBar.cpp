// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/MenuBar.h"

#include "platform/pictures/QtTexts.h"
#include "platform/qt/CarriedImage.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>
#include <algorithm>
#include <map>

namespace quorvex::app::ui {

namespace {

using platform::pictures::ToQt;

bool HasItems(MenuRow const& menu) {
    return std::ranges::any_of(MenuTable(), [&](MenuRow const& row) { return row.Parent == menu.Name; });
}

// Of several marks the last one counts; Qt would go by the first and underline the letters of all.
QString ShownCaption(MenuRow const& row) {
    QString const caption = ToQt(row.Caption);
    qsizetype const last = caption.lastIndexOf(u'&');
    return last < 0 ? caption : caption.left(last).remove(u'&') + caption.mid(last);
}

QMenu* AddMenu(QMenuBar& bar, QMenu* parent, MenuRow const& row) {
    QString const caption = ShownCaption(row);
    QMenu* menu = parent == nullptr ? bar.addMenu(caption) : parent->addMenu(caption);
    menu->setObjectName(ToQt(row.Name));
    menu->menuAction()->setObjectName(ToQt(row.Name));
    return menu;
}

void AddItem(QWidget& parent, MenuRow const& row, RunCommand const& run) {
    auto* action = new QAction(&parent);
    action->setObjectName(ToQt(row.Name));
    action->setMenuRole(QAction::NoRole);
    if (row.Caption == SeparatorCaption) {
        action->setSeparator(true);
    } else {
        action->setText(ShownCaption(row));
        QObject::connect(action, &QAction::triggered, &parent, [run, &row] { run(row); });
    }
    parent.addAction(action);
}

QToolButton* MakeTool(QWidget& strip, ToolRow const& tool, RunCommand const& run) {
    constexpr QSize ImageSize(24, 24);
    MenuRow const& row = MenuRowNamed(tool.MenuName);
    auto* button = new QToolButton(&strip);
    button->setObjectName(ToQt(tool.Name));
    button->setIcon(platform::qt::CarriedImage(ToQt(tool.Name)));
    button->setIconSize(ImageSize);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(ToQt(tool.ToolTip));
    button->setAccessibleName(ToQt(tool.ToolTip));
    QObject::connect(button, &QToolButton::clicked, &strip, [run, &row] { run(row); });
    return button;
}

} // namespace

void FillMenuBar(QMenuBar& bar, RunCommand const& run) {
    // A menu bar of the system's own shows no commands outside of menus.
    bar.setNativeMenuBar(false);
    std::map<std::string_view, QMenu*> menus; // nullptr is the bar itself
    for (MenuRow const& row : MenuTable()) {
        QMenu* const parent = menus[row.Parent];
        if (HasItems(row)) {
            menus[row.Name] = AddMenu(bar, parent, row);
        } else if (parent != nullptr) {
            AddItem(*parent, row, run);
        } else {
            AddItem(bar, row, run);
        }
    }
}

QWidget* MakeToolStrip(QWidget& client, RunCommand const& run) {
    auto* strip = new QWidget(&client);
    strip->setObjectName(QStringLiteral("picIcon"));
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(2, 1, 2, 1);
    row->setSpacing(2);
    for (ToolRow const& tool : ToolTable()) {
        row->addWidget(MakeTool(*strip, tool, run));
    }
    row->addStretch();
    return strip;
}

} // namespace quorvex::app::ui
