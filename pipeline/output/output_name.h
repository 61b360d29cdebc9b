// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The names of written files. Throws nothing but OverflowError by SettingsTags and BatchName.
#pragma once

#include <QString>
#include <map>

#include "remap/encode/output_type.h"
#include "state/records/image_record.h"

namespace varnel {

// What becomes of the ending of the photo's own name. Cut are the last three characters, so that
// the dot of an extension stays: "IMG.jpg" gives "IMG.", "IMG.tiff" gives "IMG.t"; names of one or
// two characters are left whole, as cutting them would lead out of the folder. Kept gives
// "IMG.jpg.", which keeps IMG.jpg and IMG.png apart.
enum class PhotoEnding { Cut, Kept };

// The name that a single save proposes: the source path with its ending treated so, followed by the
// addition.
QString ProposedName(const QString& sourcePath, const QString& addition,
                     PhotoEnding ending = PhotoEnding::Cut);
// With the projection's name.
QString ProposedName(const QString& sourcePath, Projection projection);

// What the batch adds to a name for each projection; none or an empty text means the projection's
// own name.
struct NameAdditions {
    std::map<Projection, QString> texts;
    QString For(Projection projection) const;
};

// The tags for the settings of a batch entry, "_hAOV095_Eff080_LR-5" for example; empty for a
// projection without any. Numbers are rounded, ties to even; angle of view and effect are padded to
// three digits. A size and a crop of its own come last: "_4000x3000_crop". Throws OverflowError,
// naming the setting, for a number beyond 32 bits.
QString SettingsTags(const ImageRecord& image);

// The full path of a batch entry's file in a folder by the usual pattern: file name with its ending
// treated so, addition, "_" and suffix if there is one, tags, extension. Throws as SettingsTags.
QString BatchName(const ImageRecord& image, const QString& folder, const NameAdditions& additions,
                  OutputType type, PhotoEnding ending = PhotoEnding::Cut);

}  // namespace varnel
