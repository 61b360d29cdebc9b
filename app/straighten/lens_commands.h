// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is done with a measured lens in the list: each a step that can be undone. It uses no widget.
// Throws nothing but for want of memory.
#pragma once

#include "app/workspace/workspace.h"

namespace varnel {

class LensCommands {
  public:
    LensCommands(Workspace& workspace, const WorkspacePorts& ports)
        : workspace_(workspace), ports_(ports) {}

    // Gives the current photo the lens, or all photos that the same camera and lens took, as their
    // files say; where the current photo's file says nothing, those of its gear and shape. Returns
    // how many got it.
    int Use(const LensReference& lens, bool forAll);

  private:
    std::vector<int> Alike();  // lines
    CameraInfo OriginOf(const ImageRecord& image);

    Workspace& workspace_;
    WorkspacePorts ports_;
};

}  // namespace varnel
