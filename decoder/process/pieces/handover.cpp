// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/pieces/handover.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

#include "decoder/process/decoder_socket.h"
#include "remap/image/exif_orientation.h"

namespace varnel {

std::byte* MappedFiles::Map(std::uint32_t name, int file, std::size_t length) {
    Mapped& mapped = Find(name);
    if (mapped.name != name || mapped.length < length) {
        if (mapped.bytes != nullptr) {
            munmap(mapped.bytes, mapped.length);
        }
        // All at once: one fault for each page costs as much time as half the decoding.
        void* const bytes =
            mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE, file, 0);
        mapped =
            bytes == MAP_FAILED ? Mapped{} : Mapped{name, static_cast<std::byte*>(bytes), length};
    }
    return mapped.bytes;
}

MappedFiles::Mapped& MappedFiles::Find(std::uint32_t name) {
    last_ = mapped_[last_].name == name ? last_ : 1 - last_;
    return mapped_[last_];
}

bool Handover::WriteAt(std::size_t place, const QByteArray& block) const {
    return Lengthen(place + static_cast<std::size_t>(block.size())) &&
           pwrite(file_, block.constData(), static_cast<std::size_t>(block.size()),
                  static_cast<off_t>(place)) == static_cast<ssize_t>(block.size());
}

bool Handover::Lengthen(std::size_t length) const {
    return lseek(file_, 0, SEEK_END) >= static_cast<off_t>(length) ||
           ftruncate(file_, static_cast<off_t>(length)) == 0;
}

bool PieceHandover::Wants(PixelSize stored) const {
    return request_.inPieces && !Begun() &&
           RowPitch(stored.width) * static_cast<std::uint64_t>(stored.height) >=
               fewestBytesForPieces;
}

int PieceHandover::Begin(const PiecedHead& head) {
    layout_.emplace(head.stored, head.isPlanar);
    LoadedPicture picture{LoadOutcome::Loaded, nullptr, {}, Turned(head.stored, head.orientation)};
    picture.orientation = head.orientation;
    picture.bitmap = std::make_unique<Bitmap>(PixelFormat::Bgr8, picture.size, nullptr);
    picture.bitmap->metadata = head.metadata;
    QByteArray attributes = PackAttributes(head.metadata);
    if (static_cast<std::uint64_t>(attributes.size()) > longestBlock) {
        attributes.clear();
    }
    first_.number = request_.number;
    first_.outcome = inPieces;
    first_.size = first_.bitmap = picture.size;
    first_.format = static_cast<std::uint32_t>(PixelFormat::Bgr8);
    first_.pitch = static_cast<std::uint32_t>(RowPitch(picture.size.width));
    first_.attributesLength = static_cast<std::uint64_t>(attributes.size());
    first_.metadataFollows = 1;
    first_.orientation = head.orientation;
    first_.isPlanar = head.isPlanar ? 1 : 0;
    pieces_ = handover_.Rows(layout_->Length());
    const bool told = pieces_ != nullptr && handover_.WriteAt(layout_->Length(), attributes) &&
                      SendMessage(decoderSocket, &first_, sizeof first_) &&
                      SendMetadata(metadata_(picture), first_, handover_);
    return told ? layout_->rows : 0;
}

std::byte* PieceHandover::Room() {
    while (given_ - taken_ >= PieceLayout::inTurns) {
        if (!WaitUntilTaken()) {
            return nullptr;
        }
    }
    return pieces_ + layout_->Place(given_);
}

bool PieceHandover::Give() {
    ++given_;
    DecoderAnswer answer;
    answer.number = request_.number;
    answer.outcome = rowsCame;
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

bool PieceHandover::End(const LoadedPicture& picture) {
    while (taken_ < given_) {
        if (!WaitUntilTaken()) {
            return false;
        }
    }
    DecoderAnswer answer;
    answer.number = request_.number;
    answer.orientation = first_.orientation;
    answer.outcome = rowsGivenUp;
    if (picture.outcome != LoadOutcome::NotLoaded) {
        answer.outcome = static_cast<std::uint32_t>(picture.outcome);
        SetReason(answer, picture.reason);
    }
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

bool PieceHandover::WaitUntilTaken() {
    std::uint32_t number = 0;
    if (!ReceiveMessage(decoderSocket, &number, sizeof number, nullptr)) {
        return false;
    }
    ++taken_;
    return true;
}

bool SendMetadata(const QByteArray& block, const DecoderAnswer& first, const Handover& handover) {
    DecoderAnswer answer;
    answer.number = first.number;
    if (static_cast<std::uint64_t>(block.size()) <= longestBlock &&
        handover.WriteAt(PlaceBehindRows(first) + first.attributesLength, block)) {
        answer.metadataLength = static_cast<std::uint64_t>(block.size());
    }
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

}  // namespace varnel
