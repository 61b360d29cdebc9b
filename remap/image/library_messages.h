// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The messages that the libraries give while they work on one file. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>

#include "base/reason.h"

namespace varnel {

// Collects what is handed to AddLibraryMessage in this thread while it lives. Only one may live in
// a thread at a time. The image library's own are with ImageLibraryMessages
// (remap/image/image_library.h).
class LibraryMessages {
  public:
    LibraryMessages();
    ~LibraryMessages();
    LibraryMessages(const LibraryMessages&) = delete;
    LibraryMessages& operator=(const LibraryMessages&) = delete;

    const QStringList& Lines() const { return lines_; }
    // The reason with the last message, if there was one.
    Reason Added(const Reason& reason) const;

  private:
    QStringList lines_;
};

// Those of libtiff, too; it alone would print dozens of lines on stderr for ordinary photographs.
// From the first one on it prints nothing there any more.
class TiffMessages : public LibraryMessages {
  public:
    TiffMessages();
};

// Hands a message to the collector of this thread, if there is one, as a library would.
void AddLibraryMessage(const QString& message);

}  // namespace varnel
