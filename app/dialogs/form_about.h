// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The about box: the program's version and that of the image library. Throws nothing.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class FormAbout;
}

namespace varnel {

class FormAbout : public QDialog {
    Q_OBJECT

  public:
    explicit FormAbout(QWidget* parent = nullptr);
    ~FormAbout() override;

  private:
    void ShowIcon();

    std::unique_ptr<Ui::FormAbout> ui_;
};

}  // namespace varnel
