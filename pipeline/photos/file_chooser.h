// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Asking where a picture is to be saved. Throws nothing.
#pragma once

#include <QString>
#include <optional>

#include "base/notices.h"
#include "pipeline/output/save_wish.h"
#include "remap/encode/output_type.h"

namespace varnel {

struct SaveChoice {
    QString name;
    int filterIndex = 1;  // of the type in AllOutputTypes(), from 1 on
    // How it is written, where that can be chosen, too; its type is that of the filter.
    std::optional<SaveOffer> output = {};
};

// TIFF for an index that is none of a type.
OutputType TypeOf(const SaveChoice& choice);
int FilterIndexOf(OutputType type);

class FileChooser {
  public:
    virtual ~FileChooser() = default;
    // Nothing when cancelled.
    virtual std::optional<SaveChoice> ChooseSave(const SaveChoice& proposal) = 0;
    // True when the user agrees to replace the file of that name.
    virtual bool AgreesToReplace(const QString& name) = 0;
};

// Asks for the path of a picture that was made from a photo. The answer's name has the extension of
// its type; it is never the photo itself, for which a message is shown, and an existing file only
// when the user agrees. Nothing when there is no such answer.
std::optional<SaveChoice> AskWhereToSave(FileChooser& chooser, Notices& notices,
                                         const SaveChoice& proposal, const QString& photo);

}  // namespace varnel
