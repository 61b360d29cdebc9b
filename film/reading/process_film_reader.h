// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The film reader that decodes in a process of its own. The process ends with the thread that
// opened the film. Throws std::bad_alloc only.
#pragma once

#include <memory>
#include <optional>

#include "decoder/process/decoder_process.h"
#include "decoder/process/descriptor.h"
#include "decoder/process/shared_memory.h"
#include "film/reading/film_protocol.h"
#include "film/reading/film_reader.h"
#include "film/reading/frame_lending.h"

namespace varnel {

struct FilmReaderOptions {
    QString program = {};      // the decoder's path; empty: the one beside this program
    int secondsPerItem = 30;   // the longest that a frame may take
    std::uint64_t memory = 0;  // bytes that frames are measured by; 0: this machine's memory
};

class ProcessFilmReader : public FilmReader {
  public:
    explicit ProcessFilmReader(FilmReaderOptions options);
    ~ProcessFilmReader() override;
    ProcessFilmReader(const ProcessFilmReader&) = delete;
    ProcessFilmReader& operator=(const ProcessFilmReader&) = delete;

    Reason Open(const QString& path, const FilmReadChoices& choices) override;
    const FilmInfo& Info() const override { return film_; }
    FilmItem Next() override;
    // Of a film that ended because its decoder died, a new one goes on.
    Reason Seek(double seconds) override;

    // The decoder's process number, for tests that kill it.
    pid_t ProcessId() const { return process_->Id(); }

  private:
    // A message with its payload; the reason when there will be none.
    struct Heard {
        FilmAnswer answer;
        QByteArray payload;
        Reason error;
    };

    Reason Start();
    Heard Hear();
    Reason HearBytes(void* bytes, std::size_t length);
    Reason TakeFilm(const Heard& heard);
    FilmItem ItemOf(const Heard& heard);
    FilmItem EndWith(const Reason& reason);
    Reason Died();
    void Stop();

    FilmReaderOptions options_;
    FilmReadChoices choices_;
    QString path_;
    FilmInfo film_;
    std::unique_ptr<DecoderProcess> process_;
    std::unique_ptr<SharedMemory> memory_;
    std::shared_ptr<FrameLending> lending_;
    std::uint64_t slotLength_ = 0;
    std::uint32_t number_ = 0;
    std::optional<Reason> end_;
    bool diedOfIt_ = false;
};

}  // namespace varnel
