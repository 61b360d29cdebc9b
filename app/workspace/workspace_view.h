// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the workspace shows besides its model, and the ports for its messages. Throws nothing.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "app/workspace/film/film_source.h"
#include "base/notices.h"
#include "base/pixel_size.h"
#include "pipeline/photos/photo_loader.h"
#include "pipeline/photos/photo_shelf.h"
#include "remap/render/render.h"

namespace varnel {

// Sizes are in device pixels.
class WorkspaceView {
  public:
    virtual ~WorkspaceView() = default;
    virtual PixelSize PreviewBox() const = 0;   // the settings' preview size on this screen
    virtual PixelSize PictureRoom() const = 0;  // the space for one picture
    virtual RenderProgress& Progress() = 0;

    virtual void ShowSource(const Bitmap* bitmap) = 0;  // null empties the picture
    virtual void ShowResult(const Bitmap* bitmap) = 0;
    // The settings that the result to be shown next was made with, its projection included.
    virtual void NoteDrawn(const ImageRecord& /*image*/) {}
    // What is wrong with the photo; empty when nothing is.
    virtual void ShowError(const QString& text) = 0;
    virtual void ShowStatus(const QString& text) = 0;
    virtual void HandleEvents() = 0;
    // Shown as long as the returned object lives.
    virtual std::shared_ptr<void> Hourglass() = 0;
    // While locked nothing on the window can be started and closing it waits.
    virtual void Lock(bool on) = 0;
    // Lets the user cancel what runs, by calling this function; an empty one ends that.
    virtual void LetCancel(std::function<void()> cancel) = 0;
};

struct WorkspacePorts {
    PhotoLoader& photos;
    Notices& notices;
    WorkspaceView& view;
    PhotoShelf* shelf = nullptr;        // null: every photo is read when its line becomes current
    const FilmSource* films = nullptr;  // null: there are only photos
};

}  // namespace varnel
