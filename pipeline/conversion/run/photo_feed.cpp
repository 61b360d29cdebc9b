// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/run/photo_feed.h"

#include <algorithm>

#include "base/error_reason.h"

namespace varnel {

namespace {

template <class Load>
LoadedPicture Attempted(const Load& load) {
    LoadedPicture loaded;
    const Reason error = Attempt([&] { loaded = load(); });
    return error.isEmpty() ? std::move(loaded) : LoadedPicture::Refused(error);
}

}  // namespace

LoadedPicture PhotoFeed::Load(qsizetype photo, bool early) {
    asked_ = std::max(asked_, photo + 1);
    LoadedPicture loaded = Read(photo, early);
    ReadAhead(photo, loaded);
    if (photo + 1 == plan_.photos.size() && ports_.allRead && !loaded.arriving) {
        ports_.allRead();
    }
    return loaded;
}

LoadedPicture PhotoFeed::Read(qsizetype photo, bool early) const {
    const bool isEarly = early && plan_.drawsByRows && plan_.photos.size() == 1 && ports_.loadEarly;
    return Attempted([&] {
        return isEarly ? ports_.loadEarly(plan_.photos[photo]) : ports_.load(plan_.photos[photo]);
    });
}

LoadedPicture PhotoFeed::Whole(qsizetype photo) {
    LoadedPicture whole = Attempted([&] { return ports_.whole(plan_.photos[photo]); });
    if (ports_.allRead) {
        ports_.allRead();
    }
    return whole;
}

void PhotoFeed::ReadAhead(qsizetype photo, const LoadedPicture& last) {
    while (ports_.readAhead && asked_ < plan_.photos.size() &&
           asked_ <= photo + ports_.aheadAtMost && HasRoomAhead(asked_ - photo, last) &&
           ports_.readAhead(plan_.photos[asked_])) {
        ++asked_;
    }
}

}  // namespace varnel
