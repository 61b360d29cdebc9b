// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film for a benchmark, made by ffmpeg when it is first asked for and gone with the program.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace varnel::bench {

// Of one source, its arguments apart by blanks; coded as H.264 with those options. One a program.
inline const QString& MadeFilm(const QString& source, const QString& options = {}) {
    static const QTemporaryDir folder;
    static const QString path = [&] {
        QString made = folder.filePath(QStringLiteral("film.mp4"));
        QProcess::execute(QStringLiteral("ffmpeg"),
                          QStringLiteral("-v error -f lavfi -i %1 -c:v libx264 -preset veryfast %2 "
                                         "-pix_fmt yuv420p")
                                  .arg(source, options)
                                  .split(u' ', Qt::SkipEmptyParts) +
                              QStringList{made});
        return made;
    }();
    return path;
}

}  // namespace varnel::bench
