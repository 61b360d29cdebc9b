// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/zoom_bar.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

constexpr int steps = 100;  // of the slider, alike in the logarithm of the scale

}  // namespace

ZoomBar::ZoomBar(QAction* fit, QAction* actual, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("ZoomBar"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    AddButton("CmdZoomFit", fit);
    slider_ = new QSlider(Qt::Horizontal, this);
    slider_->setObjectName(QStringLiteral("ZoomSlider"));
    slider_->setAccessibleName(tr("Zoom"));
    slider_->setToolTip(tr("How large the pictures are shown, from the whole picture on"));
    slider_->setRange(0, steps);
    slider_->setPageStep(10);
    slider_->setFixedWidth(90);
    slider_->setFocusPolicy(Qt::NoFocus);
    row->addWidget(slider_);
    AddButton("CmdZoomActual", actual);
    text_ = new QLabel(this);
    text_->setObjectName(QStringLiteral("ZoomText"));
    text_->setText(tr("%1 %").arg(8888));
    text_->setMinimumWidth(text_->sizeHint().width());
    row->addWidget(text_);
    connect(slider_, &QSlider::valueChanged, this, &ZoomBar::OnSlider);
}

void ZoomBar::AddButton(const char* name, QAction* action) {
    auto* const button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(QString(action->text()).remove(u'&'));
    button->setToolTip(action->toolTip());
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);  // its entry has a key
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    layout()->addWidget(button);
}

void ZoomBar::Show(const PictureZoom& zoom) {
    const QSignalBlocker blocker(slider_);
    fit_ = zoom.FitScale();
    largest_ = std::max(zoom.Largest(), fit_ * 1.01);
    const double share = std::log(zoom.Scale() / fit_) / std::log(largest_ / fit_);
    slider_->setValue(static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * steps)));
    text_->setText(tr("%1 %").arg(std::lround(zoom.Scale() * 100.0)));
}

void ZoomBar::ShowNothing() {
    const QSignalBlocker blocker(slider_);
    slider_->setValue(0);
    text_->clear();
}

void ZoomBar::OnSlider(int position) {
    Q_EMIT Wanted(fit_ * std::pow(largest_ / fit_, static_cast<double>(position) / steps));
}

}  // namespace varnel
