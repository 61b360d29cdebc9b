// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files for tests: pictures of every kind, and files that are none.
#pragma once

#include <QString>
#include <QTemporaryDir>

#include "remap/encode/save_bitmap.h"
#include "tests/support/bitmaps.h"
#include "tests/support/contents.h"

namespace varnel::testing {

// A folder that goes away with the test, and pictures in it.
class PictureFolder {
  public:
    QString Path(const QString& name) const { return folder_.filePath(name); }
    // A 24-bit position picture; returns its path.
    QString Picture(const QString& name, const OutputEncoding& encoding,
                    PixelSize size = {60, 40}) const {
        SaveBitmap(encoding, PositionPicture(size).get(), Path(name));
        return Path(name);
    }
    // The first part of a picture file, percent of its length.
    QString Cut(const QString& name, const QString& picture, int percent) const {
        const QByteArray whole = Contents(picture);
        WriteFile(Path(name), whole.left(whole.size() * percent / 100));
        return Path(name);
    }
    QString Text(const QString& name) const {
        WriteFile(Path(name), "this is no picture\n");
        return Path(name);
    }
    QString Empty(const QString& name) const {
        WriteFile(Path(name), {});
        return Path(name);
    }

  private:
    QTemporaryDir folder_;
};

}  // namespace varnel::testing
