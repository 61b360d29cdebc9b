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
#include "decoder/process/protocol.h"
#include "decoder/process/sandbox.h"
#include "remap/image/pixel_format.h"

namespace varnel {

namespace {

// Memory files stay mapped while they take turns: to map one anew for each small photo costs as
// much time as a tenth of its decoding.
class MappedFiles {
  public:
    // The first bytes of that memory file, which is so long; null when there is no memory for them.
    std::byte* Map(std::uint32_t name, int file, std::size_t length) {
        Mapped& mapped = Find(name);
        if (mapped.name != name || mapped.length < length) {
            if (mapped.bytes != nullptr) {
                munmap(mapped.bytes, mapped.length);
            }
            // All at once: one fault for each page costs as much time as half the decoding.
            void* const bytes =
                mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE, file, 0);
            mapped = bytes == MAP_FAILED ? Mapped{}
                                         : Mapped{name, static_cast<std::byte*>(bytes), length};
        }
        return mapped.bytes;
    }

  private:
    struct Mapped {
        std::uint32_t name = 0;
        std::byte* bytes = nullptr;
        std::size_t length = 0;
    };
    // Its place, or that of the one that was not used last.
    Mapped& Find(std::uint32_t name) {
        last_ = mapped_[last_].name == name ? last_ : 1 - last_;
        return mapped_[last_];
    }

    std::array<Mapped, 2> mapped_;
    std::size_t last_ = 0;
};

// The memory file of the photo at hand, where its picture goes.
class Handover {
  public:
    Handover(MappedFiles& mapped, std::uint32_t name, int file)
        : mapped_(mapped), name_(name), file_(file) {}

    // Null when there is no memory for them.
    std::byte* Rows(std::size_t length) {
        return Lengthen(length) ? mapped_.Map(name_, file_, length) : nullptr;
    }
    bool WriteAt(std::size_t place, const QByteArray& block) const {
        return Lengthen(place + static_cast<std::size_t>(block.size())) &&
               pwrite(file_, block.constData(), static_cast<std::size_t>(block.size()),
                      static_cast<off_t>(place)) == static_cast<ssize_t>(block.size());
    }

  private:
    // The file only grows: a longer one of an earlier picture stays as it is.
    bool Lengthen(std::size_t length) const {
        return lseek(file_, 0, SEEK_END) >= static_cast<off_t>(length) ||
               ftruncate(file_, static_cast<off_t>(length)) == 0;
    }

    MappedFiles& mapped_;
    std::uint32_t name_;
    int file_;
};

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

// The pixels are the parent's already: should the metadata end this process, they are not lost.
bool SendMetadata(const QByteArray& block, const DecoderAnswer& first, Handover& handover) {
    DecoderAnswer answer;
    answer.number = first.number;
    if (static_cast<std::uint64_t>(block.size()) <= longestBlock &&
        handover.WriteAt(RowBytes(first) + first.attributesLength, block)) {
        answer.metadataLength = static_cast<std::uint64_t>(block.size());
    }
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

std::optional<LoadedPicture> Decoded(std::FILE* photo, const PhotoReaders& readers,
                                     const DecoderRequest& request, Handover& handover) {
    return readers.picture(
        photo, {{}, request.kind, request.box, request.upright, request.depth, request.raw},
        request.memory, [&handover](PixelSize size, PixelFormat format) {
            return handover.Rows(RowPitch(size.width, format) *
                                 static_cast<std::size_t>(size.height));
        });
}

bool LeaveToOther(const DecoderRequest& request) {
    DecoderAnswer answer;
    answer.number = request.number;
    answer.outcome = leftToOther;
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

// One photo; false when the parent is gone.
bool Serve(const PhotoReaders& readers, MappedFiles& mapped) {
    DecoderRequest request;
    std::array<Descriptor, 2> files;
    if (!ReceiveMessage(decoderSocket, &request, sizeof request, &files) || !files[0] ||
        !files[1]) {
        return false;
    }
    LimitNextPhoto(request.memory, request.seconds);
    const FileHandle photo(fdopen(files[0].Release(), "rb"));
    if (!photo) {
        return false;
    }
    Handover handover(mapped, request.memoryFile, files[1].Get());
    std::optional<LoadedPicture> picture = Decoded(photo.get(), readers, request, handover);
    if (!picture) {
        return LeaveToOther(request);
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
    LimitMetadata(PictureFile(photo.get()).Length());
    return SendMetadata(PackFileMetadata(readers.metadata(photo.get(), wanted)), answer, handover);
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
    while (Serve(readers, mapped)) {
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
