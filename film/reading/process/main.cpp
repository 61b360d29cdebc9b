// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-film-decoder: decodes one film for another program, behind the walls that photos' decoder
// has.
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <new>

#include "base/huge_pages.h"
#include "decoder/process/decoder_socket.h"
#include "decoder/process/sandbox.h"
#include "film/reading/film_protocol.h"
#include "film/reading/process/film_source.h"

namespace varnel {

namespace {

// Between the program and the film.
class FilmServer {
  public:
    // Returns when the program is gone.
    void Run() {
        std::array<Descriptor, 2> files;
        FilmRequest request;
        if (!ReceiveMessage(decoderSocket, &request, sizeof request, &files) || !files[0] ||
            !files[1] || request.kind != FilmRequestKind::Open) {
            return;
        }
        LimitNextPhoto(request.memory, request.seconds);
        FilmSource source(std::move(files[0]), std::move(files[1]), request);
        if (!Send(source.Open())) {
            return;
        }
        while (HearAll(source)) {
            if (!next_) {
                next_ = source.Next();
            } else if (!Send(*next_)) {
                return;
            } else {
                next_.reset();
            }
        }
    }

  private:
    // Takes what has been asked, and waits for it where nothing can be sent before.
    bool HearAll(FilmSource& source) {
        while (HasMessage(decoderSocket) || HasToWait(source)) {
            FilmRequest request;
            if (!ReceiveMessage(decoderSocket, &request, sizeof request, nullptr) ||
                !Answer(source, request)) {
                return false;
            }
        }
        return true;
    }

    bool HasToWait(const FilmSource& source) const {
        if (!next_) {
            return source.HasNothing();
        }
        return next_->answer.kind == FilmAnswerKind::Frame && lentCount_ >= framesAhead;
    }

    bool Answer(FilmSource& source, const FilmRequest& request) {
        if (request.kind == FilmRequestKind::Free) {
            const auto found = lent_.find(request.slot);
            if (found != lent_.end()) {
                lent_.erase(found);
                --lentCount_;
            }
            return true;
        }
        next_.reset();
        number_ = request.number;
        return Send(source.Seek(request.time));
    }

    bool Send(FilmOutput output) {
        output.answer.number = number_;
        if (!SendMessage(decoderSocket, &output.answer, sizeof output.answer)) {
            return false;
        }
        if (output.slot) {
            lent_.emplace(output.slot.Slot(), std::move(output.slot));
            ++lentCount_;
        }
        const QByteArray& payload = output.payload;
        for (qsizetype at = 0; at < payload.size(); at += qsizetype{pieceLength}) {
            const auto length = std::min<qsizetype>(payload.size() - at, qsizetype{pieceLength});
            if (!SendMessage(decoderSocket, payload.constData() + at,
                             static_cast<std::size_t>(length))) {
                return false;
            }
        }
        return true;
    }

    std::optional<FilmOutput> next_;
    std::multimap<std::uint32_t, SlotHold> lent_;
    int lentCount_ = 0;
    std::uint32_t number_ = 0;
};

void Run() {
    try {
        FilmServer().Run();
    } catch (const std::bad_alloc&) {
        // The program hears that nobody is there any more.
    }
}

}  // namespace

}  // namespace varnel

// As for photos: the libraries' own faults end no sound film, and memory may run out.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer asks for this name
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "replace_intrin=0:alloc_dealloc_mismatch=0:allocator_may_return_null=1";
}

int main() {
    varnel::KeepFreedMemory();
    setenv("TZ", ":/etc/localtime", 0);
    varnel::ListenForDamage();
    varnel::Confine();
    varnel::Run();
    // Not through the exit handlers: what damaged films left in the libraries' memory is of no
    // interest any more.
    _exit(0);
}
