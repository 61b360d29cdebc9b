// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What runs on the workspace while events may be handled. Throws nothing.
#pragma once

#include <QObject>
#include <QScopedValueRollback>

namespace varnel {

class Activity : public QObject {
    Q_OBJECT
  public:
    using Guard = QScopedValueRollback<bool>;

    // True while a conversion or a load runs; nothing else may be started then.
    bool Busy() const { return occupied_ || rendering_; }
    bool Rendering() const { return rendering_; }
    bool Saving() const { return saving_; }

    // Each for as long as its guard lives.
    [[nodiscard]] Guard Occupy() { return Guard(occupied_, true); }
    [[nodiscard]] Guard Render() { return Guard(rendering_, true); }
    [[nodiscard]] Guard Save() { return Guard(saving_, true); }

  Q_SIGNALS:
    // A conversion or a load is over: what waited for that may be done.
    void Idle();

  private:
    bool occupied_ = false;
    bool rendering_ = false;
    bool saving_ = false;
};

}  // namespace varnel
