// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Going to a time of a 4K film as the window does: to the key frame before it and on to the frame
// itself, each until its picture is there, beside nothing but decoding them. What the one takes
// beyond the other is what counts; "processor" is the milliseconds of all threads of both
// processes, which other work on the machine does not lengthen.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <time.h>

#include <QFile>

#include "base/thread_runner.h"
#include "bench/film/made_film.h"
#include "film/frames/frame_bitmap.h"
#include "film/reading/process/film_input.h"
#include "film/reading/process/picture_decoder.h"
#include "film/reading/process_film_reader.h"

namespace varnel {
namespace {

constexpr int framesPerSecond = 30;
constexpr int keyInterval = 60;

// Ten seconds with grain, a key frame every two.
const QString& Film() {
    return bench::MadeFilm(QStringLiteral("testsrc2=s=3840x2160:d=10:r=30,noise=alls=4:allf=t"),
                           QStringLiteral("-x264-params keyint=60:min-keyint=60:scenecut=0"));
}

// Of the runs one after the other: another key frame each time, and the last frame but two behind
// it for the whole way.
int FrameOf(int run, bool exact) {
    return run * 2 % 5 * keyInterval + (exact ? keyInterval - 3 : 0);
}

// Milliseconds so far, of this process (0) or another one.
double ProcessorTime(pid_t process) {
    clockid_t clock{};
    timespec time{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &time) != 0) {
        return 0.0;
    }
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void SetProcessorTime(benchmark::State& state, double milliseconds) {
    state.counters["processor"] =
        benchmark::Counter(milliseconds, benchmark::Counter::kAvgIterations);
}

// That many frames of the film, from a key frame on.
void Decoded(benchmark::State& state, bool exact) {
    FilmInput input(Descriptor(open(QFile::encodeName(Film()).constData(), O_RDONLY)));
    PictureDecoder decoder;
    if (!input.Open().isEmpty() || !decoder.Open(input.Picture()).isEmpty()) {
        state.SkipWithError("cannot be decoded");
        return;
    }
    const double units = 1.0 / (framesPerSecond * av_q2d(input.Picture().time_base));
    const PacketHandle packet(av_packet_alloc());
    int run = 0;
    const double before = ProcessorTime(0);
    for ([[maybe_unused]] auto _ : state) {
        const auto wanted = static_cast<std::int64_t>(units * FrameOf(run++, exact));
        input.Seek(wanted);
        decoder.Flush(noTime);
        DecodedFrame frame;
        while (frame.pts == noTime || (exact && frame.pts < wanted)) {
            if (decoder.Take(frame) == PictureDecoder::Got::WantsMore) {
                const bool isThere = input.Read(*packet) >= 0;
                decoder.Put(isThere ? packet.get() : nullptr);
                av_packet_unref(packet.get());
            }
        }
    }
    SetProcessorTime(state, ProcessorTime(0) - before);
}

// The same through the confined process, until the picture is one that the window draws.
void Shown(benchmark::State& state, bool exact) {
    ThreadRunner pool(2);
    ProcessFilmReader reader({});
    if (!reader.Open(Film(), {.upright = true, .packets = false}).isEmpty()) {
        state.SkipWithError("cannot be read");
        return;
    }
    int run = 0;
    const double before = ProcessorTime(0) + ProcessorTime(reader.ProcessId());
    for ([[maybe_unused]] auto _ : state) {
        const int wanted = FrameOf(run++, exact);
        reader.Seek((wanted + 0.5) / framesPerSecond);
        std::shared_ptr<const FilmFrame> frame;
        for (int n = wanted / keyInterval * keyInterval; n <= wanted; ++n) {
            FilmItem item = reader.Next();
            frame = std::get<std::shared_ptr<const FilmFrame>>(std::move(item));
            if (n % keyInterval == 0) {
                benchmark::DoNotOptimize(FrameToBitmap(frame->view, pool, true));
            }
        }
        if (exact) {
            benchmark::DoNotOptimize(FrameToBitmap(frame->view, pool, true));
        }
    }
    SetProcessorTime(state, ProcessorTime(0) + ProcessorTime(reader.ProcessId()) - before);
}

BENCHMARK_CAPTURE(Decoded, KeyFrame, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Shown, KeyFrame, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Decoded, ExactFrame, true)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Shown, ExactFrame, true)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace varnel

BENCHMARK_MAIN();
