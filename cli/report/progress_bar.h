// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How far a run is, on a terminal's last line. Throws std::bad_alloc only.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <ostream>

#include "cli/report/time_left.h"
#include "remap/render/render.h"

namespace varnel {

// Draws on one line, at most ten times a second: a bar over the whole run, "12 of 340, 3 min 20 s
// left" and the photo at hand. Where no bar is wanted it does nothing.
class TerminalBar : public RenderProgress {
  public:
    TerminalBar(std::ostream& terminal, bool shown) : terminal_(terminal), shown_(shown) {}
    ~TerminalBar() override { Wipe(); }
    TerminalBar(const TerminalBar&) = delete;
    TerminalBar& operator=(const TerminalBar&) = delete;

    void Start(qsizetype pictures);
    void SetPhoto(const QString& path);
    void Done(qsizetype pictures);
    // Draws again if it is time to.
    void Refresh();
    // Before anything else is written to the terminal.
    void Wipe();

    void HandleEvents() override { Refresh(); }
    void Begin(float maximum) override;
    void Advance(float value) override;
    void End() override {}

  private:
    double Now() const { return static_cast<double>(sinceStart_.elapsed()) / 1000.0; }
    std::string Line() const;

    std::ostream& terminal_;
    const bool shown_;
    QString photo_;
    qsizetype pictures_ = 1;  // of the run
    qsizetype done_ = 0;
    double part_ = 0.0;  // of the picture at hand, 0 to 1
    float maximum_ = 1.0F;
    RunPace pace_;
    QElapsedTimer sinceStart_;
    QElapsedTimer sinceDrawn_;
    bool drawn_ = false;
};

}  // namespace varnel
