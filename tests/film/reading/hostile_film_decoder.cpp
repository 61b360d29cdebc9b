// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// In place of the film decoder: does what the film's bytes tell, behind "YUV4MPEG2 ".
#include <sys/socket.h>
#include <unistd.h>

#include <QByteArray>
#include <array>
#include <csignal>

#include "decoder/process/decoder_socket.h"
#include "decoder/process/sandbox.h"
#include "film/reading/film_protocol.h"

namespace {

using varnel::decoderSocket;
using varnel::FilmAnswer;
using varnel::FilmAnswerKind;

void Send(FilmAnswer answer, const QByteArray& payload) {
    answer.payloadLength += static_cast<std::uint64_t>(payload.size());
    varnel::SendMessage(decoderSocket, &answer, sizeof answer);
    if (!payload.isEmpty()) {
        varnel::SendMessage(decoderSocket, payload.constData(),
                            static_cast<std::size_t>(payload.size()));
    }
}

varnel::FilmInfo Film() {
    varnel::FilmInfo film;
    film.streams.resize(2);
    film.streams[0].kind = varnel::StreamKind::Video;
    film.streams[1].kind = varnel::StreamKind::Audio;
    film.streams[1].index = 1;
    film.streams[0].timeBase = film.streams[1].timeBase = {1, 25};
    film.picture = 0;
    film.format.size = {16, 16};
    return film;
}

QByteArray PacketOf(int stream) {
    varnel::FilmPacket packet;
    packet.stream = stream;
    return varnel::Pack(packet);
}

FilmAnswer Frame() {
    FilmAnswer frame{.kind = FilmAnswerKind::Frame, .pts = 0};
    frame.planes = {varnel::PlanePlace{0, 16}, {256, 8}, {320, 8}};
    return frame;
}

void Obey(const QByteArray& order) {
    const QByteArray none = varnel::Pack(varnel::Reason());
    FilmAnswer frame = Frame();
    if (order == "sound") {
        Send(frame, {});
        Send({.kind = FilmAnswerKind::End}, none);
    } else if (order == "flood") {
        for (int n = 0; n < 20'000; ++n) {
            Send(frame, {});
        }
        Send({.kind = FilmAnswerKind::End}, none);
        pause();
    } else if (order == "slot") {
        frame.slot = 1;
        Send(frame, {});
    } else if (order == "last slot") {
        frame.slot = 0xFFFFFFFF;
        Send(frame, {});
    } else if (order == "offset") {
        frame.planes[1].offset = 4096;
        Send(frame, {});
    } else if (order == "overflow") {
        frame.planes[1].offset = ~std::uint64_t{0} - 63;
        Send(frame, {});
    } else if (order == "pitch") {
        frame.planes[0].pitch = 15;
        Send(frame, {});
    } else if (order == "packet") {
        Send({.kind = FilmAnswerKind::Packet}, PacketOf(2));
    } else if (order == "picture packet") {
        Send({.kind = FilmAnswerKind::Packet}, PacketOf(0));
    } else if (order == "fault without reason") {
        Send({.kind = FilmAnswerKind::Fault}, none);
    } else if (order == "kind") {
        Send({.kind = static_cast<FilmAnswerKind>(99)}, none);
    } else if (order == "endless") {
        Send({.kind = FilmAnswerKind::Packet, .payloadLength = std::uint64_t{1} << 50}, "a");
    } else if (order == "half") {
        Send({.kind = FilmAnswerKind::Packet, .payloadLength = 10}, "a");
    } else if (order == "short") {
        varnel::SendMessage(decoderSocket, "x", 1);
    } else if (order == "hang") {
        pause();
    } else if (order == "die") {
        std::signal(SIGSEGV, SIG_DFL);  // a sanitizer would report instead
        raise(SIGSEGV);
    } else if (order == "forbidden") {
        varnel::Confine();
        socket(AF_INET, SOCK_STREAM, 0);
    }
}

}  // namespace

int main() {
    alarm(60);  // should its parent be gone
    varnel::FilmRequest request;
    std::array<varnel::Descriptor, 2> files;
    if (!varnel::ReceiveMessage(decoderSocket, &request, sizeof request, &files)) {
        return 1;
    }
    QByteArray order(100, '\0');
    order.truncate(pread(files[0].Get(), order.data(), order.size(), 10));
    (void)!ftruncate(files[1].Get(), 4096);
    const QByteArray film = varnel::Pack(Film());
    const QByteArray none = varnel::Pack(varnel::Reason());
    if (order == "refused without reason") {
        Send({.kind = FilmAnswerKind::Refused}, none);
    } else if (order == "film cut short") {
        Send({.slotLength = 4096}, film.left(100));
    } else if (order == "no slots") {
        Send({.slotLength = 0}, film);
    } else if (order == "odd slots") {
        Send({.slotLength = 4095}, film);
    } else {
        Send({.slotLength = 4096}, film);
        Obey(order);
    }
    // Until the program has read it all.
    varnel::ReceiveMessage(decoderSocket, &request, sizeof request, nullptr);
    return 0;
}
