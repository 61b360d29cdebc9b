// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/form_gear_edit.h"

#include <QDragEnterEvent>
#include <QEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <QUrl>

#include "base/error_text.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/from_photo/photo_gear.h"
#include "gear/lens/import/lensfun_data.h"
#include "state/dialogs/wheel_guard.h"
#include "ui_form_gear_edit.h"

namespace varnel {

namespace {

// Fills a combo box and leaves nothing chosen.
void Offer(QComboBox* combo, const QStringList& texts) {
    const QSignalBlocker quiet(combo);
    combo->clear();
    combo->addItems(texts);
    combo->setCurrentIndex(-1);
}

void Select(QComboBox* combo, const QString& text) {
    const QSignalBlocker quiet(combo);
    combo->setCurrentIndex(combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

// Wherever the next key or click could land in the middle of a text.
bool MayEdit(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::InputMethod || type == QEvent::FocusIn ||
           type == QEvent::MouseButtonRelease;
}

}  // namespace

FormGearEdit::FormGearEdit(GearTable& table, const GearEditorPorts& ports, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormGearEdit>()),
      table_(table),
      ports_(ports),
      choice_(ports.store) {
    ui_->setupUi(this);
    prompt_ = ui_->GearNameText->text();
    ConnectNameText();
    ConnectChoice();
    adjusters_ = new GearAdjusters(*ui_, table_, this);
    connect(adjusters_, &GearAdjusters::Moved, this, &FormGearEdit::ShowState);
    ConnectLenses();
    SetUpResult();
    connect(ui_->CmdCatalogue, &QPushButton::clicked, this, &FormGearEdit::UseCatalogue);
    connect(ui_->CmdAdd, &QPushButton::clicked, this, &FormGearEdit::Confirm);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &FormGearEdit::reject);
    Open();
}

FormGearEdit::~FormGearEdit() = default;

void FormGearEdit::Propose(const GearRecord& known) {
    choice_.Remember(known);
    OfferLenses();
    if (!known.GearName.isEmpty()) {
        ui_->GearNameText->setText(known.GearName);
    }
    SelectNames(NamesOf(known));
    if (BothChosen()) {
        TakeKnown(known, table_(0));
        opened_ = table_(0);
    }
    Refresh();
    ShowState();
    if (BothChosen()) {
        ui_->CmdAdd->setFocus();
    } else {
        ui_->LensBrandCombo->setFocus();
    }
}

// Also for Escape and for the window's close button.
void FormGearEdit::reject() {
    table_(0).GearName.clear();
    QDialog::reject();
}

bool FormGearEdit::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->GearNameText) {
        if (MayEdit(event->type()) && NameIsPrompt()) {
            ui_->GearNameText->selectAll();  // what is typed replaces the prompt whole
        }
        return false;
    }
    return QDialog::eventFilter(watched, event);
}

// Lines of text that come and go need more height than the layout asks for by itself.
bool FormGearEdit::event(QEvent* event) {
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        resize(size().expandedTo({0, layout()->totalHeightForWidth(width())}));
    }
    return handled;
}

void FormGearEdit::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        ShowPromptPale();
    }
}

void FormGearEdit::ConnectNameText() {
    ui_->GearNameText->installEventFilter(this);
    connect(ui_->GearNameText, &QLineEdit::textChanged, this, &FormGearEdit::ShowPromptPale);
    ShowPromptPale();
}

void FormGearEdit::ConnectChoice() {
    for (QComboBox* combo : findChildren<QComboBox*>()) {
        new WheelGuard(combo);
    }
    connect(ui_->CameraBrandCombo, &QComboBox::currentTextChanged, this, [this](const QString& b) {
        Offer(ui_->CameraCombo, FillCameraModels(b));
        ShowState();
    });
    connect(ui_->LensBrandCombo, &QComboBox::currentTextChanged, this, [this](const QString& b) {
        Offer(ui_->LensCombo, choice_.Models(b));
        ShowState();
    });
    connect(ui_->CameraCombo, &QComboBox::currentIndexChanged, this, &FormGearEdit::Choose);
    connect(ui_->LensCombo, &QComboBox::currentIndexChanged, this, &FormGearEdit::Choose);
}

void FormGearEdit::Open() {
    opened_ = table_(0);
    isNew_ = table_(0).GearName.isEmpty();
    setWindowTitle(isNew_ ? tr("New camera + lens combination")
                          : tr("Redefine camera + lens combination"));
    ui_->CmdAdd->setText(isNew_ ? tr("Add") : tr("Update"));
    Offer(ui_->CameraBrandCombo, FillCameraBrands());
    choice_.Remember(table_(0));
    OfferLenses();
    if (isNew_) {
        ui_->CameraBrandCombo->setFocus();  // a name is optional
    } else {
        ui_->GearNameText->setText(table_(0).GearName);
        SelectNames(NamesOf(table_(0)));
        Refresh();
    }
    ShowState();
}

