// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Choosing a folder with a list of drives and a tree of folders that belong together: the dialogs'
// own widgets, tied to each other. Throws std::bad_alloc only.
#pragma once

#include <QComboBox>
#include <QTimer>
#include <QTreeView>
#include <functional>
#include <vector>

#include "base/notices.h"
#include "pipeline/dialogs/folder_model.h"
#include "pipeline/photos/volume.h"

namespace varnel {

class FolderChooser : public QObject {
    Q_OBJECT

  public:
    using Volumes = std::function<std::vector<Volume>()>;  // asked anew whenever one is chosen

    FolderChooser(QComboBox& drives, QTreeView& tree, Notices& notices, Volumes volumes);

    // Goes to the folder; one that does not exist is ignored.
    void Show(const QString& folder);
    // Puts the drive of that name (see DriveName) in front without going there.
    void PutDriveInFront(const QString& name);
    // Makes a new folder in the shown one, goes there and lets the user give it a name; for a name
    // that it cannot have a message is shown and the name asked for again. False when none can be
    // made.
    bool MakeFolder(const QString& proposedName);

    // Absolute, with "/"; empty before the first Show.
    const QString& Folder() const { return folder_; }
    QString Drive() const;

  Q_SIGNALS:
    void FolderChanged(const QString& folder);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void SetUpTree();
    void EnterVolume(int index);
    void SelectVolume(int index);
    void OnFolder(const QModelIndex& index);
    void OnNameRefused(const QModelIndex& index, const QString& name, const QString& reason);
    bool CanEnter(const Volume& volume) const;

    QComboBox& drives_;
    QTreeView& tree_;
    Notices& notices_;
    Volumes currentVolumes_;
    std::vector<Volume> volumes_;  // as listed
    FolderModel folders_;
    QTimer arrived_{this};
    QString folder_;
};

}  // namespace varnel
