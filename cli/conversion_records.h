// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the photos of a command are converted with, and what their results are called.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "cli/choose_gear.h"
#include "cli/options/options.h"
#include "pipeline/conversion/conversion_targets.h"
#include "pipeline/output/name_pattern.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/analysis/straighten/stop_check.h"
#include "state/adjustments/frame_reading.h"
#include "state/settings/general_settings.h"

namespace varnel {

// What all conversions of a command have in common.
struct ConvertRequest {
    const Options& options;
    const GearChoice& gears;
    const GeneralSettings& settings;
    StopCheck stop = {};  // of measuring
};

// The record of a photo with its size known, with its gear, and for --gear guess with the file's
// camera; the circle and, with --straighten, the edges on the photo act on it as the options say.
// The photo may be null: neither is looked for then. Throws std::bad_alloc only.
struct StartedRecord {
    ImageRecord record;
    FrameReading reading;
    QStringList notes{};  // for people: what of the record does not come from its gear
};
StartedRecord StartRecord(const ConvertRequest& request, const QString& path, const PhotoSize& size,
                          const std::optional<GearRecord>& gear, const Bitmap* photo);

// Whether that looks at the photo's pixels. Throws nothing.
bool NeedsPixels(const Options& options, const std::optional<GearRecord>& gear);

// Every record that a photo is converted with, at least one: its projections, or the frames of its
// sequence, with the frame that the options give them. The fields that --set names have the last
// word. Throws as MorphFrame and as maps do.
struct PhotoRecords {
    std::vector<ImageRecord> all{};
    Reason error{};   // why there are none
    Reasons notes{};  // what was done differently
};
PhotoRecords RecordsFor(const ConvertRequest& request, const ImageRecord& start,
                        BlockRunner& runner);

// How photos are read; planar where that is asked for. Throws nothing.
ReadChoices ReadChoicesFor(const Options& options, const GeneralSettings& settings);

// What becomes of files that lie there. Throws nothing.
TargetRules RulesOf(const Options& options);

// How many these are. Throws nothing.
qsizetype RecordsOfEach(const Options& options);

// The type of all results. Throws nothing.
OutputType TypeFor(const ConvertRequest& request);

// How all results are written. Throws nothing.
OutputEncoding EncodingFor(const ConvertRequest& request);
// Whether photos are read with all the bits that they have. Throws nothing.
bool KeepsDepth(const Options& options, const GeneralSettings& settings);

// Where a conversion goes; the path is the photo's. Throws RunTimeError when a number of the record
// cannot stand in a name.
QString TargetFor(const ConvertRequest& request, const QString& path, const ImageRecord& record,
                  const NameFacts& facts = {});

// That the record asks for more than its projection can show; empty where it does not.
QString CutNote(const ImageRecord& record);

}  // namespace varnel
