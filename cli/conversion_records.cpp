// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/conversion_records.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <span>

#include "cli/like_picture.h"
#include "cli/straighten_photo.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/from_photo/gear_offer.h"
#include "pipeline/conversion/morph_sequence.h"
#include "pipeline/output/output_name.h"
#include "pipeline/output/save_wish.h"
#include "remap/analysis/photo_circle.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/gear_assignment.h"
#include "state/adjustments/picture_settings.h"
#include "state/adjustments/record_fields.h"

namespace varnel {

namespace {

MorphEnds EndsFor(const Options& options, const ImageRecord& record) {
    const Projection projection = ProjectionFromIndex(record.Projection);
    MorphEnds ends = EndsFrom(record);
    for (const Adjustment& from : options.from) {
        *MorphValue(ends.start, projection, from.field) = from.value;
    }
    for (const Adjustment& to : options.to) {
        *MorphValue(ends.end, projection, to.field) = to.value;
    }
    return ends;
}

// Of --like output angle and effects stay the picture's when a gear replaces its gear.
void KeepOfLike(const Options& options, ImageRecord& record) {
    if (const auto& like = options.likeRecord) {
        record.OutputAOV = like->OutputAOV;
        record.EffectVarnel = like->EffectVarnel;
        record.EffectRectilinear = like->EffectRectilinear;
    }
}

void GiveGear(const Options& options, const GearRecord& gear, ImageRecord& record) {
    if (options.likeRecord) {
        ImageRecord like = *options.likeRecord;
        TurnCentre(like, record.Orientation);
        CopySettings(like, record);
        if (!NamesGear(options)) {
            return;
        }
        record.SettingsApplied = false;
    }
    AssignGear(gear, record);
    KeepOfLike(options, record);
}

void Adjust(const Options& options, ImageRecord& record) {
    for (const Adjustment& adjustment : options.adjustments) {
        const bool effect = adjustment.field.startsWith(QStringLiteral("Effect"));
        const float value = effect ? std::max(adjustment.value, 0.1F) : adjustment.value;
        SetField(record, adjustment.field, QString::number(static_cast<double>(value), 'g', 9));
    }
}

QStringList NotesOn(const FrameReading& reading) {
    if (reading.source == GearSource::Guess) {
        return {
            reading.doubts.centre
                ? QStringLiteral("no gear is known for it and no sure image circle was found; a "
                                 "typical fisheye, 180 degrees across, is assumed")
                : QStringLiteral("no gear is known for it; a typical fisheye, 180 degrees "
                                 "across its image circle, is assumed")};
    }
    if (reading.source == GearSource::Circle) {
        return {(reading.cropped ? QStringLiteral("cropped or reduced; scale and centre are taken "
                                                  "from its image circle")
                                 : QStringLiteral("its image circle is not where the gear says and "
                                                  "is taken from the photo")) +
                QStringLiteral(" (--circle off: from the gear)")};
    }
    return reading.cropped ? QStringList{QStringLiteral(
                                 "cropped, and no image circle was found; the largest piece of the "
                                 "sensor of its shape is assumed (--circle off: the whole)")}
                           : QStringList();
}

// A guess is made around the circle that was given, if one was.
FrameReading ReadFound(const Options& options, const std::optional<GearRecord>& gear,
                       const Bitmap& photo, ImageRecord& record) {
    const auto found = options.circle == CircleUse::Given
                           ? std::optional(FoundCircle{options.givenCircle})
                           : FindPhotoCircle(&photo);
    return gear ? ReadFrame(found, record) : GuessFrame(photo.metadata.photo.origin, found, record);
}

// The gear with the lens of its own; of a photo whose camera is not known the longer side is 36 mm,
// as for a guess.
GearRecord WithCurve(const LensReference& curve, const std::optional<GearRecord>& known,
                     const Bitmap* photo, const ImageRecord& record) {
    const CameraInfo origin = photo == nullptr ? CameraInfo() : photo->metadata.photo.origin;
    GearRecord gear = known ? *known : CameraGear(origin, record);
    GiveLens(curve, gear);
    gear.GearName = BuiltGearName(NamesOf(gear)).trimmed();
    return gear;
}

// The record itself, or the frames of its sequence.
std::vector<ImageRecord> OfProjection(const Options& options, const ImageRecord& record) {
    if (!options.morph) {
        return {record};
    }
    std::vector<ImageRecord> frames;
    const MorphEnds ends = EndsFor(options, record);
    for (int i = 1; i <= *options.morph; ++i) {
        frames.push_back(MorphFrame(record, ends, i, *options.morph));
    }
    return frames;
}

// Gives a search up between two blocks when the command is stopped.
class StoppableBlocks : public BlockRunner {
  public:
    StoppableBlocks(BlockRunner& runner, const StopCheck& stop) : runner_(runner), stop_(stop) {}
    void Run(int blocks, const std::function<void(int)>& block) override {
        runner_.Run(blocks, [&](int n) {
            stop_();
            block(n);
        });
    }

