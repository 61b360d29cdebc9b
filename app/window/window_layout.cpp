// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/window_layout.h"

#include "state/settings/setting_names.h"

namespace varnel {

void WindowLayout::Restore() {
    const auto stored = [this](const char* key) {
        return QByteArray::fromBase64(
            store_.Get(setting::Window, QString::fromLatin1(key), {}).toLatin1());
    };
    window_.restoreGeometry(stored("Geometry"));
    window_.restoreState(stored("State"));
    parts_.splitter->restoreState(stored("Columns"));
    parts_.strip->restoreState(stored("Strip"));
}

void WindowLayout::Save() {
    const auto keep = [this](const char* key, const QByteArray& value) {
        store_.Save(setting::Window, QString::fromLatin1(key),
                    QString::fromLatin1(value.toBase64()));
    };
    keep("Geometry", window_.saveGeometry());
    keep("State", window_.saveState());
    keep("Columns", parts_.splitter->saveState());
    keep("Strip", parts_.strip->saveState());
}

}  // namespace varnel
