// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/form_gear_edit.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
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

FormGearEdit::FormGearEdit(GearTable& table, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::FormGearEdit>()), table_(table) {
    ui_->setupUi(this);
    prompt_ = ui_->GearNameText->text();
    adjusters_ = {
        {&GearRecord::hAOV, ui_->SliderhAOV, ui_->SpinhAOV, ui_->LabelhAOV, tr(" \u00b0"),
         hAovRange},
        {&GearRecord::GearRatio, ui_->SliderRatio, ui_->SpinRatio, ui_->LabelRatio, tr(" %"),
         ratioRange},
        {&GearRecord::OfsetX, ui_->SliderXofset, ui_->SpinXofset, ui_->LabelXofset,
         tr(" \u2030 hor."), ofsetRange},
        {&GearRecord::OfsetY, ui_->SliderYofset, ui_->SpinYofset, ui_->LabelYofset,
         tr(" \u2030 vert."), ofsetRange},
    };
    ConnectNameText();
    ConnectChoice();
    ConnectAdjusters();
    connect(ui_->CmdCatalogue, &QPushButton::clicked, this, &FormGearEdit::UseCatalogue);
    connect(ui_->CmdAdd, &QPushButton::clicked, this, &FormGearEdit::Confirm);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &FormGearEdit::reject);
    Open();
}

FormGearEdit::~FormGearEdit() = default;

void FormGearEdit::Propose(const GearRecord& known) {
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
        Offer(ui_->LensCombo, FillLensModels(b));
        ShowState();
    });
    connect(ui_->CameraCombo, &QComboBox::currentIndexChanged, this, &FormGearEdit::Choose);
    connect(ui_->LensCombo, &QComboBox::currentIndexChanged, this, &FormGearEdit::Choose);
}

void FormGearEdit::ConnectAdjusters() {
    for (const Adjuster& adjuster : adjusters_) {
        new WheelGuard(adjuster.slider);
        new WheelGuard(adjuster.spin);
        connect(adjuster.spin, &QSpinBox::valueChanged, adjuster.slider, &QSlider::setValue);
        connect(adjuster.slider, &QSlider::valueChanged, this, [this, &adjuster](int value) {
            Follow(adjuster, value);
            TakeAdjustment(adjuster, value);
        });
        // Wide enough for every value, so that nothing moves while a slider is dragged.
        const QString widest = QStringLiteral("-200") + adjuster.unit;
        adjuster.label->setMinimumWidth(fontMetrics().horizontalAdvance(widest));
        Follow(adjuster, adjuster.slider->value());
    }
}

void FormGearEdit::Open() {
    opened_ = table_(0);
    isNew_ = table_(0).GearName.isEmpty();
    setWindowTitle(isNew_ ? tr("New camera + lens combination")
                          : tr("Redefine camera + lens combination"));
    ui_->CmdAdd->setText(isNew_ ? tr("Add") : tr("Update"));
    Offer(ui_->CameraBrandCombo, FillCameraBrands());
    Offer(ui_->LensBrandCombo, FillLensBrands());
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
    Offer(ui_->LensCombo, FillLensModels(ui_->LensBrandCombo->currentText()));
    Select(ui_->LensCombo, names.lensModel);
}

// Another camera or another lens comes with its own numbers; what the user made of the gear's own
// camera and lens comes back with them.
void FormGearEdit::Choose() {
    if (ChosenNames() == NamesOf(opened_)) {
        table_(0) = opened_;
    } else {
        DropAdjustments(table_(0));
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
    for (const Adjuster& adjuster : adjusters_) {
        ShowNumber(adjuster);
    }
}

void FormGearEdit::ShowNumber(const Adjuster& adjuster) {
    const QScopedValueRollback<bool> loading(loading_, true);
    const int position = SliderPosition(table_(0).*adjuster.number);
    const SliderRange range = Widened(adjuster.range, position);
    adjuster.spin->setRange(range.minimum, range.maximum);
    adjuster.slider->setRange(range.minimum, range.maximum);
    adjuster.slider->setValue(position);
}

void FormGearEdit::Follow(const Adjuster& adjuster, int value) {
    adjuster.label->setText(QString::number(value) + adjuster.unit);
    adjuster.spin->setValue(value);
}

void FormGearEdit::TakeAdjustment(const Adjuster& adjuster, int value) {
    if (loading_) {
        return;
    }
    SetNumber(adjuster.number, value, table_(0));
    ShowState();
}

void FormGearEdit::UseCatalogue() {
    DropAdjustments(table_(0));
    Refresh();
    ShowState();
    ui_->SliderhAOV->setFocus();  // the button is disabled now and cannot keep it
}

void FormGearEdit::Confirm() {
    const QString typed = NameIsPrompt() ? QString() : ui_->GearNameText->text();
    DefineEditedGear(table_, {typed, ChosenNames(), isNew_});
    accept();
}

void FormGearEdit::ShowState() {
    const bool chosen = BothChosen();
    const bool adjusted = table_(0).SetByHand;
    ui_->CmdAdd->setEnabled(chosen);
    ui_->FrameAdjust->setEnabled(chosen);
    ui_->CmdCatalogue->setEnabled(chosen && adjusted);
    if (!chosen) {
        ui_->LabelAdjusted->setText(tr("Choose a camera and a lens first."));
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
