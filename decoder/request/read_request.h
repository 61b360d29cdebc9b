// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What may be asked of a photo's file. Throws nothing.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>

#include "base/pixel_size.h"
#include "decoder/request/loaded_picture.h"

namespace varnel {

enum class ReadKind : std::uint32_t {
    Whole,  // every pixel, with metadata and colour profile
    Size,   // only the size of the full picture
    Facts,  // only what the file has besides its pixels; the size is 0 x 0
    Small   // a quick small picture for looking through a folder, without metadata
};

// The samples that a whole photo comes with.
enum class ReadDepth : std::uint32_t {
    Eight,  // 8 bits, whatever the file has
    Own     // those of the file: 8 bits, 16 or floating point, and alpha where it has some
};

// The colours that a raw photo is developed into.
enum class RawProfile : std::uint32_t { Srgb, AdobeRgb, Rec2020 };

struct RawDevelopment {
    RawProfile profile = RawProfile::Srgb;
    bool isQuick = false;  // half the size, which takes a quarter of the time

    bool operator==(const RawDevelopment&) const = default;
};

struct ReadRequest {
    QString path;
    ReadKind kind = ReadKind::Whole;
    PixelSize box{};      // Small: the picture fits it; never enlarged
    bool upright = true;  // turned as its EXIF orientation says; raw files are at any rate
    ReadDepth depth = ReadDepth::Eight;
    RawDevelopment raw{};
    // Whoever asks goes on asking until the answer is there: a large picture then may come in
    // pieces.
    bool inPieces = false;
    // Such a picture may be planar, where its file is: half the memory.
    bool planar = false;
    // Called at most once while the answer is waited for, with a sound picture of which all but the
    // rows are there. What the answer will be is another question.
    std::function<void(LoadedPicture)> begun{};
};

}  // namespace varnel
