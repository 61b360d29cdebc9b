// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The reader that decodes in a process of its own. Throws as said in picture_reader.h.
#pragma once

#include <QDeadlineTimer>
#include <optional>

#include "decoder/process/decoder_process.h"
#include "decoder/process/photo_file.h"
#include "decoder/process/picture_reader.h"
#include "decoder/process/pieces/pieced_picture.h"
#include "decoder/process/shared_memory.h"

namespace varnel {

class DecoderReader : public PictureReader {
  public:
    explicit DecoderReader(const ReaderOptions& options);
    // With a varnel-jpeg-decoder that was started before, if it could be. The options name none.
    DecoderReader(const ReaderOptions& options, const StartedDecoder& started);

    void Begin(const ReadRequest& request) override;
    bool Wait(int milliseconds) override;
    LoadedPicture Take() override;
    void Cancel() override;
    bool IsApart() const override { return true; }

    // The decoder's process number, for tests that kill it.
    pid_t ProcessId() const { return process_.Id(); }

  private:
    void Ask();
    void Listen(int milliseconds);
    void Restart();
    void TakeAllTypes();
    void Finish(LoadedPicture picture);
    void FinishRefused(const Reason& reason) { Finish(LoadedPicture::Refused(reason)); }
    void Died();
    Reason TookTooLong() const;
    void Heard(const DecoderAnswer& answer);
    void HeardOfPieces(const DecoderAnswer& answer);
    void BeginPieces(const DecoderAnswer& first);
    void TakeMetadataOfPieces(const DecoderAnswer& answer);
    bool TakePiece();
    void AskForWhole();
    void FinishWithoutMetadata();
    FileMetadata MetadataFrom(const DecoderAnswer& answer, const DecoderAnswer& first);
    LoadedPicture PictureFrom(const DecoderAnswer& answer, const FileMetadata& metadata);
    void TakePixels(const DecoderAnswer& answer, LoadedPicture& picture);

    ReaderOptions options_;
    // The decoder at work reads ordinary JPEG photos alone. With the first other photo one that
    // reads all types takes its place for good, so that a mixed folder does not start one for each.
    bool onlyJpeg_;
    DecoderProcess process_;
    Reason startError_;
    std::shared_ptr<MemoryFiles> memoryFiles_ = std::make_shared<MemoryFiles>();
    std::unique_ptr<SharedMemory> memory_;  // of the picture under way
    std::shared_ptr<PixelMemory> pixelMemory_ = std::make_shared<PixelMemory>();
    Descriptor photo_;
    DecoderRequest request_;
    QDeadlineTimer deadline_;
    QDeadlineTimer wholeDeadline_;  // while the metadata have one of their own
    bool askedTwice_ = false;
    std::optional<DecoderAnswer> first_;  // the pixels', when the metadata follow
    std::optional<PiecedPicture> pieces_;
    std::function<void(LoadedPicture)> begun_;
    std::optional<LoadedPicture> answer_;
};

}  // namespace varnel
