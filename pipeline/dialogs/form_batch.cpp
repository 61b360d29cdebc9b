// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_batch.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QScopeGuard>

#include "base/run_time_error.h"
#include "base/shortage.h"
#include "pipeline/conversion/batch_checks.h"
#include "pipeline/dialogs/batch_progress.h"
#include "pipeline/dialogs/queue_model.h"
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

// Stop stays at hand while a photo is read; the photo itself is finished first.
class EventsMeanwhile : public ReadingWait {
  public:
    bool Continue() override {
        QCoreApplication::processEvents();
        return true;
    }
};

QString ExampleName(const RecordArray<ImageRecord>& queue, const BatchChoices& choices) {
    try {
        return queue.Empty()
                   ? QString()
                   : QFileInfo(BatchPath(queue(1), choices, FactsOf(queue, 1, choices, {})))
                         .fileName();
    } catch (const RunTimeError&) {
        return {};  // the run reports it
    }
}

}  // namespace

FormBatch::FormBatch(RecordArray<ImageRecord>& queue, BatchChoices& choices,
                     GeneralSettings& settings, BatchWorkers workers, Notices& notices,
                     std::function<void(int)> queueChanged, QWidget* parent,
                     const FolderChooser::Volumes& volumes)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormBatch>()),
      queue_(queue),
      choices_(choices),
      settings_(settings),
      workers_(workers),
      notices_(notices),
      queueChanged_(std::move(queueChanged)),
      lines_(std::make_unique<QueueModel>(queue)) {
    ui_->setupUi(this);
    KeepRoomOf(ui_->CmdStop);
    KeepRoomOf(ui_->CmdCancel);
    ui_->ListQueue->setModel(lines_.get());
    place_ = std::make_unique<FolderChooser>(*ui_->Drive2, *ui_->Dir2, notices, volumes);
    progress_ = std::make_unique<BatchProgress>(
        BatchProgressWidgets{ui_->ListQueue, ui_->LabelImage, ui_->ProgressImage,
                             ui_->LabelProgress, ui_->ProgressRun, ui_->LabelTimeLeft});
    FillChoices();
    ConnectControls();
    place_->Show(StartFolder());
    ShowRunning(false);
    ShowQueue();
    ui_->CmdBatchProcess->setFocus();
}

FormBatch::~FormBatch() = default;

void FormBatch::FillChoices() {
    SaveWish wish = WishOf(settings_);
    if (!choices_.folder.isEmpty()) {
        wish.encoding.type = choices_.type;
        wish.encoding.quality = choices_.jpegQuality;
    }
    ui_->PanelOutput->Show(wish, usualPattern);
    ui_->PanelOutput->SetNextToPhoto(choices_.nextToPhoto);
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
        auto* const box = new QLineEdit(ui_->FrameAdditions);
        box->setObjectName(QStringLiteral("TextFileaddition") + name);
        box->setToolTip(tr("What follows the photo's own name in the names of %1 images; empty: "
                           "the word %1")
                            .arg(name));
        box->setAccessibleName(tr("Name addition for %1").arg(name));
        box->setMinimumWidth(120);
        box->setPlaceholderText(name);
        box->setText(choices_.additions.texts[projection]);
        box->setValidator(plain);
        auto* const heading = new QLabel(u'&' + name, ui_->FrameAdditions);
        heading->setObjectName(QStringLiteral("Heading") + box->objectName());
        heading->setBuddy(box);
        grid.addWidget(heading, gridRow, 0);
        grid.addWidget(box, gridRow++, 1);
        setTabOrder(before, box);
        before = box;
        additions_[projection] = box;
    }
    setTabOrder(before, ui_->CmdStop);
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
    connect(ui_->CmdStop, &QPushButton::clicked, this, &FormBatch::Stop);
    connect(ui_->CmdClearBatchQue, &QPushButton::clicked, this, &FormBatch::ClearQueue);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->CmdCopy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(ui_->TextSummary->toPlainText()); });
}

