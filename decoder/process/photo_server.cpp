// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/photo_server.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

#include "base/huge_pages.h"
#include "decoder/formats/picture_file.h"
#include "decoder/process/decoder_socket.h"
#include "decoder/process/photo_stream.h"
#include "decoder/process/pieces/handover.h"
#include "decoder/process/protocol.h"
#include "decoder/process/sandbox.h"
#include "remap/image/pixel_format.h"

namespace varnel {

namespace {

// False when there is no memory for rows and attributes.
bool HandOver(const Bitmap& bitmap, const QByteArray& attributes, const DecoderAnswer& answer,
              Handover& handover) {
    std::byte* const rows = handover.Rows(RowBytes(answer));
    if (rows == nullptr) {
        return false;
    }
    // Both have rows RowPitch apart, bottom row first.
    if (static_cast<const void*>(bitmap.Bits()) != rows) {
        std::memcpy(rows, bitmap.Bits(), RowBytes(answer));
    }
    return handover.WriteAt(RowBytes(answer), attributes);
}

DecoderAnswer AnswerFor(const LoadedPicture& picture, const DecoderRequest& request,
                        Handover& handover) {
    DecoderAnswer answer;
    answer.number = request.number;
    answer.outcome = static_cast<std::uint32_t>(picture.outcome);
    answer.size = picture.size;
    answer.orientation = picture.orientation;
    SetReason(answer, picture.reason);
    if (!picture.bitmap) {
        return answer;
    }
    const Bitmap& bitmap = *picture.bitmap;
    QByteArray attributes =
        request.kind == ReadKind::Whole ? PackAttributes(bitmap.metadata) : QByteArray();
    if (static_cast<std::uint64_t>(attributes.size()) > longestBlock) {
        attributes.clear();
    }
    answer.bitmap = bitmap.Size();
    answer.format = static_cast<std::uint32_t>(bitmap.Format());
    answer.pitch = static_cast<std::uint32_t>(bitmap.Pitch());
    answer.attributesLength = static_cast<std::uint64_t>(attributes.size());
    if (!HandOver(bitmap, attributes, answer, handover)) {
        answer = DecoderAnswer{.number = request.number,
                               .outcome = static_cast<std::uint32_t>(LoadOutcome::NotLoaded)};
        SetReason(answer, ReasonCode::NotEnoughMemory);
    }
    return answer;
}

std::optional<LoadedPicture> Decoded(std::FILE* photo, const PhotoReaders& readers,
                                     const DecoderRequest& request, Handover& handover,
                                     PieceHandover& pieces) {
    return readers.picture(
        photo, {{}, request.kind, request.box, request.upright, request.depth, request.raw},
        request.memory,
        {[&handover](PixelSize size, PixelFormat format) {
             return handover.Rows(RowPitch(size.width, format) *
                                  static_cast<std::size_t>(size.height));
         },
         request.kind == ReadKind::Whole ? &pieces : nullptr});
}

QByteArray PackedMetadata(std::FILE* photo, const PhotoReaders& readers,
                          const MetadataRequest& wanted) {
    LimitMetadata(PictureFile(photo).Length());
    return PackFileMetadata(readers.metadata(photo, wanted));
}

bool LeaveToOther(const DecoderRequest& request) {
    DecoderAnswer answer;
    answer.number = request.number;
    answer.outcome = leftToOther;
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

// One photo; false when the parent is gone.
bool Serve(const PhotoReaders& readers, MappedFiles& mapped, PhotoStream& stream) {
    DecoderRequest request;
    std::array<Descriptor, 2> files;
    if (!ReceiveMessage(decoderSocket, &request, sizeof request, &files) || !files[0] ||
        !files[1]) {
        return false;
    }
    LimitNextPhoto(request.memory, request.seconds);
    const FileHandle photo = stream.Open(std::move(files[0]));
    if (!photo) {
        return false;
    }
    Handover handover(mapped, request.memoryFile, files[1].Get());
    PieceHandover pieces(request, handover, [&](const LoadedPicture& begun) {
        QByteArray block = PackedMetadata(photo.get(), readers, WantedFor(begun));
        LimitNextPhoto(request.memory, request.seconds);
        return block;
    });
    std::optional<LoadedPicture> picture = Decoded(photo.get(), readers, request, handover, pieces);
    if (!picture) {
        return LeaveToOther(request);
    }
    if (pieces.Begun()) {
        return pieces.End(*picture);
    }
    DecoderAnswer answer = AnswerFor(*picture, request, handover);
    const MetadataRequest wanted = WantedFor(*picture);
    picture.reset();
    const bool hasMetadata = request.kind == ReadKind::Facts ||
                             (request.kind == ReadKind::Whole && answer.bitmap.width > 0);
    answer.metadataFollows = hasMetadata ? 1 : 0;
    if (!SendMessage(decoderSocket, &answer, sizeof answer)) {
        return false;
    }
    if (!hasMetadata) {
        return true;
    }
    // The pixels are the parent's already: should the metadata end this process, they are not lost.
    return SendMetadata(PackedMetadata(photo.get(), readers, wanted), answer, handover);
}

}  // namespace

void ServePhotos(const PhotoReaders& readers) {
    KeepFreedMemory();
    // Given by name the zone is read once; else the C library looks at the file for every time of
    // day, and takes another zone when it may not.
    setenv("TZ", ":/etc/localtime", 0);
    readers.prepare();
    Confine();
    MappedFiles mapped;
    PhotoStream stream;
    while (Serve(readers, mapped, stream)) {
    }
    // Not through the exit handlers: what damaged photos left in the libraries' memory is of no
    // interest any more.
    _exit(0);
}

}  // namespace varnel

// Sanitized builds watch our own code. What the image libraries do beyond it, they do to sound
// photos, too, and no report may end the decoder for it; and memory may run out, as it does
// otherwise.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer asks for this name
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "replace_intrin=0:alloc_dealloc_mismatch=0:allocator_may_return_null=1";
}
