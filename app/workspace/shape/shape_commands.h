// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How large the results of the selected photos are, what they have outside, what is cut out of the
// current one and which parts of it keep their shape. Each change is one step. Throws nothing but
// for want of memory.
#pragma once

#include <QRectF>
#include <functional>
#include <vector>

#include "app/workspace/workspace.h"
#include "pipeline/output/frame_wish.h"

namespace varnel {

// In shares of the frame from its top left corner; all of it where nothing is cut off.
QRectF CropOf(const ImageRecord& image);
// A size of both sides follows, so that the picture keeps its scale: it is that of another part.
void GiveCrop(const QRectF& crop, PixelSize photo, ImageRecord& image);

class ShapeCommands {
  public:
    explicit ShapeCommands(Workspace& workspace) : workspace_(workspace) {}

    bool MayChange() const;
    // Of each selected photo, whose size is known by then.
    void ChangeSelected(StepKind kind, const std::function<void(ImageRecord&)>& change);
    // The answer says what was done otherwise, and why: where a size is too large, nothing.
    Reason SizeSelected(const FrameWish& wish);
    // Steps of one key become one step.
    void CropCurrent(const QRectF& crop, const StepKey& key = {});
    void SoftenFacesOfCurrent(std::vector<FaceEllipse> faces, const StepKey& key = {});
    // Shows the current result before its crop, or as it is.
    void ShowWholeFrame(bool on);

  private:
    Workspace& workspace_;
};

}  // namespace varnel
