// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-decoder: decodes photos for the other programs, one after the other, until they end.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/huge_pages.h"
#include "decoder/formats/decode_picture.h"
#include "decoder/formats/picture_file.h"
#include "decoder/metadata/read_metadata.h"
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
bool SendMetadata(std::FILE* photo, const DecoderAnswer& first, const MetadataRequest& wanted,
                  Handover& handover) {
    LimitMetadata(PictureFile(photo).Length());
    const QByteArray block = PackFileMetadata(ReadMetadata(photo, wanted));
    DecoderAnswer answer;
    answer.number = first.number;
    if (static_cast<std::uint64_t>(block.size()) <= longestBlock &&
        handover.WriteAt(RowBytes(first) + first.attributesLength, block)) {
        answer.metadataLength = static_cast<std::uint64_t>(block.size());
    }
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

LoadedPicture Decoded(std::FILE* photo, const DecoderRequest& request, Handover& handover) {
    if (request.kind == ReadKind::Facts) {
        return {LoadOutcome::Loaded, nullptr, {}, {}};
    }
    return DecodePicture(
        photo, {{}, request.kind, request.box, request.upright, request.depth, request.raw},
        request.memory, [&handover](PixelSize size, PixelFormat format) {
            return handover.Rows(RowPitch(size.width, format) *
                                 static_cast<std::size_t>(size.height));
        });
}

// One photo; false when the parent is gone.
bool Serve(MappedFiles& mapped) {
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
    LoadedPicture picture = Decoded(photo.get(), request, handover);
    DecoderAnswer answer = AnswerFor(picture, request, handover);
    const MetadataRequest wanted = WantedFor(picture);
    picture.bitmap.reset();
    const bool hasMetadata = request.kind == ReadKind::Facts ||
                             (request.kind == ReadKind::Whole && answer.bitmap.width > 0);
    answer.metadataFollows = hasMetadata ? 1 : 0;
    return SendMessage(decoderSocket, &answer, sizeof answer) &&
           (!hasMetadata || SendMetadata(photo.get(), answer, wanted, handover));
}

}  // namespace

}  // namespace varnel

// Sanitized builds watch our own code. What the image libraries do beyond it, they do to sound
// photos, too, and no report may end the decoder for it; and memory may run out, as it does
// otherwise.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer asks for this name
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "replace_intrin=0:alloc_dealloc_mismatch=0:allocator_may_return_null=1";
}

int main() {
    varnel::KeepFreedMemory();
    // Given by name the zone is read once; else the C library looks at the file for every time of
    // day, and takes another zone when it may not.
    setenv("TZ", ":/etc/localtime", 0);
    varnel::PrepareDecoding();
    varnel::PrepareMetadata();
    varnel::Confine();
    varnel::MappedFiles mapped;
    while (varnel::Serve(mapped)) {
    }
    // Not through the exit handlers: what damaged photos left in the libraries' memory is of no
    // interest any more.
    _exit(0);
}
