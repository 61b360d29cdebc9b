// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/shape/shape_commands.h"

#include <cmath>
#include <utility>

#include "remap/render/result_size.h"

namespace varnel {

namespace {

std::int32_t Share(double share, std::int32_t side) {
    return std::max(static_cast<std::int32_t>(std::lround(share * side)), 1);
}

}  // namespace

QRectF CropOf(const ImageRecord& image) {
    if (!IsCropped(image)) {
        return {0.0, 0.0, 1.0, 1.0};
    }
    const auto length = [](float part) { return part > 0.0F ? static_cast<double>(part) : 1.0; };
    return {static_cast<double>(image.CropLeft), static_cast<double>(image.CropTop),
            length(image.CropWidth), length(image.CropHeight)};
}

void GiveCrop(const QRectF& crop, PixelSize photo, ImageRecord& image) {
    const bool sized = image.OutputWidth > 0 && image.OutputHeight > 0;
    const PixelSize frame = ResultSizeOf(WithoutCrop(image, photo), photo);
    const bool all = crop.width() >= 1.0 && crop.height() >= 1.0;
    image.CropLeft = all ? 0.0F : static_cast<float>(crop.left());
    image.CropTop = all ? 0.0F : static_cast<float>(crop.top());
    image.CropWidth = all ? 0.0F : static_cast<float>(crop.width());
    image.CropHeight = all ? 0.0F : static_cast<float>(crop.height());
    if (sized) {
        image.OutputWidth = Share(crop.width(), frame.width);
        image.OutputHeight = Share(crop.height(), frame.height);
    }
}

bool ShapeCommands::MayChange() const {
    const WorkspaceModel& model = workspace_.model;
    return model.list.Current() != nullptr && !model.activity.Busy() &&
           !model.state.loadingControls;
}

void ShapeCommands::ChangeSelected(StepKind kind, const std::function<void(ImageRecord&)>& change) {
    if (!MayChange()) {
        return;
    }
    WorkspaceModel& model = workspace_.model;
    const std::vector<int> lines = model.list.SelectedLines();
    for (const int line : lines) {
        workspace_.preparation.Prepare(model.list.OnLine(line));
    }
    model.steps.Absorb();
    for (const int line : lines) {
        ImageRecord& image = model.list.OnLine(line);
        change(image);
        image.SettingsApplied = true;
    }
    model.steps.Note(kind);
    workspace_.preview.Preview();
}

// Each by its own photo; without a size, a shape and the like it is the photo's.
Reason ShapeCommands::SizeSelected(const FrameWish& wish) {
    Reason reason;
    ChangeSelected(StepKind::Size, [&](ImageRecord& image) {
        if (!wish.HasFrame()) {
            image.OutputWidth = image.OutputHeight = 0;
            return;
        }
        const FrameOutcome outcome = GiveFrame(wish, {&image, 1}, workspace_.model.state.pool);
        reason = outcome.error.isEmpty() ? outcome.note : outcome.error;
    });
    return reason;
}

void ShapeCommands::CropCurrent(const QRectF& crop, const StepKey& key) {
    if (!MayChange()) {
        return;
    }
    workspace_.preparation.PreparedCurrent();
    WorkspaceModel& model = workspace_.model;
    model.steps.Absorb();
    ImageRecord& image = *model.list.Current();
    const PixelSize photo{image.Width, image.Height};
    const ImageRecord before = WithoutCrop(image, photo);
    GiveCrop(crop, photo, image);
    image.SettingsApplied = true;
    model.steps.Note(StepKind::Crop, {}, key);
    if (!model.showsWholeFrame || !(before == WithoutCrop(image, photo))) {
        workspace_.preview.Preview();
    }
}

void ShapeCommands::SoftenFacesOfCurrent(std::vector<FaceEllipse> faces, const StepKey& key) {
    if (!MayChange()) {
        return;
    }
    workspace_.preparation.PreparedCurrent();
    ImageRecord& image = *workspace_.model.list.Current();
    image.Faces = std::move(faces);
    image.SettingsApplied = true;
    workspace_.model.steps.Note(StepKind::Faces, {}, key);
    workspace_.preview.Preview();
}

void ShapeCommands::ShowWholeFrame(bool on) {
    workspace_.model.showsWholeFrame = on;
    if (const ImageRecord* const image = workspace_.model.list.Current()) {
        ImageRecord shown = *image;
        workspace_.model.controls.StoreInto(shown);
        workspace_.preview.Draw(shown);
    }
}

}  // namespace varnel
