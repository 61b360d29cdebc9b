// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Telling the user something that has to be read: a plain modal message with an OK button, or a
// line on stderr where there is no window.
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
