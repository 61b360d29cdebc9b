// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A batch run in the batch dialog's bars and labels, for as long as the dialog is open. Throws
// nothing.
#pragma once

#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QTimer>

#include "pipeline/conversion/batch_job.h"

namespace varnel {

struct BatchProgressWidgets {
    QListView* queue;
    QLabel* name;
    QProgressBar* imageBar;
    QLabel* count;
    QProgressBar* runBar;
    QLabel* timeLeft;
};

class BatchProgress : public QObject {
    Q_OBJECT
  public:
    BatchProgress(const BatchJob& job, const BatchProgressWidgets& widgets, QObject* parent);

  private:
    void Begin();
    void ShowName(const QString& path);
    void ShowDone(int done, int queued);
    void ShowRun();
    void HandleEvents() const;

    const BatchJob& job_;
    BatchProgressWidgets widgets_;
    QTimer timer_;
};

}  // namespace varnel