void FormGearEdit::SelectNames(const GearNames& names) {
    Select(ui_->CameraBrandCombo, names.cameraBrand);
    Offer(ui_->CameraCombo, FillCameraModels(ui_->CameraBrandCombo->currentText()));
    Select(ui_->CameraCombo, names.cameraModel);
    Select(ui_->LensBrandCombo, names.lensBrand);
    Offer(ui_->LensCombo, choice_.Models(ui_->LensBrandCombo->currentText()));
    Select(ui_->LensCombo, names.lensModel);
}

// Another camera or another lens comes with its own numbers; what the user made of the gear's own
// camera and lens comes back with them.
void FormGearEdit::Choose() {
    if (ChosenNames() == NamesOf(opened_)) {
        table_(0) = opened_;
    } else {
        DropAdjustments(table_(0));
        const GearNames names = ChosenNames();
        table_(0).Lens = choice_.Curve(names.lensBrand, names.lensModel);
    }
    Refresh();
    ShowState();
}

void FormGearEdit::Refresh() {
    if (!table_(0).UserAdjusted) {
        FillGearFromCatalogue(ChosenNames(), table_(0));
    }
    if (!BothChosen()) {
        return;  // there are no angles yet
    }
    adjusters_->Show();
    ui_->LabelLensOrigin->setText(LacksLens(table_(0)) ? tr("The file of this lens is not there.")
                                  : table_(0).Lens     ? OriginText(*table_(0).Lens)
                                                       : QString());
}

void FormGearEdit::ConnectLenses() {
    ownLenses_ = new OwnLensTools(
        {ui_->CmdLens, ui_->LabelLensLine, ui_->LensNameText, ui_->CmdLensName, ui_->CmdLensUndo},
        ports_, choice_, table_, this);
    connect(ownLenses_, &OwnLensTools::Renamed, this, &FormGearEdit::OnLensRenamed);
    connect(ownLenses_, &OwnLensTools::Changed, this, &FormGearEdit::OnLensesChanged);
    setAcceptDrops(choice_.Folder().has_value());
    ui_->CmdTypical->setVisible(choice_.Folder().has_value());
    connect(ui_->CmdTypical, &QPushButton::clicked, this,
            [this] { ChooseLens(typicalLensBrand, typicalLensModels[0]); });
    if (choice_.Folder() && !ports_.lensfun.isEmpty()) {
        lensfun_.Start([folders = ports_.lensfun](
                           const auto& stopped) { return LensfunFisheyes(folders, &stopped); },
                       [this](const QList<SampledLens>& lenses) {
                           choice_.SetLensfun(lenses);
                           OfferLenses();
                       });
    }
}

// What was chosen stays chosen.
void FormGearEdit::OfferLenses() {
    const GearNames chosen = ChosenNames();
    Offer(ui_->LensBrandCombo, choice_.Brands());
    Select(ui_->LensBrandCombo, chosen.lensBrand);
    Offer(ui_->LensCombo, choice_.Models(ui_->LensBrandCombo->currentText()));
    Select(ui_->LensCombo, chosen.lensModel);
}

void FormGearEdit::OnLensesChanged(const QString& name) {
    if (!name.isEmpty()) {
        ChooseLens(ownLensBrand, name);
        return;
    }
    OfferLenses();
    Choose();
}

void FormGearEdit::OnLensRenamed(const QString& name, const LensReference& renamed) {
    if (opened_.LensBrand == ownLensBrand && opened_.LensModel == name) {
        opened_.LensModel = renamed->name;
        opened_.Lens = renamed;
    }
    if (ports_.renamed) {
        ports_.renamed(name, renamed);
    }
}

void FormGearEdit::ChooseLens(const QString& brand, const QString& model) {
    Offer(ui_->LensBrandCombo, choice_.Brands());
    Select(ui_->LensBrandCombo, brand);
    Offer(ui_->LensCombo, choice_.Models(brand));
    Select(ui_->LensCombo, model);
    Choose();
}

bool FormGearEdit::KeepLens() {
    const Reason reason = choice_.Keep(table_(0));
    if (!reason.isEmpty()) {
        ownLenses_->ShowLine(tr("The lens could not be kept: %1").arg(ErrorText(reason)));
    }
    return reason.isEmpty();
}

void FormGearEdit::SetUpResult() {
    ui_->CmdFromPhoto->setVisible(ports_.photos != nullptr && ports_.choosePhoto);
    connect(ui_->CmdFromPhoto, &QPushButton::clicked, this, &FormGearEdit::ReadPhoto);
    ui_->FrameResult->setVisible(ports_.store != nullptr);
    if (ports_.store == nullptr) {
        return;
    }
    result_ = new GearResult(ui_->PicResult, ui_->ResultCombo);
    if (ports_.photo != nullptr && ports_.image != nullptr) {
        result_->SetPhoto(*ports_.photo, *ports_.image);
    }
}

