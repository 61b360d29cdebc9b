// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The batch dialog: where and how the queued photos are to be written, and the run, which goes on
// when the dialog is closed. Throws std::bad_alloc only; what a run is short of becomes a message.
#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <memory>

#include "pipeline/conversion/batch_job.h"
#include "pipeline/dialogs/folder_chooser.h"
#include "pipeline/photos/mounted_volumes.h"
#include "state/settings/general_settings.h"

namespace Ui {
class FormBatch;
}

class QLineEdit;

namespace varnel {

class BatchProgress;
class QueueModel;
class QueuePictures;

class FormBatch : public QDialog {
    Q_OBJECT

  public:
    // A run takes its entries out of the queue. While one is under way the dialog shows that. The
    // job's choices are taken over when the dialog closes and when a run starts; as long as no
    // folder was chosen, they come from the settings. queueChanged is called with the queue's new
    // length.
    FormBatch(RecordArray<ImageRecord>& queue, BatchJob& job, const GeneralSettings& settings,
              Notices& notices, std::function<void(int)> queueChanged, QWidget* parent = nullptr,
              const FolderChooser::Volumes& volumes = MountedVolumes);
    ~FormBatch() override;
    // Before it is shown: who reads the small pictures, other than the job's reader.
    void ReadPicturesBy(BatchJob::NewReader newReader);

    // Escape and the window's close button; during a run they count as Stop.
    void reject() override;
    void done(int result) override;

  Q_SIGNALS:
    // A file that the run has written.
    void ShowInFolderWanted(const QString& path);

  private:
    void FillChoices();
    void AddNameAdditions();
    void ConnectControls();
    void ConnectRun();
    QString StartFolder() const;
    BatchChoices Choices() const;

    NameFacts FirstFacts(const BatchChoices& choices) const;

    void ShowQueue();
    void ShowNames();
    void ShowSpace();
    void ShowRunning(bool running);
    void ShowPaused(bool paused);
    void ShowEnd();
    void ShowSummary(const BatchSummary& summary);

    void Process();
    void ClearQueue();
    void MakeFolder();

    std::unique_ptr<Ui::FormBatch> ui_;
    RecordArray<ImageRecord>& queue_;
    BatchJob& job_;
    const GeneralSettings& settings_;
    Notices& notices_;
    std::function<void(int)> queueChanged_;
    std::unique_ptr<QueueModel> lines_;
    std::unique_ptr<FolderChooser> place_;
    std::unique_ptr<QueuePictures> pictures_;
    std::map<Projection, QLineEdit*> additions_;
};

}  // namespace varnel
