// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A slider with its heading, its value label and a spin box for exact values. The slider holds
// whole numbers within its range; label and spin box show the value itself. Throws nothing.
#pragma once

#include <QLabel>
#include <QSlider>
#include <QWidget>

#include "app/panels/decimal_box.h"
#include "state/adjustments/slider_table.h"

namespace varnel {

class SliderRow : public QWidget {
    Q_OBJECT
  public:
    explicit SliderRow(const SliderRowData& facts, QWidget* parent = nullptr);

    const SliderRowData& Data() const { return data_; }
    QSlider* Slider() const { return slider_; }
    double Value() const { return value_; }
    // Sets slider, spin box and caption without a signal.
    void Show(double value);
    // Of the slider, and of what is typed. Quiet as Show: what is outside moves to the nearest end.
    void SetRange(const ControlRange& range, const ControlRange& reach);
    // Shows or hides the row and each of its controls.
    void SetShown(bool shown);

  Q_SIGNALS:
    // By the user; comes before the signal that it is final or not.
    void Moved(double value);
    // While the thumb is dragged: nothing is final yet.
    void Dragged();
    // The value changed for good: thumb released, key, wheel, click, spin box or program.
    void Changed();
    // The heading was double-clicked.
    void ResetWanted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void OnSlider(int value);
    void OnTyped(double value);
    void ShowText();
    int TickInterval(const ControlRange& range) const;
    void Report();
    void OnReleased();

    const SliderRowData& data_;
    QLabel* heading_ = nullptr;
    QLabel* valueLabel_;
    QSlider* slider_;
    DecimalBox* spinBox_;
    double value_ = 0.0;
    double valueBeforeDrag_ = 0.0;
    bool silent_ = false;
};

}  // namespace varnel
