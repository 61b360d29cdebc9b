// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/morph_sequence.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "base/run_time_error.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/moved_fields.h"

namespace varnel {

namespace {

// Where each of movedFields, in their order, is among the values.
constexpr std::array<float MorphValues::*, movedFields.size()> movedValues{
    &MorphValues::OutputAOV,     &MorphValues::effect,      &MorphValues::effect,
    &MorphValues::RotateX,       &MorphValues::RotateY,     &MorphValues::RotateZ,
    &MorphValues::TranslateX,    &MorphValues::TranslateY,  &MorphValues::PaniniD,
    &MorphValues::PaniniSqueeze, &MorphValues::UnrollStart, &MorphValues::UnrollFrom,
    &MorphValues::UnrollTo};

float MorphValues::*ValueOf(const MovedField& moved) {
    return movedValues[static_cast<std::size_t>(&moved - movedFields.data())];
}

// Of the two effects that which the projection reads, and all else.
bool Moves(const MovedField& moved, Projection projection) {
    return ValueOf(moved) != &MorphValues::effect || EffectReadBy(projection) == moved.field;
}

// How far frame i is on its way, 0 to 1.
float Progress(int i, int N) {
    if (N == 1) {
        throw DivisionByZeroError(ReasonCode::DivisionByZero, ReasonCode::OneFrameHasNoSteps);
    }
    return static_cast<float>((i - 1) / static_cast<double>(N - 1));
}

}  // namespace

MorphEnds EndsFrom(const ImageRecord& image) {
    MorphValues values;
    for (const MovedField& moved : movedFields) {
        if (Moves(moved, ProjectionFromIndex(image.Projection))) {
            values.*ValueOf(moved) = image.*moved.field;
        }
    }
    return {values, values};
}

float* MorphValue(MorphValues& values, Projection projection, const QString& field) {
    const MovedField* const moved = MovedFieldOf(field);
    return moved != nullptr && Moves(*moved, projection) ? &(values.*ValueOf(*moved)) : nullptr;
}

QStringList MorphFields() {
    return MovedFieldNames();
}

ImageRecord MorphFrame(const ImageRecord& image, const MorphEnds& ends, int i, int N) {
    const float t = Progress(i, N);
    ImageRecord frame = image;
    for (const MovedField& moved : movedFields) {
        if (Moves(moved, ProjectionFromIndex(image.Projection))) {
            frame.*moved.field =
                OnTheWay(moved, ends.start.*ValueOf(moved), ends.end.*ValueOf(moved), t);
        }
    }
    frame.NameSuffix =
        QStringLiteral("Morph") + (QStringLiteral("000") + QString::number(i)).right(4);
    return frame;
}

void AddMorph(RecordArray<ImageRecord>& queue, const ImageRecord& image, const MorphEnds& ends,
              int N) {
    const int before = queue.UpperBound();
    try {
        for (int i = 1; i <= N; ++i) {
            queue.Append(MorphFrame(image, ends, i, N));
        }
    } catch (...) {
        queue.Resize(before);
        throw;
    }
}

std::variant<int, QString> FrameCountFromText(const QString& text) {
    const QString trimmed = text.trimmed();
    bool isWhole = false;
    const double value = trimmed.toDouble(&isWhole);
    isWhole = isWhole && std::all_of(trimmed.begin(), trimmed.end(), [](QChar c) {
                  return (c >= u'0' && c <= u'9') || c == u'-' || c == u'+';
              });
    if (!isWhole) {
        return QCoreApplication::translate("Morph", "\"%1\" is not a whole number.").arg(text);
    }
    if (value > mostMorphFrames || value < -mostMorphFrames - 1) {
        return QCoreApplication::translate("Morph",
                                           "%1 is out of range: a sequence has at most %2 frames.")
            .arg(trimmed)
            .arg(mostMorphFrames);
    }
    return static_cast<int>(value);
}

}  // namespace varnel