  private:
    BlockRunner& runner_;
    const StopCheck& stop_;
};

void ChooseProjection(const Options& options, Projection projection, ImageRecord& record) {
    const float angle = record.OutputAOV;
    TakeProjection(projection, record);
    const bool given = std::ranges::any_of(options.adjustments, [](const Adjustment& adjustment) {
        return adjustment.field == QStringLiteral("OutputAOV");
    });
    record.OutputAOV = given ? angle : record.OutputAOV;
}

FrameOutcome FrameOf(const ConvertRequest& request, std::span<ImageRecord> records,
                     BlockRunner& runner) {
    StoppableBlocks blocks(runner, request.stop);
    try {
        return GiveFrame(request.options.frame, records, blocks);
    } catch (const MeasuringStopped&) {
        return {ReasonCode::Cancelled};
    }
}

}  // namespace

ReadChoices ReadChoicesFor(const Options& options, const GeneralSettings& settings) {
    ReadChoices choices = ReadChoicesOf(settings, options.raw);
    const bool isFine = std::ranges::any_of(options.fields, [](const auto& field) {
        return field.first == QStringLiteral("Sampling") && field.second == QStringLiteral("fine");
    });
    choices.planar = (options.planar || settings.LessMemory) && !isFine;
    return choices;
}

bool NeedsPixels(const Options& options, const std::optional<GearRecord>& gear) {
    return !gear || options.curve || options.straighten || options.circle == CircleUse::Found;
}

StartedRecord StartRecord(const ConvertRequest& request, const QString& path, const PhotoSize& size,
                          const std::optional<GearRecord>& gear, const Bitmap* photo) {
    const Options& options = request.options;
    StartedRecord started;
    ImageRecord& record = started.record;
    FrameReading& reading = started.reading;
    const QFileInfo file(path);
    record.FileName = file.fileName();
    record.Folder = file.path() == QStringLiteral("/") ? QString() : file.path();
    TakeSize(size, record);
    GiveGear(
        options,
        options.curve ? WithCurve(options.curve, gear, photo, record) : gear.value_or(GearRecord()),
        record);
    if (record.Lens && (!options.likeRecord || NamesGear(options))) {
        const bool placed = TakeLensScale(record);
        if (!placed && options.circle == CircleUse::Found && photo != nullptr &&
            !ShapeError(record).isEmpty()) {
            reading = ReadFrame(FindPhotoCircle(photo), record);
            started.notes = NotesOn(reading);
        }
        reading.source = options.curve ? GearSource::Measured : reading.source;
    } else if (photo != nullptr && (!gear || options.circle == CircleUse::Found)) {
        reading = ReadFound(options, gear, *photo, record);
        started.notes = NotesOn(reading);
        if (reading.source != GearSource::Exif || reading.cropped) {
            KeepOfLike(options, record);
        }
    } else if (!request.gears.forAll) {
        started.notes = {ShapeError(record)};
        started.notes.removeAll(QString());
    }
    if (options.circle == CircleUse::Given) {
        TakeCircle(options.givenCircle, record);
        KeepOfLike(options, record);
        reading.doubts.scale = reading.doubts.centre = false;
    }
    if (options.straighten && photo != nullptr) {
        Straighten(request, *photo, started);
        KeepOfLike(options, record);
    }
    if (request.gears.forAll && reading.source == GearSource::Exif) {
        reading.source = GearSource::Given;
    }
    Adjust(options, record);
    return started;
}

PhotoRecords RecordsFor(const ConvertRequest& request, const ImageRecord& start,
                        BlockRunner& runner) {
    PhotoRecords records;
    for (const Projection projection : request.options.projections) {
        ImageRecord record = start;
        ChooseProjection(request.options, projection, record);
        for (const auto& [field, value] : request.options.fields) {
            SetField(record, field, value);
        }
        std::vector<ImageRecord> own = OfProjection(request.options, record);
        const FrameOutcome frame = FrameOf(request, own, runner);
        const Reason error = frame.error.isEmpty() ? FrameError(own.front()) : frame.error;
        if (!error.isEmpty()) {
            return {{}, error};
        }
        records.notes.append(frame.note);
        records.all.insert(records.all.end(), own.begin(), own.end());
    }
    return records;
}

TargetRules RulesOf(const Options& options) {
    return {RepeatedName::LaterFails, options.force          ? ExistingFile::Replaced
                                      : options.skipExisting ? ExistingFile::Skipped
                                                             : ExistingFile::Kept};
}

qsizetype RecordsOfEach(const Options& options) {
    return options.morph.value_or(static_cast<int>(options.projections.size()));
}

OutputType TypeFor(const ConvertRequest& request) {
    const Options& options = request.options;
    return options.type ? *options.type
                        : OutputTypeByEnding(options.output)
                              .value_or(OutputTypeFromText(request.settings.FileType));
}

bool KeepsDepth(const Options& options, const GeneralSettings& settings) {
    return options.depth ? *options.depth != OutputDepth::Eight : settings.KeepDepth;
}

OutputEncoding EncodingFor(const ConvertRequest& request) {
    const Options& options = request.options;
    OutputEncoding encoding = EncodingOf(request.settings);
    encoding.type = TypeFor(request);
    encoding.quality = options.quality.value_or(encoding.quality);
    encoding.chroma444 = options.chroma444.value_or(encoding.chroma444);
    encoding.depth = options.depth.value_or(encoding.depth);
    encoding.compression = options.compression.value_or(encoding.compression);
    encoding.level = options.level.value_or(encoding.level);
    return encoding;
}

QString TargetFor(const ConvertRequest& request, const QString& path, const ImageRecord& record,
                  const NameFacts& facts) {
    const Options& options = request.options;
    if (!options.output.isEmpty()) {
        return options.output;
    }
    const OutputType type = TypeFor(request);
    const bool keepsEnding = options.keepEnding || options.paired.contains(path);
    const PhotoEnding ending = keepsEnding ? PhotoEnding::Kept : PhotoEnding::Cut;
    const bool named = !options.namePattern.isEmpty();
    const NameRules rules{named ? options.namePattern : QString(usualPattern), {}, ending};
    if (!options.outputDir.isEmpty()) {
        return PathByPattern(record, options.outputDir, rules, type, facts);
    }
    if (options.morph || named) {  // only their batch names distinguish the frames
        return QDir::cleanPath(PathByPattern(record, QFileInfo(path).path(), rules, type, facts));
    }
    return ProposedName(path, ToText(ProjectionFromIndex(record.Projection)), ending) +
           ExtensionOf(type);
}

QString CutNote(const ImageRecord& record) {
    const Projection projection = ProjectionFromIndex(record.Projection);
    const std::optional<float> cut = CutAngleOf(projection, record);
    return cut ? QStringLiteral(
                     "the output angle of view is cut to %1 degrees, the widest that %2 "
                     "has")
                     .arg(static_cast<double>(*cut))
                     .arg(KeyOf(projection))
               : QString();
}

}  // namespace varnel
