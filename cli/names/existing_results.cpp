// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/names/existing_results.h"

#include <QFileInfo>
#include <algorithm>

#include "base/run_time_error.h"
#include "cli/report/failure_text.h"
#include "pipeline/conversion/run/result_drawer.h"
#include "remap/image/photo_date.h"
#include "remap/projection/projection_info.h"

namespace varnel {

FileReport ReportOf(const QString& photo, const ImageRecord& record) {
    FileReport report{.photo = photo};
    report.projection = KeyOf(ProjectionFromIndex(record.Projection)).toLower();
    report.gear = record.GearName;
    return report;
}

namespace {

// The photo's pixels may be null.
struct Looked {
    PhotoSize size;
    std::optional<GearRecord> gear;
    const Bitmap* pixels = nullptr;
};

std::vector<FileReport> NamedWith(const Looked& photo, const ConvertRequest& request,
                                  PhotoLoader& photos, const FileOfCommand& what) {
    const QString& file = what.path;
    NameFacts facts{what.firstResult, what.results, {}};
    if (NamesDay(request.options.namePattern)) {
        facts.day = PhotoDate(photos.Facts(file).metadata, file);
    }
    std::vector<FileReport> results;
    try {
        const ImageRecord start =
            StartRecord(request, file, photo.size, photo.gear, photo.pixels).record;
        SerialRunner runner;
        for (const ImageRecord& record : RecordsFor(request, start, runner).all) {
            results.push_back(ReportOf(file, record));
            results.back().result = TargetFor(request, file, record, facts);
            ++facts.number;
        }
    } catch (const RunTimeError&) {
        return {};
    }
    return results;
}

}  // namespace

std::vector<FileReport> NamedResults(const ConvertRequest& request, PhotoLoader& photos,
                                     const FileOfCommand& file) {
    const std::optional<PhotoSize> size = photos.Size(file.path);
    if (!size) {
        return {};
    }
    const auto gear =
        GearFor(request.gears,
                request.gears.forAll ? CameraInfo() : photos.Facts(file.path).metadata.origin);
    const auto* const known = std::get_if<std::optional<GearRecord>>(&gear);
    if (known == nullptr) {
        return {};
    }
    LoadedPicture picture;
    if (NeedsPixels(request.options, *known)) {
        picture = photos.Load(file.path);
        if (picture.outcome == LoadOutcome::NotLoaded) {
            return {};
        }
        HavePixels(picture);
    }
    return NamedWith({*size, *known, picture.bitmap.get()}, request, photos, file);
}

std::vector<FileReport> ExistingResults(const ConvertRequest& request, PhotoLoader& photos,
                                        const FileOfCommand& what, const TakeName& take) {
    const Options& options = request.options;
    const bool nameHasGear =
        !options.outputDir.isEmpty() || options.morph || !options.namePattern.isEmpty();
    if (!request.gears.forAll && nameHasGear) {
        return {};  // only the photo itself decides what its results are called
    }
    const std::optional<PhotoSize> size = photos.Size(what.path);
    if (!size) {
        return {};  // its error is reported in its turn
    }
    std::vector<FileReport> results =
        NamedWith({*size, request.gears.forAll.value_or(GearRecord())}, request, photos, what);
    if (!std::ranges::all_of(
            results, [](const FileReport& result) { return QFileInfo::exists(result.result); })) {
        return {};
    }
    for (FileReport& result : results) {
        const TargetRefusal taken = take(result.result);
        result.reason = RefusalText(options, what.path, taken);
        result.status = taken ? FileStatus::Failed : FileStatus::Skipped;
    }
    return results;
}

}  // namespace varnel
