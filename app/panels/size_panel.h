// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The group "Size and crop": how large results become, what is cut out of them and what they have
// where the photo shows nothing. Sizes and colours are texts as the command line takes them. Throws
// nothing.
#pragma once

#include <QComboBox>
#include <QPushButton>

#include "app/panels/fold_group.h"

namespace varnel {

class SizePanel : public FoldGroup {
    Q_OBJECT
  public:
    explicit SizePanel(QWidget* parent = nullptr);

    // Without signals. A text that is not among the choices is shown as it is.
    void ShowSize(const QString& size);
    void ShowOutside(const QString& outside);
    QComboBox* Sizes() const { return sizes_; }
    QComboBox* Outsides() const { return outsides_; }
    QPushButton* CropButton() const { return crop_; }

  Q_SIGNALS:
    // Chosen or typed: "", "centre", "16:9", "4000", "4000x3000".
    void SizeWanted(const QString& size);
    // "black", "transparent", "#rrggbb".
    void OutsideWanted(const QString& outside);

  private:
    struct Choice {
        const char* key;
        QString text;
    };
    using Signal = void (SizePanel::*)(const QString&);
    QComboBox* AddChoices(const char* name, const QString& label, const QString& tip,
                          std::initializer_list<Choice> choices);
    void Report(QComboBox* box, Signal wanted);

    QComboBox* sizes_;
    QComboBox* outsides_;
    QPushButton* crop_;
};

}  // namespace varnel
