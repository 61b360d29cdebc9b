// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JSON Lines: one object a line. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <initializer_list>
#include <utility>

namespace varnel {

// An object without line breaks, in UTF-8, its names in the order given: Qt's own would sort them.
QByteArray JsonLine(std::initializer_list<std::pair<const char16_t*, QJsonValue>> fields);

}  // namespace varnel
