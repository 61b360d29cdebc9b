// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Draws the visible part of the converted picture at full size, a slice in each turn of the event
// queue, so that nothing has to wait for it. Throws what the given functions throw; without memory
// nothing is drawn.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "remap/render/region_renderer.h"

namespace varnel {

class RegionScheduler : public QObject {
    Q_OBJECT
  public:
    explicit RegionScheduler(QObject* parent);

    // What to draw from; null when there is nothing. Asked before each slice; busy() puts it off.
    struct Wish {
        const Bitmap* source = nullptr;
        Projection projection = Projection::Rectilinear;
        ImageRecord image;
        RowSpan rows;
    };
    void Serve(std::function<Wish()> wish, std::function<bool()> busy);

    // Draws what is missing, slice by slice.
    void Wake();
    // The settings may have changed: what was drawn with others is forgotten.
    void Renew();
    // Forgets all; also needed before a source is freed.
    void Drop();
    const RegionRenderer& Part() const { return part_; }

  Q_SIGNALS:
    void Drawn(RowSpan rows);

  private:
    void Slice();
    bool Begin(const Wish& wish);

    RegionRenderer part_;
    std::function<Wish()> wish_;
    std::function<bool()> busy_;
    Projection projection_ = Projection::Rectilinear;
    ImageRecord image_;    // what part_ is drawn with
    bool failed_ = false;  // with these settings there is no picture
    QTimer timer_{this};
};

}  // namespace varnel