void FormGearEdit::ShowResult() {
    if (result_ == nullptr) {
        return;
    }
    ui_->LabelResult->setText(result_->HasPhoto() ? tr("Of the photo")
                                                  : tr("Of a drawn room, seen by this lens"));
    if (BothChosen() && !LacksLens(table_(0))) {
        result_->Show(table_(0));
    } else {
        result_->Clear();
    }
}

void FormGearEdit::ReadPhoto() {
    const QString path = ports_.choosePhoto();
    if (path.isEmpty()) {
        return;
    }
    const LoadedPicture photo = ports_.photos->Load(path);
    if (!isVisible() || ports_.photos->GivenUp()) {
        return;
    }
    if (photo.outcome != LoadOutcome::Loaded) {
        ownLenses_->ShowLine(path + QStringLiteral(": ") + ErrorText(photo.reason));
        return;
    }
    if (result_ != nullptr) {
        ImageRecord image;
        image.Orientation = static_cast<std::int16_t>(photo.orientation);
        result_->SetPhoto(*photo.bitmap, image);
    }
    TakeOrigin(photo.bitmap->metadata.photo.origin);
}

// What the photo does not tell stays as it was chosen.
void FormGearEdit::TakeOrigin(const CameraInfo& origin) {
    const PhotoGear found = GearOfPhoto(origin, GearTable());
    GearNames names = ChosenNames();
    if (!found.names.cameraModel.isEmpty()) {
        names.cameraBrand = found.names.cameraBrand;
        names.cameraModel = found.names.cameraModel;
    }
    if (!found.names.lensModel.isEmpty()) {
        names.lensBrand = found.names.lensBrand;
        names.lensModel = found.names.lensModel;
    }
    SelectNames(names);
    Choose();
    ownLenses_->ShowLine(found.IsWhole() ? tr("Taken with %1.").arg(found.takenWith) : found.said);
}

void FormGearEdit::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.constFirst().isLocalFile()) {
        event->acceptProposedAction();
    }
}

void FormGearEdit::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    ownLenses_->Import(event->mimeData()->urls().constFirst().toLocalFile());
}

void FormGearEdit::UseCatalogue() {
    DropAdjustments(table_(0));
    Refresh();
    ShowState();
    ui_->SliderhAOV->setFocus();  // the button is disabled now and cannot keep it
}

void FormGearEdit::Confirm() {
    if (!KeepLens()) {
        return;
    }
    GearNames names = ChosenNames();
    if (table_(0).Lens) {
        names.lensBrand = table_(0).LensBrand;
        names.lensModel = table_(0).LensModel;
    }
    const QString typed = NameIsPrompt() ? QString() : ui_->GearNameText->text();
    DefineEditedGear(table_, {typed, names, isNew_});
    accept();
}

void FormGearEdit::ShowState() {
    ShowResult();
    const bool chosen = BothChosen();
    const bool adjusted = table_(0).SetByHand;
    ui_->CmdAdd->setEnabled(chosen);
    ui_->FrameAdjust->setEnabled(chosen);
    ui_->CmdCatalogue->setEnabled(chosen && adjusted);
    if (!chosen) {
        ui_->LabelAdjusted->setText(tr("Choose a camera and a lens first."));
    } else if (table_(0).Own.HasLens()) {
        ui_->LabelAdjusted->setText(tr("The numbers of the lens are set by hand."));
    } else if (adjusted && HasOwnAngle(table_(0)) && !HasOwnCircle(table_(0))) {
        ui_->LabelAdjusted->setText(tr("The angle of view is set by hand."));
    } else if (adjusted) {
        ui_->LabelAdjusted->setText(tr("Ratio and offsets are set by hand."));
    } else {
        ui_->LabelAdjusted->setText(tr("Values of the catalogue."));
    }
}

void FormGearEdit::ShowPromptPale() {
    QPalette colours = palette();
    if (NameIsPrompt()) {
        colours.setBrush(QPalette::Text, colours.placeholderText());
    }
    ui_->GearNameText->setPalette(colours);
}

bool FormGearEdit::NameIsPrompt() const {
    return ui_->GearNameText->text() == prompt_;
}

bool FormGearEdit::BothChosen() const {
    return ui_->CameraCombo->currentIndex() >= 0 && ui_->LensCombo->currentIndex() >= 0;
}

GearNames FormGearEdit::ChosenNames() const {
    return {ui_->CameraBrandCombo->currentText(), ui_->CameraCombo->currentText(),
            ui_->LensBrandCombo->currentText(), ui_->LensCombo->currentText()};
}

}  // namespace varnel