// The last one used; at first where the photos are.
QString FormBatch::StartFolder() const {
    QStringList wishes{choices_.folder};
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
                         ui_->PanelOutput->NextToPhoto()};
    for (const auto& [projection, box] : additions_) {
        choices.additions.texts[projection] = box->text();
    }
    return choices;
}

void FormBatch::ShowQueue() {
    const int queued = queue_.UpperBound();
    lines_->Reset();
    ui_->HeadingListQueue->setText(queued == 1 ? tr("1 queued image")
                                               : tr("%1 queued images").arg(queued));
    ui_->CmdClearBatchQue->setEnabled(queued > 0);
    ui_->LabelProgress->setText(BatchProgressText(0, queued));
    ShowNames();
    ShowSpace();
}

// What the run will do to the folder.
void FormBatch::ShowNames() {
    const BatchChoices choices = Choices();
    ui_->FrameFolder->setEnabled(!choices.nextToPhoto);
    ui_->LabelFolder->setText(QDir::toNativeSeparators(choices.folder));
    ui_->LabelFolder->setToolTip(ui_->LabelFolder->text());
    ui_->PanelOutput->ShowExample(ExampleName(queue_, choices));
    ui_->CmdBatchProcess->setEnabled(!queue_.Empty() && ui_->PanelOutput->PatternError().isEmpty());
    ShowText(ui_->LabelNames,
             NamesText(CollidingNames(queue_, choices), ExistingNames(queue_, choices)));
}

void FormBatch::ShowSpace() {
    const BatchChoices choices = Choices();
    const qint64 usual = UsualBytes(PixelsOf(queue_), EncodingOf(choices));
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
    ui_->CmdStop->setText(tr("Stop"));
    ui_->StackPages->setEnabled(!running);
    setCursor(running ? Qt::BusyCursor : Qt::ArrowCursor);
    if (running) {
        ui_->CmdStop->setFocus();
    }
}

void FormBatch::ShowSummary(const BatchSummary& summary) {
    ui_->TextSummary->setPlainText(SummaryText(summary));
    ui_->StackPages->setCurrentWidget(ui_->PageSummary);
    ui_->LabelProgress->setText(BatchProgressText(summary.done, summary.queued));
    ui_->LabelTimeLeft->clear();
    ui_->CmdCancel->setText(tr("Close"));
    ui_->CmdCancel->setDefault(true);
    ui_->CmdCancel->setFocus();
}

void FormBatch::Process() {
    choices_ = Choices();
    TakeWish(ui_->PanelOutput->Wish(), settings_);
    if (const QString error = FoldersError(queue_, choices_); !error.isEmpty()) {
        notices_.Tell(error, tr("Choose another folder."));
        return;
    }
    BatchSummary summary;
    const QString shortage = Shortage([&] { summary = Run(); });
    if (!shortage.isEmpty()) {
        notices_.Tell(shortage, QString());
        return;
    }
    for (qsizetype n = 0; n < summary.written.size(); ++n) {
        Q_EMIT Written(queue_(summary.entries[n]), summary.written[n]);
    }
    ClearQueue();
    ShowSummary(summary);
}

BatchSummary FormBatch::Run() {
    progress_->Start(queue_.UpperBound());
    ShowRunning(true);
    const auto atEnd = qScopeGuard([this] {
        ShowRunning(false);
        progress_->Stop();
    });
    EventsMeanwhile wait;
    ThreadRunner& pool = workers_.pool;
    PrefetchingReader feed(workers_.reader, MoreReaders(pool.Cores()), wait, settings_.AutoOrient,
                           &pool);
    ConversionPorts ports = PortsFor(feed);
    ports.cores = &pool;
    return RunBatch(queue_, choices_, *progress_, ports);
}

void FormBatch::Stop() {
    ui_->CmdStop->setText(tr("Wait this image"));
    progress_->Stop();
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
    if (ui_->CmdStop->isVisibleTo(this)) {
        Stop();
    } else {
        QDialog::reject();
    }
}

void FormBatch::done(int result) {
    choices_ = Choices();
    TakeWish(ui_->PanelOutput->Wish(), settings_);
    QDialog::done(result);
}

}  // namespace varnel
