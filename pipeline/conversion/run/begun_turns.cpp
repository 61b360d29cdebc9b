// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/run/begun_turns.h"

#include <QFileInfo>
#include <algorithm>

#include "base/error_reason.h"
#include "files/file_identity.h"
#include "remap/image/photo_metadata.h"

namespace varnel {

namespace {

constexpr std::size_t mostBegun = 2 * FileSeries::filesTogether;  // the disk is waited for
constexpr std::int64_t mostSmall = 1000000;                       // pixels
constexpr int betweenEvents = 10;                                 // ms

}  // namespace

bool BegunTurns::IsSmall(const Turn& turn) {
    const PixelSize size = SizeOf(turn.drawn->result.get());
    return !turn.drawn->rows && std::int64_t{size.width} * size.height <= mostSmall;
}

bool BegunTurns::MayHave(const QString& target) const {
    return !IsEmpty() &&
           (QFileInfo(target).isSymLink() || std::ranges::any_of(turns_, [&](const Begun& one) {
                return MayBeSameFile(one.turn.what.target, target);
            }));
}

BitmapHandle BegunTurns::Begin(Turn turn) {
    Bitmap* const bitmap = turn.drawn->result.get();
    if (!how_.plan.output.writeMetadata) {
        DropMetadata(bitmap);
    }
    Begun begun{std::move(turn), {}, {}};
    begun.error = Attempt([&] {
        begun.save.emplace(how_.plan.output.encoding, bitmap,
                           FileInSeries{begun.turn.what.target, how_.series},
                           how_.sharing.For(bitmap->Size()));
    });
    BitmapHandle used = std::move(begun.turn.drawn->result);
    turns_.push_back(std::move(begun));
    return used;
}

bool BegunTurns::IsFirstDue() const {
    return turns_.size() > mostBegun || (!IsEmpty() && IsFirstDone());
}

Turn BegunTurns::TakeFirst(RenderProgress& progress) {
    if (!IsFirstDone()) {
        how_.series.Hurry();
        const CoreLent lent(how_.sharing.Cores());
        while (!turns_.front().save->Wait(betweenEvents)) {
            progress.HandleEvents();
        }
    }
    Begun first = std::move(turns_.front());
    turns_.pop_front();
    SaveResult saved{false, first.error};
    if (first.save) {
        const Reason error = Attempt([&] { saved = first.save->Take(); });
        saved = error.isEmpty() ? saved : SaveResult{false, error};
        if (saved) {
            NoteDigest(*first.turn.drawn, first.turn.what.target, how_.ports);
        }
    }
    NoteSaved(first.turn, saved);
    return std::move(first.turn);
}

}  // namespace varnel
