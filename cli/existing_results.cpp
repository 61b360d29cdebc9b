// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/existing_results.h"

#include <QFileInfo>

#include "base/run_time_error.h"

namespace varnel {

FileReport ReportOf(const QString& photo, const ImageRecord& record) {
    FileReport report{.photo = photo};
    report.projection = ToText(ProjectionFromIndex(record.Projection)).toLower();
    report.gear = record.GearName;
    return report;
}

std::vector<FileReport> ResultsThere(ConversionRun& run, PhotoLoader& photos, const QString& file) {
    const bool nameTellsGear = !run.options.outputDir.isEmpty() || run.options.morph;
    if (!run.gears.forAll && nameTellsGear) {
        return {};  // only the photo itself tells what its results are called
    }
    const std::optional<PhotoSize> size = photos.Size(file);
    if (!size) {
        return {};  // its error is told in its turn
    }
    std::vector<FileReport> results;
    try {
        const ImageRecord start =
            StartRecord(run, file, *size, run.gears.forAll.value_or(GearRecord()));
        for (const ImageRecord& record : RecordsFor(run, start)) {
            results.push_back(ReportOf(file, record));
            results.back().result = TargetFor(run, file, record).file;
            if (!QFileInfo::exists(results.back().result)) {
                return {};
            }
        }
    } catch (const RunTimeError&) {
        return {};
    }
    for (FileReport& result : results) {
        result.reason = TakeName(run, file, result.result);
        result.status = result.reason.isEmpty() ? FileStatus::Skipped : FileStatus::Failed;
    }
    return results;
}

}  // namespace varnel
