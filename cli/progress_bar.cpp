// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/progress_bar.h"

#include <algorithm>

namespace varnel {

namespace {

constexpr int barWidth = 30;
constexpr qint64 drawInterval = 100;  // milliseconds

}  // namespace

void TerminalBar::Begin(float maximum) {
    maximum_ = std::max(maximum, 1.0F);
    sinceDrawn_.start();
}

void TerminalBar::Advance(float value) {
    if (sinceDrawn_.elapsed() < drawInterval) {
        return;
    }
    sinceDrawn_.restart();
    const float part = std::clamp(value / maximum_, 0.0F, 1.0F);
    const int filled = static_cast<int>(part * barWidth);
    const std::string bar = std::string(static_cast<std::size_t>(filled), '#') +
                            std::string(static_cast<std::size_t>(barWidth - filled), '.');
    terminal_ << "\r[" << bar << "] " << static_cast<int>(part * 100.0F) << " % "
              << label_.toLocal8Bit().constData() << "\x1b[K" << std::flush;
}

void TerminalBar::End() {
    terminal_ << "\r\x1b[K" << std::flush;
}

}  // namespace varnel
