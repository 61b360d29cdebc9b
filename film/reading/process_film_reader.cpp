// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/reading/process_film_reader.h"

#include <QDeadlineTimer>
#include <algorithm>
#include <cerrno>
#include <new>

#include "decoder/process/photo_file.h"
#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

constexpr int listenMilliseconds = 100;

FilmReaderOptions Completed(FilmReaderOptions options) {
    if (options.program.isEmpty()) {
        options.program = DecoderProgram(QStringLiteral("varnel-film-decoder"));
    }
    if (options.memory == 0) {
        options.memory = MachineMemory();
    }
    return options;
}

}  // namespace

ProcessFilmReader::ProcessFilmReader(FilmReaderOptions options)
    : options_(Completed(std::move(options))),
      process_(std::make_unique<DecoderProcess>(options_.program)) {}

ProcessFilmReader::~ProcessFilmReader() {
    Stop();
}

void ProcessFilmReader::Stop() {
    if (lending_) {
        lending_->Stop();
        lending_.reset();
    }
    process_->End();
    memory_.reset();
}

Reason ProcessFilmReader::Open(const QString& path, const FilmReadChoices& choices) {
    path_ = path;
    choices_ = choices;
    Reason error = Start();
    if (!error.isEmpty()) {
        EndWith(error);
    }
    return error;
}

Reason ProcessFilmReader::Start() {
    Stop();
    end_.reset();
    diedOfIt_ = false;
    const OpenedPhoto opened = OpenPhotoFile(path_);
    if (!opened.file) {
        return opened.error;
    }
    if (!IsFilm(path_)) {
        return ReasonCode::NoKnownFilm;
    }
    try {
        memory_ = std::make_unique<SharedMemory>(1);
    } catch (const std::bad_alloc&) {
        return {ReasonCode::NoMemoryToBeHad, qt_error_string(errno)};
    }
    if (const Reason error = process_->Start(); !error.isEmpty()) {
        return {ReasonCode::DecoderNotStarted, error};
    }
    FilmRequest request;
    request.seconds = static_cast<std::uint32_t>(options_.secondsPerItem);
    request.memory = options_.memory;
    request.upright = choices_.upright;
    request.packets = choices_.packets;
    if (!process_->Send(&request, sizeof request, {opened.file.Get(), memory_->Number()})) {
        return {ReasonCode::DecoderNotStarted, Reason(ReasonCode::DecoderEndsAtOnce)};
    }
    return TakeFilm(Hear());
}

Reason ProcessFilmReader::TakeFilm(const Heard& heard) {
    if (!heard.error.isEmpty()) {
        return heard.error;
    }
    if (heard.answer.kind == FilmAnswerKind::Refused) {
        const std::optional<Reason> reason = UnpackReason(heard.payload);
        return reason && !reason->isEmpty() ? *reason : Reason(ReasonCode::DecoderMakesNoSense);
    }
    std::optional<FilmInfo> film = UnpackFilm(heard.payload);
    if (heard.answer.kind != FilmAnswerKind::Opened || !IsConsistentOpened(heard.answer) || !film) {
        return ReasonCode::DecoderMakesNoSense;
    }
    film_ = std::move(*film);
    slotLength_ = heard.answer.slotLength;
    lending_ = std::make_shared<FrameLending>(slotLength_, [this](std::uint32_t slot) {
        const FilmRequest free{.kind = FilmRequestKind::Free, .slot = slot};
        process_->Send(&free, sizeof free);
    });
    return {};
}

// Also waits as long as all frames are held elsewhere: then it is not the decoder that is slow.
Reason ProcessFilmReader::HearBytes(void* bytes, std::size_t length) {
    QDeadlineTimer deadline(options_.secondsPerItem * 1000);
    while (true) {
        switch (process_->Listen(listenMilliseconds, bytes, length)) {
            case DecoderProcess::Heard::Answer:
                return {};
            case DecoderProcess::Heard::PeerClosed:
                return Died();
            case DecoderProcess::Heard::Nothing:
                break;
        }
        if (lending_ && lending_->Held() >= framesAhead) {
            deadline.setRemainingTime(options_.secondsPerItem * 1000);
        } else if (deadline.hasExpired()) {
            return {ReasonCode::TookTooLong, options_.secondsPerItem};
        }
    }
}

