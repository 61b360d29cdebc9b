// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/records/image_record.h"

namespace varnel {

QString SourcePath(const ImageRecord& image) {
    return image.Folder + u'/' + image.FileName;
}

}  // namespace varnel
