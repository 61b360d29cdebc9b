// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/view/window_progress.h"

#include <QCoreApplication>

namespace varnel {

namespace {

constexpr qint64 paintInterval = 30;  // milliseconds; a faster bar only costs time

}  // namespace

WindowProgress::WindowProgress(QProgressBar* bar) : bar_(bar) {
    QSizePolicy policy = bar_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bar_->setSizePolicy(policy);
    bar_->hide();
}

void WindowProgress::HandleEvents() {
    QCoreApplication::processEvents(inputThrough_ ? QEventLoop::AllEvents
                                                  : QEventLoop::ExcludeUserInputEvents);
}

void WindowProgress::Begin(float maximum) {
    bar_->setRange(0, static_cast<int>(maximum));
    bar_->setValue(0);
    bar_->show();
    sincePainted_.start();
    sincePaused_.start();
}

void WindowProgress::Advance(float value) {
    if (sincePainted_.elapsed() >= paintInterval) {
        sincePainted_.restart();
        bar_->setValue(static_cast<int>(value));
    }
    HandleEvents();
}

void WindowProgress::Pause() {
    if (inputThrough_ && sincePaused_.elapsed() >= paintInterval) {
        HandleEvents();
        sincePaused_.start();
    }
}

void WindowProgress::End() {
    bar_->hide();
}

}  // namespace varnel
