// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A batch that runs while one goes on editing, in the status bar: how far it is, pause and stop.
// Throws nothing but for want of memory.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "app/view/window_view.h"
#include "pipeline/conversion/batch_job.h"

namespace varnel {

class BatchTools : public QObject {
    Q_OBJECT
  public:
    BatchTools(QMainWindow* window, const WindowParts& parts, WindowView& view, BatchJob& job);

  private:
    void MakeRow(QMainWindow* window);
    void FollowJob();
    void ShowRun();
    void ShowEnd();

    BatchJob& job_;
    SavePanel& panel_;
    WindowView& view_;
    QWidget* row_ = nullptr;
    QLabel* text_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QPushButton* pause_ = nullptr;
    QPushButton* stop_ = nullptr;
    QTimer timer_;
};

}  // namespace varnel
