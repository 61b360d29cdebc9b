// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A button of a form that is built by hand. Throws nothing.
#pragma once

#include <QPushButton>

namespace varnel {

inline QPushButton* NamedButton(const char* name, const QString& text, const QString& tip,
                                QWidget* parent) {
    auto* const button = new QPushButton(text, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(tip);
    return button;
}

}  // namespace varnel
