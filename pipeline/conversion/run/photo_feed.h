// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A run's photos in their order, further ones read meanwhile. Throws what the ports throw that is
// no std::exception.
#pragma once

#include "pipeline/conversion/conversion_run.h"

namespace varnel {

class PhotoFeed {
  public:
    // Both have to outlive it.
    PhotoFeed(const ConversionPlan& plan, const ConversionPorts& ports)
        : plan_(plan), ports_(ports) {}

    // Whether reading it has begun.
    bool HasBegun(qsizetype photo) const { return asked_ > photo; }
    // The next one. With early it may be arriving, if it is the only one.
    LoadedPicture Load(qsizetype photo, bool early);
    // One that was arriving.
    LoadedPicture Whole(qsizetype photo);

  private:
    LoadedPicture Read(qsizetype photo, bool early) const;
    void ReadAhead(qsizetype photo, const LoadedPicture& last);

    const ConversionPlan& plan_;
    const ConversionPorts& ports_;
    qsizetype asked_ = 0;  // photos that were begun to be read
};

}  // namespace varnel
