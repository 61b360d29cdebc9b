// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/folder_chooser.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

namespace varnel {

FolderChooser::FolderChooser(QComboBox& drives, QTreeView& tree, Notices& notices, Volumes volumes)
    : drives_(drives), tree_(tree), notices_(notices), currentVolumes_(std::move(volumes)) {
    volumes_ = currentVolumes_();
    for (const Volume& volume : volumes_) {
        drives_.addItem(VolumeLabel(volume), volume.path);
    }
    connect(&drives_, &QComboBox::currentIndexChanged, this, &FolderChooser::EnterVolume);
    SetUpTree();
}

void FolderChooser::SetUpTree() {
    folders_.setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    folders_.setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    folders_.setRootPath(QDir::rootPath());
    tree_.setModel(&folders_);
    for (int column = 1; column < folders_.columnCount(); ++column) {
        tree_.hideColumn(column);
    }
    tree_.installEventFilter(this);
    connect(tree_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FolderChooser::OnFolder);
    // The folders above the shown one arrive later and push it down. They are sorted in by a timer
    // of the model's own, so this waits a little longer.
    arrived_.setSingleShot(true);
    arrived_.setInterval(30);
    connect(&folders_, &QFileSystemModel::directoryLoaded, this, [this](const QString& loaded) {
        if (folder_.startsWith(loaded)) {
            arrived_.start();
        }
    });
    connect(&arrived_, &QTimer::timeout, this, [this] { tree_.scrollTo(tree_.currentIndex()); });
    connect(&folders_, &QFileSystemModel::fileRenamed, this, [this] {
        OnFolder(tree_.currentIndex());
        arrived_.start();  // another name may stand elsewhere
    });
    connect(&folders_, &FolderModel::NameRefused, this, &FolderChooser::OnNameRefused);
}

bool FolderChooser::CanEnter(const Volume& volume) const {
    const std::vector<Volume> now = currentVolumes_();
    return QDir(volume.path).isReadable() &&
           std::any_of(now.begin(), now.end(), [&](const Volume& other) {
               return other.path == volume.path && other.ready;
           });
}

void FolderChooser::EnterVolume(int index) {
    const Volume volume = volumes_.at(static_cast<std::size_t>(index));
    if (CanEnter(volume)) {
        Show(volume.path);
        return;
    }
    notices_.Tell(VolumeMissingText(volume.path), QString());
    SelectVolume(VolumeHolding(folder_, volumes_));
}

void FolderChooser::SelectVolume(int index) {
    const QSignalBlocker quiet(drives_);
    drives_.setCurrentIndex(index);
}

void FolderChooser::PutDriveInFront(const QString& name) {
    const auto found = std::find_if(volumes_.begin(), volumes_.end(), [&](const Volume& volume) {
        return DriveName(volume.path) == name;
    });
    if (found != volumes_.end()) {
        SelectVolume(static_cast<int>(found - volumes_.begin()));
    }
}

void FolderChooser::Show(const QString& folder) {
    if (const QModelIndex index = folders_.index(folder); index.isValid()) {
        tree_.setCurrentIndex(index);
        tree_.expand(index);
    }
}

void FolderChooser::OnFolder(const QModelIndex& index) {
    if (!index.isValid()) {
        return;
    }
    folder_ = folders_.filePath(index);
    SelectVolume(VolumeHolding(folder_, volumes_));
    Q_EMIT FolderChanged(folder_);
}

QString FolderChooser::Drive() const {
    return DriveName(drives_.currentData().toString());
}

bool FolderChooser::MakeFolder(const QString& proposedName) {
    const QDir parent(folder_);
    QString name = proposedName;
    for (int n = 2; parent.exists(name); ++n) {
        name = QStringLiteral("%1 %2").arg(proposedName).arg(n);
    }
    folders_.setReadOnly(false);  // or its name could not be changed
    const QModelIndex made = folders_.mkdir(tree_.currentIndex(), name);
    if (!made.isValid()) {
        return false;
    }
    tree_.setCurrentIndex(made);
    tree_.setFocus();
    tree_.edit(made);
    return true;
}

void FolderChooser::OnNameRefused(const QModelIndex& index, const QString& name,
                                  const QString& reason) {
    // After the editor that the name was typed into is gone.
    QTimer::singleShot(0, this, [this, folder = QPersistentModelIndex(index), name, reason] {
        notices_.Tell(tr("The folder cannot be named %1").arg(name), reason);
        if (folder.isValid()) {
            tree_.setFocus();
            tree_.edit(folder);
        }
    });
}

bool FolderChooser::eventFilter(QObject* watched, QEvent* event) {
    // Enter opens or closes the folder; it must not set off the dialog's button while the user is
    // still on the way to a folder. The one that ends the naming of a folder comes here, too: to
    // open the folder then would have it listed under its first name, and what is reported to the
    // model of a folder that is gone it takes for the whole tree.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            const QModelIndex index = tree_.currentIndex();
            const QWidget* const focused = QApplication::focusWidget();
            if (focused == &tree_ || !tree_.isAncestorOf(focused)) {
                tree_.setExpanded(index, !tree_.isExpanded(index));
            }
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace varnel
