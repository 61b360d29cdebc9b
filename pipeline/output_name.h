// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The names of written files.
#pragma once

#include <QString>
#include <array>

#include "pipeline/output_type.h"
#include "state/image_record.h"

namespace varnel {

// The name that a single save proposes: the source path without its last three characters (the dot
// of the old extension stays), followed by the addition.
QString ProposedName(const QString& sourcePath, const QString& addition);
// With the projection's name.
QString ProposedName(const QString& sourcePath, Projection projection);

// What the batch adds to a name for each projection; an empty text means the projection's own name.
struct NameAdditions {
    std::array<QString, allProjections.size()> texts;
    QString For(Projection projection) const;
};

// The tags that tell the settings of a batch entry, "_hAOV095_Eff080_LR-5" for example; empty for
// Equidistance and Horizon. Numbers are rounded, ties to even; angle of view and effect are padded
// to three digits.
QString SettingsTags(const ImageRecord& image);

// The full path of a batch entry's file in a folder: file name without its last three characters,
// addition, "_" and suffix if there is one, tags, extension.
QString BatchName(const ImageRecord& image, const QString& folder, const NameAdditions& additions,
                  OutputType type);

}  // namespace varnel
