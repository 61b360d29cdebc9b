// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Saves the current photo's conversion. Throws nothing but for want of memory for a text.
#pragma once

#include "app/workspace/current_photo.h"
#include "pipeline/conversion/save_meanwhile.h"
#include "pipeline/photos/file_chooser.h"
#include "remap/encode/save_bitmap.h"

namespace varnel {

class PhotoSaver {
  public:
    PhotoSaver(WorkspaceModel& model, const WorkspacePorts& ports, PhotoPreparation& preparation,
               CurrentPhoto& photo)
        : model_(model), ports_(ports), preparation_(preparation), photo_(photo) {}

    // Converts the current photo at full size and writes it to the path that the chooser returns.
    void SaveAs(FileChooser& chooser);

  private:
    SaveResult RenderAndSave(const ImageRecord& image, const SaveChoice& choice,
                             const CancelFlag& cancelled);
    SaveResult SaveLocked(const ImageRecord& image, const SaveChoice& choice,
                          CancelFlag& cancelled);
    SaveChoice Proposal(const ImageRecord& image) const;
    void Report(const SaveResult& saved, const QString& name);

    WorkspaceModel& model_;
    WorkspacePorts ports_;
    PhotoPreparation& preparation_;
    CurrentPhoto& photo_;
};

}  // namespace varnel
