// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/frame_remap.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "film/planes/band_maker.h"
#include "film/planes/cell_kernels.h"
#include "film/planes/outside_cover.h"
#include "remap/projection/record_maps.h"

namespace varnel {

namespace {

// An even size where two share a sample; a single one stays.
std::int32_t WholeShares(std::int32_t side, std::int32_t sharing) {
    return std::max(side / sharing * sharing, 1);
}

// Photos of bytes are rounded down, those of finer samples to the nearest level. The little more
// keeps whole levels from being lost to the last bit of a position. Colour has no direction to be
// rounded in.
float RoundingOf(const FrameFormat& format, int plane) {
    constexpr float lastBits = 1.0F / 512.0F;
    const bool isAlpha = format.alpha && plane == PlanesOf(format) - 1;
    const bool toNearest = format.bits > 8 || IsChromaPlane(format, plane) || isAlpha;
    return toNearest ? lastBits : lastBits - 0.5F;
}

}  // namespace

FrameFormat RemappedFormat(const FrameFormat& source, const ImageRecord& image) {
    FrameFormat result = source;
    const PixelSize size = ResultSizeOf(image, source.size);
    const PixelSize sharing = SharingOf(source, 1);
    result.size = {WholeShares(size.width, sharing.width),
                   WholeShares(size.height, sharing.height)};
    return result;
}

struct FrameRemap::Tables {
    Projection projection = Projection::Varnel;
    std::optional<ImageRecord> image;  // none as long as nothing is set
    FrameFormat source, result;
    std::optional<MapPlaces> places;
    NodeLattice nodes;
    std::optional<BandMaker> maker;  // refers to what stands above
    struct MadeBand : Band {
        bool isMade = false;
    };
    std::vector<MadeBand> bands;  // each is made as it is first drawn, while it is at hand
    std::optional<OutsideCover> outside;

    bool Have(Projection wanted, const ImageRecord& record, const FrameFormat& format) const {
        return image && projection == wanted && source == format && *image == record;
    }
    void Make(BlockRunner& runner);
    // Of frames of the source's size in that format.
    void DrawBandOf(std::size_t band, const FrameView& from, const FrameTarget& to);
    void FillBandOf(std::size_t band, const FrameTarget& to) const;
};

void FrameRemap::Tables::Make(BlockRunner& runner) {
    result = RemappedFormat(source, *image);
    maker.reset();
    places.emplace(projection, *image, source.size);
    if (places->IsSmooth()) {
        nodes.Fill(*places, runner);
    }
    maker.emplace(*places, nodes, source, result);
    bands.resize(static_cast<std::size_t>(maker->Bands()));
    for (MadeBand& band : bands) {
        band.isMade = false;
    }
    outside.reset();
    if (image->Outside.kind == OutsideFill::Kind::Colour) {
        const auto draw = [&](const FrameView& from, const FrameTarget& to) {
            runner.Run(maker->Bands(),
                       [&](int n) { DrawBandOf(static_cast<std::size_t>(n), from, to); });
        };
        outside.emplace(*image, source, result, OutsideCover::Tools{draw, runner});
    }
}

void FrameRemap::Tables::DrawBandOf(std::size_t band, const FrameView& from,
                                    const FrameTarget& to) {
    MadeBand& made = bands[band];
    if (!made.isMade) {
        maker->Make(static_cast<int>(band), made);
        made.isMade = true;
    }
    const FrameFormat& format = from.format;
    std::array<std::array<PlanePair, mostPlanes>, grids> pairs;
    std::array<std::size_t, grids> counts{};
    std::array<int, grids> planes{};
    for (int plane = 0; plane < PlanesOf(format); ++plane) {
        const std::size_t id = GridOf(format, plane);
        const auto n = static_cast<std::size_t>(plane);
        pairs[id][counts[id]++] = {from.planes[n], to.planes[n],
                                   static_cast<float>(BlankLevel(format, plane)),
                                   RoundingOf(format, plane)};
        planes[id] = plane;
    }
    for (const GridId id : {brightness, colour}) {
        if (counts[id] == 0) {
            continue;
        }
        const SampleGrid samples = SampleGrid::Of(format, planes[id]);
        DrawBand({made, id, samples, format.size, PlaneSize(format, planes[id]),
                  PlaneSize(to.format, planes[id]), static_cast<int>(band) * samples.CellRows(),
                  BytesPerSample(format), std::span(pairs[id]).first(counts[id])});
    }
}

void FrameRemap::Tables::FillBandOf(std::size_t band, const FrameTarget& to) const {
    for (int plane = 0; plane < PlanesOf(to.format); ++plane) {
        const int rows = SampleGrid::Of(to.format, plane).CellRows();
        const int first = static_cast<int>(band) * rows;
        const int end = std::min(first + rows, PlaneSize(to.format, plane).height);
        for (int row = first; row < end; ++row) {
            outside->FillRow(to, plane, row);
        }
    }
}

FrameRemap::FrameRemap() : tables_(std::make_unique<Tables>()) {}

FrameRemap::~FrameRemap() = default;

void FrameRemap::Set(Projection projection, const ImageRecord& image, const FrameFormat& source,
                     BlockRunner& runner) {
    if (tables_->Have(projection, image, source)) {
        return;
    }
    tables_->projection = projection;
    tables_->source = source;
    tables_->image = image;
    try {
        tables_->Make(runner);
    } catch (...) {
        tables_->image.reset();
        throw;
    }
}

const FrameFormat& FrameRemap::ResultFormat() const {
    return tables_->result;
}

void FrameRemap::Draw(const FrameView& source, const FrameTarget& result,
                      BlockRunner& runner) const {
    runner.Run(static_cast<int>(tables_->bands.size()), [&](int n) {
        const auto band = static_cast<std::size_t>(n);
        tables_->DrawBandOf(band, source, result);
        if (tables_->outside) {
            tables_->FillBandOf(band, result);
        }
    });
}

}  // namespace varnel
