// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Messages that the user has to read: a plain modal box with an OK button, or a line on stderr
// where there is no window. Throws nothing.
#pragma once

#include <QString>

namespace varnel {

class Notices {
  public:
    virtual ~Notices() = default;
    // The text stands alone; the detail, if any, is shown smaller below it.
    virtual void Tell(const QString& text, const QString& detail) = 0;
};

}  // namespace varnel
