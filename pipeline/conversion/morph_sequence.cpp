// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/morph_sequence.h"

#include <QCoreApplication>
#include <QLatin1StringView>
#include <algorithm>
#include <array>

#include "base/run_time_error.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

// A moved setting: its place in the record and among the values, and the least that a frame may
// have of it. The effects may go lower here than on the main window, where both end at 0.1.
struct MovedField {
    QLatin1StringView name;
    float ImageRecord::*field;
    float MorphValues::*value;
    std::optional<float> floor = std::nullopt;
};

#define VARNEL_MOVED(name)                                               \
    MovedField {                                                         \
        QLatin1StringView(#name), &ImageRecord::name, &MorphValues::name \
    }
constexpr std::array movedFields{
    VARNEL_MOVED(OutputAOV),
    MovedField{QLatin1StringView("EffectVarnel"), &ImageRecord::EffectVarnel, &MorphValues::effect,
               0.01F},
    MovedField{QLatin1StringView("EffectRectilinear"), &ImageRecord::EffectRectilinear,
               &MorphValues::effect, 0.1F},
    VARNEL_MOVED(RotateX),
    VARNEL_MOVED(RotateY),
    VARNEL_MOVED(RotateZ),
    VARNEL_MOVED(TranslateX),
    VARNEL_MOVED(TranslateY),
    VARNEL_MOVED(PaniniD),
    VARNEL_MOVED(PaniniSqueeze),
    VARNEL_MOVED(UnrollStart),
    VARNEL_MOVED(UnrollFrom),
    VARNEL_MOVED(UnrollTo),
};
#undef VARNEL_MOVED

// Of the two effects that which the projection reads, and all else.
bool Moves(const MovedField& moved, Projection projection) {
    return moved.value != &MorphValues::effect || EffectReadBy(projection) == moved.field;
}

// How far frame i is on its way, 0 to 1.
float Progress(int i, int N) {
    if (N == 1) {
        throw DivisionByZeroError(ReasonCode::DivisionByZero, ReasonCode::OneFrameHasNoSteps);
    }
    return static_cast<float>((i - 1) / static_cast<double>(N - 1));
}

float Between(float start, float end, float t, std::optional<float> floor) {
    const float value = start + (end - start) * t;
    return floor ? std::max(value, *floor) : value;
}

}  // namespace

MorphEnds EndsFrom(const ImageRecord& image) {
    MorphValues values;
    for (const MovedField& moved : movedFields) {
        if (Moves(moved, ProjectionFromIndex(image.Projection))) {
            values.*moved.value = image.*moved.field;
        }
    }
    return {values, values};
}

float* MorphValue(MorphValues& values, Projection projection, const QString& field) {
    for (const MovedField& moved : movedFields) {
        if (moved.name == field && Moves(moved, projection)) {
            return &(values.*moved.value);
        }
    }
    return nullptr;
}

QStringList MorphFields() {
    QStringList names;
    for (const MovedField& moved : movedFields) {
        names.append(moved.name);
    }
    return names;
}

ImageRecord MorphFrame(const ImageRecord& image, const MorphEnds& ends, int i, int N) {
    const float t = Progress(i, N);
    ImageRecord frame = image;
    for (const MovedField& moved : movedFields) {
        if (Moves(moved, ProjectionFromIndex(image.Projection))) {
            frame.*moved.field =
                Between(ends.start.*moved.value, ends.end.*moved.value, t, moved.floor);
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
