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

struct Mapping {
    void* bytes = MAP_FAILED;
    std::size_t length = 0;
    ~Mapping() {
        if (bytes != MAP_FAILED) {
            munmap(bytes, length);
        }
    }
};

// Writes rows and extras into the memory file; false when there is no memory for them.
bool HandOver(FIBITMAP* bitmap, const QByteArray& extras, int memoryFile,
              const DecoderAnswer& answer) {
    const std::size_t rows = RowBytes(answer);
    Mapping mapping{MAP_FAILED, rows + static_cast<std::size_t>(extras.size())};
    // The file only grows: a longer one of an earlier picture stays as it is.
    const off_t isLength = lseek(memoryFile, 0, SEEK_END);
    if (isLength < static_cast<off_t>(mapping.length) &&
        ftruncate(memoryFile, static_cast<off_t>(mapping.length)) != 0) {
        return false;
    }
    mapping.bytes = mmap(nullptr, mapping.length, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE,
                         memoryFile, 0);
    if (mapping.bytes == MAP_FAILED) {
        return false;
    }
    auto* const bytes = static_cast<std::byte*>(mapping.bytes);
    // Both have rows of whole four bytes, bottom row first.
    std::memcpy(bytes, FreeImage_GetBits(bitmap), rows);
    std::memcpy(bytes + rows, extras.constData(), static_cast<std::size_t>(extras.size()));
    return true;
}

void SetReason(DecoderAnswer& answer, const QString& reason) {
    const QByteArray text = reason.toUtf8();
    answer.reasonLength =
        static_cast<std::uint32_t>(std::min<std::size_t>(text.size(), longestReason));
    std::memcpy(answer.reason.data(), text.constData(), answer.reasonLength);
}

DecoderAnswer AnswerFor(const LoadedPicture& picture, const DecoderRequest& request,
                        int memoryFile) {
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
    if (!HandOver(bitmap, extras, memoryFile, answer)) {
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
    const LoadedPicture picture =
        DecodePicture(photo.get(), {{}, request.kind, request.box}, request.memory);
    const DecoderAnswer answer = AnswerFor(picture, request, files[1].Get());
    return SendMessage(decoderSocket, &answer, sizeof answer);
}

}  // namespace

}  // namespace varnel

int main() {
    varnel::PrepareDecoding();
    varnel::Confine();
    while (varnel::Serve()) {
    }
    // Not through the exit handlers: what damaged photos left in the libraries' memory is of no
    // interest any more.
    _exit(0);
}
