// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/form_stretch.h"

#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMimeData>
#include <QProgressBar>
#include <QScopeGuard>
#include <new>

#include "base/error_text.h"
#include "base/rounding.h"
#include "base/shortage.h"
#include "pipeline/dialogs/slider_binding.h"
#include "pipeline/output/output_name.h"
#include "pipeline/output/save_wish.h"
#include "remap/display/hourglass.h"
#include "remap/display/paint.h"
#include "remap/encode/save_bitmap.h"
#include "remap/image/photo_metadata.h"
#include "remap/image/preview_size.h"
#include "ui_form_stretch.h"

namespace varnel {

namespace {

constexpr PixelSize largestPreview{1920, 1200};

// A bar that repaints at most every 30 ms; input goes on being handled.
class BarProgress : public RenderProgress {
  public:
    explicit BarProgress(QProgressBar* bar) : bar_(bar) {}
    void HandleEvents() override { QCoreApplication::processEvents(); }
    void Begin(float maximum) override {
        bar_->setRange(0, static_cast<int>(maximum));
        bar_->setValue(0);
        bar_->show();
        sincePainted_.start();
    }
    void Advance(float value) override {
        if (sincePainted_.elapsed() >= 30) {
            sincePainted_.restart();
            bar_->setValue(static_cast<int>(value));
            HandleEvents();
        }
    }
    void Pause() override { Advance(static_cast<float>(bar_->value())); }
    void End() override { bar_->hide(); }

