// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A frame around a small picture that lies on a large one: dragged at its upper bar it moves, at
// its lower right corner it changes its size. Throws nothing.
#pragma once

#include <QWidget>

namespace varnel {

class InsetFrame : public QWidget {
    Q_OBJECT
  public:
    explicit InsetFrame(QWidget* parent);
    // What is inside, in the parent's pixels.
    QRect Inside() const;
    // As large as such a picture fills within the size.
    static QSize FittedTo(QSize picture, QSize size);

  Q_SIGNALS:
    // The user wants it there; whoever owns it places it.
    void Wanted(QRect place);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    enum class Grip { None, Bar, Corner };
    Grip GripAt(QPoint point) const;

    Grip grip_ = Grip::None;
    QPoint from_;  // where it was pressed, global
    QRect before_;
};

}  // namespace varnel
