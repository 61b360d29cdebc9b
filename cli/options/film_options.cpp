// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/film_options.h"

#include <QFile>
#include <QFileInfo>
#include <array>
#include <cmath>

#include "cli/options/option_values.h"
#include "film/keys/film_keys.h"

namespace varnel {

namespace {

QString Value(const QCommandLineParser& parser, const char16_t* name) {
    return parser.value(QString::fromUtf16(name));
}

bool IsSet(const QCommandLineParser& parser, const char16_t* name) {
    return parser.isSet(QString::fromUtf16(name));
}

// Seconds, M:S or H:M:S.
double TimeOf(const QCommandLineParser& parser, const char16_t* name) {
    const QString text = Value(parser, name);
    const QStringList parts = text.split(u':');
    double seconds = 0.0;
    bool isTime = parts.size() <= 3;
    for (const QString& part : parts) {
        bool isNumber = false;
        const double number = part.toDouble(&isNumber);
        isTime = isTime && isNumber && number >= 0.0 && number <= 1e6;
        seconds = seconds * 60.0 + number;
    }
    if (!isTime) {
        throw UsageError{QStringLiteral("--%1 needs a time, not \"%2\"; for example --%1 12.5 or "
                                        "--%1 1:02:03")
                             .arg(QString::fromUtf16(name), text)};
    }
    return seconds;
}

// A number, or N/D.
TimeBase RateOf(const QString& text) {
    const QStringList parts = text.split(u'/');
    bool isNumber = parts.size() <= 2;
    const double number = isNumber ? parts.front().toDouble(&isNumber) : 0.0;
    const int divisor = parts.size() == 2 ? parts.back().toInt() : 1;
    const double scaled = parts.size() == 2 ? number : number * 1000.0;
    const double rate = number / std::max(divisor, 1);
    if (!isNumber || divisor < 1 || !(rate >= 0.01 && rate <= 1000.0) || scaled > 1e9 ||
        (parts.size() == 2 && number != std::floor(number))) {
        throw UsageError{QStringLiteral("--fps needs frames in a second, 0.01 to 1000, not \"%1\"; "
                                        "for example --fps 25 or --fps 30000/1001")
                             .arg(text)};
    }
    if (parts.size() == 1 && number == std::floor(number)) {
        return {static_cast<std::int32_t>(number), 1};
    }
    return {static_cast<std::int32_t>(std::lround(scaled)), parts.size() == 2 ? divisor : 1000};
}

FilmCodec CodecOf(const QString& text) {
    if (const auto codec = FilmCodecFromText(text)) {
        return *codec;
    }
    throw UsageError{
        QStringLiteral("--codec needs h264, h265, av1, vp9, ffv1 or prores, not \"%1\"").arg(text)};
}

}  // namespace

void TakeFilm(const QCommandLineParser& parser, FilmOptions& film) {
    if (IsSet(parser, u"codec")) {
        film.codec = CodecOf(Value(parser, u"codec"));
    }
    if (IsSet(parser, u"crf")) {
        film.crf = WholeBetween(QStringLiteral("crf"), Value(parser, u"crf"), 0, 63);
    }
    film.speed = Value(parser, u"speed");
    if (IsSet(parser, u"from-time")) {
        film.from = TimeOf(parser, u"from-time");
    }
    if (IsSet(parser, u"to-time")) {
        film.to = TimeOf(parser, u"to-time");
    }
    if (IsSet(parser, u"frame")) {
        film.frame = TimeOf(parser, u"frame");
    }
    film.keysFile = Value(parser, u"keys");
    film.output = FileNameOf(QStringLiteral("output"), Value(parser, u"film"));
    if (IsSet(parser, u"fps")) {
        film.rate = RateOf(Value(parser, u"fps"));
        film.rateGiven = true;
    }
    film.keepPart = IsSet(parser, u"keep-part");
}

QString TakeKeys(FilmOptions& film) {
    if (film.keysFile.isEmpty()) {
        return {};
    }
    constexpr qint64 longest = 16 << 20;  // bytes
    QFile file(film.keysFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("--keys %1: %2").arg(film.keysFile, file.errorString());
    }
    auto keys = FilmKeysFromJson(file.read(longest));
    if (const auto* const error = std::get_if<QString>(&keys)) {
        return QStringLiteral("--keys %1: %2").arg(film.keysFile, *error);
    }
    film.keys = std::move(std::get<FilmKeys>(keys));
    return {};
}

std::optional<FilmContainer> ContainerOf(const FilmOptions& film, const QString& name) {
    return film.type ? film.type : FilmContainerFromText(QFileInfo(name).suffix());
}

FilmContainer ContainerFor(const FilmOptions& film, const QString& source) {
    if (const auto container = ContainerOf(film, source)) {
        return *container;
    }
    return QFileInfo(source).suffix().compare(QStringLiteral("webm"), Qt::CaseInsensitive) == 0
               ? FilmContainer::Matroska
               : FilmContainer::Mp4;
}

FilmEncoding EncodingFor(const FilmOptions& film, FilmContainer container) {
    FilmEncoding encoding;
    encoding.container = container;
    encoding.codec = film.codec;
    encoding.crf = film.crf;
    encoding.speed = film.speed;
    encoding.keepPart = film.keepPart;
    return encoding;
}

}  // namespace varnel
