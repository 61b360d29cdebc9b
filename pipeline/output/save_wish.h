// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the user wants results to be written, as dialogs show it, and what that is likely to take.
// Throws nothing.
#pragma once

#include <QString>
#include <QtGlobal>
#include <functional>

#include "remap/encode/output_type.h"
#include "state/records/image_record.h"
#include "state/settings/general_settings.h"

namespace varnel {

struct SaveWish {
    OutputEncoding encoding;
    bool writeMetadata = true;  // the photo's go into its file
    QString pattern;            // of names; empty: the usual ones
    SamplingKind sampling = SamplingKind::Classic;

    bool operator==(const SaveWish&) const = default;
};

// How the settings want files, a picture of their type included.
OutputEncoding EncodingOf(const GeneralSettings& settings);

// The settings' wish, and a wish into the settings; the type of a file that was never chosen stays.
SaveWish WishOf(const GeneralSettings& settings);
void TakeWish(const SaveWish& wish, GeneralSettings& settings);
// A record as the window saves it: by the better of its own sampling and the one that is wished.
ImageRecord AsSaved(ImageRecord image, SamplingKind wished);
inline SamplingKind SamplingOf(const GeneralSettings& settings) {
    return settings.FineSampling ? SamplingKind::Fine : SamplingKind::Classic;
}

// What a picture of such samples has in a file.
SampleKind SamplesOfFile(const OutputEncoding& encoding, SampleKind photo);
// The bytes that a file of so many pixels of such a photo usually has.
qint64 UsualBytes(double pixels, const OutputEncoding& encoding,
                  SampleKind photo = SampleKind::Byte);
// "16 bits": of the file of such a photo.
QString DepthText(const OutputEncoding& encoding, SampleKind photo);
// "about 3.2 MB".
QString UsualSizeText(qint64 bytes);

// What a save dialog shows of the picture beside its name.
struct SaveOffer {
    SaveWish wish;
    double pixels = 0.0;  // of the picture
    QString pattern;      // that an empty one stands for
    QString photoFolder;
    SampleKind samples = SampleKind::Byte;  // of the photo
    // The proposed name by a wish's pattern and sampling, without folder and extension.
    std::function<QString(const SaveWish& wish)> nameBy;
};

}  // namespace varnel
