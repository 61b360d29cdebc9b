// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The About menu's entry "User guide". Throws nothing.
#pragma once

#include <QMainWindow>
#include <QPointer>

#include "app/dialogs/form_guide.h"
#include "base/notices.h"

namespace varnel {

class GuideTools : public QObject {
    Q_OBJECT
  public:
    GuideTools(QMainWindow* window, Notices& notices);

  private:
    void Show();

    QMainWindow* window_;
    Notices& notices_;
    QPointer<FormGuide> form_;
};

}  // namespace varnel
