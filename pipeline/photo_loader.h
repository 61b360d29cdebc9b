// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos for the window, the batch and the command line: reading one and waiting for it.
#pragma once

#include <QString>
#include <optional>

#include "decoder/picture_reader.h"
#include "state/image_record.h"

namespace varnel {

// What happens meanwhile.
class ReadingWait {
  public:
    virtual ~ReadingWait() = default;
    virtual void Begin(const QString& /*path*/) {}
    // Called every few milliseconds; false gives the photo up.
    virtual bool Continue() { return true; }
    virtual void End() {}
};

class PhotoLoader {
  public:
    explicit PhotoLoader(PictureReader& reader, ReadingWait* wait = nullptr)
        : reader_(reader), wait_(wait) {}

    // The full picture.
    LoadedPicture Load(const QString& path);
    // Its size, without decoding it where the format allows; nothing when it cannot be read.
    std::optional<PixelSize> Size(const QString& path);

  private:
    LoadedPicture Read(const ReadRequest& request);

    PictureReader& reader_;
    ReadingWait* wait_;
};

// Sets Width, Height and Landscape of the record from the size of the full picture.
void TakeSize(PixelSize size, ImageRecord& image);

}  // namespace varnel
