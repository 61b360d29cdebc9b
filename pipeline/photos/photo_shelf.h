// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Decoded photos for a list that is walked through: those that were left just now, and the
// neighbours of the current one, which a decoder of its own reads ahead while nothing is wanted.
// Four at most, which together hold no more than an eighth of the machine's memory. Throws
// std::bad_alloc only.
#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <optional>

#include "decoder/process/picture_reader.h"
#include "state/settings/general_settings.h"

namespace varnel {

struct ShelvedPhoto {
    LoadedPicture picture;
    BitmapHandle reduced;  // to the preview's size as it was then; may lack
};

class PhotoShelf : public QObject {
    Q_OBJECT
  public:
    using NewReader = std::function<std::unique_ptr<PictureReader>()>;
    // The preview's size for a photo of that size.
    using SizeOfPreview = std::function<PixelSize(PixelSize photo)>;
    // Without a maker of readers nothing is kept nor read ahead.
    PhotoShelf(NewReader newReader, const GeneralSettings& settings, SizeOfPreview sizeOfPreview);
    ~PhotoShelf() override;
    PhotoShelf(const PhotoShelf&) = delete;
    PhotoShelf& operator=(const PhotoShelf&) = delete;

    // Takes the photo off, if it is there and its file and the settings are as when it was read.
    std::optional<ShelvedPhoto> Take(const QString& path);
    // Keeps it, in the place of those that were put there first.
    void Put(const QString& path, ShelvedPhoto photo);
    bool Has(const QString& path) const;
    // Reads these ahead soon, the first one first; another call takes their place.
    void ReadAhead(QStringList paths);

  private:
    // What a decoded photo depends on.
    struct Stamp {
        QString path;
        QDateTime changed;
        qint64 bytes = 0;
        bool upright = true;
        ReadDepth depth = ReadDepth::Eight;

        bool operator==(const Stamp& other) const = default;
    };
    struct Kept {
        Stamp stamp;
        ShelvedPhoto photo;
    };
    // A photo that is being reduced, on a thread of its own.
    struct Reducing {
        Kept kept;
        std::future<BitmapHandle> reduced;
    };
    Stamp StampOf(const QString& path) const;
    void GoOn();
    void BeginNext();
    void GiveUp();
    void Reduce(Kept kept);
    bool IsReducing() const;
    void Collect();
    void PutStamped(Kept kept);

    NewReader newReader_;
    const GeneralSettings& settings_;
    SizeOfPreview sizeOfPreview_;
    std::unique_ptr<PictureReader> reader_;
    std::deque<Kept> kept_;  // the one put last is the last
    QStringList wanted_;
    std::optional<Stamp> underWay_;
    std::optional<Reducing> reducing_;
    QTimer timer_{this};
};

}  // namespace varnel
