// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the user does with the settings of the selected photos. Throws nothing but for want of
// memory.
#pragma once

#include "app/workspace/current_photo.h"
#include "pipeline/photos/contact_sheet.h"

namespace varnel {

class AdjustmentCommands {
  public:
    AdjustmentCommands(WorkspaceModel& model, const WorkspacePorts& ports,
                       PhotoPreparation& preparation, CurrentPhoto& photo, PreviewRenderer& preview)
        : model_(model),
          ports_(ports),
          preparation_(preparation),
          photo_(photo),
          preview_(preview) {}

    // Stores the changed controls into the selected records, lets waiting events run once and
    // previews.
    void StoreControls(bool withPreview);
    // Stores the changed controls into the current record alone, as a step of that kind, and draws
    // nothing. Steps of one key become one step.
    void StoreSteered(StepKind kind, const StepKey& key);
    // The current photo's own effect comes with the projection.
    void ChooseProjection(Projection projection);
    // Previews even if automatic preview is off, after storing the controls.
    void PreviewNow();
    void AdoptTile(const ContactTile& tile);  // of the contact sheet
    void ApplyToAll();                        // the current photo's settings

  private:
    WorkspaceModel& model_;
    WorkspacePorts ports_;
    PhotoPreparation& preparation_;
    CurrentPhoto& photo_;
    PreviewRenderer& preview_;
};

}  // namespace varnel
