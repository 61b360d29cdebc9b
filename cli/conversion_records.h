// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One photo, one projection, one file.
#pragma once

#include <QHash>
#include <QString>

#include "cli/choose_gear.h"
#include "cli/options/options.h"
#include "pipeline/conversion/taken_names.h"
#include "files/file_identity.h"
#include "pipeline/photos/photo_loader.h"
#include "remap/encode/save_bitmap.h"
#include "remap/render/render.h"
#include "state/settings/general_settings.h"

namespace varnel {

// What all conversions of a run have in common.
struct ConversionRun {
    const Options& options;
    const GearChoice& gears;
    const GeneralSettings& settings;
    RenderProgress& progress;
    BlockRunner& runner;
    FileIdentities photos;  // those of the run
    TakenNames names = {};
    QHash<QString, QString> written = {};  // photos by the canonical names of their results
    FileSeries series = {};                // those results
};

// A photo that was read, and the record that its conversions start from.
struct OpenPhoto {
    QString path;  // as given
    ImageRecord record;
    Bitmaps bitmaps;
    bool damaged = false;
    QString error = {};  // what is damaged
    QStringList notes = {};
};

// The record of a photo with its size known: gear, then the options' adjustments.
ImageRecord StartRecord(const ConversionRun& run, const QString& path, const PhotoSize& size,
                        const GearRecord& gear);

// Every record that a photo is converted with: its projections, or the frames of its sequence. The
// fields that --set names have the last word.
std::vector<ImageRecord> RecordsFor(const ConversionRun& run, const ImageRecord& start);

// Where a conversion goes.
struct ConversionTarget {
    QString file;
    OutputType type = OutputType::Tiff;
};
// Throws RunTimeError when a number of the record cannot stand in a name.
ConversionTarget TargetFor(const ConversionRun& run, const QString& path,
                           const ImageRecord& record);

// Why a photo cannot have a result of that name; empty when it has now taken it. An earlier photo
// of the run may have the name, whether its result was written, lay there already or failed.
QString TakeName(ConversionRun& run, const QString& photo, const QString& target);

// Why nothing is written there; empty when it may be. Never replaces a photo or a result of the
// run, an older file only with --force, and not even then by a conversion of a damaged photo.
QString TargetError(ConversionRun& run, const OpenPhoto& photo, const QString& target);

// Replaces the photo's ResultBitmap, which is going to be written into the file. Throws
// RunTimeError and std::bad_alloc.
void RenderInto(const ConversionRun& run, OpenPhoto& photo, const ImageRecord& record,
                const QString& file);

// Encodes with the runner and writes.
SaveResult SaveTo(ConversionRun& run, const ConversionTarget& target, FIBITMAP* result,
                  BlockRunner& runner);

}  // namespace varnel
