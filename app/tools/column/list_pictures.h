// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The small pictures of the image list: the photos or what becomes of them with their own settings.
// They are made in the background, those in sight first, and made anew when the settings change.
// Throws nothing but for want of memory.
#pragma once

#include <QCache>
#include <QHash>
#include <QPixmap>
#include <QTimer>
#include <functional>
#include <future>
#include <memory>

#include "app/panels/photo_list.h"
#include "app/workspace/workspace.h"
#include "decoder/process/picture_reader.h"
#include "pipeline/dialogs/idle_previews.h"

namespace varnel {

// Makes a separate reader for the small pictures, so that they never delay a photo; called when it
// is first needed.
using NewSmallReader = std::function<std::unique_ptr<PictureReader>()>;

class ListPictures : public QObject, private PreviewMaker {
    Q_OBJECT
  public:
    // Without newReader there are no small pictures.
    ListPictures(PhotoList& list, const Workspace& workspace, WorkingState& state,
                 NewSmallReader newReader);
    ~ListPictures() override;

    void ShowResults(bool on);
    // Records may be others than before, or the list was filled: there is a line for each record.
    void Follow();

  Q_SIGNALS:
    // A photo was read for its picture, with the reason why it could not be, if any.
    void PhotoRead(const QString& path, const varnel::Reason& reason);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using Source = std::shared_ptr<const Bitmap>;

    void Begin(const QString& key) override;
    std::optional<QImage> Take() override;
    void Cancel() override;
    bool MayBegin() const override {
        return newReader_ != nullptr && !workspace_.model.activity.Busy();
    }

    // What the line's picture is made from: the path, and the settings if they matter.
    QString KeyOf(const ImageRecord& image) const;
    QListWidgetItem* LineOf(const QString& key) const;
    QSize PictureSize() const;  // device pixels
    void BeginResult(const Source& source);
    std::optional<QImage> Read();
    QImage Keep(const QImage& image);
    void DropOutOfSight();

    PhotoList& list_;
    const Workspace& workspace_;
    WorkingState& state_;
    NewSmallReader newReader_;
    std::unique_ptr<PictureReader> reader_;
    IdlePreviews previews_;
    QTimer resume_{this};
    bool results_ = true;
    QString underWay_;    // key
    ImageRecord record_;  // of what is under way
    bool reading_ = false;
    std::future<QImage> result_;        // being made of it
    QHash<QString, QPixmap> pictures_;  // of each key
    QCache<QString, Source> sources_;   // of each path, by bytes
};

}  // namespace varnel
