// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_batch.h"

#include <QClipboard>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <utility>

#include "base/run_time_error.h"
#include "pipeline/conversion/batch_checks.h"
#include "pipeline/dialogs/batch_progress.h"
#include "pipeline/dialogs/queue_model.h"
#include "pipeline/dialogs/queue_pictures.h"
#include "remap/projection/projection_info.h"
#include "state/dialogs/wheel_guard.h"
#include "ui_form_batch.h"

namespace varnel {

namespace {

// Its space stays reserved, so that nothing moves when it appears.
void KeepRoomOf(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

void ShowText(QLabel* label, const QString& text) {
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

// There are not letters enough for all.
QString MarkedTitle(Projection projection) {
    return InfoOf(projection).basic ? u'&' + TitleOf(projection) : TitleOf(projection);
}

// The rows scroll where there are many.
int RoomForRows(int height, int rows) {
    constexpr int mostShown = 5;
    return rows <= mostShown ? height : height * mostShown / rows;
}

QString ExampleName(const RecordArray<ImageRecord>& queue, const BatchChoices& choices,
                    const NameFacts& facts) {
    try {
        return queue.Empty() ? QString()
                             : QFileInfo(BatchPath(queue(1), choices, facts)).fileName();
    } catch (const RunTimeError&) {
        return {};  // the run reports it
    }
}

}  // namespace

FormBatch::FormBatch(RecordArray<ImageRecord>& queue, BatchJob& job,
                     const GeneralSettings& settings, Notices& notices,
                     std::function<void(int)> queueChanged, QWidget* parent,
                     const FolderChooser::Volumes& volumes)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormBatch>()),
      queue_(queue),
      job_(job),
      settings_(settings),
      notices_(notices),
      queueChanged_(std::move(queueChanged)),
      lines_(std::make_unique<QueueModel>(queue, job)) {
    ui_->setupUi(this);
    KeepRoomOf(ui_->CmdStop);
    KeepRoomOf(ui_->CmdPause);
    KeepRoomOf(ui_->CmdBackground);
    KeepRoomOf(ui_->CmdCancel);
    lines_->ShowRun(job_.IsRunning());
    ui_->ListQueue->setModel(lines_.get());
    pictures_ = std::make_unique<QueuePictures>(*lines_, *ui_->ListQueue, job_.ReaderMaker(),
                                                settings_.AutoOrient);
    place_ = std::make_unique<FolderChooser>(*ui_->Drive2, *ui_->Dir2, notices, volumes);
    FillChoices();
    ConnectControls();
    ConnectRun();
    place_->Show(StartFolder());
    ShowQueue();
    ShowRunning(job_.IsRunning());
    if (!job_.IsRunning()) {
        ui_->CmdBatchProcess->setFocus();
    }
}

FormBatch::~FormBatch() = default;

void FormBatch::FillChoices() {
    const BatchChoices& last = job_.choices;
    const SaveWish wish = last.folder.isEmpty() ? WishOf(settings_)
                                                : SaveWish{EncodingOf(last), last.writeMetadata,
                                                           last.pattern, last.sampling};
    ui_->PanelOutput->Show(wish, usualPattern);
    ui_->PanelOutput->SetNextToPhoto(job_.choices.nextToPhoto);
    AddNameAdditions();
}

// A row for each projection, above the example.
void FormBatch::AddNameAdditions() {
    // A folder in an addition would send the file elsewhere; the rest is not allowed in names on
    // memory cards.
    auto* const plain = new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral(R"([^/\\:*?"<>|]*)")), this);
    QGridLayout& grid = *ui_->LayoutAdditions;
    QWidget* before = ui_->Dir2;
    for (QWidget* const control : ui_->PanelOutput->TabOrder()) {
        setTabOrder(before, control);
        before = control;
    }
    int gridRow = 0;
    for (const Projection projection : AllProjections()) {
        const QString name = ToText(projection);
        const QString title = TitleOf(projection);
        auto* const box = new QLineEdit(ui_->AdditionRows);
        box->setObjectName(QStringLiteral("TextFileaddition") + name);
        box->setToolTip(tr("What follows the photo's own name in the names of %1 images; empty: "
                           "the word %2")
                            .arg(title, name));
        box->setAccessibleName(tr("Name addition for %1").arg(title));
        box->setMinimumWidth(120);
        box->setPlaceholderText(name);
        box->setText(job_.choices.additions.texts[projection]);
        box->setValidator(plain);
        auto* const heading = new QLabel(MarkedTitle(projection), ui_->AdditionRows);
        heading->setObjectName(QStringLiteral("Heading") + box->objectName());
        heading->setBuddy(box);
        grid.addWidget(heading, gridRow, 0);
        grid.addWidget(box, gridRow++, 1);
        setTabOrder(before, box);
        before = box;
        additions_[projection] = box;
    }
    setTabOrder(before, ui_->CmdStop);
    ui_->ScrollAdditions->setFixedHeight(
        RoomForRows(ui_->AdditionRows->sizeHint().height(), gridRow));
}

void FormBatch::ConnectControls() {
    for (const auto show : {&FormBatch::ShowNames, &FormBatch::ShowSpace}) {
        connect(place_.get(), &FolderChooser::FolderChanged, this, show);
        connect(ui_->PanelOutput, &OutputPanel::WishChanged, this, show);
        connect(ui_->PanelOutput, &OutputPanel::NextToPhotoToggled, this, show);
    }
    for (const auto& [projection, box] : additions_) {
        connect(box, &QLineEdit::textChanged, this, &FormBatch::ShowNames);
    }
    new WheelGuard(ui_->Drive2);
    connect(ui_->CmdNewFolder, &QPushButton::clicked, this, &FormBatch::MakeFolder);
    connect(ui_->CmdBatchProcess, &QPushButton::clicked, this, &FormBatch::Process);
    connect(ui_->CmdShowInFolder, &QPushButton::clicked, this,
            [this] { Q_EMIT ShowInFolderWanted(job_.Summary().written.value(0)); });
    connect(ui_->CmdClearBatchQue, &QPushButton::clicked, this, &FormBatch::ClearQueue);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->CmdCopy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(ui_->TextSummary->toPlainText()); });
}

