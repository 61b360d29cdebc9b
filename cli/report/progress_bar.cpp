// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/progress_bar.h"

#include <QFileInfo>
#include <algorithm>

#include "cli/report/console.h"

namespace varnel {

namespace {

constexpr int barWidth = 24;
constexpr int lineWidth = 79;         // the narrowest usual terminal, less the cursor
constexpr qint64 drawInterval = 100;  // milliseconds

}  // namespace

void TerminalBar::Start(qsizetype pictures) {
    pictures_ = std::max<qsizetype>(pictures, 1);
    sinceStart_.start();
    sinceDrawn_.start();
}

void TerminalBar::SetPhoto(const QString& path) {
    photo_ = QFileInfo(path).fileName();
}

void TerminalBar::Done(qsizetype pictures) {
    done_ += pictures;
    part_ = 0.0;
    pace_.Done(Now(), static_cast<int>(pictures));
    Refresh();
}

void TerminalBar::Begin(float maximum) {
    maximum_ = std::max(maximum, 1.0F);
}

void TerminalBar::Advance(float value) {
    part_ = std::clamp(static_cast<double>(value / maximum_), 0.0, 1.0);
    Refresh();
}

void TerminalBar::Refresh() {
    if (!shown_ || sinceDrawn_.elapsed() < drawInterval) {
        return;
    }
    sinceDrawn_.restart();
    terminal_ << "\r" << Line() << "\x1b[K" << std::flush;
    drawn_ = true;
}

void TerminalBar::Wipe() {
    if (drawn_) {
        terminal_ << "\r\x1b[K" << std::flush;
        drawn_ = false;
    }
}

std::string TerminalBar::Line() const {
    const double part =
        std::min((static_cast<double>(done_) + part_) / static_cast<double>(pictures_), 1.0);
    QString line = QStringLiteral("[%1] ").arg(
        QString(static_cast<qsizetype>(part * barWidth), u'#').leftJustified(barWidth, u'.'));
    if (pictures_ == 1) {
        line += QStringLiteral("%1 %").arg(static_cast<int>(part * 100.0));
    } else {
        line += QStringLiteral("%1 of %2").arg(done_).arg(pictures_);
        if (const auto left = pace_.Left(static_cast<int>(pictures_ - done_), Now())) {
            line += QStringLiteral(", ") + LeftText(*left);
        }
    }
    return LocalText((line + QStringLiteral("  ") + OneLine(photo_)).left(lineWidth));
}

}  // namespace varnel
