// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What encoders are given beside a bitmap, and what they return. Run throws what a block throws,
// the rest nothing.
#pragma once

#include <QByteArray>
#include <functional>

#include "base/block_runner.h"
#include "base/reason.h"
#include "files/file_sink.h"
#include "remap/encode/output_type.h"
#include "remap/image/row_source.h"

namespace varnel {

// BMP and TIFF count the bytes of a file in 32 bits.
inline constexpr qint64 largestFile = 0xFFFFFFFF;

struct EncodeOptions {
    BlockRunner* runner = nullptr;  // none: on the caller's thread alone
    qint64 largest = largestFile;   // bytes
    RowSource* rows = nullptr;      // of the picture, whose bitmap is without pixels then
    // Coders that make a file piece by piece put it there and return no bytes.
    FileSink* sink = nullptr;

    void Run(int blocks, const std::function<void(int)>& block) const {
        SerialRunner serial;
        (runner != nullptr ? *runner : serial).Run(blocks, block);
    }
    // Calls use with a bitmap that has these rows.
    void WithRows(const Bitmap& bitmap, LineRange wanted,
                  const std::function<void(const Bitmap&)>& use) const {
        if (rows == nullptr) {
            use(bitmap);
        } else {
            rows->WithRows(wanted, use);
        }
    }
};

// No bytes and the reason when it could not be done. The bytes may have gone to a sink.
struct EncodedBitmap {
    QByteArray bytes;
    Reason reason;
    Reason note = {};  // what the file is without, and why; empty when it has everything
    SampleKind samples = SampleKind::Byte;  // in the file
};

// A coder: the file of a picture with the settings that the type takes.
using EncodeFunction = EncodedBitmap(const Bitmap*, const OutputEncoding&, const EncodeOptions&);

}  // namespace varnel
