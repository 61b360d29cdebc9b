// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a program of the command line prints, and how it ends. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <atomic>
#include <memory>
#include <ostream>
#include <string>

#include "base/notices.h"
#include "decoder/process/picture_reader.h"
#include "files/unfinished_file.h"

namespace varnel {

inline constexpr int exitAllWritten = 0;
inline constexpr int exitSomeFailed = 1;
inline constexpr int exitUsage = 2;
inline constexpr int exitStopped = 128;  // and the signal's number, as shells count

struct Console {
    std::ostream& out;  // names of written files, lists, help
    std::ostream& err;  // what went wrong, one line each
    bool bar = false;   // draw a progress bar on err
    const char* program = "varnel-convert";
    const std::atomic<int>* stop = nullptr;  // the signal that asks to stop, once it is not 0
    UnfinishedFile* unfinished = nullptr;    // where the file that is being written is noted
    std::unique_ptr<PictureReader>* early = nullptr;  // gets ready since the program's start

    // For whoever reads photos first; a new one where there is none that got ready.
    std::unique_ptr<PictureReader> TakeReader() const {
        return early != nullptr && *early ? std::move(*early) : NewPictureReader();
    }
    int StopSignal() const { return stop != nullptr ? stop->load() : 0; }
};

std::string LocalText(const QString& text);

// Control characters, as odd file names may hold, written as \n or \x1b.
QString OneLine(const QString& text);

// One line on err, led by the program's name.
void Complain(const Console& console, const QString& text);

// Notices where there is no window.
class ConsoleNotices : public Notices {
  public:
    explicit ConsoleNotices(const Console& console) : console_(console) {}
    void Tell(const QString& text, const QString& detail) override;

  private:
    const Console& console_;
};

// Reports an error in what the command line asks for; returns exitUsage.
int Refuse(const Console& console, const QString& text);

// The text on out; returns exitAllWritten.
int Show(const Console& console, const QString& text);

// File names are UTF-8 wherever Varnel runs. Under a C locale Qt would switch by itself, but report
// it on stderr each time. To be called first in main.
void UseUtf8Locale();

}  // namespace varnel
