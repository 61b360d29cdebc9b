// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/catalogue/camera_catalogue.h"

#include <array>

#include "gear/catalogue/catalogue_rows.h"

namespace varnel {

namespace {

constexpr auto cameras = std::to_array<CameraRow>({
#include "gear/catalogue/cameras.inc"
});

constexpr auto brands = std::to_array<BrandCount>({
    {"By sensor size", 9}, {"Canon", 80},     {"Contax", 1},     {"Epson", 1},
    {"Fuji", 42},          {"GoPro", 1},      {"Hasselblad", 3}, {"Kodak", 4},
    {"Konica Minolta", 2}, {"Leica", 26},     {"Nikon", 74},     {"Olympus", 45},
    {"OM System", 2},      {"Panasonic", 49}, {"Pentax", 37},    {"Samsung", 22},
    {"Sigma", 10},         {"Sony", 69},      {"YI", 1},         {"Drones", 1},
});

constexpr std::span<const CameraRow> rows(cameras);

static_assert(cameras.size() == 479 && brands.size() == 20);
static_assert(RowsFollowBrands<CameraRow>(rows, brands));
static_assert(ModelsAreUnique<CameraRow>(rows, brands));
static_assert(std::ranges::all_of(cameras, [](const CameraRow& row) {
    return row.sensorHeight > 0.0F && row.sensorWidth >= row.sensorHeight;
}));

}  // namespace

QStringList FillCameraBrands() {
    return BrandNames(brands);
}

QStringList FillCameraModels(const QString& brand) {
    return ModelNames(rows, brand);
}

std::optional<CameraRow> FindCamera(const QString& brand, const QString& model) {
    return FindRow(rows, brand, model);
}

}  // namespace varnel
