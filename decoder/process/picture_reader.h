// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading photos: the one way by which any picture enters Varnel. Throws std::bad_alloc, and what
// the caller's function throws.
#pragma once

#include <functional>
#include <memory>

#include "decoder/request/loaded_picture.h"
#include "decoder/request/read_request.h"

namespace varnel {

// Reads one photo at a time.
class PictureReader {
  public:
    virtual ~PictureReader() = default;
    // Starts on a photo. Nothing else may be under way.
    virtual void Begin(const ReadRequest& request) = 0;
    // Waits this many milliseconds at most; true when the answer can be taken. That is so at the
    // latest when the time limit is over: then that is the reason in the answer.
    virtual bool Wait(int milliseconds) = 0;
    // The answer; ends what Begin began.
    virtual LoadedPicture Take() = 0;
    // Drops what is under way, if anything is.
    virtual void Cancel() = 0;
    // Whether it reads while the caller does something else.
    virtual bool IsApart() const { return false; }
};

// Asked every few milliseconds while a photo is read, for handling events; false gives up.
using KeepReading = std::function<bool()>;

// Reads and waits for the answer; not loaded and the reason Cancelled when it was given up.
LoadedPicture ReadPicture(PictureReader& reader, const ReadRequest& request,
                          const KeepReading& keepReading = {});

// The options of a reader; the defaults are the programs' own.
struct ReaderOptions {
    QString program = {};      // the decoder's path; empty: the one beside this program
    int secondsPerPhoto = 30;  // the longest that a photo may take
    std::uint64_t memory = 0;  // bytes that pictures are measured by; 0: this machine's memory
};

// Decodes in a process of its own where the platform allows, started at once and kept.
std::unique_ptr<PictureReader> NewPictureReader(const ReaderOptions& options = {});

}  // namespace varnel
