// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/lens_commands.h"

#include <cmath>

#include "remap/projection/record_maps.h"
#include "state/adjustments/measured_lens.h"

namespace varnel {

namespace {

bool SameGear(const CameraInfo& one, const CameraInfo& other) {
    return one.Make == other.Make && one.Model == other.Model && one.LensModel == other.LensModel &&
           std::fabs(one.FocalLength - other.FocalLength) < 0.1F;
}

}  // namespace

CameraInfo LensCommands::OriginOf(const ImageRecord& image) {
    return ports_.photos.Facts(SourcePath(image)).metadata.origin;
}

std::vector<int> LensCommands::Alike() {
    WorkspaceModel& model = workspace_.model;
    const auto hourglass = ports_.view.Hourglass();
    const auto busy = model.activity.Occupy();
    const PhotoLoader::Together together(ports_.photos);
    const int current = model.list.CurrentLine();
    const ImageRecord& image = *model.list.Current();
    const CameraInfo origin = OriginOf(image);
    std::vector<int> lines;
    for (int line = 0; line < model.list.Images().UpperBound(); ++line) {
        ImageRecord& other = model.list.OnLine(line);
        workspace_.preparation.Prepare(other);
        const bool alike = line == current || (origin.IsKnown() ? SameGear(OriginOf(other), origin)
                                                                : other.GearName == image.GearName);
        if (ports_.photos.GivenUp()) {
            return {};
        }
        if (alike) {
            lines.push_back(line);
        }
    }
    return lines;
}

int LensCommands::Use(const LensReference& lens, bool forAll) {
    WorkspaceModel& model = workspace_.model;
    std::vector<int> lines{model.list.CurrentLine()};
    if (forAll) {
        lines = Alike();
        Q_EMIT model.activity.Idle();
    }
    const int from = model.list.Current()->Orientation;
    int given = 0;
    for (const int line : lines) {
        ImageRecord& image = model.list.OnLine(line);
        const LensReference turned = TurnedLens(lens, from, image.Orientation);
        if (HasCentreFor(*turned, {image.Width, image.Height})) {  // not of another shape
            PutLens(turned, image);
            ++given;
        }
    }
    model.steps.Note(StepKind::Straighten, {.onAllLines = forAll, .gear = {}});
    model.ShowInControls(*model.list.Current());
    workspace_.preview.Preview();
    return given;
}

}  // namespace varnel
