// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/report/run_reports.h"

#include <QStringList>
#include <algorithm>

#include "base/error_text.h"

namespace varnel {

void RunReports::Tell(const FileReport& report) {
    if (options_.json) {
        bar_.Wipe();
        console_.out << ToJson(report).toStdString() << std::endl;
    }
}

void RunReports::Say(const QString& text) {
    bar_.Wipe();
    Complain(console_, text);
}

void RunReports::Written(const FileReport& report) {
    Tell(report);
    if (!options_.quiet && !options_.json) {
        bar_.Wipe();
        console_.out << LocalText(report.result) << std::endl;
    }
}

void RunReports::Skipped(const FileReport& report) {
    Tell(report);
}

void RunReports::Failed(const FileReport& report) {
    allWell_ = false;
    Say((report.result.isEmpty() ? report.photo : report.result) + QStringLiteral(": ") +
        report.reason);
    Tell(report);
}

void RunReports::Damaged(const QString& photo, const QString& reason) {
    allWell_ = false;
    Say(photo + QStringLiteral(": ") + reason);
}

void RunReports::Note(const QString& file, const Reason& note) {
    if (note.isEmpty()) {
        return;
    }
    const auto known = std::ranges::find(notes_, note, &std::pair<Reason, int>::first);
    if (known != notes_.end()) {
        ++known->second;
    } else {
        notes_.emplace_back(note, 1);
        Say(file + QStringLiteral(": ") + ErrorText(note));
    }
}

void RunReports::Finish() {
    QStringList lines;
    for (const auto& [note, files] : notes_) {
        if (files > 1) {
            lines.append(QStringLiteral("%1 more: ").arg(files - 1) + ErrorText(note));
        }
    }
    for (const QString& line : lines) {
        Say(line);
    }
}

}  // namespace varnel
