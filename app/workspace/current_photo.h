// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The current line's photo: loaded at full size when its line becomes current, and why it is not
// there. Throws nothing but for want of memory for a text.
#pragma once

#include <QHash>
#include <vector>

#include "app/workspace/photo_preparation.h"
#include "pipeline/conversion/settings_from_picture.h"

namespace varnel {

class CurrentPhoto {
  public:
    CurrentPhoto(WorkspaceModel& model, const WorkspacePorts& ports, PhotoPreparation& preparation,
                 PreviewRenderer& preview)
        : model_(model), ports_(ports), preparation_(preparation), preview_(preview) {}

    // Loads the line's photo at full size, gives it its gear, shows and previews it.
    void ShowLine(int line);
    // The list is another one; the line, if there is any, becomes current.
    void ShowList(int line);
    // The photo at preview size, into the source picture. False when there is none, or no memory
    // for it, which the status reports.
    bool RebuildThumbnail();

    // Why its photo is not there; empty when it is.
    const Reason& LoadError() const { return loadError_; }
    void ReportNotOpened(const ImageRecord& image);

    // Photos that were added, could not be read and are reported together: one by one they would
    // each put up a box when their line becomes current.
    void NoteUnreadable(const std::vector<BadFile>& bad);
    // Why such a photo could not be read; empty for the others.
    Reason Unreadable(const QString& path) const { return unreadable_.value(path); }

  private:
    bool LoadFull(int line);
    ShelvedPhoto Load(const QString& path);
    void ShowFirstLook(const QString& path);
    void ReadNeighbours(int line);
    void PutAway();
    bool LoadAndReduce(int line);

    WorkspaceModel& model_;
    WorkspacePorts ports_;
    PhotoPreparation& preparation_;
    PreviewRenderer& preview_;
    QHash<QString, Reason> unreadable_;
    QString shownPath_;    // of the photo at hand
    LoadedPicture shown_;  // what came with it, without the picture itself
    int lastLine_ = 0;
    Reason loadError_;
};

}  // namespace varnel
