// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The batch dialog: where and how the queued photos are to be written, and the run itself. Throws
// std::bad_alloc only; what a run is short of becomes a message.
#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <memory>

#include "pipeline/conversion/batch_run.h"
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

// What a batch reads and works with.
struct BatchWorkers {
    PictureReader& reader;
    ThreadRunner& pool;
};

class FormBatch : public QDialog {
    Q_OBJECT

  public:
    // The choices are taken over when the dialog closes and when a run starts, and so are quality,
    // colour, metadata and pattern of names into the settings, from which they come; as long as no
    // folder was chosen, the file type does, too. queueChanged is called with the queue's new
    // length.
    FormBatch(RecordArray<ImageRecord>& queue, BatchChoices& choices, GeneralSettings& settings,
              BatchWorkers workers, Notices& notices, std::function<void(int)> queueChanged,
              QWidget* parent = nullptr, const FolderChooser::Volumes& volumes = MountedVolumes);
    ~FormBatch() override;

    // Escape and the window's close button; during a run they count as Stop.
    void reject() override;
    void done(int result) override;

  Q_SIGNALS:
    // After a run, for each entry of the queue that was written, with its file.
    void Written(const ImageRecord& entry, const QString& path);

  private:
    void FillChoices();
    void AddNameAdditions();
    void ConnectControls();
    QString StartFolder() const;
    BatchChoices Choices() const;

    void ShowQueue();
    void ShowNames();
    void ShowSpace();
    void ShowRunning(bool running);
    void ShowSummary(const BatchSummary& summary);

    void Process();
    BatchSummary Run();
    void Stop();
    void ClearQueue();
    void MakeFolder();

    std::unique_ptr<Ui::FormBatch> ui_;
    RecordArray<ImageRecord>& queue_;
    BatchChoices& choices_;
    GeneralSettings& settings_;
    BatchWorkers workers_;
    Notices& notices_;
    std::function<void(int)> queueChanged_;
    std::unique_ptr<QueueModel> lines_;
    std::unique_ptr<FolderChooser> place_;
    std::unique_ptr<BatchProgress> progress_;
    std::map<Projection, QLineEdit*> additions_;
};

}  // namespace varnel
