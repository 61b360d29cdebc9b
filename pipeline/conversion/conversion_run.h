// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One run of conversions: while a photo is converted the next ones are read and the last result is
// written. The batch dialog and the command line are skins over it. However many photos there are,
// only those at work are in memory.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "files/unfinished_file.h"
#include "pipeline/conversion/conversion_targets.h"
#include "pipeline/conversion/prefetching_reader.h"
#include "remap/encode/output_type.h"
#include "remap/encode/save_bitmap.h"
#include "remap/render/render.h"

namespace varnel {

// How results are written.
struct OutputChoices {
    OutputEncoding encoding;
    bool writeMetadata = true;  // the photo's go into its file
    bool writeSettings = true;  // those that made the picture go into its file
};

// What a photo is converted with; none for a reason.
struct ConversionRecords {
    std::vector<ImageRecord> all{};
    Reason error{};
    // Only that the picture is to come with its pixels, which are arriving or planar.
    bool needsPixels = false;
};

// One result: a photo and one of its records.
struct Conversion {
    qsizetype photo = 0;  // its number in the plan
    qsizetype index = 0;  // the number of the record among the photo's
    ImageRecord record;   // empty when the photo gave none
    QString target;       // empty when it is not known
    Reason damage;        // of the photo; empty when it is sound
};

struct ConversionPlan {
    QStringList photos;  // in the order in which they are converted
    // Asked for each photo, given by its number, when it was read.
    std::function<ConversionRecords(qsizetype photo, const LoadedPicture& picture)> records;
    // The full path of a result, asked after its photo's records. Throws RunTimeError when a number
    // of the record cannot stand in a name.
    std::function<QString(const Conversion& conversion)> target;
    OutputChoices output;
    std::optional<PixelSize> preview{};  // at most this size in pixels; none: the photo's own
    bool smoothPreview = false;
    // When the observer asks to stop, what was begun and not reported yet is finished all the same,
    // or else dropped as if it had not been begun.
    bool finishesBegun = false;
    // Results that can be are drawn and encoded a band of rows at a time, while the next photo is
    // read, so that none is in memory as a whole. Not where the port saves.
    bool drawsByRows = false;
    // The names of the files are made last on the disk at the end of the run, not each by itself.
    bool namesLastAtEnd = false;
};

enum class ConversionEnd {
    Written,
    Skipped,       // a file exists, and the rules leave it alone
    NotRead,       // the photo; there is one of these for all its records
    NoRecords,     // likewise
    Refused,       // the target
    NotConverted,  // an impossible number, too little memory
    NotSaved
};

struct ConversionOutcome {
    ConversionEnd end = ConversionEnd::Written;
    Reason reason;          // why it was not read, converted or saved, or why there are no records
    TargetRefusal refusal;  // why the target was refused
    Reason note;            // what of the picture is not in the written file; empty when all is
    PixelSize size;         // of the written picture, pixels
    QByteArray digest;      // of its file, where the ports make one
    SampleKind samples = SampleKind::Byte;  // of the written picture
    double seconds = 0.0;                   // by the clock, since it was begun
};

// Is notified how a run goes, on the caller's thread and as if each conversion were done before the
// next one begins. What it throws ends the conversion at hand or the run.
class ConversionObserver {
  public:
    virtual ~ConversionObserver() = default;
    // All before it is done. Called once for each, before anything else of it.
    virtual void Begun(const Conversion& conversion) = 0;
    // How far the conversion at hand is.
    virtual RenderProgress& Progress() = 0;
    virtual void Ended(const Conversion& conversion, const ConversionOutcome& outcome) = 0;
    // Asked often, after an end and before anything is begun; true ends the run.
    virtual bool StopAsked() = 0;
};

// How photos come in and go out.
struct ConversionPorts {
    std::function<LoadedPicture(const QString& path)> load;
    std::function<SaveResult(const OutputEncoding& encoding, const Bitmap* bitmap,
                             const QString& path)>
        save{};  // none: SaveBitmap
    // Begins to read a photo that is loaded next after those it was given before; false when it had
    // better be read in its turn. Where this is there, one photo is read and another one written
    // (save is called on another thread then) while a third is converted. Neither the calls of the
    // observer nor the files show it.
    std::function<bool(const QString& path)> readAhead{};
    int aheadAtMost = 1;  // photos
    // As load, but the picture may be arriving; whole then gives what load would have given. Where
    // these are there, the rows of a run's only photo are drawn while others are decoded.
    std::function<LoadedPicture(const QString& path)> loadEarly{};
    std::function<LoadedPicture(const QString& path)> whole{};
    // Of a written file, for its outcome; called where files are written.
    std::function<QByteArray(const QString& path)> digest{};
    std::function<void()> allRead{};  // no photo is loaded after this
    // Those that converting and writing share with reading; null: as many as the machine has.
    ThreadRunner* cores = nullptr;
    UnfinishedFile* unfinished = nullptr;  // where the file that is being written is noted
};

// Photos from the feed, as far ahead as it has readers. A photo that is not there yet may be what
// the run writes itself; it is read in its turn.
ConversionPorts PortsFor(PrefetchingReader& feed);

struct ConversionRunEnd {
    bool stopped = false;  // something was not done because the observer asked to stop
    Reason lasting;        // why the names of written files may not last; empty when they do
};

// Converts and writes all photos of the plan. What fails is reported to the observer and the run
// goes on. The targets are asked for each result, and notified of what was written. Throws
// std::bad_alloc and what the observer throws.
ConversionRunEnd RunConversions(const ConversionPlan& plan, ConversionTargets& targets,
                                ConversionObserver& observer, const ConversionPorts& ports);

}  // namespace varnel
