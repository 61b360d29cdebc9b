// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film of 5 seconds with 10 frames in each and a key frame every second, whose frames show their
// number as their colour. Every file called a film is one. And what notes how films are saved.
#pragma once

#include <QFileInfo>
#include <QThread>
#include <cmath>

#include "app/workspace/film/film_source.h"
#include "pipeline/conversion/films/film_saver.h"
#include "tests/support/bitmaps.h"

namespace varnel::testing {

class FakeFilm : public FilmSource {
  public:
    static constexpr int frames = 50;
    bool IsFilm(const QString& path) const override {
        return QFileInfo(path).fileName().startsWith(u"film");
    }
    Reason Open(const QString& path) override {
        opened.append(path);
        next = 0;
        return refusal;
    }
    FilmFacts Facts() const override { return {5.0, 10.0}; }
    Reason Seek(double seconds) override {
        next = static_cast<int>(std::floor(seconds + 1e-9)) * 10;
        ++seeks;
        return {};
    }
    std::optional<double> Next() override {
        if (next >= frames) {
            return std::nullopt;
        }
        QThread::msleep(static_cast<unsigned long>(slow));
        now = next++;
        ++decoded;
        return now / 10.0;
    }
    BitmapHandle Picture() override {
        const auto level = static_cast<BYTE>(now * 5);
        return Painted(size, [level](int, int) { return PixelColor{level, level, level, 0}; });
    }

    QStringList opened;
    Reason refusal;
    PixelSize size{60, 40};
    int next = 0;
    int now = 0;
    int seeks = 0;
    int decoded = 0;
    int slow = 0;  // ms for each frame
};

class FakeSaver : public FilmSaver {
  public:
    SavedFilm Save(const ImageRecord& film, const FilmOutput& output, const QString& path,
                   const std::function<bool(double)>& goesOn) override {
        saved = film;
        how = output;
        to = path;
        for (int part = 0; part < 100; ++part) {
            QThread::msleep(2);
            if (!goesOn(part / 100.0)) {
                return {ReasonCode::Cancelled, {}};
            }
        }
        return answer;
    }
    ImageRecord saved;
    FilmOutput how;
    QString to;
    SavedFilm answer;
};

}  // namespace varnel::testing
