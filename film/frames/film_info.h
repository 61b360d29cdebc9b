// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is known of a film before its first picture: its streams as plain values, so that they can
// come out of a confined process and go into a new file. Times are in units of the stream's own
// time base, seconds where said. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "film/frames/frame_format.h"

namespace varnel {

// Seconds of one unit, as a fraction.
struct TimeBase {
    std::int32_t num = 0;
    std::int32_t den = 1;
};

inline constexpr std::int64_t noTime = std::numeric_limits<std::int64_t>::min();

enum class StreamKind : std::uint8_t { Video, Audio, Subtitle, Data, Attachment };

struct SideData {
    std::int32_t type = 0;  // as libavcodec numbers it
    QByteArray bytes;
};

using TagList = QList<std::pair<QByteArray, QByteArray>>;  // UTF-8

// One stream of the film, with all that a copy of it needs (as AVCodecParameters and AVStream).
struct StreamInfo {
    int index = 0;
    StreamKind kind = StreamKind::Data;
    QByteArray codec;  // libavcodec's name: "h264", "aac", "bin_data" ...
    std::int32_t codecId = 0;
    std::uint32_t codecTag = 0;
    TimeBase timeBase;
    std::int64_t startTime = noTime;
    std::int64_t duration = noTime;
    std::int32_t disposition = 0;
    std::int64_t bitRate = 0;
    std::int32_t format = -1;  // pixel or sample format
    std::int32_t profile = -99;
    std::int32_t level = -99;
    std::int32_t bitsPerCodedSample = 0;
    std::int32_t bitsPerRawSample = 0;
    PixelSize size{};  // of pictures that are not decoded, as covers; pixels
    std::int32_t sampleRate = 0;
    std::int32_t channels = 0;
    std::uint64_t channelMask = 0;
    std::int32_t blockAlign = 0;
    std::int32_t frameSize = 0;
    std::int32_t initialPadding = 0;
    std::int32_t trailingPadding = 0;
    std::int32_t seekPreroll = 0;
    QByteArray extraData;
    std::vector<SideData> sideData;  // of the whole stream, without the turn
    TagList tags;
};

struct Chapter {
    std::int64_t id = 0;
    TimeBase timeBase;
    std::int64_t start = 0;
    std::int64_t end = 0;
    TagList tags;
};

struct FilmInfo {
    QByteArray container;  // libavformat's names: "mov,mp4,m4a,3gp,3g2,mj2" ...
    std::vector<StreamInfo> streams;
    std::vector<Chapter> chapters;
    TagList tags;             // creation_time, location ...
    int picture = -1;         // index of the stream that is converted
    FrameFormat format;       // of its frames as they are handed out: upright
    TimeBase frameRate;       // frames in a second (num / den); 0 where not known
    TimeBase sampleAspect;    // of upright pixels; 0 or 1/1 where square
    int turnedBy = 0;         // degrees clockwise that the frames were turned to be upright
    double start = 0.0;       // seconds, of the first frame
    double seconds = 0.0;     // length; 0 where not known
    std::int64_t frames = 0;  // as the container says; 0 where it does not
};

// A piece of a stream that is not decoded.
struct FilmPacket {
    int stream = 0;
    std::int64_t pts = noTime;
    std::int64_t dts = noTime;
    std::int64_t duration = 0;
    std::int32_t flags = 0;  // as AVPacket's
    QByteArray bytes;
    std::vector<SideData> sideData;
};

}  // namespace varnel
