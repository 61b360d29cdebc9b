// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos read ahead by one or more decoders, taken in the order in which they were asked for.
// Throws std::bad_alloc only.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "pipeline/conversion/reading_thread.h"
#include "pipeline/photos/photo_loader.h"

namespace varnel {

class PrefetchingReader {
  public:
    // Each reader reads one photo at a time; the first is the caller's, who does not use it
    // meanwhile. As many more are started as further photos shall be read at once. With cores each
    // decoder takes one while it works, and the caller's is lent while it waits.
    PrefetchingReader(PictureReader& reader, int more, ReadingWait& wait,
                      const ReadChoices& choices = {}, ThreadRunner* cores = nullptr);
    // Gives up what was read ahead and not taken.
    ~PrefetchingReader();
    PrefetchingReader(const PrefetchingReader&) = delete;
    PrefetchingReader& operator=(const PrefetchingReader&) = delete;

    // Starts on the photo that comes next after those that were started on, if a reader is free.
    void ReadAhead(const QString& path);
    // The photo that was started on first, if it is this one; else reads it now, and what was
    // started on is given up.
    LoadedPicture Take(const QString& path);
    // The same, but a large picture may come as soon as all of it but its rows is there: then it is
    // arriving, and TakeWhole, to be called once before anything else, gives what Take would have
    // given.
    LoadedPicture TakeEarly(const QString& path);
    LoadedPicture TakeWhole(const QString& path);
    // How many photos may be read ahead at once; none where that would only keep the caller
    // waiting.
    int Ahead() const { return first_.IsApart() ? static_cast<int>(1 + more_.size()) : 0; }
    // The cores that the decoders share; null when there are none.
    ThreadRunner* Cores() const { return cores_; }

  private:
    struct UnderWay {
        QString path;
        PictureReader* reader;
    };
    PictureReader* FreeReader() const;
    ReadRequest RequestFor(const QString& path) const;
    std::optional<CoreLent> Lent();
    void GiveUp();
    LoadedPicture WaitFor(const UnderWay& photo);

    ThreadRunner* cores_;
    std::unique_ptr<ReadingThread> thread_;  // with the first reader, if there are cores
    PictureReader& first_;
    std::vector<std::unique_ptr<PictureReader>> more_;
    ReadingWait& wait_;
    ReadChoices choices_;
    std::deque<UnderWay> underWay_;
};

// Ends both, the reader after the feed that uses it, while the caller goes on: to wait for a
// decoder to be gone takes as long as half the drawing of a small picture.
void EndMeanwhile(std::shared_ptr<PrefetchingReader> feed, std::shared_ptr<PictureReader> reader,
                  ThreadRunner& pool);

// Whether so many photos like the last one may be read ahead: together with those at work they have
// to fit into three quarters of the machine's memory.
bool HasRoomAhead(qsizetype photos, const LoadedPicture& last);

// How many decoders beside the first are worth while for a run that may use this many cores.
int MoreReaders(int cores);

}  // namespace varnel
