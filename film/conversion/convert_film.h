// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One film from the reader through the remap into the writer. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "base/block_runner.h"
#include "film/reading/film_reader.h"
#include "film/writing/film_writer.h"
#include "state/records/image_record.h"

namespace varnel {

struct FilmJob {
    QString target;
    // With the frames' size, its gear and its projection. Its Film says which part is converted and
    // what moves; none: all of it, and nothing.
    ImageRecord image;
    FilmEncoding encoding;
};

struct FilmPorts {
    BlockRunner& runner;
    FileOperations* operations = nullptr;  // of the written file; null: the system's
    // Asked on the caller's thread after each item that was read, with how much is done, 0 to 1;
    // false gives up for the reason Cancelled.
    std::function<bool(double part)> goesOn = {};
};

struct FilmOutcome {
    Reason error = {};       // why there is no film
    Reasons damage = {};     // what could not be decoded, or is out of its order; the film is there
    QStringList notes = {};  // what is left out of the file
    PixelSize size = {};
    std::int64_t frames = 0;
};

// Decoding, the remap and encoding go on at the same time. The reader is open, at whatever place.
// A film that ends too early is written as far as it goes where its file is cut short; after any
// other end, and where the observer gives up, the target is as it was before.
FilmOutcome ConvertFilm(FilmReader& reader, const FilmJob& job, const FilmPorts& ports);

}  // namespace varnel
