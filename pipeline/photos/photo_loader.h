// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos for the window, the batch and the command line: reading one and waiting for it. Throws
// std::bad_alloc only; errors are returned.
#pragma once

#include <QString>
#include <optional>

#include "decoder/process/picture_reader.h"
#include "remap/image/photo_metadata.h"
#include "state/records/image_record.h"
#include "state/settings/general_settings.h"

namespace varnel {

// What happens while a photo is read. Calls come on the caller's thread.
class ReadingWait {
  public:
    virtual ~ReadingWait() = default;
    // The path is empty for several photos together.
    virtual void Begin(const QString& /*path*/) {}
    // Called every few milliseconds; false gives the photo up.
    virtual bool Continue() { return true; }
    virtual void End() {}
};

// What a photo's file holds beside its pixels.
struct PhotoFacts {
    PhotoMetadata metadata;
    Reason error;  // why the file cannot be read; empty when all is well
};

// Of the full picture as it is shown.
struct PhotoSize {
    PixelSize pixels{};
    int orientation = 1;  // of the picture as it is stored, which was undone
};

// How photos are read.
struct ReadChoices {
    bool upright = true;  // turned as their EXIF orientation says
    ReadDepth depth = ReadDepth::Eight;
    RawDevelopment raw{};
    bool planar = false;  // large photos may be planar, see LoadedPicture
};
ReadChoices ReadChoicesOf(const GeneralSettings& settings, const RawDevelopment& raw = {});

class PhotoLoader {
  public:
    // Photos are read as the settings say at that moment; without settings, upright with 8 bits.
    explicit PhotoLoader(PictureReader& reader, ReadingWait* wait = nullptr,
                         const GeneralSettings* settings = nullptr, const RawDevelopment& raw = {})
        : reader_(reader), wait_(wait), settings_(settings), raw_(raw) {}

    // Several photos are waited for as for one while this lives.
    class Together {
      public:
        explicit Together(PhotoLoader& loader) : loader_(loader) { loader_.BeginWait({}); }
        ~Together() { loader_.EndWait(); }
        Together(const Together&) = delete;
        Together& operator=(const Together&) = delete;
        // Between two quick ones: calls the wait once. False when it was given up.
        bool Continue() { return loader_.Continue(); }

      private:
        PhotoLoader& loader_;
    };
    // Whether the user gave up the last wait.
    bool GivenUp() const { return givenUp_; }

    // The full picture. Not loaded while another one is read: events are handled meanwhile.
    LoadedPicture Load(const QString& path);
    // A small picture of 24 bits that comes quickly, in the box of that many pixels; empty when
    // there is none.
    BitmapHandle FirstLook(const QString& path, PixelSize box);
    // Its size, without decoding it where the format allows; nothing when it cannot be read.
    std::optional<PhotoSize> Size(const QString& path);
    // Why there is no picture in the file, as far as its beginning shows; empty when there is one,
    // and when the wait was given up.
    Reason Error(const QString& path);
    // What the file holds beside its pixels.
    PhotoFacts Facts(const QString& path);

  private:
    LoadedPicture Read(ReadRequest request);
    bool Continue();
    void BeginWait(const QString& path);
    void EndWait();

    PictureReader& reader_;
    ReadingWait* wait_;
    const GeneralSettings* settings_;
    RawDevelopment raw_;
    int waits_ = 0;
    bool reading_ = false;
    bool givenUp_ = false;
};

// Sets Width, Height, Landscape and Orientation of the record. When it was loaded with another
// orientation before, the circle's centre moves with the picture.
void TakeSize(const PhotoSize& size, ImageRecord& image);

}  // namespace varnel
