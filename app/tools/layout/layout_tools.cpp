// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/layout/layout_tools.h"

#include "app/tools/layout/kept_choice.h"

namespace varnel {

namespace {

QString Section() {
    return QStringLiteral("Window");
}

}  // namespace

LayoutTools::LayoutTools(const WindowParts& parts, SettingsStore& store, QObject* parent)
    : QObject(parent), parts_(parts), store_(store) {
    AddKeptChoice(*parts_.viewMenu,
                  {"CmdViewListLeft", tr("Image list in the left col&umn"), "ListLeft"}, store_,
                  [this](bool on) { PlaceList(parts_, on); });
    KeepFolds();
}

// What is seldom used is folded until it is opened.
void LayoutTools::KeepFolds() {
    for (FoldGroup* const fold : parts_.adjustments->Folds()) {
        const QString key = QStringLiteral("Folded") + fold->objectName();
        const bool rare = fold->objectName() == QStringLiteral("FramePreview");
        const QString yes = QStringLiteral("1");
        const QString no = QStringLiteral("0");
        fold->SetFolded(store_.Get(Section(), key, rare ? yes : no) == yes);
        connect(fold, &FoldGroup::FoldedChanged, this, [this, key, yes, no](bool folded) {
            store_.Save(Section(), key, folded ? yes : no);
        });
    }
}

}  // namespace varnel
