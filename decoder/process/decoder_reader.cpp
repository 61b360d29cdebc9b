// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/decoder_reader.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <new>

#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

// A spare memory file far longer than the last picture is not worth its memory.
constexpr std::uint64_t longestSpare = 2;  // times the picture

// A few milliseconds are usual; the rest of the time limit stays for the others.
constexpr qint64 mostSecondsForMetadata = 5;

ReaderOptions Completed(ReaderOptions options) {
    if (options.memory == 0) {
        options.memory = MachineMemory();
    }
    return options;
}

// Which decoder is asked goes by no more than these bytes: what reads on in the file is confined.
bool StartsAsJpeg(const Descriptor& photo) {
    std::array<char, 2> start{};
    return pread(photo.Get(), start.data(), start.size(), 0) == ssize_t{start.size()} &&
           start == std::array{'\xFF', '\xD8'};
}

// Gives the memory file back when the bitmap that stands in it is gone.
struct PixelOwner {
    std::unique_ptr<SharedMemory> memory;
    std::weak_ptr<MemoryFiles> files;
    std::uint64_t used = 0;

    ~PixelOwner() {
        const std::shared_ptr<MemoryFiles> owner = files.lock();
        if (owner && memory->Length() <= used * longestSpare) {
            owner->GiveBack(std::move(memory));
        }
    }
};

}  // namespace

DecoderReader::DecoderReader(const ReaderOptions& options)
    : options_(Completed(options)),
      onlyJpeg_(options.program.isEmpty()),
      process_(onlyJpeg_ ? DecoderProgram(QStringLiteral("varnel-jpeg-decoder"))
                         : options.program) {
    Restart();
}

void DecoderReader::TakeAllTypes() {
    onlyJpeg_ = false;
    process_.SetProgram(DecoderProgram(QStringLiteral("varnel-decoder")));
    Restart();
}

void DecoderReader::Restart() {
    startError_ = process_.Start();
}

void DecoderReader::Begin(const ReadRequest& request) {
    Cancel();
    answer_.reset();
    OpenedPhoto opened = OpenPhotoFile(request.path);
    if (!opened.file) {
        FinishRefused(opened.error);
        return;
    }
    photo_ = std::move(opened.file);
    try {
        memory_ = memory_ ? std::move(memory_) : memoryFiles_->Take();
    } catch (const std::bad_alloc&) {
        FinishRefused({ReasonCode::NoMemoryToBeHad, qt_error_string(errno)});
        return;
    }
    request_ = {request_.number + 1,
                request.kind,
                request.box,
                options_.memory,
                static_cast<std::uint32_t>(options_.secondsPerPhoto),
                memory_->Name(),
                request.upright,
                request.depth,
                request.raw};
    deadline_ = QDeadlineTimer(options_.secondsPerPhoto * 1000);
    askedTwice_ = false;
    first_.reset();
    if (onlyJpeg_ && (request.kind == ReadKind::Small || !StartsAsJpeg(photo_))) {
        TakeAllTypes();
    }
    Ask();
}

void DecoderReader::Ask() {
    // It may have died since its last answer.
    if (!process_.Send(request_, photo_.Get(), memory_->Number())) {
        Restart();
        if (!process_.Send(request_, photo_.Get(), memory_->Number())) {
            const Reason reason =
                startError_.isEmpty() ? ReasonCode::DecoderEndsAtOnce : startError_;
            FinishRefused({ReasonCode::DecoderNotStarted, reason});
        }
    }
}

bool DecoderReader::Wait(int milliseconds) {
    if (answer_) {
        return true;
    }
    const int left = static_cast<int>(std::max<qint64>(deadline_.remainingTime(), 0));
    DecoderAnswer answer;
    switch (process_.Listen(std::min(milliseconds, left), answer)) {
        case DecoderProcess::Heard::Answer:
            Heard(answer);
            break;
        case DecoderProcess::Heard::PeerClosed:
            Died();
            break;
        case DecoderProcess::Heard::Nothing:
            if (deadline_.hasExpired() && first_) {
                FinishWithoutMetadata();
            } else if (deadline_.hasExpired()) {
                FinishRefused(TookTooLong());
            }
            break;
    }
    return answer_.has_value();
}

