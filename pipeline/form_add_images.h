// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog in which photos are chosen for the image list: drive, folder, files with small
// pictures.
#pragma once

#include <QDialog>
#include <QFileSystemModel>
#include <functional>
#include <memory>
#include <vector>

#include "pipeline/add_images.h"
#include "pipeline/idle_previews.h"
#include "pipeline/volume.h"
#include "state/notices.h"

namespace Ui {
class FormAddImages;
}

namespace varnel {

// The places of this computer that the dialog knows.
struct PhotoPlaces {
    QString programFolder;
    QString homeFolder;
    QString picturesFolder;
    std::function<std::vector<Volume>()> volumes;  // asked anew whenever one is chosen
};

// Accepted when photos were added to the images.
class FormAddImages : public QDialog {
    Q_OBJECT

  public:
    FormAddImages(RecordArray<ImageRecord>& images, SettingsStore& store, Notices& notices,
                  const PhotoPlaces& places, QWidget* parent = nullptr);
    ~FormAddImages() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void FillVolumes();
    void SetUpFolders();
    void SetUpFiles();
    void ConnectControls();
    void ShowStartPlace();

    void EnterVolume(int index);
    void SelectVolume(int index);
    void ShowFolder(const QString& folder);
    void OnFolder(const QModelIndex& index);
    void RefillFiles();
    void ShowCounts();
    void AddSelected();
    void Add(const QStringList& fileNames);

    bool CanEnter(const Volume& volume) const;
    QSize CellSize() const;
    QImage SmallImage(const QString& fileName) const;

    std::unique_ptr<Ui::FormAddImages> ui_;
    RecordArray<ImageRecord>& images_;
    SettingsStore& store_;
    Notices& notices_;
    PhotoPlaces places_;
    std::vector<Volume> volumes_;  // as listed
    QFileSystemModel folders_;
    std::unique_ptr<IdlePreviews> previews_;
    QString folder_;
};

}  // namespace varnel
