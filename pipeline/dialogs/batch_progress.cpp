// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/batch_progress.h"

#include <QCoreApplication>
#include <QDir>

namespace varnel {

namespace {

constexpr int paintInterval = 30;  // milliseconds; faster bars only cost time
constexpr int steps = 1000;        // of each bar

}  // namespace

BatchProgress::BatchProgress(const BatchJob& job, const BatchProgressWidgets& widgets,
                             QObject* parent)
    : QObject(parent), job_(job), widgets_(widgets) {
    timer_.setInterval(paintInterval);
    connect(&timer_, &QTimer::timeout, this, &BatchProgress::ShowRun);
    connect(&job, &BatchJob::Started, this, &BatchProgress::Begin);
    connect(&job, &BatchJob::Named, this, &BatchProgress::ShowName);
    connect(&job, &BatchJob::ImageDone, this, &BatchProgress::ShowDone);
    connect(&job, &BatchJob::Ended, this, [this] {
        timer_.stop();
        ShowRun();
    });
    if (job.IsRunning()) {
        Begin();
        ShowName(job.Name());
    }
}

void BatchProgress::Begin() {
    widgets_.runBar->setRange(0, steps);
    widgets_.imageBar->setRange(0, steps);
    widgets_.name->clear();
    widgets_.count->setText(BatchProgressText(job_.Done(), job_.Entries().UpperBound()));
    ShowRun();
    timer_.start();
}

void BatchProgress::ShowName(const QString& path) {
    widgets_.name->setText(QDir::toNativeSeparators(path));
    widgets_.name->setToolTip(widgets_.name->text());
    HandleEvents();
}

void BatchProgress::ShowDone(int done, int queued) {
    HandleEvents();
    widgets_.count->setText(BatchProgressText(done, queued));
    ShowRun();
}

// The run waits meanwhile, so that a stop counts for the image that is shown.
void BatchProgress::HandleEvents() const {
    if (widgets_.name->isVisible()) {
        QCoreApplication::processEvents();
    }
}

void BatchProgress::ShowRun() {
    const int queued = job_.Entries().UpperBound();
    const double part = queued == 0 ? 0.0 : (job_.Done() + job_.PartDone()) / queued;
    widgets_.imageBar->setValue(static_cast<int>(job_.PartDone() * steps));
    widgets_.runBar->setValue(static_cast<int>(part * steps));
    widgets_.timeLeft->setText(job_.IsRunning() ? TimeLeftText(job_.Seconds(), part) : QString());
    const int row = job_.Done();
    if (job_.IsRunning() && row < queued && widgets_.queue->currentIndex().row() != row) {
        widgets_.queue->setCurrentIndex(widgets_.queue->model()->index(row, 0));
    }
}

}  // namespace varnel
