// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-sample OUTPUT_DIR [--width N] [--only NAME] [--up]: the sample scene as four cameras of
// the catalogue take it, or one of them. N is the width of the frames that lie across; the upright
// ones have their sides exchanged. With --up the cameras look straight up.

#include <QDir>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <new>
#include <optional>

#include "base/error_text.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "remap/encode/save_bitmap.h"
#include "remap/image/photo_metadata.h"
#include "samples/fisheye_shot.h"
#include "samples/taken_with.h"

namespace varnel {
namespace {

struct Sample {
    const char16_t* fileName;
    const char16_t* camera[2];  // brand and model
    const char16_t* lens[2];
    bool circular;  // the image circle lies within the frame
    bool landscape;
};

constexpr std::array<Sample, 4> allSamples{{
    {u"sample-circular.jpg", {u"Canon", u"EOS 5D"}, {u"Sigma", u"EX 8 mm f:3.5"}, true, true},
    {u"sample-circular-upright.jpg",
     {u"Canon", u"EOS 5D"},
     {u"Sigma", u"EX 8 mm f:3.5"},
     true,
     false},
    {u"sample-fullframe.jpg",
     {u"Nikon", u"D90"},
     {u"Nikon", u"AF 10.5mm f/2.8G ED DX"},
     false,
     true},
    {u"sample-fullframe-upright.jpg",
     {u"Nikon", u"D90"},
     {u"Nikon", u"AF 10.5mm f/2.8G ED DX"},
     false,
     false},
}};

struct Order {
    QString directory;
    int width = 3000;
    QString only;  // one file's name; empty for all
    bool up = false;
};

QString NameOf(const Sample& sample) {
    return QString::fromUtf16(sample.fileName);
}

constexpr int jpegQuality = 95;
constexpr int leastWidth = 16;
constexpr int mostWidth = 32767;  // what a photo may have on a side

// Nothing when the arguments make no order.
std::optional<Order> ReadOrder(const QStringList& arguments) {
    Order order;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == u"--width" && i + 1 < arguments.size()) {
            bool isNumber = false;
            order.width = arguments[++i].toInt(&isNumber);
            if (!isNumber || order.width < leastWidth || order.width > mostWidth) {
                return std::nullopt;
            }
        } else if (argument == u"--only" && i + 1 < arguments.size()) {
            order.only = arguments[++i];
            if (std::ranges::find(allSamples, order.only, NameOf) == allSamples.end()) {
                return std::nullopt;
            }
        } else if (argument == u"--up") {
            order.up = true;
        } else if (argument.startsWith(u'-') || argument.isEmpty() || !order.directory.isEmpty()) {
            return std::nullopt;
        } else {
            order.directory = argument;
        }
    }
    return order.directory.isEmpty() ? std::nullopt : std::optional(order);
}

QString Text(const char16_t* text) {
    return QString::fromUtf16(text);
}

FisheyeShot ShotFor(const Sample& sample, int width) {
    const CameraRow camera = FindCamera(Text(sample.camera[0]), Text(sample.camera[1])).value();
    const LensRow lens = FindLens(Text(sample.lens[0]), Text(sample.lens[1])).value();
    const SensorSize sensor{camera.sensorWidth, camera.sensorHeight};
    const double ratio = static_cast<double>(sensor.height) / static_cast<double>(sensor.width);
    const int height = static_cast<int>(std::lround(width * ratio));
    FisheyeShot shot;
    shot.size = sample.landscape ? PixelSize{width, height} : PixelSize{height, width};
    shot.pixelsPerMillimetre = PixelsPerUnit(shot.size.width, sample.landscape, sensor);
    // Where the conversions look for the centre.
    shot.centreX = shot.size.width / 2;
    shot.centreY = shot.size.height / 2;
    shot.circleRadius = sample.circular ? static_cast<double>(lens.imageCircleRadius) : 0.0;
    shot.kind = LensMappingKind(lens.brand, lens.model);
    shot.curve = {lens.mapScale, lens.mapFactor};
    shot.samples = 2;
    shot.noise = 2.0;
    return shot;
}

// The upper edge of the picture is then what lies behind the photographer.
Colour LookFromBelow(const Ray& direction) {
    return LookAt({direction.x, direction.z, -direction.y});
}

// So that the photo tells its gear, as those of cameras do.
PhotoMetadata TakenWith(const Sample& sample) {
    const auto name = [](const char16_t* const(&words)[2]) {
        return (Text(words[0]) + u' ' + Text(words[1])).toLatin1();
    };
    PhotoMetadata metadata;
    metadata.exif.bytes =
        ExifTakenWith(Text(sample.camera[0]).toLatin1(), name(sample.camera), name(sample.lens));
    return metadata;
}

SaveResult TakeAndSave(const Sample& sample, const Order& order, const QString& fileName) {
    try {
        const BitmapHandle photo =
            TakeFisheye(order.up ? LookFromBelow : LookAt, ShotFor(sample, order.width));
        photo->metadata.photo = TakenWith(sample);
        return SaveBitmap({OutputType::Jpeg, jpegQuality}, photo.get(), fileName);
    } catch (const std::bad_alloc&) {
        return {false, ReasonCode::NotEnoughMemory};
    }
}

bool WriteSample(const Sample& sample, const Order& order) {
    const QString fileName = QDir(order.directory).filePath(NameOf(sample));
    const SaveResult saved = TakeAndSave(sample, order, fileName);
    if (!saved) {
        std::fprintf(stderr, "varnel-sample: %s: %s\n", qPrintable(fileName),
                     qPrintable(ErrorText(saved.reason)));
        return false;
    }
    std::printf("%s\n", qPrintable(fileName));
    return true;
}

int Run(const QStringList& arguments) {
    const std::optional<Order> order = ReadOrder(arguments);
    if (!order) {
        std::fputs(
            "usage: varnel-sample OUTPUT_DIR [--width 16..32767] [--only FILE_NAME] [--up]\n",
            stderr);
        return 2;
    }
    bool allWritten = true;
    for (const Sample& sample : allSamples) {
        if (order->only.isEmpty() || order->only == NameOf(sample)) {
            allWritten = WriteSample(sample, *order) && allWritten;
        }
    }
    return allWritten ? 0 : 1;
}

}  // namespace
}  // namespace varnel

int main(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return varnel::Run(arguments);
}
