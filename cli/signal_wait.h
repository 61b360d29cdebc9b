// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Throws nothing.
#pragma once

#include "cli/report/console.h"
#include "cli/report/progress_bar.h"
#include "pipeline/photos/photo_loader.h"

namespace varnel {

// While a photo is read the time left is counted down, and a signal gives the photo up.
class SignalWait : public ReadingWait {
  public:
    SignalWait(TerminalBar& bar, const Console& console) : bar_(bar), console_(console) {}
    bool Continue() override {
        bar_.Refresh();
        return console_.StopSignal() == 0;
    }

  private:
    TerminalBar& bar_;
    const Console& console_;
};

}  // namespace varnel
