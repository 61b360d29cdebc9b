// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Frames that differ from one another, and what other programs see in a film's file.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <string>

#include "film/frames/frame_buffer.h"

namespace varnel::testing {

// A slope in every plane that moves from frame to frame, over all levels that the bits have.
inline FrameBuffer SlopeFrame(const FrameFormat& format, int n) {
    FrameBuffer frame(format);
    const FrameTarget& target = frame.Target();
    const int most = (1 << format.bits) - 1;
    for (int plane = 0; plane < PlanesOf(format); ++plane) {
        const auto& [first, pitch] = target.planes[static_cast<std::size_t>(plane)];
        const PixelSize size = PlaneSize(format, plane);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                const int level = (5 * n + 40 * plane + 3 * x + 2 * y) * most / 255 % (most + 1);
                if (BytesPerSample(format) == 2) {
                    reinterpret_cast<std::uint16_t*>(first + y * pitch)[x] =
                        static_cast<std::uint16_t>(level);
                } else {
                    first[y * pitch + x] = static_cast<std::byte>(level);
                }
            }
        }
    }
    return frame;
}

// Plane after plane without gaps, as "-f rawvideo" writes them.
inline QByteArray PlaneBytes(const FrameView& frame) {
    QByteArray bytes;
    for (int plane = 0; plane < PlanesOf(frame.format); ++plane) {
        const auto& [first, pitch] = frame.planes[static_cast<std::size_t>(plane)];
        const PixelSize size = PlaneSize(frame.format, plane);
        for (int y = 0; y < size.height; ++y) {
            bytes.append(reinterpret_cast<const char*>(first + y * pitch),
                         size.width * BytesPerSample(frame.format));
        }
    }
    return bytes;
}

struct Ran {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

inline Ran RunProgram(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(120'000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

// What another player says of a film while it plays it to the end; empty where that is nothing.
inline std::string WarningsOn(const QString& film) {
    const Ran ran =
        RunProgram(QStringLiteral("ffmpeg"),
                   {QStringLiteral("-v"), QStringLiteral("warning"), QStringLiteral("-i"), film,
                    QStringLiteral("-fps_mode"), QStringLiteral("vfr"), QStringLiteral("-f"),
                    QStringLiteral("null"), QStringLiteral("-")});
    return (ran.exitCode == 0 ? ran.err : "exit " + QByteArray::number(ran.exitCode) + ran.err)
        .toStdString();
}

// Lines of values, with spaces between; the entries are ffprobe's.
inline std::string Probe(const QString& film, const char* entries, const char* streams = "v:0") {
    const Ran ran = RunProgram(
        QStringLiteral("ffprobe"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
         QString::fromLatin1(streams), QStringLiteral("-show_entries"),
         QString::fromLatin1(entries), QStringLiteral("-of"), QStringLiteral("csv=p=0"), film});
    QStringList lines = QString::fromUtf8(ran.out).split(u'\n', Qt::SkipEmptyParts);
    for (QString& line : lines) {
        while (line.endsWith(u',')) {
            line.chop(1);
        }
    }
    return lines.join(u' ').toStdString();
}

}  // namespace varnel::testing
