// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/layout/toolbar_tools.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <array>

#include "app/looks/tool_icon.h"
#include "app/panels/menu_entry.h"
#include "app/tools/layout/kept_choice.h"

namespace varnel {

namespace {

struct Tool {
    const char* entry;  // object name in the menus
    const char* icon;
    const char* text;  // under the icon
    bool beginsGroup = false;
};

constexpr std::array<Tool, 12> tools{{
    {"CmdFileOpenFreeImage", "add", QT_TRANSLATE_NOOP("ToolbarTools", "Add image(s)")},
    {"CmdEditUndo", "undo", QT_TRANSLATE_NOOP("ToolbarTools", "Undo"), true},
    {"CmdEditRedo", "redo", QT_TRANSLATE_NOOP("ToolbarTools", "Redo")},
    {"CmdViewFrame", "frame", QT_TRANSLATE_NOOP("ToolbarTools", "Frame"), true},
    {"CmdToolsLevel", "level", QT_TRANSLATE_NOOP("ToolbarTools", "Level")},
    {"CmdViewCircle", "circle", QT_TRANSLATE_NOOP("ToolbarTools", "Circle")},
    {"CmdToolsStraighten", "straighten", QT_TRANSLATE_NOOP("ToolbarTools", "Straighten")},
    {"CmdViewGrid", "grid", QT_TRANSLATE_NOOP("ToolbarTools", "Grid"), true},
    {"CmdViewMagnification", "map", QT_TRANSLATE_NOOP("ToolbarTools", "Map")},
    {"CmdViewBefore", "before", QT_TRANSLATE_NOOP("ToolbarTools", "Before"), true},
    {"CmdContactSheet", "sheet", QT_TRANSLATE_NOOP("ToolbarTools", "Sheet"), true},
    {"CmdFileSaveImage", "save", QT_TRANSLATE_NOOP("ToolbarTools", "Save as"), true},
}};

// The entry's text without the mark of its letter, and its key; a key that is held stands in the
// text behind a tab.
QString TipOf(const QAction& entry) {
    QString text = entry.text().section(u'\t', 0, 0);
    text.remove(QRegularExpression(QStringLiteral("&(?!&)")));
    const QString key = entry.shortcut().isEmpty()
                            ? entry.text().section(u'\t', 1)
                            : entry.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, key);
}

void ShowTip(QAction& entry) {
    if (const QString tip = TipOf(entry); tip != entry.toolTip()) {
        entry.setToolTip(tip);
    }
}

}  // namespace

ToolbarTools::ToolbarTools(QMainWindow* window, const WindowParts& parts, SettingsStore& store)
    : QObject(window), bar_(*parts.tools), menu_(*parts.viewMenu), store_(store) {
    bar_.setIconSize({22, 22});
    AddTools(*window);
    AddEntries();
}

void ToolbarTools::AddTools(const QMainWindow& window) {
    for (const Tool& tool : tools) {
        auto* const entry = window.findChild<QAction*>(QString::fromLatin1(tool.entry));
        entry->setIcon(ToolIcon(tool.icon));
        entry->setIconVisibleInMenu(false);
        entry->setIconText(QCoreApplication::translate("ToolbarTools", tool.text));
        ShowTip(*entry);
        connect(entry, &QAction::changed, this, [entry] { ShowTip(*entry); });
        if (tool.beginsGroup) {
            bar_.addSeparator();
        }
        bar_.addAction(entry);
        QWidget* const button = bar_.widgetForAction(entry);
        button->setObjectName(QStringLiteral("Tool") + entry->objectName());
    }
}

void ToolbarTools::AddEntries() {
    menu_.addSeparator();
    QAction* const shown = bar_.toggleViewAction();
    shown->setObjectName(QStringLiteral("CmdViewToolbar"));
    shown->setText(tr("Too&lbar"));
    menu_.addAction(shown);
    AddKeptChoice(
        menu_, {"CmdViewToolTexts", tr("Te&xt under the icons"), "ToolTexts"}, store_,
        [this](bool on) {
            bar_.setToolButtonStyle(on ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
        });
}

}  // namespace varnel
