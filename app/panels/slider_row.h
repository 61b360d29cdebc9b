// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A slider with its heading, its value label and a spin box for exact values. Throws nothing.
#pragma once

#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QWidget>

#include "state/adjustments/slider_table.h"

namespace varnel {

class SliderRow : public QWidget {
    Q_OBJECT
  public:
    explicit SliderRow(const SliderRowData& facts, QWidget* parent = nullptr);

    const SliderRowData& Data() const { return data_; }
    QSlider* Slider() const { return slider_; }
    int Value() const { return slider_->value(); }
    // Sets slider, spin box and caption without a signal.
    void Show(int value);
    // Quiet as Show; a value outside moves to the nearest end.
    void SetRange(const ControlRange& range);
    // Shows or hides the row and each of its controls.
    void SetShown(bool shown);

  Q_SIGNALS:
    // By the user; comes before the signal that it is final or not.
    void Moved(int value);
    // While the thumb is dragged: nothing is final yet.
    void Dragged();
    // The value changed for good: thumb released, key, wheel, click, spin box or program.
    void Changed();
    // The heading was double-clicked.
    void ResetWanted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void OnValue(int value);
    void OnReleased();

    const SliderRowData& data_;
    QLabel* heading_ = nullptr;
    QLabel* valueLabel_;
    QSlider* slider_;
    QSpinBox* spinBox_;
    int valueBeforeDrag_ = 0;
    bool silent_ = false;
};

}  // namespace varnel