  private:
    QProgressBar* bar_;
    QElapsedTimer sincePainted_;
};

QString LocalFileOf(const QMimeData& dropped) {
    const QList<QUrl> urls = dropped.urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

PixelSize PixelsOf(QSize logical, double ratio) {
    return {std::max(CLng(logical.width() * ratio, ReasonCode::Side), 1),
            std::max(CLng(logical.height() * ratio, ReasonCode::Side), 1)};
}

}  // namespace

FormStretch::FormStretch(const GeneralSettings& settings, PhotoLoader& photos,
                         PhotoChooser choosePhoto, FileChooser& fileChooser, ThreadRunner& pool,
                         Notices& notices, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormStretch>()),
      settings_(settings),
      photos_(photos),
      choosePhoto_(std::move(choosePhoto)),
      fileChooser_(fileChooser),
      notices_(notices),
      pool_(pool) {
    ui_->setupUi(this);
    ui_->BarStretch->hide();
    ui_->CmdCancelSave->hide();
    ui_->CmdSave->setEnabled(false);
    setAcceptDrops(true);
    SetUpSliders();
    ConnectControls();
    ShowValues();
}

FormStretch::~FormStretch() = default;

void FormStretch::SetUpSliders() {
    Bind(*ui_->SliderStrength, *ui_->SpinSliderStrength);
    Bind(*ui_->SliderMiddle, *ui_->SpinSliderMiddle);
    ResetByDoubleClick(*ui_->HeadingSliderStrength, {ui_->SliderStrength});
    ResetByDoubleClick(*ui_->HeadingSliderMiddle, {ui_->SliderMiddle});
    const int widest = fontMetrics().horizontalAdvance(tr("100 % narrower"));
    ui_->LabelStrength->setMinimumWidth(widest);
}

void FormStretch::ConnectControls() {
    for (QTimer* const timer : {&drawTimer_, &fitTimer_}) {
        timer->setSingleShot(true);
        timer->setInterval(0);
    }
    connect(&drawTimer_, &QTimer::timeout, this, &FormStretch::DrawPreview);
    connect(&fitTimer_, &QTimer::timeout, this, &FormStretch::FitPreview);
    connect(ui_->PicStretch, &StretchView::RoomChanged, this, [this] { fitTimer_.start(); });
    for (const QSlider* const slider : {ui_->SliderStrength, ui_->SliderMiddle}) {
        connect(slider, &QSlider::valueChanged, this, [this] {
            ShowValues();
            drawTimer_.start();
        });
    }
    connect(ui_->CmdOpen, &QPushButton::clicked, this, [this] {
        const QString folder = path_.isEmpty() ? QString() : QFileInfo(path_).absolutePath();
        if (const QString path = choosePhoto_(folder); !path.isEmpty()) {
            Open(path);
        }
    });
    connect(ui_->CmdSave, &QPushButton::clicked, this, &FormStretch::Save);
    connect(ui_->CmdCancelSave, &QPushButton::clicked, this, [this] { cancelled_ = true; });
    connect(ui_->CmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

StretchCurve FormStretch::Curve() const {
    return {ui_->SliderStrength->value() / 100.0, ui_->SliderMiddle->value() / 100.0};
}

void FormStretch::ShowValues() {
    const auto caption = [](int percent, const QString& positive, const QString& negative) {
        return QString::number(std::abs(percent)) + tr(" %") +
               (percent == 0 ? QString() : u' ' + (percent > 0 ? positive : negative));
    };
    ui_->LabelStrength->setText(caption(ui_->SliderStrength->value(), tr("wider"), tr("narrower")));
    ui_->LabelMiddle->setText(caption(ui_->SliderMiddle->value(), tr("up"), tr("down")));
    ui_->PicStretch->Show(Curve());
}

void FormStretch::Open(const QString& path) {
    if (busy_) {
        return;
    }
    const Hourglass hourglass;
    LoadedPicture loaded;
    BitmapHandle copy;
    PixelSize size;
    const QString shortage = Shortage([&] {
        busy_ = true;  // events are handled meanwhile
        const auto idle = qScopeGuard([this] { busy_ = false; });
        loaded = photos_.Load(path);
        if (loaded.bitmap) {
            size = SizeOf(loaded.bitmap.get());
            copy =
                ReducedCopy(loaded.bitmap.get(), PreviewSize(size, largestPreview, largestPreview));
        }
    });
    if (photos_.GivenUp()) {
        return;
    }
    if (!copy) {
        notices_.Tell(tr("Could not open image"),
                      QStringLiteral("%1: %2").arg(
                          path, shortage.isEmpty() ? ErrorText(loaded.reason) : shortage));
        return;
    }
    path_ = path;
    screenCopy_ = std::move(copy);
    bitmaps_ = {};
    bitmaps_.FullSourceBitmap = std::move(loaded.bitmap);
    ui_->LabelFile->setText(QFileInfo(path).fileName());
    ui_->LabelFile->setToolTip(path);
    ui_->LabelStatus->setText(loaded.reason.isEmpty()
                                  ? tr("%1 x %2 pixels").arg(size.width).arg(size.height)
                                  : ErrorText(loaded.reason));
    ui_->CmdSave->setEnabled(true);
    fitTimer_.start();
}

void FormStretch::FitPreview() {
    if (!screenCopy_ || busy_) {
        return;
    }
    const PixelSize room = PixelsOf(ui_->PicStretch->Room(), devicePixelRatioF());
    const QString shortage = Shortage([&] {
        bitmaps_.PreviewSourceBitmap =
            ReducedCopy(screenCopy_.get(), PreviewSize(SizeOf(screenCopy_.get()), room, room));
    });
    ShowShortage(shortage);
    DrawPreview();
}

void FormStretch::ShowShortage(const QString& shortage) {
    if (!shortage.isEmpty()) {
        ui_->LabelStatus->setText(shortage);
    }
}

void FormStretch::DrawPreview() {
    if (!bitmaps_.PreviewSourceBitmap || busy_) {
        return;
    }
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps_, .runner = &pool_};
    ShowShortage(Shortage([&] {
        RenderStretch(Curve(), SizeKind::Thumbnails, silent, context);
        ui_->PicStretch->Show(ImageOf(bitmaps_.ResultBitmap.get()));
    }));
}

void FormStretch::Save() {
    const SaveChoice proposal{ProposedName(path_, QStringLiteral("Stretch")),
                              FilterIndexOf(OutputTypeFromText(settings_.FileType))};
    const std::optional<SaveChoice> choice =
        AskWhereToSave(fileChooser_, notices_, proposal, path_);
    if (!choice) {
        return;
    }
    SetBusy(true);
    try {
        const Hourglass hourglass;
        RenderAndSave(*choice);
    } catch (const std::bad_alloc&) {
        notices_.Tell(tr("Could not save %1").arg(choice->name), ShortageText(Scarce::Memory));
    }
    bitmaps_.ResultBitmap.reset();  // full size: too much to keep for nothing
    SetBusy(false);
}

SaveResult FormStretch::Rendered(const SaveChoice& choice) {
    BarProgress bar(ui_->BarStretch);
    CancellableProgress progress(bar, cancelled_);
    RenderContext context{.bitmaps = bitmaps_, .runner = &pool_};
    try {
        RenderStretch(Curve(), SizeKind::Large, progress, context);
    } catch (const SavingCancelled&) {
        return {};
    }
    Bitmap* const result = bitmaps_.ResultBitmap.get();
    if (!settings_.WriteMetadata) {
        DropMetadata(result);
    }
    OutputEncoding encoding = EncodingOf(settings_);
    encoding.type = TypeOf(choice);
    return SaveMeanwhile({encoding, choice.name}, result, pool_, bar, cancelled_);
}

void FormStretch::RenderAndSave(const SaveChoice& choice) {
    cancelled_ = false;
    const SaveResult saved = Rendered(choice);
    if (!saved && cancelled_) {
        ui_->LabelStatus->setText(CancelledText());
    } else if (saved) {
        ui_->LabelStatus->setText(saved.note.isEmpty()
                                      ? tr("Saved %1").arg(choice.name)
                                      : tr("Saved %1, %2").arg(choice.name, ErrorText(saved.note)));
        ui_->LabelStatus->setToolTip(ui_->LabelStatus->text());
    } else {
        notices_.Tell(tr("Could not save %1").arg(choice.name), ErrorText(saved.reason));
    }
}

void FormStretch::SetBusy(bool busy) {
    busy_ = busy;
    ui_->FrameControls->setEnabled(!busy);
    ui_->CmdCancelSave->setVisible(busy);
    for (QPushButton* const button : {ui_->CmdOpen, ui_->CmdSave}) {
        button->setEnabled(!busy);
    }
    if (busy) {
        return;
    }
    fitTimer_.start();  // the window may have changed its size meanwhile
    if (std::exchange(closeWanted_, false)) {
        QDialog::reject();
    }
}

void FormStretch::reject() {
    if (busy_) {
        closeWanted_ = true;
        ui_->LabelStatus->setText(tr("Closes when the picture is saved"));
        return;
    }
    QDialog::reject();
}

void FormStretch::dragEnterEvent(QDragEnterEvent* event) {
    if (!busy_ && !LocalFileOf(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void FormStretch::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    Open(LocalFileOf(*event->mimeData()));
}

}  // namespace varnel
