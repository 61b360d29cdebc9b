// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Raw photos by LibRaw: white balance of the camera, no brightening by the picture's contents, the
// curve of sRGB or that of the colours wanted, clipped lights. Throws std::bad_alloc.
#pragma once

#include "decoder/formats/readers/direct_reader.h"
#include "decoder/request/read_request.h"
#include "remap/image/bitmap.h"

namespace varnel {

// What the camera put beside the raw picture for looking at it; either or nothing of both.
struct CameraPreview {
    QByteArray jpeg;      // a whole file
    BitmapHandle bitmap;  // 24 bits, without metadata
};

// Pictures come upright.
class RawReader : public DirectReader {
  public:
    // The largest one, the way up that the sensor has.
    virtual CameraPreview Preview() = 0;
};

// Null, after a message, when the file cannot be read or states far more of the sensor than the
// picture has. In 24 or 48 bits a pixel. The file has to outlive the reader, which needs the
// messages' collector.
std::unique_ptr<RawReader> NewRawReader(const PictureFile& file, const RawDevelopment& development,
                                        SampleKind samples);

}  // namespace varnel
