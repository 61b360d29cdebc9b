// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The batch: every queued photo converted at full size, each with its own settings, and written
// into one folder. However long the queue is, only the photos at work are in memory.
#pragma once

#include <QDate>
#include <QHash>
#include <QSet>
#include <QString>

#include "base/record_array.h"
#include "pipeline/conversion/batch_summary.h"
#include "pipeline/conversion/conversion_run.h"
#include "pipeline/conversion/films/film_saver.h"
#include "pipeline/output/name_pattern.h"

namespace varnel {

// Where the files go, what they are called and how they are written.
struct BatchChoices {
    QString folder;  // empty until one was chosen
    NameAdditions additions;
    OutputType type = OutputType::Tiff;
    int jpegQuality = 100;
    bool chroma444 = false;     // JPEG has colour at full resolution
    bool writeMetadata = true;  // the photo's go into its file
    bool writeSettings = true;  // those that made the picture go into its file
    QString pattern = {};       // of the names; empty: the usual one
    bool nextToPhoto = false;   // each file goes into its photo's folder instead
    OutputDepth depth = OutputDepth::Own;
    TiffCompression compression = TiffCompression::Usual;
    SamplingKind sampling = SamplingKind::Classic;
    QSet<QString> paired = {};  // photos whose files keep their ending in the name
    FilmOutput film = {};       // how entries that are films are written
    bool lessMemory = false;    // as GeneralSettings::LessMemory
};

// The queue's photos that are there as raw file and as JPEG: their files would have one name.
QSet<QString> PairedPhotos(const RecordArray<ImageRecord>& queue);

inline OutputEncoding EncodingOf(const BatchChoices& choices) {
    OutputEncoding encoding(choices.type, choices.jpegQuality, choices.chroma444);
    encoding.depth = choices.depth;
    encoding.compression = choices.compression;
    return encoding;
}

inline QString PatternOf(const BatchChoices& choices) {
    return choices.pattern.isEmpty() ? QString(usualPattern) : choices.pattern;
}

// Where an entry's file goes.
QString BatchFolder(const ImageRecord& entry, const BatchChoices& choices);

// The full path under which an entry is written, with the type's ending or a film's, by the
// choices' paired photos. Throws RunTimeError when a number of the record cannot stand in a name.
QString BatchPath(const ImageRecord& entry, const BatchChoices& choices,
                  const NameFacts& facts = {});

// The days on which photos were taken, by their paths.
using PhotoDays = QHash<QString, QDate>;
// What the names of the queue's entry of that number need; a photo whose day is not known yet
// counts by its file.
NameFacts FactsOf(const RecordArray<ImageRecord>& queue, int entry, const BatchChoices& choices,
                  const PhotoDays& days);

// Is notified how a run goes; all calls come on the caller's thread.
class BatchObserver {
  public:
    virtual ~BatchObserver() = default;
    // The next photo is loaded and will be written under this path: shows it and handles pending
    // events once.
    virtual void Naming(const QString& path) = 0;
    // How far the photo at hand is.
    virtual RenderProgress& Progress() = 0;
    // An entry, by its number, was written to that path, or failed for that reason. Before Done.
    virtual void EntryEnded(int /*entry*/, bool /*written*/, const QString& /*text*/) {}
    // After each photo, also one that failed: handles pending events once and shows the numbers.
    virtual void Done(int done, int queued) = 0;
    // Asked after Done and before a photo is begun; true ends the run.
    virtual bool StopAsked() = 0;
};

// Converts and writes the entries in order, with the paired photos of this queue. Loading sets an
// entry's size, nothing else of it is changed. An entry that fails is noted and nothing is written
// for it. A file that is a photo of the queue is never replaced, and no older file by a conversion
// of a damaged photo. Films are written by their saver in their turn; without one they fail. Throws
// std::bad_alloc and what the observer throws.
BatchSummary RunBatch(RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                      BatchObserver& observer, const ConversionPorts& ports,
                      FilmSaver* films = nullptr);

}  // namespace varnel
