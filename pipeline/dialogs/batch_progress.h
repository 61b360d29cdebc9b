// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A batch run in the batch dialog's bars and labels. While the run lasts all input is handled, so
// the caller disables what must not be used until it ends. Throws nothing.
#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QListView>
#include <QProgressBar>

#include "pipeline/conversion/batch_run.h"

namespace varnel {

struct BatchProgressWidgets {
    QListView* queue;
    QLabel* name;
    QProgressBar* imageBar;
    QLabel* count;
    QProgressBar* runBar;
    QLabel* timeLeft;
};

class BatchProgress : public BatchObserver, public RenderProgress {
  public:
    explicit BatchProgress(const BatchProgressWidgets& widgets) : widgets_(widgets) {}
    // Raises and lowers the running flag.
    void Start(int queued);
    void Stop() { running_ = false; }
    bool Running() const { return running_; }

    void Naming(const QString& path) override;
    RenderProgress& Progress() override { return *this; }
    void Done(int done, int queued) override;
    bool StopAsked() override { return !running_; }

    void HandleEvents() override;
    void Begin(float maximum) override;
    void Advance(float value) override;
    void Pause() override;
    void End() override;

  private:
    void ShowRun(double done);

    BatchProgressWidgets widgets_;
    int queued_ = 0;
    int done_ = 0;
    float maximum_ = 1.0F;  // of the photo at hand
    QElapsedTimer sinceStart_;
    QElapsedTimer sincePainted_;
    QElapsedTimer sincePaused_;
    bool running_ = false;
};

}  // namespace varnel
