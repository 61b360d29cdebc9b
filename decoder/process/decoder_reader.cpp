// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/decoder_reader.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <new>
#include <utility>

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

DecoderReader::DecoderReader(const ReaderOptions& options, const StartedDecoder& started)
    : options_(Completed(options)),
      onlyJpeg_(true),
      process_(DecoderProgram(QStringLiteral("varnel-jpeg-decoder"))),
      startError_(process_.Take(started)) {}

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
                request.inPieces,
                request.planar,
                request.depth,
                request.raw};
    begun_ = request.begun;
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
    const QDeadlineTimer until(milliseconds);
    do {
        Listen(static_cast<int>(until.remainingTime()));
    } while (pieces_ && !until.hasExpired());
    return answer_.has_value();
}

void DecoderReader::Listen(int milliseconds) {
    if (answer_) {
        return;
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
            } else if (deadline_.hasExpired() && pieces_ && !pieces_->HasMetadata()) {
                AskForWhole();
            } else if (deadline_.hasExpired()) {
                FinishRefused(TookTooLong());
            }
            break;
    }
}

// The pixels come first, so that they are safe whatever the metadata do to the decoder.
void DecoderReader::Heard(const DecoderAnswer& answer) {
    const bool isSecond = first_.has_value();
    if (pieces_ || (!isSecond && IsConsistentInPieces(answer, request_, memory_->Length()))) {
        HeardOfPieces(answer);
        return;
    }
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
        Finish(PictureFrom(*first_, MetadataFrom(answer, *first_)));
    } else if (answer.metadataFollows == 0) {
        Finish(PictureFrom(answer, {}));
    } else {
        first_ = answer;
        deadline_ = QDeadlineTimer(
            std::min<qint64>(deadline_.remainingTime(), mostSecondsForMetadata * 1000));
    }
}

// Of a picture in pieces, what the decoder says from the first answer on.
void DecoderReader::HeardOfPieces(const DecoderAnswer& answer) {
    if (!pieces_) {
        BeginPieces(answer);
    } else if (!pieces_->HasMetadata()) {
        TakeMetadataOfPieces(answer);
    } else if (answer.number == request_.number && answer.outcome == rowsGivenUp) {
        AskForWhole();
    } else if (answer.outcome == triedForbidden) {
        FinishRefused({ReasonCode::DecoderTriedForbiddenCall, answer.number});
    } else if (answer.number == request_.number && answer.outcome == rowsCame) {
        if (!TakePiece()) {
            FinishRefused(ReasonCode::DecoderMakesNoSense);
        }
    } else if (!pieces_->IsWhole() || !IsConsistentEnd(answer, request_)) {
        FinishRefused(ReasonCode::DecoderMakesNoSense);
    } else {
        LoadedPicture picture = pieces_->Begun();
        picture.arriving.reset();
        picture.outcome = static_cast<LoadOutcome>(answer.outcome);
        picture.reason = *ReasonOf(answer);
        pieces_->End(picture.outcome == LoadOutcome::Loaded);
        Finish(std::move(picture));
    }
}

void DecoderReader::BeginPieces(const DecoderAnswer& first) {
    try {
        pieces_.emplace(first, *pixelMemory_);
    } catch (const std::bad_alloc&) {
        FinishRefused(ReasonCode::NotEnoughMemory);
        return;
    }
    wholeDeadline_ = deadline_;
    deadline_ =
        QDeadlineTimer(std::min<qint64>(deadline_.remainingTime(), mostSecondsForMetadata * 1000));
}

// Metadata that this decoder cannot read must not cost the picture.
void DecoderReader::TakeMetadataOfPieces(const DecoderAnswer& answer) {
    const DecoderAnswer& first = pieces_->First();
    const std::byte* const bytes =
        IsConsistentMetadata(answer, first, memory_->Length())
            ? memory_->Map(PlaceBehindRows(first) + first.attributesLength + answer.metadataLength)
            : nullptr;
    if (bytes == nullptr) {
        AskForWhole();
        return;
    }
    const QByteArray attributes(reinterpret_cast<const char*>(bytes + PlaceBehindRows(first)),
                                static_cast<qsizetype>(first.attributesLength));
    pieces_->TakeMetadata(attributes, MetadataFrom(answer, first));
    deadline_ = wholeDeadline_;
    if (begun_) {
        std::exchange(begun_, nullptr)(pieces_->Begun());
    }
}

// False when there are no more.
bool DecoderReader::TakePiece() {
    const std::byte* const pieces =
        pieces_->IsWhole() ? nullptr : memory_->Map(pieces_->Layout().Length());
    if (pieces == nullptr) {
        return false;
    }
    pieces_->TakePiece(pieces);
    // One that is dead by now is heard of in its turn.
    process_.Send(&request_.number, sizeof request_.number);
    return true;
}

// By a fresh decoder: the one at hand may be at anything.
void DecoderReader::AskForWhole() {
    pieces_.reset();
    deadline_ = wholeDeadline_;
    request_.inPieces = false;
    ++request_.number;
    Restart();
    Ask();
}

void DecoderReader::FinishWithoutMetadata() {
    LoadedPicture picture = PictureFrom(*first_, UnreadMetadata());
    Restart();
    Finish(std::move(picture));
}

FileMetadata DecoderReader::MetadataFrom(const DecoderAnswer& answer, const DecoderAnswer& first) {
    const std::uint64_t place = PlaceBehindRows(first) + first.attributesLength;
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
    if (pieces_ && !pieces_->HasMetadata()) {
        AskForWhole();
        return;
    }
    pieces_.reset();
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
    pieces_.reset();
    begun_ = nullptr;
    if (wasAsked && picture.outcome != LoadOutcome::Loaded) {
        memoryFiles_->DropSpare();
        pixelMemory_->DropSpare();
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
