// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// States of the image list that share the records in which they do not differ, and what changed
// between two of them. Lines count from 0. Throws nothing but for want of memory.
#pragma once

#include <memory>
#include <vector>

#include "base/record_array.h"
#include "state/records/image_record.h"

namespace varnel {

using SharedRecord = std::shared_ptr<const ImageRecord>;
using ListRun = std::vector<SharedRecord>;

// The stretch of lines that changed; both runs are empty when nothing did.
struct RunChange {
    std::size_t first = 0;  // line
    ListRun before, after;
};

// The list as a run that takes each record from the known one that has it for the same photo.
ListRun SharedWith(const ListRun& known, const RecordArray<ImageRecord>& images);
RunChange ChangeBetween(const ListRun& before, const ListRun& after);
// The run with other lines in place of count lines from the first on.
ListRun Spliced(const ListRun& run, std::size_t first, std::size_t count, const ListRun& instead);
// Whether both have the same photos on the same lines, whatever their settings are.
bool SamePhotos(const ListRun& a, const ListRun& b);
// For each line of the second run the line on which its photo is in the first, -1 for none.
std::vector<int> OriginOf(const ListRun& before, const ListRun& after);

}  // namespace varnel
