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
    // In the language of that setting, as long as the window lives.
    GuideTools(QMainWindow* window, Notices& notices, const QString& language);

  private:
    void Show();

    QMainWindow* window_;
    Notices& notices_;
    QString language_;
    QPointer<FormGuide> form_;
};

}  // namespace varnel
