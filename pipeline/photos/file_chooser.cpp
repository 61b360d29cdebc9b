// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/file_chooser.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>

#include "files/file_identity.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Save)
};

}  // namespace

OutputType TypeOf(const SaveChoice& choice) {
    const auto place = static_cast<std::size_t>(choice.filterIndex - 1);
    const auto types = AllOutputTypes();
    return choice.filterIndex >= 1 && place < types.size() ? types[place] : OutputType::Tiff;
}

int FilterIndexOf(OutputType type) {
    const auto types = AllOutputTypes();
    return static_cast<int>(std::ranges::find(types, type) - types.begin()) + 1;
}

std::optional<SaveChoice> AskWhereToSave(FileChooser& chooser, Notices& notices,
                                         const SaveChoice& proposal, const QString& photo) {
    std::optional<SaveChoice> choice = chooser.ChooseSave(proposal);
    if (!choice) {
        return std::nullopt;
    }
    choice->name = WithExtension(choice->name, TypeOf(*choice));
    if (SameFile(choice->name, photo)) {
        notices.Tell(Texts::tr("Could not save %1").arg(choice->name),
                     Texts::tr("This is the photo itself; choose another name."));
        return std::nullopt;
    }
    if (QFileInfo::exists(choice->name) && !chooser.AgreesToReplace(choice->name)) {
        return std::nullopt;
    }
    return choice;
}

}  // namespace varnel
