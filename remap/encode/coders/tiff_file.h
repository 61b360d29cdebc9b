// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A TIFF file as libtiff writes it, in memory or all but its strips. They come coded: libtiff's own
// coding works on one core, and so does everything that goes through its scan lines.
#pragma once

#include <tiffio.h>

#include <map>
#include <memory>
#include <span>

#include "remap/encode/coders/memory_file.h"
#include "remap/encode/coders/tiff_rows.h"
#include "remap/encode/metadata_writer.h"
#include "remap/encode/output_depth.h"
#include "remap/image/bitmap.h"

namespace varnel {

// How the pixels lie in a file.
struct TiffLayout {
    TiffCompression compression = TiffCompression::Lzw;  // not Usual
    TiffPredictor predictor = TiffPredictor::Differences;
    std::uint32_t rowsPerStrip = 1;
};

class TiffFile {
  public:
    using Entries = std::map<std::uint16_t, QByteArray>;  // of a directory, by tag

    // For a bitmap in strips. The file begins with the EXIF block, so that places in it hold, and
    // has its order of bytes. expected is the likely number of bytes of the pixels. With a sink
    // all goes there, the strips at once. Throws std::bad_alloc.
    TiffFile(const WrittenMetadata& metadata, qint64 expected, qint64 largest,
             FileSink* sink = nullptr);

    // What the file has beside its strips. To be called first; false as of all others when it
    // failed.
    bool Describe(const Bitmap& bitmap, const TiffLayout& layout);
    // The next strip.
    bool Append(std::span<const std::uint8_t> strip);
    // Writes the directory. Throws std::bad_alloc.
    bool Finish();

    const Reason& Error() const { return file_.Error(); }
    // The whole file where there is no sink.
    QByteArray& Bytes() { return file_.Bytes(); }

  private:
    bool SetPredictor(const TiffLayout& layout);
    bool SetAlpha(bool isThere);
    bool SetBlock(std::uint32_t tag, const QByteArray& block);
    QByteArray PhotoshopBlock() const;
    bool AddPhotosEntries();
    bool AppendEven(const QByteArray& bytes, quint32& place);
    bool AppendIptc(Entries& entries);

    struct Closer {
        void operator()(TIFF* tiff) const { TIFFClose(tiff); }
    };

    const WrittenMetadata& metadata_;
    MemoryFile file_;
    std::unique_ptr<TIFF, Closer> tiff_;
    std::uint32_t strips_ = 0;
};

}  // namespace varnel
