// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing a bitmap to a file. Throws what the runner throws and what the function throws that stops
// it; other errors, lack of memory included, are returned.
#pragma once

#include <QString>
#include <functional>
#include <future>

#include "base/block_runner.h"
#include "files/file_series.h"
#include "remap/encode/output_type.h"
#include "remap/image/row_source.h"

namespace varnel {

// True when the whole file is in place; otherwise the reason, and an older file of that name is as
// it was.
struct SaveResult {
    bool ok = false;
    Reason reason;
    Reason note = {};  // what of the picture is not in the file, and why; empty when all is
    SampleKind samples = SampleKind::Byte;  // of the file
    explicit operator bool() const { return ok; }
};

// Encodes in memory and replaces the file in one step, because the library itself reports success
// for cut files on a full disk. The runner shares the encoding out to the cores where the type
// allows.
SaveResult SaveBitmap(const OutputEncoding& encoding, const Bitmap* bitmap, const QString& fileName,
                      BlockRunner* runner = nullptr);

// One file of several: true when it is in place, which the series' end makes last.
struct FileInSeries {
    QString name;
    FileSeries& series;
    RowSource* rows = nullptr;  // see EncodeOptions
};
SaveResult SaveBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                      const FileInSeries& file, BlockRunner* runner = nullptr);

// Encodes it and begins the file (see FileSeries::Begin); the bitmap is not needed any more then.
class BegunSave {
  public:
    BegunSave(const OutputEncoding& encoding, const Bitmap* bitmap, const FileInSeries& file,
              BlockRunner* runner = nullptr);
    // Whether the file is done; waits for it this many milliseconds at most.
    bool Wait(int milliseconds) const;
    // Waits for the file. To be called once.
    SaveResult Take();

  private:
    std::future<WriteResult> file_;  // none after an error
    SaveResult result_;
};

// A file that may still be given up: asked on any thread and often until the file gets its name.
// Once stopped returns true no file is written and an older one stays as it was.
struct StoppableFile {
    QString name;
    std::function<bool()> stopped;
};
SaveResult SaveBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                      const StoppableFile& file, BlockRunner& runner);

}  // namespace varnel
