// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the user does with the film whose line is current: where it stands, its keys and the part of
// it that is converted. The record's own numbers are always those of the time at which the film
// stands, so that all else in the window takes the frame for a photo. Times are seconds from the
// film's first frame. Throws nothing but for want of memory.
#pragma once

#include "app/workspace/film/film_player.h"
#include "app/workspace/workspace.h"

namespace varnel {

class FilmCommands : public QObject {
    Q_OBJECT
  public:
    FilmCommands(Workspace& workspace, FilmSource& source);

    // Of the current line; null for a photo, and for a film that cannot be read.
    const FilmCourse* Course() const;
    FilmPlayer& Player() { return player_; }
    const FilmFacts& Facts() const { return player_.Facts(); }
    double Now() const { return player_.Wanted(); }
    // Where the part that is converted ends.
    double Out() const;

    void TogglePlaying();
    void GoTo(double seconds) { player_.GoTo(seconds); }
    void Step(int frames);
    // To the key before or behind this time, or to the start or end.
    void GoToKey(bool behind);

    // From here, or up to and with here.
    void SetIn(double seconds);
    void SetOut(double seconds);

    // Whether every number that is changed becomes a key; otherwise only those that have keys.
    bool Keying() const { return keying_; }
    void SetKeying(bool on);
    // All numbers that move and that the projection reads.
    void AddKey();
    // Keys by their number, from 0 on; the number that the key has then.
    int MoveKey(int key, double seconds);
    void RemoveKey(int key);
    void SetEase(int key, KeyEase ease);
    // The key at which the film stands, -1 for none.
    int KeyNow() const;

  Q_SIGNALS:
    // The film, where it stands, its keys or its part.
    void Changed();
    // Why the current film cannot be read.
    void NotOpened(const varnel::Reason& reason);

  private:
    ImageRecord* Film() const;
    // Less than half a frame.
    double Reach() const { return player_.FrameSeconds() * 0.45; }
    void FollowList();
    void Open(const ImageRecord& image);
    void FollowSteps();
    void GoToRecord();
    void TakeChanges(ImageRecord& image);
    void ShowFrame(double seconds);
    void ShowLate();
    void TakeNumbers(ImageRecord& image, double seconds);
    void Note(StepKind kind);

    Workspace& workspace_;
    WorkspaceModel& model_;
    FilmSource& source_;
    FilmPlayer player_;
    ImageRecord known_;              // the record as it was looked at last
    int line_ = -1;                  // its line
    const Bitmap* shown_ = nullptr;  // the frame, which others may replace; never looked into
    bool keying_ = false;
    bool following_ = false;
    std::optional<double> late_;  // a frame that came while something else was drawn
    bool antialiased_ = true;     // when not playing
};

}  // namespace varnel
