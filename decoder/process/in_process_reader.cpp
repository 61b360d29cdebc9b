// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Decoding in the program's own process, for platforms without the means for another one. A photo
// that crashes an image library takes the program down here.
#include <QFile>
#include <cstdio>
#include <memory>

#include "decoder/formats/decode_picture.h"
#include "decoder/metadata/read_metadata.h"
#include "decoder/process/picture_reader.h"
#include "decoder/request/path_check.h"
#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

class InProcessReader : public PictureReader {
  public:
    explicit InProcessReader(std::uint64_t memory)
        : memory_(memory == 0 ? MachineMemory() : memory) {}

    void Begin(const ReadRequest& request) override {
        const Reason error = PathError(request.path);
        const FileHandle file(error.isEmpty()
                                  ? std::fopen(QFile::encodeName(request.path).constData(), "rb")
                                  : nullptr);
        if (!file) {
            answer_ = LoadedPicture::Refused(error.isEmpty() ? ReasonCode::CannotBeOpened : error);
            return;
        }
        answer_ = request.kind == ReadKind::Facts
                      ? LoadedPicture{LoadOutcome::Loaded, nullptr, {}, {}}
                      : DecodePicture(file.get(), request, memory_);
        TakeMetadata(file.get(), request);
    }
    bool Wait(int /*milliseconds*/) override { return true; }
    LoadedPicture Take() override { return std::move(answer_); }
    void Cancel() override { answer_ = {}; }

  private:
    void TakeMetadata(std::FILE* file, const ReadRequest& request) {
        const MetadataRequest wanted = WantedFor(answer_);
        if (request.kind == ReadKind::Facts) {
            answer_.facts = ReadMetadata(file, wanted).metadata;
        } else if (request.kind == ReadKind::Whole && answer_.bitmap) {
            GiveMetadata(ReadMetadata(file, wanted), *answer_.bitmap);
        }
    }

    std::uint64_t memory_;
    LoadedPicture answer_;
};

}  // namespace

std::unique_ptr<PictureReader> NewPictureReader(const ReaderOptions& options) {
    return std::make_unique<InProcessReader>(options.memory);
}

}  // namespace varnel
