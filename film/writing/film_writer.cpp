// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/film_writer.h"

#include <QLibrary>
#include <utility>

#include "base/error_text.h"
#include "base/program_file.h"
#include "files/file_operations.h"
#include "files/part_file.h"
#include "film/writing/film_muxer.h"

namespace varnel {

namespace {

// It stays loaded to the program's end: the codecs' libraries do not unload cleanly.
std::pair<OpenFilmMuxer, Reason> LoadModule() {
    QLibrary module(ProgramFile(QStringLiteral("varnel-film-writer.so")));
    const auto open = reinterpret_cast<OpenFilmMuxer>(module.resolve(openFilmMuxer));
    if (open == nullptr) {
        return {nullptr,
                {ReasonCode::FilmsNotWritable, Reason(ReasonCode::Words, module.errorString())}};
    }
    return {open, {}};
}

class OutputToPart : public FilmSink {
  public:
    explicit OutputToPart(PartFile& file) : file_(file) {}
    Reason Write(QByteArrayView bytes) override { return file_.Write(bytes); }
    Reason MoveTo(qint64 place) override { return file_.MoveTo(place); }
    qint64 Place() const override { return file_.Place(); }
    qint64 Length() const override { return file_.Length(); }

  private:
    PartFile& file_;
};

class PartWriter : public FilmWriter {
  public:
    explicit PartWriter(FileOperations* operations)
        : operations_(operations != nullptr ? *operations : own_), file_(operations_) {}

    ~PartWriter() override {
        if (!keeps_ || finished_ || !opened_.muxer) {
            return;
        }
        try {
            opened_.muxer->Finish();       // what the encoder still has
        } catch (const std::bad_alloc&) {  // then without that
        }
    }

    Reason Open(const QString& path, const FilmToWrite& film) {
        const auto [open, missing] = LoadModule();
        if (open == nullptr) {
            return missing;
        }
        if (Reason error = file_.Open(path); !error.isEmpty()) {
            return error;
        }
        open(film, output_, opened_);
        keeps_ = film.encoding.keepPart && opened_.muxer;
        if (keeps_) {
            file_.Keep();
        }
        return opened_.error;
    }

    QStringList Notes() const override {
        QStringList notes;
        for (const Reason& reason : opened_.muxer->LeftOut()) {
            notes.append(ErrorText(reason));
        }
        return notes;
    }
    Reason Write(const FrameView& frame, std::int64_t pts, std::int64_t duration) override {
        return opened_.muxer->Write(frame, pts, duration);
    }
    Reason Write(const FilmPacket& packet) override { return opened_.muxer->Write(packet); }
    Reason Finish() override {
        finished_ = true;
        const Reason error = opened_.muxer->Finish();
        return error.isEmpty() ? file_.Finish() : error;
    }
    std::int64_t Length() const override { return file_.Length(); }

  private:
    FileOperations own_;
    FileOperations& operations_;
    PartFile file_;
    OutputToPart output_{file_};
    OpenedFilmMuxer opened_;
    bool keeps_ = false;
    bool finished_ = false;
};

}  // namespace

OpenedFilmWriter NewFilmWriter(const QString& path, const FilmToWrite& film,
                               FileOperations* operations) {
    auto writer = std::make_unique<PartWriter>(operations);
    Reason error = writer->Open(path, film);
    if (!error.isEmpty()) {
        return {nullptr, std::move(error)};
    }
    return {std::move(writer), {}};
}

}  // namespace varnel
