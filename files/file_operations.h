// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The single steps in which a file gets onto a disk. They can be overridden so that tests may let
// any of them fail.
#pragma once

#include <QByteArray>

namespace varnel {

// These are the system's own. Each gives -1 on failure and then leaves the error in errno. Names
// are in the file system's encoding, files are descriptors.
class FileOperations {
  public:
    virtual ~FileOperations() = default;

    // Opens a new file for writing. Fails with EEXIST where there is anything of that name.
    virtual int Create(const QByteArray& name, unsigned permissions);
    // Locks it and gives a second descriptor, which keeps the lock when the first one is closed.
    // Fails with EWOULDBLOCK while another one holds the lock.
    virtual int Lock(int file);
    // May write less than was given, as the system does. Gives the number of bytes written.
    virtual qint64 Write(int file, const char* bytes, qint64 length);
    virtual int SetPermissions(int file, unsigned permissions);
    virtual int Sync(int file);
    virtual int Close(int file);
    // Replaces a file that has the new name in one step.
    virtual int Rename(const QByteArray& name, const QByteArray& newName);
    // Makes a renaming in this folder last.
    virtual int SyncFolder(const QByteArray& folder);
    virtual int Remove(const QByteArray& name);
};

}  // namespace varnel
