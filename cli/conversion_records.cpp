// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/conversion_records.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "cli/like_picture.h"
#include "pipeline/conversion/morph_sequence.h"
#include "pipeline/conversion/output_name.h"
#include "remap/encode/save_bitmap.h"
#include "remap/image/photo_metadata.h"
#include "remap/image/preview_size.h"
#include "state/editing/gear_assignment.h"
#include "state/editing/picture_settings.h"
#include "state/editing/record_fields.h"

namespace varnel {

namespace {

OutputType TypeFor(const Options& options, const GeneralSettings& settings) {
    if (options.type) {
        return *options.type;
    }
    return OutputTypeByEnding(options.output).value_or(OutputTypeFromText(settings.FileType));
}

QString TargetName(const ConversionRun& run, const QString& path, const ImageRecord& record,
                   OutputType type) {
    const PhotoEnding ending = run.options.keepEnding ? PhotoEnding::Kept : PhotoEnding::Cut;
    if (!run.options.output.isEmpty()) {
        return run.options.output;
    }
    if (!run.options.outputDir.isEmpty()) {
        return BatchName(record, run.options.outputDir, {}, type, ending);
    }
    if (run.options.morph) {  // the frames have nothing but their batch names to tell them apart
        return QDir::cleanPath(BatchName(record, QFileInfo(path).path(), {}, type, ending));
    }
    return ProposedName(path, ToText(ProjectionFromIndex(record.Projection)), ending) +
           ExtensionOf(type);
}

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

// A gear that is named replaces that of --like; output angle and effects stay the picture's.
void GiveGear(const Options& options, const GearRecord& gear, ImageRecord& record) {
    if (!options.likeRecord) {
        AssignGear(gear, record);
        return;
    }
    ImageRecord like = *options.likeRecord;
    TurnCentre(like, record.Orientation);
    CopySettings(like, record);
    if (NamesGear(options)) {
        record.SettingsApplied = false;
        AssignGear(gear, record);
        record.OutputAOV = like.OutputAOV;
        record.EffectVarnel = like.EffectVarnel;
        record.EffectRectilinear = like.EffectRectilinear;
    }
}

bool KeepsMetadata(const ConversionRun& run) {
    return run.settings.WriteMetadata && !run.options.noMetadata;
}

QString Error(const Options& options, QStringView reason, QStringView advice) {
    return options.advises ? QStringLiteral("%1; %2").arg(reason, advice) : reason.toString();
}

QString NameError(const Options& options, const QString& photo, const QString& first) {
    if (SameFile(photo, first)) {
        return Error(options, u"the same photo has this result already",
                     u"give each photo and projection once");
    }
    const bool endingsDiffer =
        QFileInfo(photo).fileName().compare(QFileInfo(first).fileName(), Qt::CaseInsensitive) != 0;
    return Error(
        options,
        QStringLiteral("%1 was not converted, %2 of this command has the same result name")
            .arg(photo, first),
        endingsDiffer && !options.keepEnding
            ? u"--keep-ending tells them apart"
            : u"convert them into different folders (--keep-ending tells only endings apart)");
}

}  // namespace

QString TakeName(ConversionRun& run, const QString& photo, const QString& target) {
    const QString first = run.names.Take(target, photo);
    return first.isEmpty() ? QString() : NameError(run.options, photo, first);
}

QString TargetError(ConversionRun& run, const OpenPhoto& photo, const QString& target) {
    const auto error = [&run](QStringView reason, QStringView advice) {
        return Error(run.options, reason, advice);
    };
    const QFileInfo file(target);
    if (!file.exists()) {
        return {};
    }
    if (file.isDir()) {
        return error(u"this is a folder", u"give the name of a file, or --output-dir");
    }
    if (SameFile(target, photo.path)) {
        return error(u"this is the photo itself", u"--output or --output-dir names another place");
    }
    // One that is yet to be converted, say: "varnel *" where an earlier result lies.
    if (run.photos.Contains(target)) {
        return error(u"this is one of the photos to convert", u"--output-dir names another place");
    }
    if (const QString first = run.written.value(file.canonicalFilePath()); !first.isEmpty()) {
        return NameError(run.options, photo.path, first);  // through a link, say
    }
    if (!run.options.force) {
        return error(u"the file exists", u"--force replaces it, --skip-existing leaves it alone");
    }
    return photo.damaged ? error(u"a damaged photo does not replace an existing file",
                                 u"--output or --output-dir names another place")
                         : QString();
}

void RenderInto(const ConversionRun& run, OpenPhoto& photo, const ImageRecord& record,
                const QString& file) {
    RenderContext context{photo.bitmaps, [&run] { return run.options.antialiased; }, &run.runner};
    const SizeKind kind = run.options.preview ? SizeKind::Thumbnails : SizeKind::Large;
    if (run.options.preview && !photo.bitmaps.PreviewSourceBitmap) {
        FIBITMAP* const full = photo.bitmaps.FullSourceBitmap.get();
        const PixelSize box = *run.options.preview;
        photo.bitmaps.PreviewSourceBitmap = ReducedCopy(full, PreviewSize(SizeOf(full), box, box));
    }
    Render(ProjectionFromIndex(record.Projection), record, kind, run.progress, context);
    NoteSettings(photo.bitmaps.ResultBitmap.get(), record,
                 run.settings.WriteSettings && !run.options.noSettings,
                 KeepsMetadata(run) ? file : QString());
}

SaveResult SaveTo(ConversionRun& run, const ConversionTarget& target, FIBITMAP* result,
                  BlockRunner& runner) {
    const int quality = run.options.quality.value_or(run.settings.JPEGcompression);
    const bool chroma444 = run.options.chroma444.value_or(run.settings.JPEGchroma444);
    if (!KeepsMetadata(run)) {
        DropMetadata(result);
    }
    return SaveBitmap(FormatOf(target.type), result, FileInSeries{target.file, run.series},
                      SaveFlags(target.type, quality, chroma444), &runner);
}

ImageRecord StartRecord(const ConversionRun& run, const QString& path, const PhotoSize& size,
                        const GearRecord& gear) {
    ImageRecord record;
    const QFileInfo file(path);
    record.FileName = file.fileName();
    record.Folder = file.path() == QStringLiteral("/") ? QString() : file.path();
    TakeSize(size, record);
    GiveGear(run.options, gear, record);
    for (const Adjustment& adjustment : run.options.adjustments) {
        const bool effect = adjustment.field.startsWith(QStringLiteral("Effect"));
        const float value = effect ? std::max(adjustment.value, 0.1F) : adjustment.value;
        SetField(record, adjustment.field, QString::number(static_cast<double>(value), 'g', 9));
    }
    return record;
}

std::vector<ImageRecord> RecordsFor(const ConversionRun& run, const ImageRecord& start) {
    std::vector<ImageRecord> records;
    for (const Projection projection : run.options.projections) {
        ImageRecord record = start;
        record.Projection = static_cast<std::int16_t>(projection);
        for (const auto& [field, value] : run.options.fields) {
            SetField(record, field, value);
        }
        if (!run.options.morph) {
            records.push_back(record);
            continue;
        }
        const MorphEnds ends = EndsFor(run.options, record);
        for (int i = 1; i <= *run.options.morph; ++i) {
            records.push_back(MorphFrame(record, ends, i, *run.options.morph));
        }
    }
    return records;
}

ConversionTarget TargetFor(const ConversionRun& run, const QString& path,
                           const ImageRecord& record) {
    const OutputType type = TypeFor(run.options, run.settings);
    return {TargetName(run, path, record, type), type};
}

}  // namespace varnel
