// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/run/turn.h"

#include "base/error_reason.h"
#include "remap/image/photo_metadata.h"

namespace varnel {

void Announce(Turn& turn, ConversionObserver& observer) {
    if (turn.announced) {
        return;
    }
    turn.announced = true;
    observer.Begun(turn.what);
    if (turn.maximum > 0.0F) {
        observer.Progress().Begin(turn.maximum);
    }
    if (turn.rendered) {
        observer.Progress().End();
    }
}

SaveResult SaveNow(DrawnResult& drawn, const QString& path, const Saving& how) {
    const OutputChoices& output = how.plan.output;
    if (!output.writeMetadata) {
        DropMetadata(drawn.result.get());
    }
    if (how.ports.save) {
        return how.ports.save(output.encoding, drawn.result.get(), path);
    }
    SaveResult saved;
    const auto save = [&] {
        saved = SaveBitmap(output.encoding, drawn.result.get(),
                           FileInSeries{path, how.series, drawn.rows.get()}, &how.sharing.Cores());
    };
    if (drawn.rows) {
        drawn.error = Attempt(save);
    } else {
        save();
    }
    const WriteResult lasts = how.plan.namesLastAtEnd ? WriteResult{true, {}} : how.series.Finish();
    if (saved && lasts) {
        NoteDigest(drawn, path, how.ports);
    }
    return !saved || lasts ? saved : SaveResult{false, lasts.reason};
}

void NoteDigest(DrawnResult& drawn, const QString& path, const ConversionPorts& ports) {
    drawn.digest = ports.digest ? ports.digest(path) : QByteArray();
}

void NoteSaved(Turn& turn, const SaveResult& saved) {
    if (!turn.drawn->error.isEmpty()) {
        turn.outcome.end = ConversionEnd::NotConverted;
        turn.outcome.reason = turn.drawn->error;
    } else if (saved) {
        turn.outcome.note = saved.note;
        turn.outcome.samples = saved.samples;
        turn.outcome.digest = turn.drawn->digest;
    } else {
        turn.outcome.end = ConversionEnd::NotSaved;
        turn.outcome.reason = saved.reason;
    }
}

}  // namespace varnel
