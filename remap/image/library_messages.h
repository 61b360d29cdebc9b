// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The messages that the image libraries give while they work on one file. Without this libtiff
// alone would print dozens of lines on stderr for ordinary photographs. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>

#include "base/reason.h"

namespace varnel {

// Collects the messages of this thread's library calls while it lives. Only one may live in a
// thread at a time. From the first one on nothing is printed on stderr any more.
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

// Hands a message to the collector of this thread, if there is one, as a library would.
void AddLibraryMessage(const QString& message);

}  // namespace varnel
