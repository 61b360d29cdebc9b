// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/contact_sheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "state/adjustments/slider_table.h"

namespace varnel {

namespace {

// Whether the projection reads the effect without a slider for it.
bool HasHiddenEffect(Projection projection) {
    const ControlUse* const use = UseOf(projection, SliderId::Effect);
    return use != nullptr && !use->shown;
}

// The value of the control that the variants differ in.
int VariantValue(const ControlValues& values, Projection projection, int strength) {
    const SheetVariants& sheet = InfoOf(projection).sheet;
    const double given = sheet.values[static_cast<std::size_t>(strength)];
    const double value = sheet.factors ? ValueOf(sheet.control, values).value_or(0) * given : given;
    const ControlRange range = RangeOf(sheet.control, projection);
    return std::clamp(static_cast<int>(std::lround(value)), range.minimum, range.maximum);
}

ContactTile Tile(const ImageRecord& image, Projection projection, int strength) {
    const SliderId control = InfoOf(projection).sheet.control;
    ContactTile tile;
    tile.record = image;
    tile.record.Projection = static_cast<std::int16_t>(projection);
    tile.values = ValuesFor(tile.record);
    FitTo(projection, tile.values);
    const int value = VariantValue(tile.values, projection, strength);
    if (control == SliderId::Effect && HasHiddenEffect(projection)) {
        tile.record.*InfoOf(projection).effect = static_cast<float>(value);
    } else {
        SetValueOf(control, value, tile.values);
    }
    ImageRecord adopted = image;
    Adopt(tile, adopted);
    tile.record = adopted;
    tile.projection = TitleOf(projection);
    tile.strength = SliderCaption(SliderRowOf(control), value);
    tile.title = tile.projection + QStringLiteral(" ") + tile.strength;
    tile.isCurrent = image.Projection == adopted.Projection &&
                     Whole(ValuesFor(image)) == Whole(ValuesFor(adopted)) &&
                     image.EffectVarnel == adopted.EffectVarnel;
    return tile;
}

}  // namespace

std::vector<ContactTile> ContactTiles(const ImageRecord& image) {
    std::vector<ContactTile> tiles;
    for (const Projection projection : AllProjections()) {
        for (int strength = 0; strength < strengthsPerProjection; ++strength) {
            tiles.push_back(Tile(image, projection, strength));
        }
    }
    return tiles;
}

void Adopt(const ContactTile& tile, ImageRecord& image) {
    StoreControls(tile.values, image);
    const Projection projection = ProjectionFromIndex(tile.values.projection);
    if (HasHiddenEffect(projection)) {
        image.*InfoOf(projection).effect = tile.record.*InfoOf(projection).effect;
    }
}

BitmapHandle TilePicture(const ContactTile& tile, const Bitmap* source, bool smooth) {
    Bitmaps bitmaps;
    bitmaps.PreviewSourceBitmap = CloneBitmap(source);
    RenderContext context{bitmaps, [smooth] { return smooth; }};
    SilentProgress progress;
    Render(ProjectionFromIndex(tile.record.Projection), tile.record, SizeKind::Thumbnails, progress,
           context);
    return std::move(bitmaps.ResultBitmap);
}

}  // namespace varnel
