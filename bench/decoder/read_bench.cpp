// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading a photo through the decoder's process beside decoding it in this one, from the same
// files. The names of further photos may be given after the options.

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include "bench/pictures.h"
#include "decoder/formats/decode_picture.h"
#include "decoder/process/picture_reader.h"
#include "decoder/request/picture_limits.h"
#include "remap/encode/save_bitmap.h"

namespace varnel {
namespace {

void Here(benchmark::State& state, const QString& path) {
    for (auto _ : state) {
        const FileHandle file(std::fopen(QFile::encodeName(path).constData(), "rb"));
        const LoadedPicture picture = DecodePicture(file.get(), {path}, MachineMemory());
        if (!picture.bitmap) {
            state.SkipWithError("not loaded");
        }
    }
}

void Apart(benchmark::State& state, const QString& path) {
    const auto reader = NewPictureReader();
    for (auto _ : state) {
        const LoadedPicture picture = ReadPicture(*reader, {path});
        if (!picture.bitmap) {
            state.SkipWithError("not loaded");
        }
    }
}

// Its start included, as when every photo had a decoder of its own.
void ApartAnew(benchmark::State& state, const QString& path) {
    for (auto _ : state) {
        const auto reader = NewPictureReader();
        benchmark::DoNotOptimize(ReadPicture(*reader, {path}).bitmap);
    }
}

void Measure(const QString& path, const QString& name) {
    const std::pair<const char*, void (*)(benchmark::State&, const QString&)> ways[] = {
        {"in_process", Here}, {"decoder", Apart}, {"decoder_started", ApartAnew}};
    for (const auto& [way, run] : ways) {
        benchmark::RegisterBenchmark(
            (name + u'/' + QString::fromLatin1(way)).toUtf8().constData(),
            [run = run, path](benchmark::State& state) { run(state, path); })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
}

}  // namespace
}  // namespace varnel

int main(int argc, char* argv[]) {
    using namespace varnel;
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir folder;
    const struct {
        const char* name;
        PixelSize size;
        OutputEncoding encoding;
    } files[] = {{"small.jpg", {300, 200}, {OutputType::Jpeg, 90}},
                 {"24mp.jpg", {6000, 4000}, {OutputType::Jpeg, 90}},
                 {"24mp.tif", {6000, 4000}, OutputType::Tiff}};
    for (const auto& file : files) {
        const QString name = QString::fromLatin1(file.name);
        const QString path = folder.filePath(name);
        if (!SaveBitmap(file.encoding, bench::Rings(file.size).get(), path)) {
            return 1;
        }
        Measure(path, name);
    }
    for (int n = 1; n < argc; ++n) {
        const QString path = QFile::decodeName(argv[n]);
        Measure(path, path.section(u'/', -1));
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
