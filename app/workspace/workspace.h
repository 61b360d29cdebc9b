// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The photographer's workspace: its model and all that can be done on it. It uses no widget. Throws
// nothing but for want of memory.
#pragma once

#include "app/workspace/adjustment_commands.h"
#include "app/workspace/current_photo.h"
#include "app/workspace/gear_commands.h"
#include "app/workspace/list_commands.h"
#include "app/workspace/photo_adder.h"
#include "app/workspace/photo_preparation.h"
#include "app/workspace/photo_saver.h"
#include "app/workspace/preview_renderer.h"
#include "app/workspace/workspace_model.h"
#include "app/workspace/workspace_view.h"

namespace varnel {

struct Workspace {
    Workspace(WorkspaceModel& theModel, const WorkspacePorts& ports)
        : model(theModel),
          preview(model, ports.view),
          preparation(model, ports, preview),
          photo(model, ports, preparation, preview),
          gears(model, preparation, preview),
          adjustments(model, ports, preparation, photo, preview),
          list(model, ports, preparation, photo, preview),
          adder(model, ports, photo),
          saver(model, ports, preparation, photo) {}
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    WorkspaceModel& model;
    PreviewRenderer preview;
    PhotoPreparation preparation;
    CurrentPhoto photo;
    GearCommands gears;
    AdjustmentCommands adjustments;
    ListCommands list;
    PhotoAdder adder;
    PhotoSaver saver;
};

}  // namespace varnel
