// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/batch_progress.h"

#include <QCoreApplication>
#include <QDir>

namespace varnel {

namespace {

constexpr qint64 paintInterval = 30;  // milliseconds; faster bars only cost time
constexpr int runSteps = 1000;        // of the whole run's bar

}  // namespace

void BatchProgress::Start(int queued) {
    running_ = true;
    queued_ = queued;
    done_ = 0;
    sinceStart_.start();
    widgets_.runBar->setRange(0, runSteps);
    widgets_.imageBar->setValue(0);
    widgets_.name->clear();
    widgets_.count->setText(BatchProgressText(0, queued));
    ShowRun(0.0);
}

void BatchProgress::Naming(const QString& path) {
    widgets_.name->setText(QDir::toNativeSeparators(path));
    widgets_.name->setToolTip(widgets_.name->text());
    HandleEvents();
}

void BatchProgress::Done(int done, int queued) {
    done_ = done;
    HandleEvents();
    widgets_.count->setText(BatchProgressText(done, queued));
    ShowRun(static_cast<double>(done));
}

void BatchProgress::HandleEvents() {
    QCoreApplication::processEvents();
}

void BatchProgress::Begin(float maximum) {
    maximum_ = maximum;
    widgets_.imageBar->setRange(0, static_cast<int>(maximum));
    widgets_.imageBar->setValue(0);
    sincePainted_.start();
    sincePaused_.start();
}

void BatchProgress::Advance(float value) {
    if (sincePainted_.elapsed() >= paintInterval) {
        sincePainted_.restart();
        widgets_.imageBar->setValue(static_cast<int>(value));
        ShowRun(done_ + static_cast<double>(value / maximum_));
    }
    HandleEvents();
}

void BatchProgress::Pause() {
    if (sincePaused_.elapsed() >= paintInterval) {
        HandleEvents();
        sincePaused_.start();
    }
}

void BatchProgress::End() {
    widgets_.imageBar->setValue(widgets_.imageBar->maximum());
}

void BatchProgress::ShowRun(double done) {
    const double part = queued_ == 0 ? 0.0 : done / queued_;
    widgets_.runBar->setValue(static_cast<int>(part * runSteps));
    widgets_.timeLeft->setText(
        TimeLeftText(static_cast<double>(sinceStart_.elapsed()) / 1000.0, part));
    const int row = static_cast<int>(done);
    if (row < queued_ && widgets_.queue->currentIndex().row() != row) {
        widgets_.queue->setCurrentIndex(widgets_.queue->model()->index(row, 0));
    }
}

}  // namespace varnel
