// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a photo's file says besides its pixels, made ready by its reader for the files that Varnel
// writes. It travels with the bitmap, so that clones and results have it, too. A writer of files
// need not understand the blocks: they are copied whole, and what changes with the picture lies at
// places that are given here. Throws nothing.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <cstdint>

#include "base/reason.h"
#include "remap/image/camera_info.h"

namespace varnel {

// Names (ASCII letters, digits) and values of the settings that made a picture, as they are written
// into it.
using PictureSettings = QMap<QString, QString>;

// Places in bytes from the start of the block; 0 where there is no such place. Numbers there have
// the block's own byte order ("II" or "MM" at its start) and four bytes.
struct ExifBlock {
    QByteArray bytes;             // a TIFF header with its directories; empty when there is no EXIF
    std::uint32_t width = 0;      // of the picture, pixels
    std::uint32_t height = 0;     // likewise
    std::uint32_t thumbnail = 0;  // a JPEG file
    std::uint32_t thumbnailLength = 0;  // where its length in bytes is
    std::uint32_t thumbnailRoom = 0;    // bytes that it may take, to the block's end at most

    bool operator==(const ExifBlock&) const = default;
};

struct PhotoMetadata {
    ExifBlock exif;  // orientation 1, Software is Varnel's
    // The same without what makes it too long for a JPEG segment; empty when exif fits.
    ExifBlock exifForJpeg;
    // The entries of exif's first directory that a TIFF file takes over, 12 bytes each in the
    // block's byte order and in order of their tags, their values at places counted from the
    // block's start: they hold in a file that begins with the block.
    QByteArray tiffEntries;
    QByteArray iptc;             // IIM records
    QByteArray xmp;              // an XMP packet in UTF-8, without settings; never empty once read
    std::uint32_t xmpPlace = 0;  // where in it descriptions of a subject may be added
    CameraInfo origin;
    PictureSettings settings;  // that made the photo, when Varnel wrote it
    Reasons notes;             // "written without ...": what the photo's file has and why not here

    bool operator==(const PhotoMetadata&) const = default;
    bool IsEmpty() const { return exif.bytes.isEmpty() && iptc.isEmpty() && xmp.isEmpty(); }
};

// An EXIF block of a JPEG file takes one segment with a head of six bytes.
inline constexpr qsizetype longestExifInJpeg = 65533 - 6;  // bytes

// The namespace of the settings and its usual prefix.
inline constexpr QStringView settingsNamespace = u"http://ns.varnel.example/settings/1.0/";
inline constexpr QStringView settingsPrefix = u"varnel";

}  // namespace varnel
