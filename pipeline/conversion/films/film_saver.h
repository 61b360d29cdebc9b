// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing a converted film, as a port: not every build can write films. Throws
// std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "base/reason.h"
#include "state/records/image_record.h"

namespace varnel {

struct FilmOutput {
    QString codec = QStringLiteral("h264");  // as the command line names it
    std::optional<int> crf = {};             // none: the encoder's own
    QString speed = {};                      // as the encoder names it; empty: its own

    bool operator==(const FilmOutput&) const = default;
};

// ".mp4", or what else the codec is usually found in.
inline QString EndingOf(const FilmOutput& output) {
    return output.codec == u"prores" ? QStringLiteral(".mov")
           : output.codec == u"ffv1" ? QStringLiteral(".mkv")
                                     : QStringLiteral(".mp4");
}

struct SavedFilm {
    Reason error;       // why there is none; Cancelled when it was given up
    QStringList notes;  // what is left out of it, and frames that were damaged
};

class FilmSaver {
  public:
    virtual ~FilmSaver() = default;
    // Converts the film with its keys, from its in to its out point. May be called on any thread;
    // asks `goesOn` there with the part that is done, 0 to 1. What is under the path is replaced at
    // the end, and stays as it is when no film comes about.
    virtual SavedFilm Save(const ImageRecord& film, const FilmOutput& output, const QString& path,
                           const std::function<bool(double part)>& goesOn) = 0;
};

}  // namespace varnel
