// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A progress bar in a terminal.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <ostream>

#include "remap/render.h"

namespace varnel {

// Draws on one line, at most ten times a second, and wipes it away at the end.
class TerminalBar : public RenderProgress {
  public:
    explicit TerminalBar(std::ostream& terminal) : terminal_(terminal) {}
    void SetLabel(const QString& label) { label_ = label; }
    void Begin(float maximum) override;
    void Advance(float value) override;
    void End() override;

  private:
    std::ostream& terminal_;
    QString label_;
    float maximum_ = 1.0F;
    QElapsedTimer sinceDrawn_;
};

}  // namespace varnel
