// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film's time from left to right: where it stands, the part that is converted and the keys, all
// of which can be dragged. Times are seconds from the film's first frame. Throws nothing but for
// want of memory.
#pragma once

#include <QWidget>

#include "state/records/film_course.h"

namespace varnel {

class TimeLine : public QWidget {
    Q_OBJECT
  public:
    explicit TimeLine(QWidget* parent);

    // Length and rate of the film, and what is to be seen on the line.
    void Show(double seconds, double framesPerSecond, const FilmCourse& film, double now);

    // Where a time is, in logical pixels, and back; the back way is within the film.
    double PlaceOf(double seconds) const;
    double TimeAt(double place) const;

    QSize sizeHint() const override { return {320, height_}; }
    QSize minimumSizeHint() const override { return {160, height_}; }

  Q_SIGNALS:
    void Scrubbed(double seconds);
    void InMoved(double seconds);
    void OutMoved(double seconds);
    void KeyMoved(int key, double seconds);
    void EaseChosen(int key, varnel::KeyEase ease);
    void KeyRemoved(int key);
    // By the keyboard.
    void Stepped(int frames);
    void KeyWanted(bool behind);  // to the one before or behind
    void PlayWanted();
    void InWanted();
    void OutWanted();
    void NewKeyWanted();
    void RemoveWanted();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

  private:
    enum class Part { Nothing, Now, In, Out, Key };
    static constexpr int height_ = 40;

    int KeyAt(QPointF place) const;  // -1 for none
    Part PartAt(QPointF place) const;
    double Out() const { return film_.out.value_or(seconds_); }
    void Drag(QPointF place);
    void PaintScale(QPainter& painter) const;
    void PaintKeys(QPainter& painter) const;
    void PaintNow(QPainter& painter) const;

    double seconds_ = 0.0;
    double framesPerSecond_ = 25.0;
    FilmCourse film_;
    double now_ = 0.0;
    Part dragged_ = Part::Nothing;
    int key_ = -1;          // that is dragged
    double draggedTo_ = 0;  // while it is
};

// "1:02.500"; the hours only where there are some.
QString TimeText(double seconds);

}  // namespace varnel
