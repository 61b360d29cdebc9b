// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The engine against the plain loops over the whole range of every slider that a projection reads.

#include <gtest/gtest.h>

#include <set>

#include "remap/projection/projection_info.h"
#include "remap/render/reference/render.h"
#include "state/adjustments/slider_table.h"
#include "tests/remap/render/engine_pictures.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using testing::FisheyeRecord;

constexpr PixelSize size{301, 200};

// Both ends, the middle ground and what is closest to 0.
std::set<int> Stops(int minimum, int maximum) {
    std::set<int> stops;
    for (int n = 0; n <= 8; ++n) {
        stops.insert(minimum + (maximum - minimum) * n / 8);
    }
    for (const int n : {-2, -1, 0, 1, 2, 3, 5}) {
        stops.insert(std::clamp(n, minimum, maximum));
    }
    return stops;
}

// The record of a photo whose slider was moved. The window has none for the effect of Horizon,
// which is that of Varnel.
ImageRecord Moved(Projection projection, const SliderRowData& row, int value) {
    ImageRecord record = FisheyeRecord();
    record.Projection = static_cast<std::int16_t>(
        projection == Projection::Horizon ? Projection::Varnel : projection);
    ControlValues values = ValuesFor(record);
    SetValueOf(row.id, value, values);
    StoreControls(values, record);
    return record;
}

using Renderer = void (*)(Projection, const ImageRecord&, SizeKind, RenderProgress&,
                          RenderContext&);

BitmapHandle Drawn(Renderer renderer, Projection projection, const ImageRecord& record) {
    static const BitmapHandle source = testing::Soft(size);
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(source.get());
    SilentProgress silent;
    RenderContext context{bitmaps};
    renderer(projection, record, SizeKind::Large, silent, context);
    return std::move(bitmaps.ResultBitmap);
}

void ExpectClose(Projection projection, const ImageRecord& record) {
    const testing::Difference difference =
        testing::Compare(Drawn(&Render, projection, record).get(),
                         Drawn(&reference::Render, projection, record).get());
    EXPECT_LE(difference.largest, 1);
    EXPECT_LT(difference.share, 0.001);
}

TEST(EngineRange, TheWindowsSlidersFromEndToEnd) {
    for (const Projection projection : AllProjections()) {
        for (const SliderRowData& row : SliderRows()) {
            if (!Reads(projection, row.id)) {
                continue;
            }
            for (const int value : Stops(row.minimum, row.maximum)) {
                SCOPED_TRACE(::testing::Message() << ToText(projection).toStdString() << " "
                                                  << row.slider << " " << value);
                ExpectClose(projection, Moved(projection, row, value));
            }
        }
    }
}

// What else settings, sequences and options can say: the gear's sliders, and less than a step.
TEST(EngineRange, GearsAndFractions) {
    using enum Projection;
    const std::vector<Projection> all = AllProjections();
    const struct {
        const char* name;
        float ImageRecord::*field;
        std::vector<Projection> projections;
        std::vector<float> values;
    } rows[] = {
        {"Ratio", &ImageRecord::Ratio, {Varnel, Equidistance, Horizon}, {10, 83, 100, 160, 400}},
        {"OfsetX", &ImageRecord::OfsetX, all, {-200, -1, 1, 57, 200}},
        {"OfsetY", &ImageRecord::OfsetY, all, {-200, -1, 1, 57, 200}},
        {"EffectVarnel",
         &ImageRecord::EffectVarnel,
         {Varnel, Horizon},
         {0.01F, 0.05F, 0.1F, 0.5F, 80, 1000}},
        {"EffectRectilinear", &ImageRecord::EffectRectilinear, {Rectilinear}, {0.01F, 0.5F, 150}},
        {"OutputAOV", &ImageRecord::OutputAOV, {Rectilinear}, {0.01F, 1, 360, 3600}},
        {"InputAOV", &ImageRecord::InputAOV, {Equidistance}, {0.01F, 1, 360}},
        {"RotateX", &ImageRecord::RotateX, {Rectilinear}, {1e-6F, 0.01F, 90, 180}},
        {"RotateY", &ImageRecord::RotateY, {Rectilinear}, {1e-6F, 0.01F, 90, 180}},
        {"RotateZ", &ImageRecord::RotateZ, {Rectilinear}, {1e-6F, 0.01F, 90, 180}},
        {"TranslateX", &ImageRecord::TranslateX, {Rectilinear}, {1e-5F, 0.1F}},
        {"TranslateY", &ImageRecord::TranslateY, {Rectilinear}, {1e-5F, 0.1F}},
    };
    for (const auto& row : rows) {
        for (const Projection projection : row.projections) {
            for (const float value : row.values) {
                SCOPED_TRACE(::testing::Message() << ToText(projection).toStdString() << " "
                                                  << row.name << " " << value);
                ImageRecord record = FisheyeRecord();
                record.*row.field = value;
                ExpectClose(projection, record);
            }
        }
    }
}

}  // namespace
}  // namespace varnel
