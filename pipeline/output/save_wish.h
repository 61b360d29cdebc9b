// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the user wants results to be written, as dialogs show it, and what that is likely to take.
// Throws nothing.
#pragma once

#include <QString>
#include <QtGlobal>
#include <functional>

#include "remap/encode/output_type.h"
#include "state/settings/general_settings.h"

namespace varnel {

struct SaveWish {
    OutputEncoding encoding;
    bool writeMetadata = true;  // the photo's go into its file
    QString pattern;            // of names; empty: the usual ones

    bool operator==(const SaveWish&) const = default;
};

// The settings' wish, and a wish into the settings; the type of a file that was never chosen stays.
SaveWish WishOf(const GeneralSettings& settings);
void TakeWish(const SaveWish& wish, GeneralSettings& settings);

// The bytes that a file of so many pixels usually has.
qint64 UsualBytes(double pixels, const OutputEncoding& encoding);
// "about 3.2 MB".
QString UsualSizeText(qint64 bytes);

// What a save dialog shows of the picture beside its name.
struct SaveOffer {
    SaveWish wish;
    double pixels = 0.0;  // of the picture
    QString pattern;      // that an empty one stands for
    QString photoFolder;
    // The proposed name by a pattern, without folder and extension.
    std::function<QString(const QString& pattern)> nameBy;
};

}  // namespace varnel