ProcessFilmReader::Heard ProcessFilmReader::Hear() {
    Heard heard;
    heard.error = HearBytes(&heard.answer, sizeof heard.answer);
    if (heard.error.isEmpty() && heard.answer.payloadLength > longestPayload) {
        heard.error = ReasonCode::DecoderMakesNoSense;
    }
    if (!heard.error.isEmpty()) {
        return heard;
    }
    // As it comes: the memory is taken for what is there, not for what is told.
    std::uint64_t left = heard.answer.payloadLength;
    while (left > 0 && heard.error.isEmpty()) {
        const auto piece = static_cast<qsizetype>(std::min<std::uint64_t>(left, pieceLength));
        const qsizetype at = heard.payload.size();
        heard.payload.resize(at + piece);
        heard.error = HearBytes(heard.payload.data() + at, static_cast<std::size_t>(piece));
        left -= static_cast<std::uint64_t>(piece);
    }
    return heard;
}

FilmItem ProcessFilmReader::Next() {
    if (end_) {
        return FilmEnd{*end_};
    }
    if (!lending_) {
        return EndWith(ReasonCode::FilmWithoutFrames);
    }
    const Heard heard = Hear();
    return heard.error.isEmpty() ? ItemOf(heard) : EndWith(heard.error);
}

FilmItem ProcessFilmReader::ItemOf(const Heard& heard) {
    const FilmAnswer& answer = heard.answer;
    if (answer.kind == FilmAnswerKind::Frame) {
        if (IsConsistentFrame(answer, film_.format, slotLength_, memory_->Length())) {
            auto frame = lending_->Frame(answer, film_.format, *memory_);
            return frame ? FilmItem(std::move(frame)) : EndWith(ReasonCode::NotEnoughMemory);
        }
    } else if (answer.kind == FilmAnswerKind::Packet) {
        if (std::optional<FilmPacket> packet = UnpackPacket(heard.payload, film_); packet) {
            return std::move(*packet);
        }
    } else if (const std::optional<Reason> reason = UnpackReason(heard.payload); reason) {
        if (answer.kind == FilmAnswerKind::Fault && !reason->isEmpty()) {
            return FilmFault{answer.pts, *reason};
        }
        if (answer.kind == FilmAnswerKind::End) {
            end_ = *reason;
            return FilmEnd{*reason};
        }
    }
    return EndWith(ReasonCode::DecoderMakesNoSense);
}

// A decoder that did not come to an end by itself is not asked again.
FilmItem ProcessFilmReader::EndWith(const Reason& reason) {
    if (lending_) {
        lending_->Stop();
    }
    process_->End();
    diedOfIt_ = true;
    end_ = reason;
    return FilmEnd{reason};
}

Reason ProcessFilmReader::Seek(double seconds) {
    if (path_.isEmpty() || film_.picture < 0) {
        return ReasonCode::FilmWithoutFrames;
    }
    if (diedOfIt_) {
        if (Reason error = Start(); !error.isEmpty()) {
            EndWith(error);
            return error;
        }
    }
    end_.reset();
    const FilmRequest request{.kind = FilmRequestKind::Seek, .number = ++number_, .time = seconds};
    process_->Send(&request, sizeof request);
    // What was under way before is dropped; slots go back by themselves.
    while (true) {
        const Heard heard = Hear();
        if (!heard.error.isEmpty()) {
            EndWith(heard.error);
            return heard.error;
        }
        if (heard.answer.kind == FilmAnswerKind::Sought && heard.answer.number == number_) {
            return {};
        }
        if (heard.answer.kind == FilmAnswerKind::Frame) {
            const FilmRequest free{.kind = FilmRequestKind::Free, .slot = heard.answer.slot};
            process_->Send(&free, sizeof free);
        }
    }
}

Reason ProcessFilmReader::Died() {
    if (lending_) {
        lending_->Stop();
    }
    return ReasonOfDeath(process_->Reap(), options_.secondsPerItem);
}

std::unique_ptr<FilmReader> NewFilmReader() {
    return std::make_unique<ProcessFilmReader>(FilmReaderOptions());
}

}  // namespace varnel
