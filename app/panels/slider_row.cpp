// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/slider_row.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "state/dialogs/wheel_guard.h"

namespace varnel {

namespace {

QString Translated(const char* text) {
    return QCoreApplication::translate("Sliders", text);
}

}  // namespace

SliderRow::SliderRow(const SliderRowData& facts, QWidget* parent)
    : QWidget(parent),
      data_(facts),
      valueLabel_(new QLabel(Translated(facts.startCaption), this)),
      slider_(new QSlider(Qt::Horizontal, this)),
      spinBox_(new DecimalBox(this)),
      value_(facts.start) {
    const QString name = QString::fromLatin1(facts.slider);
    const QString tip = Translated(facts.tip);
    slider_->setObjectName(name);
    slider_->setRange(facts.minimum, facts.maximum);
    slider_->setSingleStep(facts.smallChange);
    slider_->setPageStep(facts.largeChange);
    slider_->setTickInterval(facts.tickInterval);
    slider_->setTickPosition(QSlider::TicksBelow);
    slider_->setValue(facts.start);
    slider_->setFocusPolicy(Qt::StrongFocus);
    slider_->setToolTip(tip);
    slider_->setAccessibleDescription(tip);
    new WheelGuard(slider_);
    spinBox_->setObjectName(QStringLiteral("Spin") + name);
    spinBox_->setRange(-180, 280);  // the widest of all, so that they are of one width
    spinBox_->setFixedWidth(spinBox_->sizeHint().width());
    spinBox_->setRange(facts.minimum, facts.maximum);
    spinBox_->setValue(facts.start);
    spinBox_->setKeyboardTracking(false);
    spinBox_->setFocusPolicy(Qt::StrongFocus);
    spinBox_->setToolTip(tip);
    new WheelGuard(spinBox_);
    valueLabel_->setObjectName(QString::fromLatin1(facts.valueLabel));
    valueLabel_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    QString accessible = Translated(facts.startCaption);
    if (facts.headingLabel != nullptr) {
        accessible = SpokenName(facts);
        heading_ = new QLabel(Translated(facts.heading), this);
        heading_->setAccessibleName(accessible);
        heading_->setObjectName(QString::fromLatin1(facts.headingLabel));
        heading_->setToolTip(tip);
        heading_->installEventFilter(this);
        grid->addWidget(heading_, 0, 0);
    }
    (heading_ != nullptr ? heading_ : valueLabel_)->setBuddy(slider_);
    slider_->setAccessibleName(accessible);
    spinBox_->setAccessibleName(accessible);
    grid->addWidget(valueLabel_, 0, heading_ != nullptr ? 1 : 0, 1, heading_ != nullptr ? 1 : 2);
    grid->addWidget(spinBox_, 0, 2, 2, 1);
    grid->addWidget(slider_, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);

    connect(slider_, &QSlider::valueChanged, this, &SliderRow::OnSlider);
    connect(slider_, &QSlider::sliderPressed, this, [this] { valueBeforeDrag_ = Value(); });
    connect(slider_, &QSlider::sliderReleased, this, &SliderRow::OnReleased);
    connect(spinBox_, &QDoubleSpinBox::valueChanged, this, &SliderRow::OnTyped);
}

void SliderRow::Show(double value) {
    silent_ = true;
    slider_->setValue(WholeNumber(value));
    silent_ = false;
    value_ = value;
    ShowText();
}

void SliderRow::SetRange(const ControlRange& range, const ControlRange& reach) {
    const QSignalBlocker blocker(spinBox_);
    spinBox_->setRange(reach.minimum, reach.maximum);
    if (slider_->minimum() == range.minimum && slider_->maximum() == range.maximum) {
        return;
    }
    const double value = std::clamp<double>(value_, reach.minimum, reach.maximum);
    silent_ = true;
    slider_->setRange(range.minimum, range.maximum);
    slider_->setTickInterval(TickInterval(range));
    silent_ = false;
    Show(value);
}

// Wide ranges have no more ticks than can be told apart.
int SliderRow::TickInterval(const ControlRange& range) const {
    constexpr int mostTicks = 24;
    const int ticks = (range.maximum - range.minimum) / data_.tickInterval;
    return data_.tickInterval * (ticks / (mostTicks + 1) + 1);
}

void SliderRow::SetShown(bool shown) {
    for (QWidget* const control : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        control->setVisible(shown);
    }
    setVisible(shown);
}

void SliderRow::OnSlider(int value) {
    if (!silent_) {
        value_ = value;
        ShowText();
        Report();
    }
}

void SliderRow::OnTyped(double value) {
    Show(value);
    Report();
}

void SliderRow::ShowText() {
    valueLabel_->setText(SliderCaption(data_, value_));
    const QSignalBlocker blocker(spinBox_);
    spinBox_->setValue(value_);
}

void SliderRow::Report() {
    Q_EMIT Moved(value_);
    if (slider_->isSliderDown()) {
        Q_EMIT Dragged();
    } else {
        Q_EMIT Changed();
    }
}

void SliderRow::OnReleased() {
    if (Value() != valueBeforeDrag_) {
        Q_EMIT Changed();
    }
}

bool SliderRow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == heading_ && event->type() == QEvent::MouseButtonDblClick && data_.resets &&
        heading_->isEnabled() && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        Q_EMIT ResetWanted();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace varnel
