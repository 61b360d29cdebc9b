// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the user does with the image list as a whole. Lines count from 0. Throws nothing but for
// want of memory.
#pragma once

#include "app/workspace/current_photo.h"

namespace varnel {

class ListCommands {
  public:
    ListCommands(WorkspaceModel& model, const WorkspacePorts& ports, PhotoPreparation& preparation,
                 CurrentPhoto& photo, PreviewRenderer& preview)
        : model_(model),
          ports_(ports),
          preparation_(preparation),
          photo_(photo),
          preview_(preview) {}

    void RemoveSelected();
    // Lines in their order; what is then on the line shown becomes current.
    void Remove(const std::vector<int>& lines, int shown);
    // The selected lines together before the target's line; the count puts them last.
    void MoveSelected(int target);
    // Copies the whole list into the batch queue; returns the queue's length.
    int AddToBatchQueue();
    // The list of a project file instead of the present one; the line becomes current. Without a
    // file it is a list that was kept against a crash.
    void TakeProject(const RecordArray<ImageRecord>& images, int line, const QString& project);
    void Undo();
    void Redo();

  private:
    void Restore(std::optional<Restored> (ListSteps::*step)());
    void ShowRestored(const Restored& restored, const ImageRecord& shown);
    void ShowNewList(int line);

    WorkspaceModel& model_;
    WorkspacePorts ports_;
    PhotoPreparation& preparation_;
    CurrentPhoto& photo_;
    PreviewRenderer& preview_;
};

}  // namespace varnel
