// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Texts on the screen are shown letter by letter. File names, metadata and settings come from
// anywhere, and a label or a tool tip treats what looks like HTML as HTML: it would open the files
// that are named there. Throws nothing.
#pragma once

#include <QObject>

namespace varnel {

// Installed as event filter of the application, it makes every label plain whose text format was
// not set; those of message boxes and tool tips are among them.
class PlainTexts : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace varnel
