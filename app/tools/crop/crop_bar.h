// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The bar below the pictures while a crop is chosen: its numbers, its shape and what finds one.
// Throws nothing.
#pragma once

#include <QComboBox>

#include "app/panels/line_bar.h"

namespace varnel {

class CropBar : public LineBar {
    Q_OBJECT
  public:
    explicit CropBar(QWidget* parent);
    void ShowText(const QString& text) { Text().setText(text); }
    // The width by the height of the crop that is wanted, in pixels; 0 for any. The frame's is that
    // of the picture before its crop.
    double Shape(double frame) const;
    // While one is looked for there is no other.
    void LetFind(bool on) { clean_->setEnabled(on); }

  Q_SIGNALS:
    void ShapeChosen();
    void CleanWanted();
    void AllWanted();
    void Done();

  private:
    void AddShapes();
    QPushButton* Add(const char* name, const QString& text, const QString& tip,
                     void (CropBar::*signal)());

    QComboBox* shapes_;
    QPushButton* clean_;
};

}  // namespace varnel
