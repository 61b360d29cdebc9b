// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/workspace_model.h"

#include <QScopedValueRollback>

namespace varnel {

void WorkspaceModel::ShowInControls(const ImageRecord& image) {
    const QScopedValueRollback loading(state.loadingControls, true);
    gears.Show(image.GearName);
    controls.Show(ValuesFor(image));
    if (&image == list.Current()) {
        Q_EMIT CurrentShown();
    }
}

}  // namespace varnel
