// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/run_reports.h"

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

void RunReports::Note(const QString& file, const QString& note) {
    if (!note.isEmpty() && notes_[note]++ == 0) {
        Say(file + QStringLiteral(": ") + note);
    }
}

void RunReports::Finish() {
    for (const auto& [note, files] : notes_.asKeyValueRange()) {
        if (files > 1) {
            Say(QStringLiteral("%1 more: ").arg(files - 1) + note);
        }
    }
}

}  // namespace varnel
