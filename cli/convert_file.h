// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One photo, one projection, one file.
#pragma once

#include <QString>

#include "cli/options.h"
#include "gear/gear_record.h"
#include "pipeline/photo_loader.h"
#include "remap/render.h"
#include "state/general_settings.h"

namespace varnel {

// What all conversions of a run have in common.
struct ConversionRun {
    const Options& options;
    const GearRecord& gear;
    const GeneralSettings& settings;
    RenderProgress& progress;
    BlockRunner& runner;
    QStringList written = {};  // canonical names of the files written so far
};

// A photo that was read, and the record that its conversions start from.
struct OpenPhoto {
    QString path;  // as given
    ImageRecord record;
    Bitmaps bitmaps;
    bool damaged = false;
};

// The record of a photo with its size known: gear, then the options' adjustments.
ImageRecord StartRecord(const ConversionRun& run, const QString& path, FIBITMAP* picture);

// The photo's record for one projection; the fields that --set names have the last word.
ImageRecord RecordFor(const ConversionRun& run, const OpenPhoto& photo, Projection projection);

struct Written {
    QString file;    // the name written or meant
    QString reason;  // why it was not written; empty when it was
    QString note;    // what the file is without; empty when it has everything
};

// Converts and writes. Never replaces a photo or a result of the run, an older file only with
// --force, and not even then by a conversion of a damaged photo.
Written ConvertPhoto(const ConversionRun& run, OpenPhoto& photo, const ImageRecord& record);

}  // namespace varnel
