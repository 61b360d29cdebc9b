// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A conversion's progress in a progress bar, and the turn that it gives to waiting events. Throws
// nothing.
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

#include "remap/render/render.h"

namespace varnel {

class WindowProgress : public RenderProgress {
  public:
    explicit WindowProgress(QProgressBar* bar);
    // Whether the user's input is handled while a conversion runs. Where nothing can be started
    // (all is locked) it is; a preview lets it wait, so that no handler runs inside another.
    void LetInputThrough(bool on) { inputThrough_ = on; }

    void HandleEvents() override;
    void Begin(float maximum) override;
    void Advance(float value) override;
    void Pause() override;
    void End() override;

  private:
    QProgressBar* bar_;
    QElapsedTimer sincePainted_;
    QElapsedTimer sincePaused_;
    bool inputThrough_ = false;
};

}  // namespace varnel
