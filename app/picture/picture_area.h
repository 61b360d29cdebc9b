// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The two pictures of the main window: the photo as shot and the converted one, each as large as
// the space allows. Throws nothing.
#pragma once

#include <QLabel>

#include "app/picture/inset_frame.h"
#include "app/picture/picture_box.h"

namespace varnel {

// Both pictures alike, the result with the photo as an inset, or the photo alone.
enum class PictureView { Split, Result, Photo };

class PictureArea : public QWidget {
    Q_OBJECT
  public:
    explicit PictureArea(QWidget* parent = nullptr);
    PictureBox* From() const { return from_; }
    PictureBox* To() const { return to_; }
    // What is wrong with the photo as shot, on its lower edge; empty when nothing is.
    void ShowError(const QString& text);

    PictureView View() const { return view_; }
    void SetView(PictureView view);
    // The picture that the view is about.
    PictureBox* Main() const { return view_ == PictureView::Photo ? from_ : to_; }
    // Where the inset is, in shares of the area.
    QRectF Inset() const { return inset_; }
    void SetInset(const QRectF& inset);

    // The pictures have to be made anew as after another size.
    void Refresh() { Q_EMIT RoomChanged(); }

    QSize Room() const;  // for the main picture, logical pixels
    QSize minimumSizeHint() const override { return {220, 220}; }

  Q_SIGNALS:
    // The pictures have other sizes, or there is another view.
    void RoomChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    bool SideBySide() const { return width() >= height(); }
    void Place();
    void PlaceSplit();
    void PlaceInset();
    void PlaceError();

    PictureBox* from_;
    PictureBox* to_;
    InsetFrame* frame_;
    QLabel* error_;
    PictureView view_ = PictureView::Split;
    QRectF inset_{0.01, 0.66, 0.26, 0.33};
};

}  // namespace varnel