// The pixels come first, so that they are safe whatever the metadata do to the decoder.
void DecoderReader::Heard(const DecoderAnswer& answer) {
    const bool isSecond = first_.has_value();
    if (answer.outcome == leftToOther && onlyJpeg_ && !isSecond) {
        TakeAllTypes();
        Ask();
        return;
    }
    if (answer.outcome == triedForbidden) {
        isSecond ? FinishWithoutMetadata()
                 : FinishRefused({ReasonCode::DecoderTriedForbiddenCall, answer.number});
        return;
    }
    if (isSecond ? !IsConsistentMetadata(answer, *first_, memory_->Length())
                 : !IsConsistent(answer, request_, memory_->Length())) {
        isSecond ? FinishWithoutMetadata() : FinishRefused(ReasonCode::DecoderMakesNoSense);
        return;
    }
    if (isSecond) {
        Finish(PictureFrom(*first_, MetadataFrom(answer)));
    } else if (answer.metadataFollows == 0) {
        Finish(PictureFrom(answer, {}));
    } else {
        first_ = answer;
        deadline_ = QDeadlineTimer(
            std::min<qint64>(deadline_.remainingTime(), mostSecondsForMetadata * 1000));
    }
}

void DecoderReader::FinishWithoutMetadata() {
    LoadedPicture picture = PictureFrom(*first_, UnreadMetadata());
    Restart();
    Finish(std::move(picture));
}

FileMetadata DecoderReader::MetadataFrom(const DecoderAnswer& answer) {
    const std::uint64_t place = RowBytes(*first_) + first_->attributesLength;
    const std::byte* const bytes = memory_->Map(place + answer.metadataLength);
    if (bytes == nullptr) {
        return UnreadMetadata();
    }
    FileMetadata taken =
        UnpackFileMetadata(QByteArray(reinterpret_cast<const char*>(bytes + place),
                                      static_cast<qsizetype>(answer.metadataLength)));
    // The decoder always reports something, if only that Varnel wrote the file.
    const bool isNothing = taken.metadata.IsEmpty() && taken.metadata.notes.isEmpty();
    return isNothing ? UnreadMetadata() : taken;
}

Reason DecoderReader::TookTooLong() const {
    return {ReasonCode::TookTooLong, options_.secondsPerPhoto};
}

void DecoderReader::Died() {
    if (first_) {
        FinishWithoutMetadata();
        return;
    }
    const int signal = process_.Reap();
    // Killed from outside: that was not the photo's fault.
    if (signal == SIGKILL && !askedTwice_) {
        askedTwice_ = true;
        deadline_ = QDeadlineTimer(options_.secondsPerPhoto * 1000);
        Restart();
        Ask();
        return;
    }
    FinishRefused(ReasonOfDeath(signal, options_.secondsPerPhoto));
}

// After anything but a sound photo the decoder is replaced: one that is still at work has to be
// ended, and a damaged photo may have left damage in its memory for the next one.
void DecoderReader::Finish(LoadedPicture picture) {
    const bool wasAsked = static_cast<bool>(photo_);
    photo_ = Descriptor();
    first_.reset();
    if (wasAsked && picture.outcome != LoadOutcome::Loaded) {
        memoryFiles_->DropSpare();
        memory_.reset();
        Restart();
    }
    answer_ = std::move(picture);
}

LoadedPicture DecoderReader::Take() {
    LoadedPicture picture = std::move(*answer_);
    answer_.reset();
    return picture;
}

void DecoderReader::Cancel() {
    if (photo_) {
        FinishRefused(ReasonCode::Cancelled);
    }
    answer_.reset();
}

LoadedPicture DecoderReader::PictureFrom(const DecoderAnswer& answer,
                                         const FileMetadata& metadata) {
    LoadedPicture picture{static_cast<LoadOutcome>(answer.outcome), nullptr, *ReasonOf(answer),
                          answer.size};
    picture.orientation = answer.orientation;
    if (answer.bitmap.width > 0) {
        TakePixels(answer, picture);
    } else {
        picture.facts = metadata.metadata;
    }
    if (picture.bitmap) {
        GiveMetadata(metadata, *picture.bitmap);
    }
    return picture;
}

void DecoderReader::TakePixels(const DecoderAnswer& answer, LoadedPicture& picture) {
    const std::uint64_t used = RowBytes(answer) + answer.attributesLength;
    std::byte* const bytes = memory_->Map(used);
    if (bytes == nullptr) {
        picture = LoadedPicture::Refused(ReasonCode::NotEnoughMemory);
        return;
    }
    // A copy, so that the decoder cannot change the block while it is read.
    const QByteArray attributes(reinterpret_cast<const char*>(bytes + RowBytes(answer)),
                                static_cast<qsizetype>(answer.attributesLength));
    auto owner = std::make_shared<PixelOwner>();
    owner->memory = std::move(memory_);
    owner->files = memoryFiles_;
    owner->used = used;
    picture.bitmap =
        std::make_unique<Bitmap>(static_cast<PixelFormat>(answer.format), answer.bitmap,
                                 std::shared_ptr<std::byte>(std::move(owner), bytes));
    picture.bitmap->metadata = UnpackAttributes(attributes);
}

std::unique_ptr<PictureReader> NewPictureReader(const ReaderOptions& options) {
    return std::make_unique<DecoderReader>(options);
}

}  // namespace varnel
