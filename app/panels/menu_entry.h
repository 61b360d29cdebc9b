// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAction>
#include <QKeySequence>
#include <QList>
#include <QMenu>

namespace varnel {

// A new entry of that object name, in front of another one or at the end. The menu owns it. Throws
// nothing.
inline QAction* AddMenuEntry(QMenu* menu, const char* name, const QString& text,
                             const QList<QKeySequence>& keys = {}, QAction* before = nullptr) {
    auto* const entry = new QAction(text, menu);
    entry->setObjectName(QString::fromLatin1(name));
    entry->setShortcuts(keys);
    menu->insertAction(before, entry);
    return entry;
}

}  // namespace varnel
