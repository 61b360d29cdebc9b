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

constexpr std::array<int, strengthsPerProjection> effects{50, 75, 100};        // percent
constexpr std::array<double, strengthsPerProjection> angles{0.85, 1.0, 1.15};  // times

const SliderRowData& RowOf(SliderId id) {
    return *std::ranges::find(SliderRows(), id, &SliderRowData::id);
}

int Angle(int inputAov, int strength) {
    const SliderRowData& row = RowOf(SliderId::AovInput);
    const double angle = inputAov * angles[static_cast<std::size_t>(strength)];
    return std::clamp(static_cast<int>(std::lround(angle)), row.minimum, row.maximum);
}

ContactTile Tile(const ImageRecord& image, Projection projection, int strength) {
    ContactTile tile;
    tile.record = image;
    tile.record.Projection = static_cast<std::int16_t>(projection);
    tile.values = ValuesFor(tile.record);
    QString told;
    if (projection == Projection::Equidistance) {
        tile.values.inputAov = Angle(tile.values.inputAov, strength);
        told = SliderCaption(RowOf(SliderId::AovInput), tile.values.inputAov);
    } else {
        const int effect = effects[static_cast<std::size_t>(strength)];
        tile.record.EffectVarnel = static_cast<float>(effect);
        if (projection != Projection::Horizon) {
            tile.values.effect = effect;
        }
        told = SliderCaption(RowOf(SliderId::Effect), effect);
    }
    ImageRecord adopted = image;
    Adopt(tile, adopted);
    tile.record = adopted;
    tile.title = ToText(projection) + QStringLiteral(" ") + told;
    tile.isCurrent = image.Projection == adopted.Projection &&
                     ValuesFor(image) == ValuesFor(adopted) &&
                     image.EffectVarnel == adopted.EffectVarnel;
    return tile;
}

}  // namespace

std::vector<ContactTile> ContactTiles(const ImageRecord& image) {
    std::vector<ContactTile> tiles;
    for (const Projection projection : allProjections) {
        for (int strength = 0; strength < strengthsPerProjection; ++strength) {
            tiles.push_back(Tile(image, projection, strength));
        }
    }
    return tiles;
}

void Adopt(const ContactTile& tile, ImageRecord& image) {
    StoreControls(tile.values, image);
    if (ProjectionFromIndex(tile.values.projection) == Projection::Horizon) {
        // It has no slider for it, but reads the field.
        image.EffectVarnel = tile.record.EffectVarnel;
    }
}

BitmapHandle TilePicture(const ContactTile& tile, FIBITMAP* source, bool smooth) {
    Bitmaps bitmaps;
    bitmaps.PreviewSourceBitmap = CloneBitmap(source);
    RenderContext context{bitmaps, [smooth] { return smooth; }};
    SilentProgress progress;
    Render(ProjectionFromIndex(tile.record.Projection), tile.record, SizeKind::Thumbnails, progress,
           context);
    return std::move(bitmaps.ResultBitmap);
}

}  // namespace varnel
