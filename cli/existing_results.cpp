// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/existing_results.h"

#include <QFileInfo>

#include "base/run_time_error.h"
#include "cli/report/failure_text.h"
#include "remap/image/photo_date.h"
#include "remap/projection/projection_info.h"

namespace varnel {

FileReport ReportOf(const QString& photo, const ImageRecord& record) {
    FileReport report{.photo = photo};
    report.projection = KeyOf(ProjectionFromIndex(record.Projection)).toLower();
    report.gear = record.GearName;
    return report;
}

std::vector<FileReport> ExistingResults(const ConvertRequest& request, ConversionTargets& targets,
                                        PhotoLoader& photos, const FileOfCommand& what) {
    const QString& file = what.path;
    const Options& options = request.options;
    const bool nameHasGear =
        !options.outputDir.isEmpty() || options.morph || !options.namePattern.isEmpty();
    if (!request.gears.forAll && nameHasGear) {
        return {};  // only the photo itself decides what its results are called
    }
    const std::optional<PhotoSize> size = photos.Size(file);
    if (!size) {
        return {};  // its error is reported in its turn
    }
    NameFacts facts{what.firstResult, what.results, {}};
    if (NamesDay(options.namePattern)) {
        facts.day = PhotoDate(photos.Facts(file).metadata, file);
    }
    std::vector<FileReport> results;
    try {
        const ImageRecord start =
            StartRecord(request, file, *size, request.gears.forAll.value_or(GearRecord()), nullptr)
                .record;
        SerialRunner runner;
        const PhotoRecords records = RecordsFor(request, start, runner);
        if (!records.error.isEmpty()) {
            return {};  // it is reported in its turn
        }
        for (const ImageRecord& record : records.all) {
            results.push_back(ReportOf(file, record));
            results.back().result = TargetFor(request, file, record, facts);
            ++facts.number;
            if (!QFileInfo::exists(results.back().result)) {
                return {};
            }
        }
    } catch (const RunTimeError&) {
        return {};
    }
    for (FileReport& result : results) {
        const TargetRefusal taken = targets.Take(file, result.result);
        result.reason = RefusalText(options, file, taken);
        result.status = taken ? FileStatus::Failed : FileStatus::Skipped;
    }
    return results;
}

}  // namespace varnel
