// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog in which photos are chosen for the image list: drive, folder, files with small
// pictures.
#pragma once

#include <QDialog>
#include <memory>

#include "pipeline/add_images.h"
#include "pipeline/folder_chooser.h"
#include "pipeline/idle_previews.h"
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
    FolderChooser::Volumes volumes;
};

// Accepted when photos were added to the images.
class FormAddImages : public QDialog {
    Q_OBJECT

  public:
    FormAddImages(RecordArray<ImageRecord>& images, SettingsStore& store, Notices& notices,
                  const PhotoPlaces& places, QWidget* parent = nullptr);
    ~FormAddImages() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void SetUpFiles();
    void ConnectControls();
    void ShowStartPlace();

    void OnFolder();
    void RefillFiles();
    void ShowCounts();
    void AddSelected();
    void Add(const QStringList& fileNames);

    QSize CellSize() const;
    QImage SmallImage(const QString& fileName) const;

    std::unique_ptr<Ui::FormAddImages> ui_;
    RecordArray<ImageRecord>& images_;
    SettingsStore& store_;
    PhotoPlaces places_;
    std::unique_ptr<FolderChooser> place_;
    std::unique_ptr<IdlePreviews> previews_;
};

}  // namespace varnel
