// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/slider_binding.h"

#include <QEvent>
#include <initializer_list>

#include "state/dialogs/wheel_guard.h"

namespace varnel {

namespace {

class DoubleClickReset : public QObject {
  public:
    DoubleClickReset(QWidget* label, const QList<QSlider*>& sliders)
        : QObject(label), sliders_(sliders) {
        label->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonDblClick) {
            return false;
        }
        for (QSlider* const slider : sliders_) {
            slider->setValue(0);
        }
        return true;
    }

  private:
    QList<QSlider*> sliders_;
};

}  // namespace

void Bind(QSlider& slider, QSpinBox& spinBox) {
    spinBox.setRange(slider.minimum(), slider.maximum());
    spinBox.setValue(slider.value());
    spinBox.setToolTip(slider.toolTip());
    spinBox.setAccessibleName(slider.accessibleName());
    QObject::connect(&slider, &QSlider::valueChanged, &spinBox, &QSpinBox::setValue);
    QObject::connect(&spinBox, &QSpinBox::valueChanged, &slider, &QSlider::setValue);
    for (QWidget* const control : std::initializer_list<QWidget*>{&slider, &spinBox}) {
        control->setFocusPolicy(Qt::StrongFocus);
        new WheelGuard(control);
    }
}

void ResetByDoubleClick(QWidget& label, const QList<QSlider*>& sliders) {
    new DoubleClickReset(&label, sliders);
}

}  // namespace varnel
