// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Thunar's list of the user's own actions, Thunar/uca.xml in the folder of settings. It is the
// user's: what Varnel did not write keeps its bytes. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QString>
#include <variant>

#include "app/menus/menu_entries.h"

namespace varnel {

// The list with these entries at its end in the place of all earlier ones of Varnel's, which are
// known by their "unique-id"; a menu without entries only takes those out. An empty array stands
// for a list that is not there yet. Otherwise why the bytes are no list that could be changed, in
// words. The submenu's name has no translations there, so it is in the language of that code.
std::variant<QByteArray, QString> ThunarActions(const QByteArray& list, const PhotoMenu& menu,
                                                const QString& language);

}  // namespace varnel
