// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The dialog in which photos are chosen for the image list: drive, folder, files with small
// pictures. Throws std::bad_alloc only.
#pragma once

#include <QDialog>
#include <memory>

#include "base/notices.h"
#include "decoder/process/picture_reader.h"
#include "pipeline/dialogs/folder_chooser.h"
#include "pipeline/dialogs/idle_previews.h"
#include "pipeline/photos/add_images.h"

namespace Ui {
class FormAddImages;
}

namespace varnel {

// The folders and volumes of this computer that the dialog offers.
struct PhotoPlaces {
    QString homeFolder;
    QString picturesFolder;
    FolderChooser::Volumes volumes;
};

// How the small pictures are read; the reader is the dialog's alone while it lives.
struct SmallPictures {
    PictureReader& reader;
    bool upright = true;
};

// Accepted when photos were added to the images.
class FormAddImages : public QDialog, private PreviewMaker {
    Q_OBJECT

  public:
    FormAddImages(RecordArray<ImageRecord>& images, SettingsStore& store, Notices& notices,
                  const PhotoPlaces& places, const SmallPictures& pictures,
                  QWidget* parent = nullptr);
    ~FormAddImages() override;
    // Shows films among the photos.
    void OfferFilms();

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

    void Begin(const QString& fileName) override;
    std::optional<QImage> Take() override;
    void Cancel() override { pictures_.reader.Cancel(); }

    std::unique_ptr<Ui::FormAddImages> ui_;
    RecordArray<ImageRecord>& images_;
    SettingsStore& store_;
    PhotoPlaces places_;
    SmallPictures pictures_;
    std::unique_ptr<FolderChooser> place_;
    std::unique_ptr<IdlePreviews> previews_;
    bool films_ = false;
};

}  // namespace varnel
