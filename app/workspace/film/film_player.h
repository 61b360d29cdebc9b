// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// On which frame a film stands: goes to a time by the key frame before it, frame by frame, or plays
// by the clock, which drops frames rather than lag. Works in short steps of the event loop. Times
// are seconds from the film's first frame. Throws nothing but for want of memory.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "app/workspace/film/film_source.h"

namespace varnel {

class FilmPlayer : public QObject {
    Q_OBJECT
  public:
    explicit FilmPlayer(FilmSource& source);

    // Nothing is shown yet.
    Reason Open(const QString& path);
    void Close();
    const QString& Path() const { return path_; }  // empty: none is open
    const FilmFacts& Facts() const { return facts_; }
    double FrameSeconds() const { return 1.0 / facts_.framesPerSecond; }

    // Where it is going to stand.
    double Wanted() const { return wanted_; }
    bool IsThere() const { return !steps_.isActive(); }
    void GoTo(double seconds);
    // From where it stands to that time.
    void Play(double end);
    void Stop();
    bool IsPlaying() const { return playing_; }

  Q_SIGNALS:
    // A frame is to be shown, of that time: the source has it. The last one before IsThere is the
    // one that was asked for.
    void FrameReady(double seconds);
    void PlayingChanged(bool playing);

  private:
    void GoOn();
    void PlayOn();
    bool Decode(double target, int most);
    void Show();

    FilmSource& source_;
    QString path_;
    FilmFacts facts_;
    double wanted_ = 0.0;
    std::optional<double> decoded_;  // time of the source's frame
    bool shown_ = false;             // that frame
    bool playing_ = false;
    double from_ = 0.0, end_ = 0.0;  // of playing
    QElapsedTimer clock_;
    QTimer steps_{this};
};

}  // namespace varnel
