// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a photo's record needs before it can be shown or queued: the photo's size and its gear's
// numbers. Looking at a photo gives it no gear but its own, and the default gear when it never had
// one. Throws nothing but for want of memory.
#pragma once

#include "app/workspace/preview_renderer.h"

namespace varnel {

class PhotoPreparation {
  public:
    PhotoPreparation(WorkspaceModel& model, const WorkspacePorts& ports, PreviewRenderer& preview)
        : model_(model), ports_(ports), preview_(preview) {}

    // What a click sets in a record: its size and, if they are still due, its gear's numbers.
    void Prepare(ImageRecord& image);
    // False when the user gave it up.
    bool PrepareAll();
    // The current image's record, which must be there, with all that a queued record has.
    const ImageRecord& PreparedCurrent();
    // Takes the photo's size from its file unless it is known. False when the user gave up waiting.
    bool KnowSize(ImageRecord& image);
    void GiveOwnGear(ImageRecord& image);

  private:
    int OwnGear(const ImageRecord& image) const;
    void RefreshCurrent();

    WorkspaceModel& model_;
    WorkspacePorts ports_;
    PreviewRenderer& preview_;
};

}  // namespace varnel
