// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Small pictures of a run whose files are begun, in their order. What takes most of their time is
// waiting for the disk, and the next ones need not wait for that. Throws std::bad_alloc and what
// the progress throws.
#pragma once

#include <deque>

#include "pipeline/conversion/run/turn.h"

namespace varnel {

class BegunTurns {
  public:
    explicit BegunTurns(const Saving& how) : how_(how) {}

    static bool IsSmall(const Turn& turn);
    bool IsEmpty() const { return turns_.empty(); }
    // Whether the target may become one of their files: by a name that the file system takes for
    // the same, or through a link.
    bool MayHave(const QString& target) const;
    // Encodes the drawn result, which is returned for further use, and begins its file.
    BitmapHandle Begin(Turn turn);
    // Whether the first can be taken without waiting, or has to be before there are more.
    bool IsFirstDue() const;
    // The first, with what became of it; waits for that, while the progress handles events.
    Turn TakeFirst(RenderProgress& progress);

  private:
    struct Begun {
        Turn turn;
        std::optional<BegunSave> save;  // none after an error
        Reason error;
    };
    bool IsFirstDone() const { return !turns_.front().save || turns_.front().save->Wait(0); }

    Saving how_;
    std::deque<Begun> turns_;
};

}  // namespace varnel
