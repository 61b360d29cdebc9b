// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Adds photos to the list. Throws nothing but for want of memory.
#pragma once

#include <QStringList>

#include "app/workspace/current_photo.h"

namespace varnel {

class PhotoAdder {
  public:
    PhotoAdder(WorkspaceModel& model, const WorkspacePorts& ports, CurrentPhoto& photo)
        : model_(model), ports_(ports), photo_(photo) {}

    // The records after the first ones, so many as there were before, are new.
    void ImagesAdded(int before);
    // Dropped files and folders. For a picture that Varnel made of a photo, that photo with the
    // settings that made the picture; the first such one becomes current.
    void AddFiles(const QStringList& paths);

  private:
    void MarkFilms(RecordArray<ImageRecord>& images, int first) const;
    void Report(const std::vector<BadFile>& bad);
    // Of the records after the first ones those that can be read and have no settings.
    void TellAdded(int before, const std::vector<BadFile>& bad, const QMap<int, QString>& like);

    WorkspaceModel& model_;
    WorkspacePorts ports_;
    CurrentPhoto& photo_;
};

}  // namespace varnel
