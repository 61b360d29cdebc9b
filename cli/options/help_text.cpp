// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/help_text.h"

#include "cli/options/option_list.h"

namespace varnel {

namespace {

constexpr qsizetype helpColumn = 27;
constexpr qsizetype lastColumn = 80;

constexpr char16_t head[] =
    uR"(Usage: varnel-convert [OPTIONS] PHOTO-OR-FILM...
       varnel-convert [OPTIONS] --film FILE PHOTO...
       varnel-convert --like PICTURE [OPTIONS] [PHOTO...]
       varnel-convert --measure-lens FILE [--focal MM] PHOTO...
       varnel-convert --list-gears | --list-presets
       varnel-convert --import-lens FILE
       varnel-convert --export-lens FILE --lens BRAND/MODEL
       varnel-convert --list-cameras [BRAND]
       varnel-convert --list-lenses [BRAND]

Converts fisheye photos and films into other projections, at full size. IMG.jpg
becomes IMG.Varnel.TIF (or another type) beside it, and CLIP.mp4 becomes
CLIP.Varnel.mp4; --output and --output-dir name other places.
)";

constexpr char16_t foot[] =
    uR"(
Examples:
  Straighten a photo, 95 degrees wide:
    varnel-convert --projection rectilinear --output-aov 95 \
        --camera "Canon/EOS 5D" --lens "Canon/EF 15 mm f:2.8" IMG.jpg
  All four projections of every photo, with the gear that its EXIF tells:
    varnel-convert --gear auto --projection all --output-dir DIR *.jpg
  Go on where an earlier run was stopped, and keep a list for a script:
    varnel-convert --skip-existing --json --output-dir DIR *.jpg > results.jsonl

Exit codes:
    0  all photos were converted and written
    1  some photo failed or was damaged; it was named, the others were done
    2  the command line was wrong, nothing was done
  130  stopped by Ctrl-C; results are whole, --skip-existing goes on
  143  stopped by a termination signal; likewise

The manual has it all: man varnel-convert
)";

QString Wrapped(const QString& text, const QString& first) {
    QString lines;
    QString line = first.leftJustified(helpColumn - 1);
    if (line.size() >= helpColumn) {
        lines = line + u'\n';
        line = QString(helpColumn - 1, u' ');
    }
    for (const QString& word : text.split(u' ')) {
        if (line.size() + 1 + word.size() > lastColumn) {
            lines += line + u'\n';
            line = QString(helpColumn - 1, u' ');
        }
        line += u' ' + word;
    }
    return lines + line + u'\n';
}

}  // namespace

QString HelpText() {
    QString text = OptionText(head);
    for (const OptionGroup& group : OptionGroups()) {
        text += u'\n' + OptionText(group.heading) + QStringLiteral(":\n");
        for (const OptionRow& row : group.rows) {
            QString name = QStringLiteral("  --") + OptionText(row.name);
            if (row.value != nullptr) {
                name += QStringLiteral(" <%1>").arg(OptionText(row.value));
            }
            text += Wrapped(OptionText(row.help), name);
        }
    }
    text += QStringLiteral("\nProjections:\n");
    for (const QString& key : ProjectionKeys()) {
        text += QStringLiteral("  ") + key + u'\n';
    }
    text += QStringLiteral("  all                      The first four.\n");
    return text + OptionText(foot);
}

}  // namespace varnel
