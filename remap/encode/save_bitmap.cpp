// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/save_bitmap.h"

#include <cerrno>
#include <chrono>
#include <new>
#include <utility>

#include "files/file_operations.h"
#include "remap/encode/encode_bitmap.h"

namespace varnel {

namespace {

template <class Write>
SaveResult Written(const EncodedBitmap& encoded, const Write& write) {
    if (!encoded.reason.isEmpty()) {
        return {false, encoded.reason};
    }
    try {
        const WriteResult written = write(encoded.bytes);
        return {written.ok, written.reason, written ? encoded.note : Reason(), encoded.samples};
    } catch (const std::bad_alloc&) {
        return {false, ReasonCode::NotEnoughMemory};
    }
}

struct Stopped {};

class StoppableRunner : public BlockRunner {
  public:
    StoppableRunner(BlockRunner& runner, const std::function<bool()>& stopped)
        : runner_(runner), stopped_(stopped) {}
    void Run(int blocks, const std::function<void(int)>& block) override {
        runner_.Run(blocks, [&](int n) {
            if (stopped_()) {
                throw Stopped();
            }
            block(n);
        });
    }

  private:
    BlockRunner& runner_;
    const std::function<bool()>& stopped_;
};

#ifdef Q_OS_UNIX

// The steps before the file has its name fail once it is given up.
class StoppableSteps : public FileOperations {
  public:
    explicit StoppableSteps(const std::function<bool()>& stopped) : stopped_(stopped) {}
    int Create(const QByteArray& name, unsigned permissions) override {
        return GivenUp() ? -1 : FileOperations::Create(name, permissions);
    }
    qint64 Write(int file, const char* bytes, qint64 length) override {
        return GivenUp() ? -1 : FileOperations::Write(file, bytes, length);
    }
    int Sync(int file) override { return GivenUp() ? -1 : FileOperations::Sync(file); }
    int Rename(const QByteArray& name, const QByteArray& newName) override {
        return GivenUp() ? -1 : FileOperations::Rename(name, newName);
    }

  private:
    bool GivenUp() const {
        const bool stopped = stopped_();
        errno = stopped ? ECANCELED : errno;
        return stopped;
    }
    const std::function<bool()>& stopped_;
};

WriteResult WriteUnlessStopped(const StoppableFile& file, QByteArrayView bytes) {
    StoppableSteps steps(file.stopped);
    return WriteWholeFile(file.name, bytes, steps);
}

#else

WriteResult WriteUnlessStopped(const StoppableFile& file, QByteArrayView bytes) {
    return file.stopped() ? WriteResult{} : WriteWholeFile(file.name, bytes);
}

#endif

}  // namespace

SaveResult SaveBitmap(const OutputEncoding& encoding, const Bitmap* bitmap, const QString& fileName,
                      BlockRunner* runner) {
    return Written(EncodeBitmap(encoding, bitmap, {.runner = runner}),
                   [&](QByteArrayView bytes) { return WriteWholeFile(fileName, bytes); });
}

SaveResult SaveBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                      const FileInSeries& file, BlockRunner* runner) {
    EncodeOptions options{.runner = runner, .rows = file.rows};
    if (bitmap == nullptr || !IsWorthPieces(bitmap->Size())) {
        return Written(EncodeBitmap(encoding, bitmap, options),
                       [&](QByteArrayView bytes) { return file.series.Write(file.name, bytes); });
    }
    EncodedBitmap encoded;
    const auto fill = [&](FileSink& sink) {
        options.sink = &sink;
        encoded = EncodeBitmap(encoding, bitmap, options);
        if (file.rows != nullptr) {
            file.rows->End();
        }
        const bool isDone = !encoded.reason.isEmpty() || encoded.bytes.isEmpty() ||
                            (sink.Begin() && sink.Append(encoded.bytes));
        return isDone ? encoded.reason : sink.Error();
    };
    try {
        const WriteResult written = file.series.Write(file.name, fill);
        return {written.ok, written.reason, written ? encoded.note : Reason(), encoded.samples};
    } catch (const std::bad_alloc&) {
        return {false, ReasonCode::NotEnoughMemory};
    }
}

BegunSave::BegunSave(const OutputEncoding& encoding, const Bitmap* bitmap, const FileInSeries& file,
                     BlockRunner* runner)
    : result_(Written(EncodeBitmap(encoding, bitmap, {.runner = runner, .rows = file.rows}),
                      [&](QByteArrayView bytes) {
                          file_ = file.series.Begin(file.name, bytes);
                          return WriteResult{true, {}};
                      })) {}

bool BegunSave::Wait(int milliseconds) const {
    return !file_.valid() ||
           file_.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
}

SaveResult BegunSave::Take() {
    if (file_.valid()) {
        if (const WriteResult written = file_.get(); !written) {
            return {false, written.reason};
        }
    }
    return std::move(result_);
}

SaveResult SaveBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                      const StoppableFile& file, BlockRunner& runner) {
    StoppableRunner stoppable(runner, file.stopped);
    try {
        return Written(EncodeBitmap(encoding, bitmap, {.runner = &stoppable}),
                       [&](QByteArrayView bytes) { return WriteUnlessStopped(file, bytes); });
    } catch (const Stopped&) {
        return {};
    }
}

}  // namespace varnel
