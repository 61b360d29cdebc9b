// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the user chose for every photo: the preview's size and the form of the written files. Throws
// nothing.
#pragma once

#include <QString>
#include <cstdint>

#include "state/settings/settings_store.h"

namespace varnel {

inline constexpr int largestPreviewSide = 1000;  // pixels

struct GeneralSettings {
    int PreviewWidth = 400;
    int PreviewHeight = 300;
    QString FileType = QStringLiteral("JPG");  // "TIFF", "JPEG", "BMP" or "PNG" once chosen
    std::int16_t JPEGcompression = 100;        // quality, percent
    bool JPEGchroma444 = false;                // colour at full resolution
    bool AutoOrient = true;                    // photos are turned upright as their EXIF says
    bool OfferGear = true;                     // the gear that a photo's EXIF names is offered
    bool WriteMetadata = true;                 // the photo's EXIF, IPTC and XMP go into the result
    bool WriteSettings = true;                 // the settings go into the result
    QString Language = QStringLiteral("en");   // of the window, as code
    bool TakeGear = true;      // added photos get the gear that their EXIF names, or a guess
    QString NamePattern = {};  // of written files, for this run; empty: the usual names
    bool KeepDepth = true;     // photos are read and written with as many bits as they have
    QString TiffCompression = QStringLiteral("auto");  // a text of remap/encode/output_depth.h
    bool FineSampling = false;                         // the window saves by the fine sampling
    bool LessMemory = false;  // where it can be, large photos take half the memory and more time

    bool operator==(const GeneralSettings&) const = default;
};

// A missing or unusable value gives the default; a preview side above the largest is cut to it. The
// store is not rewritten.
GeneralSettings LoadSettings(const SettingsStore& store);

}  // namespace varnel
