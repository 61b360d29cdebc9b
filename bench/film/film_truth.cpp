// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How far a converted film is from its frames converted as pictures: the share of the brightness
// samples that differ by a level or more, and the largest difference, in levels of the film's bits.
// Whole films, as varnel-convert makes them: lossless ones of each layout, and a lossy one.

#include <QProcess>
#include <QTemporaryDir>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "base/error_text.h"
#include "base/thread_runner.h"
#include "film/conversion/convert_film.h"
#include "film/frames/frame_bitmap.h"
#include "remap/projection/projection_info.h"
#include "remap/render/render.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize size{1280, 720};
constexpr int frames = 4;

struct Case {
    const char* name;
    const char* pixels;  // of the source
    const char* codec;   // likewise, with its options
    FilmCodec result;
};

constexpr Case cases[] = {
    {"ffv1-420-8", "yuv420p", "ffv1", FilmCodec::Ffv1},
    {"ffv1-420-10", "yuv420p10", "ffv1", FilmCodec::Ffv1},
    {"ffv1-422-10", "yuv422p10", "ffv1", FilmCodec::Ffv1},
    {"ffv1-444-10", "yuv444p10", "ffv1", FilmCodec::Ffv1},
    {"h264-420-8", "yuv420p", "libx264", FilmCodec::H264},
    {"h264-420-10", "yuv420p10", "libx264", FilmCodec::H264},
};

// Detail at many scales whose colours lie inside red, green and blue.
QString Made(const QTemporaryDir& folder, const Case& c) {
    const bool isDeep = std::strstr(c.pixels, "10") != nullptr;
    const QString step = isDeep ? QStringLiteral("4") : QStringLiteral("1");
    QString path = folder.filePath(QString::fromUtf8(c.name) + QStringLiteral(".mkv"));
    const QString scene = QStringLiteral(
                              "nullsrc=s=1280x720:r=25:d=0.16,format=%1,"
                              "geq=lum='%2*(128+37*sin(X/7+N)+20*sin(Y/5)+10*sin(X*Y/900))':"
                              "cb='%2*(128+15*sin(X/31))':cr='%2*(128+15*sin(Y/23+N))'")
                              .arg(QString::fromUtf8(c.pixels), step);
    QProcess::execute(QStringLiteral("ffmpeg"),
                      {QStringLiteral("-y"), QStringLiteral("-v"), QStringLiteral("error"),
                       QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"), scene,
                       QStringLiteral("-c:v"), QString::fromUtf8(c.codec), path});
    return path;
}

ImageRecord Record(Projection projection) {
    ImageRecord record = testing::FisheyeRecord();
    record.Width = size.width;
    record.Height = size.height;
    record.Projection = static_cast<std::int16_t>(projection);
    record.OutputAOV = 100.0F;
    record.RotateX = 9.0F;
    return record;
}

std::shared_ptr<const FilmFrame> NextFrame(FilmReader& reader) {
    while (true) {
        FilmItem item = reader.Next();
        if (auto* const frame = std::get_if<std::shared_ptr<const FilmFrame>>(&item)) {
            return std::move(*frame);
        }
        if (std::holds_alternative<FilmEnd>(item)) {
            return nullptr;
        }
    }
}

BitmapHandle AsPicture(const FrameView& frame, const ImageRecord& image, ThreadRunner& pool) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = FrameToBitmap(frame, pool);
    SilentProgress progress;
    RenderContext context{.bitmaps = bitmaps, .runner = &pool};
    Render(ProjectionFromIndex(image.Projection), image, SizeKind::Batch, progress, context);
    return std::move(bitmaps.ResultBitmap);
}

// BT.709 of limited range, in levels of so many bits.
template <class Sample>
double BrightnessOf(const std::uint8_t* line, int column, int bits) {
    std::array<Sample, 3> pixel{};
    std::memcpy(pixel.data(), line + static_cast<std::size_t>(column) * sizeof pixel, sizeof pixel);
    constexpr double most = std::numeric_limits<Sample>::max();
    const double part = (0.0722 * pixel[0] + 0.7152 * pixel[1] + 0.2126 * pixel[2]) / most;
    return std::ldexp(16.0 + 219.0 * part, bits - 8);
}

struct Difference {
    long all = 0, apart = 0;
    int largest = 0;
};

void Add(const FrameView& frame, const Bitmap& picture, Difference& difference) {
    const FrameFormat& format = frame.format;
    const bool isDeep = picture.Format() == PixelFormat::Bgr16;
    for (int row = 0; row < format.size.height; ++row) {
        const std::byte* const samples = frame.planes[0].first + row * frame.planes[0].pitch;
        const std::uint8_t* const line = picture.ScanLine(picture.Size().height - 1 - row).data();
        for (int column = 0; column < format.size.width; ++column) {
            std::uint16_t sample = 0;
            const auto bytes = static_cast<std::size_t>(BytesPerSample(format));
            std::memcpy(&sample, samples + static_cast<std::size_t>(column) * bytes, bytes);
            const double expected = isDeep ? BrightnessOf<std::uint16_t>(line, column, format.bits)
                                           : BrightnessOf<std::uint8_t>(line, column, format.bits);
            const int distance = std::abs(sample - static_cast<int>(std::lround(expected)));
            ++difference.all;
            difference.apart += distance > 0 ? 1 : 0;
            difference.largest = std::max(difference.largest, distance);
        }
    }
}

void Compare(const QTemporaryDir& folder, const Case& c, Projection projection) {
    ThreadRunner pool(2);
    const QString source = Made(folder, c);
    const QString target = folder.filePath(QStringLiteral("result.mkv"));
    FilmEncoding encoding;
    encoding.container = FilmContainer::Matroska;
    encoding.codec = c.result;
    const auto reader = NewFilmReader();
    const auto results = NewFilmReader();
    const ImageRecord image = Record(projection);
    Reason error = reader->Open(source);
    if (error.isEmpty()) {
        error = ConvertFilm(*reader, {target, image, encoding}, {pool}).error;
    }
    if (!error.isEmpty() || !reader->Seek(0.0).isEmpty() || !results->Open(target).isEmpty()) {
        std::printf("%-12s %s\n", c.name, ErrorText(error).toLocal8Bit().constData());
        return;
    }
    Difference difference;
    for (int n = 0; n < frames; ++n) {
        const auto frame = NextFrame(*reader);
        const auto result = NextFrame(*results);
        if (!frame || !result) {
            std::printf("%-12s only %d frames\n", c.name, n);
            return;
        }
        Add(result->view, *AsPicture(frame->view, image, pool), difference);
    }
    std::printf("%-12s %-14s %8.3f %% %4d\n", c.name, KeyOf(projection).toLatin1().constData(),
                100.0 * static_cast<double>(difference.apart) / static_cast<double>(difference.all),
                difference.largest);
}

}  // namespace
}  // namespace varnel

int main() {
    const QTemporaryDir folder;
    for (const varnel::Case& c : varnel::cases) {
        for (const auto projection : {varnel::Projection::Rectilinear, varnel::Projection::Varnel,
                                      varnel::Projection::Stereographic}) {
            varnel::Compare(folder, c, projection);
        }
    }
}
