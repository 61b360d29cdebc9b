// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Morph sequences: copies of a photo's record whose settings move evenly from a start to an end.
// Throws nothing but what MorphFrame and AddMorph say.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <variant>

#include "base/record_array.h"
#include "state/records/image_record.h"

namespace varnel {

inline constexpr int mostMorphFrames = 32767;

// The settings that a sequence moves, in the units of the record.
struct MorphValues {
    float OutputAOV = 0.0F;
    float effect = 0.0F;  // the one that the record's projection reads; Equidistance reads none
    float RotateX = 0.0F;
    float RotateY = 0.0F;
    float RotateZ = 0.0F;
    float TranslateX = 0.0F;
    float TranslateY = 0.0F;
    float PaniniD = 1.0F;
    float PaniniSqueeze = 0.0F;
    float UnrollStart = 0.0F;
    float UnrollFrom = 0.0F;
    float UnrollTo = 90.0F;

    bool operator==(const MorphValues&) const = default;
};

struct MorphEnds {
    MorphValues start;
    MorphValues end;

    bool operator==(const MorphEnds&) const = default;
};

// The record's settings at both ends.
MorphEnds EndsFrom(const ImageRecord& image);

// The value by the name of its record field. The effect is EffectVarnel or EffectRectilinear,
// whichever the projection reads. Null for every other name.
float* MorphValue(MorphValues& values, Projection projection, const QString& field);

// The names that MorphValue takes, over all projections, in the record's order.
QStringList MorphFields();

// Frame i of a sequence of N, 1 <= i <= N. NameSuffix is "Morph" and the last four digits of i. The
// effect of the other projection stays as it is in the record. Throws DivisionByZeroError for a
// sequence of one frame, which has no steps.
ImageRecord MorphFrame(const ImageRecord& image, const MorphEnds& ends, int i, int N);

// Appends the whole sequence or, when it throws, nothing. N below 1 appends nothing. Throws as
// MorphFrame and std::bad_alloc.
void AddMorph(RecordArray<ImageRecord>& queue, const ImageRecord& image, const MorphEnds& ends,
              int N);

// A number of frames from what was typed: a 16-bit whole number; otherwise one line that says what
// is wrong with it.
std::variant<int, QString> FrameCountFromText(const QString& text);

}  // namespace varnel
