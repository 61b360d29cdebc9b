// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/convert_file.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <new>

#include "pipeline/output_name.h"
#include "pipeline/preview_size.h"
#include "remap/run_time_error.h"
#include "remap/save_bitmap.h"
#include "state/gear_assignment.h"
#include "state/record_fields.h"

namespace varnel {

namespace {

OutputType TypeFor(const Options& options, const GeneralSettings& settings) {
    if (options.type) {
        return *options.type;
    }
    return OutputTypeByEnding(options.output).value_or(OutputTypeFromText(settings.FileType));
}

QString TargetName(const ConversionRun& run, const OpenPhoto& photo, const ImageRecord& record,
                   OutputType type) {
    if (!run.options.output.isEmpty()) {
        return run.options.output;
    }
    if (!run.options.outputDir.isEmpty()) {
        return BatchName(record, run.options.outputDir, {}, type);
    }
    if (run.options.morph) {  // the frames have nothing but their batch names to tell them apart
        return QDir::cleanPath(BatchName(record, QFileInfo(photo.path).path(), {}, type));
    }
    return ProposedName(photo.path, ProjectionFromIndex(record.Projection)) + ExtensionOf(type);
}

bool SameFile(const QFileInfo& file, const QString& path) {
    return file.canonicalFilePath() == QFileInfo(path).canonicalFilePath();
}

QString TargetTrouble(const ConversionRun& run, const OpenPhoto& photo, const QString& target) {
    const QFileInfo file(target);
    if (!file.exists()) {
        return {};
    }
    if (file.isDir()) {
        return QStringLiteral("this is a folder");
    }
    if (SameFile(file, photo.path)) {
        return QStringLiteral("this is the photo itself");
    }
    // One that is yet to be converted, say: "varnel *" where an earlier result lies.
    if (std::ranges::any_of(run.options.files,
                            [&](const QString& path) { return SameFile(file, path); })) {
        return QStringLiteral("this is one of the photos to convert");
    }
    if (run.written.contains(file.canonicalFilePath())) {
        return QStringLiteral("another photo of this command was written there");
    }
    if (!run.options.force) {
        return QStringLiteral("the file exists; --force replaces it");
    }
    return photo.damaged ? QStringLiteral("a damaged photo does not replace an existing file")
                         : QString();
}

void RenderInto(const ConversionRun& run, OpenPhoto& photo, const ImageRecord& record) {
    RenderDesk desk{photo.bitmaps, [&run] { return run.options.antialiased; }, &run.runner};
    const SizeKind kind = run.options.preview ? SizeKind::Thumbnails : SizeKind::Large;
    if (run.options.preview && !photo.bitmaps.PreviewSourceBitmap) {
        FIBITMAP* const full = photo.bitmaps.FullSourceBitmap.get();
        const PixelSize box = *run.options.preview;
        photo.bitmaps.PreviewSourceBitmap = ReducedCopy(full, PreviewSize(SizeOf(full), box, box));
    }
    Render(ProjectionFromIndex(record.Projection), record, kind, run.progress, desk);
}

SaveResult WriteTo(const QString& target, const ConversionRun& run, OpenPhoto& photo,
                   const ImageRecord& record, OutputType type) {
    if (const QString trouble = TargetTrouble(run, photo, target); !trouble.isEmpty()) {
        return {false, trouble};
    }
    RenderInto(run, photo, record);
    const int quality = run.options.quality.value_or(run.settings.JPEGcompression);
    return SaveBitmap(FormatOf(type), photo.bitmaps.ResultBitmap.get(), target,
                      SaveFlags(type, quality), &run.runner);
}

}  // namespace

ImageRecord StartRecord(const ConversionRun& run, const QString& path, FIBITMAP* picture) {
    ImageRecord record;
    const QFileInfo file(path);
    record.FileName = file.fileName();
    record.Folder = file.path() == QStringLiteral("/") ? QString() : file.path();
    TakeSize(SizeOf(picture), record);
    AssignGear(run.gear, record);
    for (const Adjustment& adjustment : run.options.adjustments) {
        const bool effect = adjustment.field.startsWith(QStringLiteral("Effect"));
        const float value = effect ? std::max(adjustment.value, 0.1F) : adjustment.value;
        SetField(record, adjustment.field, QString::number(static_cast<double>(value), 'g', 9));
    }
    return record;
}

ImageRecord RecordFor(const ConversionRun& run, const OpenPhoto& photo, Projection projection) {
    ImageRecord record = photo.record;
    record.Projection = static_cast<std::int16_t>(projection);
    for (const auto& [field, value] : run.options.fields) {
        SetField(record, field, value);
    }
    return record;
}

Written ConvertPhoto(const ConversionRun& run, OpenPhoto& photo, const ImageRecord& record) {
    const OutputType type = TypeFor(run.options, run.settings);
    Written written{photo.path, {}, {}};
    try {
        written.file = TargetName(run, photo, record, type);
        const SaveResult saved = WriteTo(written.file, run, photo, record, type);
        written.reason = saved.reason;
        written.note = saved.note;
    } catch (const RunTimeError& error) {
        written.reason = QString::fromUtf8(error.what());
    } catch (const std::bad_alloc&) {
        written.reason = QStringLiteral("not enough memory");
    }
    return written;
}

}  // namespace varnel
