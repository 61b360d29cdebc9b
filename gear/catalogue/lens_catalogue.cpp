// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/catalogue/lens_catalogue.h"

#include <array>

#include "gear/catalogue/catalogue_rows.h"

namespace varnel {

namespace {

constexpr auto lenses = std::to_array<LensRow>({
#include "gear/catalogue/lenses.inc"
});

constexpr auto brands = std::to_array<BrandCount>({
    {"Canon", 9},    {"Entaniya", 9},  {"GoPro", 1},   {"Konica Minolta", 1}, {"Nikon", 3},
    {"Olympus", 2},  {"Panasonic", 1}, {"Peleng", 1},  {"Pentax", 1},         {"Samsung", 1},
    {"Samyang", 4},  {"Sigma", 5},     {"Sony", 1},    {"Tokina", 8},         {"Venus Laowa", 1},
    {"Yasuhara", 1}, {"Zeiss", 1},     {"Zenitar", 1}, {"Drones", 1},
});

constexpr std::span<const LensRow> rows(lenses);

static_assert(lenses.size() == 52 && brands.size() == 19);
static_assert(RowsFollowBrands<LensRow>(rows, brands));
static_assert(ModelsAreUnique<LensRow>(rows, brands));
static_assert(std::ranges::all_of(lenses, [](const LensRow& row) {
    return row.imageCircleRadius > 0.0F && row.mapScale > 0.0F && row.mapFactor > 0.0F;
}));

}  // namespace

QStringList FillLensBrands() {
    return BrandNames(brands);
}

QStringList FillLensModels(const QString& brand) {
    return ModelNames(rows, brand);
}

std::optional<LensRow> FindLens(const QString& brand, const QString& model) {
    return FindRow(rows, brand, model);
}

}  // namespace varnel
