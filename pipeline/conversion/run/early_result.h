// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The result of a photo that is drawn and encoded while the photo is still decoded. Nothing of it
// shows until it is decided that it is the result. Throws what drawing throws.
#pragma once

#include <functional>
#include <future>
#include <memory>

#include "pipeline/conversion/run/result_drawer.h"

namespace varnel {

class EarlyResult {
  public:
    // What throws comes to nothing: it throws again in its turn.
    EarlyResult(const ConversionPlan& plan, const ResultDrawer& drawer, Conversion conversion,
                const LoadedPicture& photo);
    // Whoever draws is not left waiting.
    ~EarlyResult() { Decide(false); }
    EarlyResult(const EarlyResult&) = delete;
    EarlyResult& operator=(const EarlyResult&) = delete;

    // False where all of the photo has to be there first.
    bool CanBe() const { return drawn_ != nullptr; }
    // Of the photo, its only one.
    const ConversionRecords& Records() const { return records_; }
    const QString& Target() const { return target_; }
    const std::shared_ptr<DrawnResult>& Drawn() const { return drawn_; }
    // Once; until then the end of the result's rows waits. If it is none, they throw UnsoundPhoto.
    void Decide(bool isResult);

  private:
    ConversionRecords records_;
    QString target_;
    std::shared_ptr<DrawnResult> drawn_;
    std::promise<bool> decision_;
    bool decided_ = false;
};

}  // namespace varnel
