// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Saving a picture while the window that saves it goes on painting and can cancel it. Throws
// std::bad_alloc, and SavingCancelled where it says so.
#pragma once

#include <atomic>

#include "base/thread_runner.h"
#include "remap/encode/save_bitmap.h"
#include "remap/render/render.h"

namespace varnel {

using CancelFlag = std::atomic<bool>;

// Thrown through a conversion once it is cancelled.
struct SavingCancelled {};

// Passes every call on to another progress, until the flag is raised: then Advance and Pause throw
// SavingCancelled, which ends the conversion.
class CancellableProgress : public RenderProgress {
  public:
    CancellableProgress(RenderProgress& told, const CancelFlag& cancelled)
        : told_(told), cancelled_(cancelled) {}
    void HandleEvents() override { told_.HandleEvents(); }
    void Begin(float maximum) override { told_.Begin(maximum); }
    void Advance(float value) override;
    void Pause() override;
    void End() override { told_.End(); }

  private:
    void EndIfCancelled() const;

    RenderProgress& told_;
    const CancelFlag& cancelled_;
};

struct FileToSave {
    OutputEncoding encoding;
    QString name;
};

// Encodes and writes on another thread of the pool, of which the caller holds a core; the bitmap
// may not be used meanwhile. Until it is done the progress, begun with a maximum of 0 because it is
// not known how far it is, handles events. Cancelled before the file has its name, no file is
// written.
SaveResult SaveMeanwhile(const FileToSave& file, const Bitmap* bitmap, ThreadRunner& pool,
                         RenderProgress& progress, const CancelFlag& cancelled);
// The message for a picture that was cancelled.
QString CancelledText();

}  // namespace varnel
