// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-decoder: decodes photos for the other programs, one after the other, until they end.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "decoder/confinement.h"
#include "decoder/decode_picture.h"
#include "decoder/decoder_socket.h"
#include "decoder/protocol.h"

namespace varnel {

namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// The memory file of the photo at hand, where its picture goes.
class Handover {
  public:
    explicit Handover(int file) : file_(file) {}
    ~Handover() {
        if (rows_ != nullptr) {
            munmap(rows_, mapped_);
        }
    }
    Handover(const Handover&) = delete;
    Handover& operator=(const Handover&) = delete;

    // Null when there is no memory for them.
    std::byte* Rows(std::size_t length) {
        if (rows_ != nullptr && mapped_ != length) {
            munmap(rows_, mapped_);
            rows_ = nullptr;
        }
        if (rows_ == nullptr && Lengthen(length)) {
            // All at once: one fault for each page costs as much time as half the decoding.
            void* const rows =
                mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE, file_, 0);
            rows_ = rows == MAP_FAILED ? nullptr : static_cast<std::byte*>(rows);
            mapped_ = length;
        }
        return rows_;
    }
    bool WriteAfter(std::size_t rows, const QByteArray& block) const {
        return Lengthen(rows + static_cast<std::size_t>(block.size())) &&
               pwrite(file_, block.constData(), static_cast<std::size_t>(block.size()),
                      static_cast<off_t>(rows)) == static_cast<ssize_t>(block.size());
    }

  private:
    // The file only grows: a longer one of an earlier picture stays as it is.
    bool Lengthen(std::size_t length) const {
        return lseek(file_, 0, SEEK_END) >= static_cast<off_t>(length) ||
               ftruncate(file_, static_cast<off_t>(length)) == 0;
    }

    int file_;
    std::byte* rows_ = nullptr;
    std::size_t mapped_ = 0;
};

// False when there is no memory for rows and extras.
bool HandOver(FIBITMAP* bitmap, const QByteArray& extras, const DecoderAnswer& answer,
              Handover& handover) {
    std::byte* const rows = handover.Rows(RowBytes(answer));
    if (rows == nullptr) {
        return false;
    }
    // Both have rows of whole four bytes, bottom row first.
    if (const BYTE* const bits = FreeImage_GetBits(bitmap);
        static_cast<const void*>(bits) != rows) {
        std::memcpy(rows, bits, RowBytes(answer));
    }
    return handover.WriteAfter(RowBytes(answer), extras);
}

void SetReason(DecoderAnswer& answer, const QString& reason) {
    const QByteArray text = reason.toUtf8();
    answer.reasonLength =
        static_cast<std::uint32_t>(std::min<std::size_t>(text.size(), longestReason));
    std::memcpy(answer.reason.data(), text.constData(), answer.reasonLength);
}

DecoderAnswer AnswerFor(const LoadedPicture& picture, const DecoderRequest& request,
                        Handover& handover) {
    DecoderAnswer answer;
    answer.number = request.number;
    answer.outcome = static_cast<std::uint32_t>(picture.outcome);
    answer.size = picture.size;
    SetReason(answer, picture.reason);
    if (!picture.bitmap) {
        return answer;
    }
    FIBITMAP* const bitmap = picture.bitmap.get();
    QByteArray extras = request.kind == ReadKind::Whole ? PackExtras(bitmap) : QByteArray();
    if (static_cast<std::uint64_t>(extras.size()) > longestExtras) {
        extras.clear();
    }
    answer.bitmap = SizeOf(bitmap);
    answer.pitch = FreeImage_GetPitch(bitmap);
    answer.extrasLength = static_cast<std::uint64_t>(extras.size());
    if (!HandOver(bitmap, extras, answer, handover)) {
        answer = DecoderAnswer{.number = request.number,
                               .outcome = static_cast<std::uint32_t>(LoadOutcome::NotLoaded)};
        SetReason(answer, QStringLiteral("there is not enough memory"));
    }
    return answer;
}

// One photo; false when the parent is gone.
bool Serve() {
    DecoderRequest request;
    std::array<Descriptor, 2> files;
    if (!ReceiveMessage(decoderSocket, &request, sizeof request, &files) || !files[0] ||
        !files[1]) {
        return false;
    }
    LimitNextPhoto(request.memory, request.seconds);
    const std::unique_ptr<std::FILE, FileCloser> photo(fdopen(files[0].Release(), "rb"));
    if (!photo) {
        return false;
    }
    Handover handover(files[1].Get());
    const LoadedPicture picture = DecodePicture(
        photo.get(), {{}, request.kind, request.box}, request.memory, [&handover](PixelSize size) {
            const std::size_t pitch = (static_cast<std::size_t>(size.width) * 3 + 3) / 4 * 4;
            return handover.Rows(pitch * static_cast<std::size_t>(size.height));
        });
    const DecoderAnswer answer = AnswerFor(picture, request, handover);
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

}  // namespace

}  // namespace varnel

// Sanitized builds watch our own code. What the image libraries do beyond it, they do to sound
// photos, too, and no report may end the decoder for it; and memory may run out, as it does
// otherwise.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "replace_intrin=0:alloc_dealloc_mismatch=0:allocator_may_return_null=1";
}

int main() {
    varnel::PrepareDecoding();
    varnel::Confine();
    while (varnel::Serve()) {
    }
    // Not through the exit handlers: what damaged photos left in the libraries' memory is of no
    // interest any more.
    _exit(0);
}
