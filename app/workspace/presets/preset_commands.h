// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Settings that go from photo to photo: copied and pasted, or by a preset. Throws nothing but for
// want of memory.
#pragma once

#include "app/workspace/workspace.h"
#include "state/adjustments/presets.h"

namespace varnel {

class PresetCommands {
  public:
    explicit PresetCommands(Workspace& workspace)
        : workspace_(workspace), model_(workspace.model) {}

    // Whether there is a photo to copy from or to give settings to.
    bool HasPhoto() const;
    // The current photo's adjustments, for the clipboard of this and of other windows; empty when
    // there is no photo.
    QString Copy();
    // Gives them to the selected photos as one step; false when the text holds none.
    bool Paste(const QString& text);
    // Likewise what the preset names of a photo. What it names of the output holds for the run of
    // the program. False when it names none of that.
    bool Apply(const Preset& preset);

  private:
    void Give(const PictureSettings& adjustments, StepKind kind);

    Workspace& workspace_;
    WorkspaceModel& model_;
};

}  // namespace varnel