void FormBatch::ConnectRun() {
    new BatchProgress(job_,
                      {ui_->ListQueue, ui_->LabelImage, ui_->ProgressImage, ui_->LabelProgress,
                       ui_->ProgressRun, ui_->LabelTimeLeft},
                      this);
    connect(ui_->CmdStop, &QPushButton::clicked, &job_, &BatchJob::Stop);
    connect(ui_->CmdPause, &QPushButton::clicked, &job_, [this] { job_.Pause(!job_.IsPaused()); });
    connect(ui_->CmdBackground, &QPushButton::clicked, this, [this] { done(Rejected); });
    connect(&job_, &BatchJob::Stopping, this,
            [this] { ui_->CmdStop->setText(tr("Wait this image")); });
    connect(&job_, &BatchJob::PauseChanged, this, &FormBatch::ShowPaused);
    connect(&job_, &BatchJob::Ended, this, &FormBatch::ShowEnd);
    connect(pictures_.get(), &QueuePictures::DayFound, this, &FormBatch::ShowNames);
}

void FormBatch::ReadPicturesBy(BatchJob::NewReader newReader) {
    pictures_->ReadBy(std::move(newReader));
}

// The last one used; at first where the photos are.
QString FormBatch::StartFolder() const {
    QStringList wishes{job_.choices.folder};
    if (!queue_.Empty()) {
        wishes.append(queue_(1).Folder + u'/');
    }
    for (const QString& wish : wishes) {
        if (!wish.isEmpty() && QFileInfo(wish).isDir()) {
            return wish;
        }
    }
    return QDir::homePath();
}

BatchChoices FormBatch::Choices() const {
    const SaveWish wish = ui_->PanelOutput->Wish();
    BatchChoices choices{place_->Folder(),
                         {},
                         wish.encoding.type,
                         wish.encoding.quality,
                         wish.encoding.chroma444,
                         wish.writeMetadata,
                         settings_.WriteSettings,
                         wish.pattern,
                         ui_->PanelOutput->NextToPhoto(),
                         wish.encoding.depth,
                         wish.encoding.compression,
                         wish.sampling};
    choices.lessMemory = settings_.LessMemory;
    choices.paired = PairedPhotos(queue_);
    choices.film = job_.choices.film;  // as the film bar says
    for (const auto& [projection, box] : additions_) {
        choices.additions.texts[projection] = box->text();
    }
    return choices;
}

// Of the first entry, whose name is the example.
NameFacts FormBatch::FirstFacts(const BatchChoices& choices) const {
    return queue_.Empty() ? NameFacts() : FactsOf(queue_, 1, choices, pictures_->Days());
}

void FormBatch::ShowQueue() {
    const int lines = lines_->rowCount();
    lines_->Reset();
    ui_->HeadingListQueue->setText(lines == 1 ? tr("1 queued image")
                                              : tr("%1 queued images").arg(lines));
    ui_->CmdClearBatchQue->setEnabled(!queue_.Empty());
    if (!lines_->ShowsRun()) {
        ui_->LabelProgress->setText(BatchProgressText(0, lines));
    }
    ShowNames();
    ShowSpace();
}

