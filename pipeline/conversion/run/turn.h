// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A conversion on its way through a run. Throws what the observer throws.
#pragma once

#include <QElapsedTimer>
#include <memory>

#include "pipeline/conversion/conversion_run.h"
#include "pipeline/conversion/run/result_drawer.h"
#include "pipeline/conversion/run/sharing.h"

namespace varnel {

// The observer is notified of it only when the one before it is done.
struct Turn {
    Conversion what{};
    ConversionOutcome outcome{};
    std::shared_ptr<DrawnResult> drawn = std::make_shared<DrawnResult>();
    QElapsedTimer sinceBegun{};
    bool announced = false;
    float maximum = 0.0F;  // of its progress; 0 until it begins
    bool rendered = false;
};

// With all that has happened to it so far; once.
void Announce(Turn& turn, ConversionObserver& observer);

// How a run saves its pictures.
struct Saving {
    const ConversionPlan& plan;
    const ConversionPorts& ports;
    FileSeries& series;
    Sharing sharing;  // of cores of which the caller holds one
};

// Into that file, without metadata where none are to be in it.
SaveResult SaveNow(DrawnResult& drawn, const QString& path, const Saving& how);

// Of the file that was written, if the ports want one. Reads what is still in the system's memory.
void NoteDigest(DrawnResult& drawn, const QString& path, const ConversionPorts& ports);

// The outcome by what became of its file.
void NoteSaved(Turn& turn, const SaveResult& saved);

}  // namespace varnel
