// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Throws nothing.
#pragma once

#include "cli/report/console.h"
#include "pipeline/photos/photo_loader.h"

namespace varnel {

// While photos are read a signal gives up.
class UntilStopped : public ReadingWait {
  public:
    explicit UntilStopped(const Console& console) : console_(console) {}
    bool Continue() override { return console_.StopSignal() == 0; }

  private:
    const Console& console_;
};

}  // namespace varnel
