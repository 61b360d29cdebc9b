// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the sliders of the dialogs have in common. Throws nothing.
#pragma once

#include <QSlider>
#include <QSpinBox>

namespace varnel {

// The spin box takes range, steps, tool tip and accessible name from the slider; from then on both
// show the same number. The wheel moves either only while it has the focus, not when it happens to
// lie under the pointer.
void Bind(QSlider& slider, QSpinBox& spinBox);

// A double-click on the label sets the sliders to 0.
void ResetByDoubleClick(QWidget& label, const QList<QSlider*>& sliders);

}  // namespace varnel
