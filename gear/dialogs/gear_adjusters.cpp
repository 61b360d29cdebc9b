// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/gear_adjusters.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <initializer_list>

#include "gear/dialogs/form_gear_edit.h"
#include "state/dialogs/wheel_guard.h"
#include "ui_form_gear_edit.h"

namespace varnel {

GearAdjusters::GearAdjusters(const Ui::FormGearEdit& ui, GearTable& table, QWidget* form)
    : QObject(form), ui_(ui), table_(table) {
    adjusters_ = {
        {&GearRecord::hAOV, ui_.SliderhAOV, ui_.SpinhAOV, ui_.LabelhAOV,
         FormGearEdit::tr(" \u00b0"), hAovRange},
        {&GearRecord::GearRatio, ui_.SliderRatio, ui_.SpinRatio, ui_.LabelRatio,
         FormGearEdit::tr(" %"), ratioRange},
        {&GearRecord::OfsetX, ui_.SliderXofset, ui_.SpinXofset, ui_.LabelXofset,
         FormGearEdit::tr(" \u2030 hor."), ofsetRange, ui_.FineXofset},
        {&GearRecord::OfsetY, ui_.SliderYofset, ui_.SpinYofset, ui_.LabelYofset,
         FormGearEdit::tr(" \u2030 vert."), ofsetRange, ui_.FineYofset},
    };
    for (const Adjuster& adjuster : adjusters_) {
        Connect(adjuster);
    }
    for (QDoubleSpinBox* const spin : {ui_.SpinMapScale, ui_.SpinMapFactor}) {
        new WheelGuard(spin);
        connect(spin, &QDoubleSpinBox::valueChanged, this, &GearAdjusters::TakeLensNumbers);
    }
    ShowLensNumbers();
}

void GearAdjusters::Connect(const Adjuster& adjuster) {
    new WheelGuard(adjuster.slider);
    new WheelGuard(adjuster.spin);
    connect(adjuster.spin, &QSpinBox::valueChanged, adjuster.slider, &QSlider::setValue);
    connect(adjuster.slider, &QSlider::valueChanged, this, [this, &adjuster](int value) {
        Follow(adjuster, value);
        TakeAdjustment(adjuster, value);
    });
    if (adjuster.fine != nullptr) {
        new WheelGuard(adjuster.fine);
        connect(adjuster.fine, &QDoubleSpinBox::valueChanged, this, [this, &adjuster](double n) {
            TakeAdjustment(adjuster, n);
            ShowNumber(adjuster);
        });
    }
    // Wide enough for every value, so that nothing moves while a slider is dragged.
    const QString widest =
        QLatin1StringView(adjuster.fine == nullptr ? "-200" : "-200.888") + adjuster.unit;
    adjuster.label->setMinimumWidth(adjuster.label->fontMetrics().horizontalAdvance(widest));
    Follow(adjuster, adjuster.slider->value());
}

void GearAdjusters::Show() {
    for (const Adjuster& adjuster : adjusters_) {
        ShowNumber(adjuster);
    }
    ShowLensNumbers();
}

void GearAdjusters::ShowNumber(const Adjuster& adjuster) {
    const QScopedValueRollback<bool> loading(loading_, true);
    const int position = SliderPosition(table_(0).*adjuster.number);
    const SliderRange range = Widened(adjuster.range, position);
    adjuster.spin->setRange(range.minimum, range.maximum);
    adjuster.slider->setRange(range.minimum, range.maximum);
    adjuster.slider->setValue(position);
    if (adjuster.fine != nullptr && table_(0).Lens) {
        const auto number = static_cast<double>(table_(0).*adjuster.number);
        adjuster.fine->setRange(range.minimum, range.maximum);
        adjuster.fine->setValue(number);
        adjuster.label->setText(QString::number(number) + adjuster.unit);
    }
}

// A lens has two numbers or a curve.
void GearAdjusters::ShowLensNumbers() {
    const QScopedValueRollback<bool> loading(loading_, true);
    const GearRecord& gear = table_(0);
    const bool hasCurve = static_cast<bool>(gear.Lens);
    for (const Adjuster& adjuster : adjusters_) {
        if (adjuster.fine != nullptr) {
            adjuster.fine->setVisible(hasCurve);
            adjuster.spin->setVisible(!hasCurve);
        }
    }
    for (QWidget* const control : std::initializer_list<QWidget*>{
             ui_.LabelLensNumbers, ui_.SpinMapScale, ui_.SpinMapFactor}) {
        control->setVisible(!hasCurve && gear.LensMapScale > 0.0F);
    }
    ui_.SpinMapScale->setValue(static_cast<double>(gear.LensMapScale));
    ui_.SpinMapFactor->setValue(static_cast<double>(gear.LensMapFactor));
}

void GearAdjusters::Follow(const Adjuster& adjuster, int value) {
    adjuster.label->setText(QString::number(value) + adjuster.unit);
    adjuster.spin->setValue(value);
    if (adjuster.fine != nullptr) {
        const QSignalBlocker quiet(adjuster.fine);
        adjuster.fine->setValue(value);
    }
}

void GearAdjusters::TakeAdjustment(const Adjuster& adjuster, double value) {
    if (!loading_) {
        SetNumber(adjuster.number, value, table_(0));
        Q_EMIT Moved();
    }
}

void GearAdjusters::TakeLensNumbers() {
    if (!loading_) {
        SetLensNumbers(static_cast<float>(ui_.SpinMapScale->value()),
                       static_cast<float>(ui_.SpinMapFactor->value()), table_(0));
        ShowNumber(adjusters_.front());
        Q_EMIT Moved();
    }
}

}  // namespace varnel
