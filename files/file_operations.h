// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The system calls that write a file. They can be overridden, so that tests make any of them fail.
// Throws nothing; errors are returned.
#pragma once

#include <QByteArray>

namespace varnel {

// The system's own. Each returns -1 on failure and leaves the error in errno. Names are in the file
// system's encoding, files are descriptors.
class FileOperations {
  public:
    virtual ~FileOperations() = default;

    // Opens a new file for writing. Fails with EEXIST when the name exists.
    virtual int Create(const QByteArray& name, unsigned permissions);
    // Locks it and returns a second descriptor, which keeps the lock when the first one is closed.
    // Fails with EWOULDBLOCK while another process holds the lock.
    virtual int Lock(int file);
    // Returns the number of bytes written, which may be less than length.
    virtual qint64 Write(int file, const char* bytes, qint64 length);
    // As often as it takes. Returns how many bytes were written; fewer than given is a failure.
    qint64 WriteAll(int file, QByteArrayView bytes);
    virtual int SetPermissions(int file, unsigned permissions);
    virtual int Sync(int file);
    virtual int Close(int file);
    // Replaces a file that has the new name in one step.
    virtual int Rename(const QByteArray& name, const QByteArray& newName);
    // Syncs the folder itself, so that a renaming in it outlasts a power cut.
    virtual int SyncFolder(const QByteArray& folder);
    virtual int Remove(const QByteArray& name);
};

}  // namespace varnel
