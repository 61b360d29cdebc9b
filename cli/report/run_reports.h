// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a run reports of its photos and results, for people and for scripts. Throws std::bad_alloc
// only.
#pragma once

#include <QString>
#include <utility>
#include <vector>

#include "base/reason.h"
#include "cli/options/options.h"
#include "cli/report/console.h"
#include "cli/report/file_report.h"
#include "cli/report/progress_bar.h"

namespace varnel {

// To be called in the photos' order. People get the names of written files on out and all else on
// err; with the option for JSON each report is a line of it on out and no names are written there.
class RunReports {
  public:
    RunReports(const Options& options, const Console& console)
        : options_(options), console_(console), bar_(console.err, console.bar && !options.quiet) {}

    TerminalBar& Bar() { return bar_; }
    bool AllWell() const { return allWell_; }

    void Written(const FileReport& report);
    // Of results that exist already, for scripts only.
    void Skipped(const FileReport& report);
    // Of the result, or of the photo when there is none.
    void Failed(const FileReport& report);
    // Something is wrong with the photo, which is converted all the same.
    void Damaged(const QString& photo, const QString& reason);
    void Say(const QString& text);
    // The same may be true of many files: reported in full for the first one only.
    void Note(const QString& file, const Reason& note);
    // How many more files each note was about.
    void Finish();

  private:
    void Tell(const FileReport& report);

    const Options& options_;
    const Console& console_;
    TerminalBar bar_;
    std::vector<std::pair<Reason, int>> notes_;  // and how many files
    bool allWell_ = true;
};

}  // namespace varnel
