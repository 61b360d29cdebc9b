// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What an earlier run has done already. Throws std::bad_alloc only.
#pragma once

#include <functional>
#include <vector>

#include "cli/conversion_records.h"
#include "cli/report/file_report.h"
#include "pipeline/conversion/conversion_targets.h"

namespace varnel {

// Photo, projection and gear of a conversion.
FileReport ReportOf(const QString& photo, const ImageRecord& record);

struct FileOfCommand {
    QString path;
    int firstResult = 1;  // the number of its first result among those of the command
    int results = 1;      // of the command
};

// What the photo's results are going to be called, after a look at its file, which is decoded where
// the names depend on its pixels; none where it cannot be converted.
std::vector<FileReport> NamedResults(const ConvertRequest& request, PhotoLoader& photos,
                                     const FileOfCommand& file);

// Takes the name for a result of the photo, or says why not.
using TakeName = std::function<TargetRefusal(const QString& result)>;

// All of the photo's results, if under every one's name a file exists already: as skipped ones, or
// as failed ones where the name is that of an earlier photo's result. Else none. The photo is not
// decoded, only its size is looked up. Their names are taken.
std::vector<FileReport> ExistingResults(const ConvertRequest& request, PhotoLoader& photos,
                                        const FileOfCommand& file, const TakeName& take);

}  // namespace varnel