// What the run will do to the folder.
void FormBatch::ShowNames() {
    const BatchChoices choices = Choices();
    if (NamesDay(choices.pattern)) {
        QStringList paths;
        for (const ImageRecord& entry : queue_) {
            paths.append(SourcePath(entry));
        }
        pictures_->WantDays(paths);
    }
    ui_->FrameFolder->setEnabled(!choices.nextToPhoto);
    ui_->LabelFolder->setText(QDir::toNativeSeparators(choices.folder));
    ui_->LabelFolder->setToolTip(ui_->LabelFolder->text());
    ui_->PanelOutput->ShowExample(ExampleName(queue_, choices, FirstFacts(choices)));
    ui_->CmdBatchProcess->setEnabled(!queue_.Empty() && ui_->PanelOutput->PatternError().isEmpty());
    ShowText(ui_->LabelNames, NamesText(CollidingNames(queue_, choices, pictures_->Days()),
                                        ExistingNames(queue_, choices, pictures_->Days())));
}

void FormBatch::ShowSpace() {
    const BatchChoices choices = Choices();
    const qint64 usual = UsualBytesOf(queue_, choices);
    ui_->PanelOutput->ShowSize(usual == 0 ? QString()
                                          : tr("All images: %1").arg(UsualSizeText(usual)));
    ShowText(ui_->LabelSpace,
             SpaceWarning(ExpectedBytes(queue_, choices), FreeBytes(choices.folder)));
}

void FormBatch::ShowRunning(bool running) {
    ui_->CmdCancel->setVisible(!running);
    ui_->CmdClearBatchQue->setVisible(!running);
    ui_->CmdBatchProcess->setVisible(!running);
    ui_->CmdStop->setVisible(running);
    ui_->CmdPause->setVisible(running);
    ui_->CmdBackground->setVisible(running);
    ui_->CmdStop->setText(job_.IsStopping() ? tr("Wait this image") : tr("Stop"));
    ui_->StackPages->setEnabled(!running);
    ShowPaused(job_.IsPaused());
    if (running) {
        ui_->CmdStop->setFocus();
    }
}

void FormBatch::ShowPaused(bool paused) {
    ui_->CmdPause->setText(paused ? tr("Go on") : tr("Pause"));
    setCursor(job_.IsRunning() && !paused ? Qt::BusyCursor : Qt::ArrowCursor);
}

void FormBatch::ShowEnd() {
    ShowRunning(false);
    ShowQueue();
    if (job_.Shortage().isEmpty()) {
        ShowSummary(job_.Summary());
    } else {
        notices_.Tell(job_.Shortage(), QString());
    }
}

void FormBatch::ShowSummary(const BatchSummary& summary) {
    ui_->TextSummary->setPlainText(SummaryText(summary));
    ui_->CmdShowInFolder->setEnabled(!summary.written.isEmpty());
    ui_->StackPages->setCurrentWidget(ui_->PageSummary);
    ui_->LabelProgress->setText(BatchProgressText(summary.done, summary.queued));
    ui_->LabelTimeLeft->clear();
    ui_->CmdCancel->setText(tr("Close"));
    ui_->CmdCancel->setDefault(true);
    ui_->CmdCancel->setFocus();
}

// Returns when the run has ended, or when the dialog was closed and the run goes on.
void FormBatch::Process() {
    job_.choices = Choices();
    if (const QString error = FoldersError(queue_, job_.choices); !error.isEmpty()) {
        notices_.Tell(error, tr("Choose another folder."));
        return;
    }
    QEventLoop wait;
    connect(this, &QDialog::finished, &wait, &QEventLoop::quit);
    connect(&job_, &BatchJob::Ended, &wait, &QEventLoop::quit);
    job_.Start(std::exchange(queue_, {}), job_.choices, settings_.AutoOrient);
    lines_->ShowRun(true);
    queueChanged_(0);
    ShowRunning(true);
    wait.exec();
}

void FormBatch::ClearQueue() {
    queue_.Clear();
    ShowQueue();
    queueChanged_(0);
}

void FormBatch::MakeFolder() {
    if (!place_->MakeFolder(QStringLiteral("Varnel"))) {
        notices_.Tell(
            tr("No folder can be made in %1").arg(QDir::toNativeSeparators(place_->Folder())),
            QString());
    }
}

void FormBatch::reject() {
    if (job_.IsRunning()) {
        job_.Stop();
    } else {
        QDialog::reject();
    }
}

void FormBatch::done(int result) {
    job_.choices = Choices();
    QDialog::done(result);
}

}  // namespace varnel
