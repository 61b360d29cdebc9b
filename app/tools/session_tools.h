// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps the image list against a crash: while there is work that no project holds it is written
// every few seconds, and a list whose window is gone is offered by the next one. Throws nothing but
// for want of memory.
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "app/tools/project_tools.h"
#include "pipeline/conversion/save_worker.h"
#include "pipeline/photos/session_place.h"

namespace varnel {

class SessionTools : public QObject {
    Q_OBJECT
  public:
    // Without a folder in the ports nothing is kept or offered.
    SessionTools(ProjectTools& projects, Workspace& workspace, WorkingState& state,
                 const WindowPorts& ports, QObject* parent);

    void OfferLost();
    // The user ends the program and was asked about unsaved work: nothing is kept.
    void End();

  private:
    void NoteChange();
    void Write();
    void Begin();
    void Forget();
    bool Take(std::unique_ptr<SessionPlace> place);
    void ShowDamaged(SessionPlace& place, const QString& error);
    void NoteError(const QString& reason);
    void ShowError();

    ProjectTools& projects_;
    Workspace& workspace_;
    const WorkingState& state_;
    WindowPorts ports_;
    QTimer timer_;
    std::unique_ptr<SessionPlace> place_;
    RecordArray<ImageRecord> written_;  // the list in the file, or being written into it
    bool writing_ = false;
    bool ended_ = false;
    bool failed_ = false;
    QString error_;  // to be shown as soon as the user does nothing else
    SaveWorker worker_;
};

}  // namespace varnel
