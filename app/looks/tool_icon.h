// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The icons of the window's own tools: drawn from one outline each, at the size and in the text
// colour that hold when they are painted. Throws nothing.
#pragma once

#include <QIcon>

namespace varnel {

// name: of a file in app/icons, without its ending. An unknown one gives an icon without a picture.
QIcon ToolIcon(const char* name);
// In that colour, whatever the theme is.
QIcon ToolIcon(const char* name, const QColor& colour);

}  // namespace varnel
