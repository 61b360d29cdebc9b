// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The platform's dialog for saving, with names taken as they are typed. Throws nothing.
#pragma once

#include <QFileDialog>

#include "pipeline/dialogs/output_panel.h"

namespace varnel {

// The widget that Qt shows where a platform has no dialog of its own takes double quotes for marks
// around several names and would save quo"te.TIF as te.TIF.
class SaveDialog : public QFileDialog {
  public:
    // Proposes a full path and one of the filters.
    SaveDialog(const QString& title, const QString& proposal, const QStringList& filters,
               int filter = 0);
    // The panel stands below the files, its pattern makes the name, and the type is that of the
    // filter. Only the widgets of Qt have room for it.
    void Add(OutputPanel& panel, const SaveOffer& offer);
    // Shows the dialog; the full path, or an empty text when it was cancelled.
    QString Choose();

    // Whether the file of that name may be replaced.
    static bool AgreesToReplace(const QString& name);

  protected:
    void accept() override;

  private:
    QString TypedName() const;
    void FollowPattern(OutputPanel& panel, const SaveOffer& offer);
    void FollowFolder(OutputPanel& panel, const QString& photoFolder);

    QString quoted_;  // the path that was accepted, if it has quotes
};

}  // namespace varnel
