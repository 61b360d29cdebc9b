// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Keys that do something for as long as they are held, wherever in a window the keyboard is. Throws
// nothing.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

namespace varnel {

class HoldKey : public QObject {
    Q_OBJECT
  public:
    // wanted() decides at the press whether it is this key's time; if not, the press goes where it
    // would have gone anyway.
    HoldKey(int key, QWidget* window, std::function<bool()> wanted);

  Q_SIGNALS:
    void Held(bool on);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void LetGo();

    int key_;
    QWidget* window_;
    std::function<bool()> wanted_;
    bool held_ = false;
};

}  // namespace varnel
