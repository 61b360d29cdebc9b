// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The zoom in the status line: Fit, a slider, 100 % and the scale in words. Throws nothing.
#pragma once

#include <QAction>
#include <QLabel>
#include <QSlider>
#include <QWidget>

#include "pipeline/photos/picture_zoom.h"

namespace varnel {

class ZoomBar : public QWidget {
    Q_OBJECT
  public:
    // The buttons do what the entries do.
    ZoomBar(QAction* fit, QAction* actual, QWidget* parent);
    void Show(const PictureZoom& zoom);
    void ShowNothing();  // where there is no picture

  Q_SIGNALS:
    // Device pixels to a picture pixel.
    void Wanted(double scale);

  private:
    void AddButton(const char* name, QAction* action);
    void OnSlider(int position);

    QSlider* slider_ = nullptr;
    QLabel* text_ = nullptr;
    double fit_ = 1.0;
    double largest_ = 8.0;
};

}  // namespace varnel
