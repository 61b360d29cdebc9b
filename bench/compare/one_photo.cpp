// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// one_photo INPUT OUTPUT
// Decodes, remaps and encodes one JPEG photo with Varnel's own libraries and writes the result,
// with nothing around it: no decoder's process, no settings, no metadata, no care for the file. Who
// starts varnel-convert for a single small photo waits for that at least.

#include <QString>
#include <cstdio>

#include "bench/compare/fisheye_record.h"
#include "decoder/formats/readers/ordinary_jpeg.h"
#include "decoder/request/picture_limits.h"
#include "remap/encode/encode_bitmap.h"
#include "remap/render/render.h"

int main(int argc, char** argv) {
    using namespace varnel;
    const FileHandle input(argc == 3 ? std::fopen(argv[1], "rb") : nullptr);
    if (!input) {
        std::fputs("one_photo INPUT OUTPUT\n", stderr);
        return 2;
    }
    const LibraryMessages messages;
    auto photo = DecodeOrdinaryJpeg(input.get(), {}, MachineMemory(), {}, messages);
    if (!photo || !photo->bitmap) {
        std::fprintf(stderr, "%s: no ordinary JPEG\n", argv[1]);
        return 1;
    }
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::move(photo->bitmap);
    RenderContext context{bitmaps};
    SilentProgress silent;
    Render(Projection::Rectilinear, bench::FisheyeRecord(), SizeKind::Large, silent, context);
    const QByteArray file = EncodeBitmap({OutputType::Jpeg, 95}, bitmaps.ResultBitmap.get()).bytes;
    const FileHandle output(std::fopen(argv[2], "wb"));
    const auto length = static_cast<std::size_t>(file.size());
    return output && length > 0 && std::fwrite(file.constData(), 1, length, output.get()) == length
               ? 0
               : 1;
}
