// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What it costs to have a film's frames from a process of its own: 4K frames decoded, and decoded
// and handed over.
#include <benchmark/benchmark.h>
#include <fcntl.h>

#include <QFile>
#include <cstdlib>

#include "bench/film/made_film.h"
#include "film/reading/film_reader.h"
#include "film/reading/process/film_input.h"
#include "film/reading/process/picture_decoder.h"

namespace varnel {
namespace {

constexpr int frames = 60;

const QString& Film() {
    return bench::MadeFilm(QStringLiteral("testsrc2=s=3840x2160:d=2.4:r=25"));
}

void Decoded(benchmark::State& state) {
    const QByteArray path = QFile::encodeName(Film());
    for (auto run : state) {
        FilmInput input(Descriptor(open(path.constData(), O_RDONLY)));
        PictureDecoder decoder;
        if (!input.Open().isEmpty() || !decoder.Open(input.Picture()).isEmpty()) {
            state.SkipWithError("cannot be decoded");
            return;
        }
        const PacketHandle packet(av_packet_alloc());
        DecodedFrame frame;
        for (auto got = decoder.Take(frame); got != PictureDecoder::Got::End;
             got = decoder.Take(frame)) {
            if (got == PictureDecoder::Got::WantsMore) {
                const bool isThere = input.Read(*packet) >= 0;
                decoder.Put(isThere ? packet.get() : nullptr);
                av_packet_unref(packet.get());
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * frames);
}
BENCHMARK(Decoded)->Unit(benchmark::kMillisecond)->UseRealTime();

void HandedOver(benchmark::State& state) {
    const QString path = Film();
    for (auto run : state) {
        const auto reader = NewFilmReader();
        if (!reader->Open(path).isEmpty()) {
            state.SkipWithError("cannot be read");
            return;
        }
        while (!std::holds_alternative<FilmEnd>(reader->Next())) {
        }
    }
    state.SetItemsProcessed(state.iterations() * frames);
}
BENCHMARK(HandedOver)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace varnel

BENCHMARK_MAIN();
