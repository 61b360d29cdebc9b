// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/save_meanwhile.h"

#include <QCoreApplication>

#include "pipeline/conversion/save_worker.h"

namespace varnel {

namespace {

constexpr int betweenEvents = 10;  // ms

}  // namespace

void CancellableProgress::Advance(float value) {
    told_.Advance(value);
    EndIfCancelled();
}

void CancellableProgress::Pause() {
    told_.Pause();
    EndIfCancelled();
}

void CancellableProgress::EndIfCancelled() const {
    if (cancelled_) {
        throw SavingCancelled();
    }
}

SaveResult SaveMeanwhile(const FileToSave& file, const Bitmap* bitmap, ThreadRunner& pool,
                         RenderProgress& progress, const CancelFlag& cancelled) {
    SaveWorker worker(&pool);
    worker.Begin([&] {
        return SaveBitmap(file.encoding, bitmap,
                          StoppableFile{file.name, [&cancelled] { return cancelled.load(); }},
                          pool);
    });
    progress.Begin(0.0F);
    {
        const CoreLent lent(pool);
        do {
            progress.HandleEvents();
        } while (!worker.Wait(betweenEvents));
    }
    progress.End();
    return worker.Take();
}

QString CancelledText() {
    return QCoreApplication::translate("SaveMeanwhile", "Cancelled, nothing was saved");
}

}  // namespace varnel
