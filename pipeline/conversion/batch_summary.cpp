// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/batch_summary.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <cmath>

#include "base/error_text.h"
#include "remap/projection/projection_info.h"
#include "state/records/projection.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

qsizetype Count(const QStringList& list) {
    return list.size();
}

qsizetype Count(const std::vector<BatchError>& list) {
    return static_cast<qsizetype>(list.size());
}

QString LineOf(const QString& path) {
    return path;
}

QString LineOf(const BatchError& error) {
    return error.file + QStringLiteral(": ") + error.reason;
}

// A heading and an indented line for each; nothing when there is none.
template <class List>
QString Section(const List& list, const QString& one, const QString& many) {
    if (list.empty()) {
        return {};
    }
    QString text = u'\n' + (Count(list) == 1 ? one : many.arg(Count(list))) + u'\n';
    for (const auto& item : list) {
        text += QStringLiteral("  ") + LineOf(item) + u'\n';
    }
    return text;
}

// What applies to several files is written once, with the first of them.
QString NotesSection(const std::vector<BatchNote>& notes) {
    std::vector<BatchNote> lines;
    std::vector<qsizetype> counts;
    for (const BatchNote& note : notes) {
        const auto same = std::ranges::find(lines, note.note, &BatchNote::note);
        if (same == lines.end()) {
            lines.push_back(note);
            counts.push_back(1);
        } else {
            ++counts[same - lines.begin()];
        }
    }
    if (lines.empty()) {
        return {};
    }
    QString text =
        u'\n' +
        (notes.size() == 1 ? Texts::tr("1 file does not hold everything:")
                           : Texts::tr("%1 files do not hold everything:").arg(notes.size())) +
        u'\n';
    for (std::size_t n = 0; n < lines.size(); ++n) {
        const QString file =
            counts[n] == 1
                ? lines[n].file
                : Texts::tr("%1 and %2 more").arg(lines[n].file, QString::number(counts[n] - 1));
        text += QStringLiteral("  ") + LineOf({file, ErrorText(lines[n].note)}) + u'\n';
    }
    return text;
}

QString About(const QString& one, const QString& many, double number) {
    const int whole = static_cast<int>(number);
    return whole == 1 ? one : many.arg(whole);
}

}  // namespace

QString SummaryText(const BatchSummary& summary) {
    const QString where = summary.folder.isEmpty()
                              ? Texts::tr("%1 of %2 images written next to their photos")
                              : Texts::tr("%1 of %2 images written into %3");
    QString text = where.arg(summary.written.size()).arg(summary.queued);
    if (!summary.folder.isEmpty()) {
        text = text.arg(QDir::toNativeSeparators(summary.folder));
    }
    text += u'\n';
    if (summary.Stopped()) {
        text += Texts::tr("Stopped after %1").arg(BatchProgressText(summary.done, summary.queued)) +
                u'\n';
    }
    text += Section(summary.failures, Texts::tr("1 image failed:"), Texts::tr("%1 images failed:"));
    text +=
        Section(summary.damaged,
                Texts::tr("1 image is damaged and was written as far as it could be read:"),
                Texts::tr("%1 images are damaged and were written as far as they could be read:"));
    text += NotesSection(summary.notes);
    text += Section(summary.replaced,
                    Texts::tr("1 file was replaced by a later image of the same name:"),
                    Texts::tr("%1 files were replaced by later images of the same name:"));
    return text;
}

QString BatchProgressText(int done, int queued) {
    return Texts::tr("%1 of %2 images").arg(done).arg(queued);
}

QString TimeLeftText(double elapsedSeconds, double done) {
    if (elapsedSeconds < 3.0 || done <= 0.0 || done >= 1.0) {
        return {};
    }
    const double left = elapsedSeconds / done * (1.0 - done);
    if (left < 55.0) {
        return Texts::tr("about %1 seconds left").arg(static_cast<int>(std::ceil(left / 5.0)) * 5);
    }
    if (left < 90.0 * 60.0) {
        return About(Texts::tr("about 1 minute left"), Texts::tr("about %1 minutes left"),
                     std::round(left / 60.0));
    }
    return Texts::tr("about %1 hours left").arg(std::round(left / 1800.0) / 2.0);
}

QString QueueLine(const ImageRecord& entry) {
    const QString frame = QStringLiteral("Morph");
    QString suffix = entry.NameSuffix;
    if (suffix.startsWith(frame)) {
        suffix.insert(frame.size(), u' ');
    }
    const QString projection = TitleOf(ProjectionFromIndex(entry.Projection));
    return QStringLiteral("%1 (%2)").arg(
        entry.FileName, suffix.isEmpty() ? projection : projection + QStringLiteral(", ") + suffix);
}

}  // namespace varnel
