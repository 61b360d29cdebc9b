// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/drawn_rows.h"

#include <utility>

#include "remap/render/engine/projection_engine.h"
#include "remap/render/panorama.h"
#include "remap/render/row_renderer.h"

namespace varnel {

DrawnRows::DrawnRows(Projection projection, const ImageRecord& image, const Bitmap& photo,
                     PhotoRows rows)
    : projection_(projection),
      image_(image),
      photo_(photo),
      rows_(std::move(rows)),
      frames_(FramesOf(image, photo.Size(), {})) {
    const ProjectionMaps maps(projection, image, frames_);
    maps.Green().ProgressAt(maps.Green().LastLine());  // an overflow is better found now
}

BitmapHandle DrawnRows::WithoutPixels() const {
    auto result = std::make_unique<Bitmap>(photo_.Format(), frames_.output.size, nullptr);
    result->metadata = photo_.metadata;
    result->metadata.panorama =
        PanoramaOfResult(projection_, image_, frames_.output, photo_.metadata.photo);
    return result;
}

void DrawnRows::WithRows(LineRange rows, const std::function<void(const Bitmap&)>& use) const {
    const PixelSize size = frames_.output.size;
    const std::size_t pitch = RowPitch(size.width, photo_.Format());
    Memory memory = Take(pitch * static_cast<std::size_t>(rows.Count()));
    // The bitmap begins before its only memory: all that draws and reads goes by rows.
    std::byte* const bottom =
        memory.data() - static_cast<std::ptrdiff_t>(pitch) * std::ptrdiff_t{rows.first};
    const BitmapHandle band = BitmapOver(bottom, size, photo_.Format());
    band->metadata.colourProfile = photo_.metadata.colourProfile;
    SerialRunner alone;
    const RenderSurface surface(&photo_, band.get(), frames_.output, alone,
                                {rows_.arriving.get(), rows_.planar.get()});
    const std::unique_ptr<RowRenderer> renderer = RowsOf(projection_, image_, frames_, surface);
    renderer->DrawRows(rows);
    done_ += rows.Count();
    use(*band);
    GiveBack(std::move(memory));
}

void DrawnRows::End() {
    photo_ = Bitmap(photo_.Format(), photo_.Size(), nullptr);
    rows_.planar = nullptr;
    free_.clear();
}

DrawnRows::Memory DrawnRows::Take(std::size_t length) const {
    Memory memory;
    {
        const std::scoped_lock lock(mutex_);
        if (!free_.empty()) {
            memory = std::move(free_.back());
            free_.pop_back();
        }
    }
    memory.resize(length);
    return memory;
}

void DrawnRows::GiveBack(Memory memory) const {
    const std::scoped_lock lock(mutex_);
    free_.push_back(std::move(memory));
}

}  // namespace varnel
