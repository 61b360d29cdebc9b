// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/presets/batch_tools.h"

#include <QHBoxLayout>
#include <QStatusBar>

#include "app/panels/named_button.h"

namespace varnel {

namespace {

constexpr int paintInterval = 100;  // ms
constexpr int steps = 1000;         // of the bar

}  // namespace

BatchTools::BatchTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                       BatchJob& job)
    : QObject(window), job_(job), panel_(*parts.save), view_(view) {
    MakeRow(window);
    FollowJob();
    row_->hide();
}

void BatchTools::MakeRow(QMainWindow* window) {
    row_ = new QWidget(window);
    row_->setObjectName(QStringLiteral("BatchRow"));
    text_ = new QLabel(row_);
    text_->setObjectName(QStringLiteral("LabelBatch"));
    bar_ = new QProgressBar(row_);
    bar_->setObjectName(QStringLiteral("ProgressBatch"));
    bar_->setAccessibleName(tr("Progress of the batch"));
    bar_->setTextVisible(false);
    bar_->setRange(0, steps);
    bar_->setFixedSize(80, 12);
    pause_ = NamedButton("CmdBatchPause", tr("Pause"),
                         tr("Holds the batch where it is, and lets it go on"), row_);
    stop_ = NamedButton("CmdBatchStop", tr("Stop"),
                        tr("Finishes the batch's image at hand and leaves out the others"), row_);
    auto* const layout = new QHBoxLayout(row_);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const part : {static_cast<QWidget*>(text_), static_cast<QWidget*>(bar_),
                                static_cast<QWidget*>(pause_), static_cast<QWidget*>(stop_)}) {
        layout->addWidget(part);
    }
    window->statusBar()->addPermanentWidget(row_);
}

void BatchTools::FollowJob() {
    timer_.setInterval(paintInterval);
    connect(&timer_, &QTimer::timeout, this, &BatchTools::ShowRun);
    connect(pause_, &QPushButton::clicked, &job_, [this] { job_.Pause(!job_.IsPaused()); });
    connect(stop_, &QPushButton::clicked, &job_, &BatchJob::Stop);
    connect(&job_, &BatchJob::Started, this, [this] {
        row_->show();
        panel_.ProcessQueue()->show();
        timer_.start();
        ShowRun();
    });
    for (const auto change : {&BatchJob::Stopping, &BatchJob::Ended}) {
        connect(&job_, change, this, &BatchTools::ShowRun);
    }
    connect(&job_, &BatchJob::PauseChanged, this, &BatchTools::ShowRun);
    connect(&job_, &BatchJob::Ended, this, &BatchTools::ShowEnd);
}

void BatchTools::ShowRun() {
    const int queued = job_.Entries().UpperBound();
    text_->setText(job_.IsStopping() ? tr("Batch: finishing the image at hand")
                                     : tr("Batch: %1").arg(BatchProgressText(job_.Done(), queued)));
    const double part = queued == 0 ? 0.0 : (job_.Done() + job_.PartDone()) / queued;
    bar_->setValue(static_cast<int>(part * steps));
    pause_->setText(job_.IsPaused() ? tr("Go on") : tr("Pause"));
    stop_->setEnabled(!job_.IsStopping());
}

void BatchTools::ShowEnd() {
    timer_.stop();
    row_->hide();
    const BatchSummary& summary = job_.Summary();
    view_.ShowStatus(!job_.Shortage().isEmpty() ? job_.Shortage()
                     : summary.failures.empty()
                         ? tr("Batch: %1 images written").arg(summary.written.size())
                         : tr("Batch: %1 images written, %2 failed")
                               .arg(summary.written.size())
                               .arg(summary.failures.size()));
}

}  // namespace varnel
