// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/dialogs/form_setup.h"

#include <algorithm>
#include <array>
#include <utility>

#include "remap/encode/output_type.h"
#include "state/dialogs/wheel_guard.h"
#include "state/settings/default_choices.h"
#include "ui_form_setup.h"

namespace varnel {

namespace {

// A slider and the spin box beside it show the same number, and the slider sets the range.
void Bind(QSlider* slider, QSpinBox* spinBox) {
    spinBox->setRange(slider->minimum(), slider->maximum());
    spinBox->setValue(slider->value());
    QObject::connect(slider, &QSlider::valueChanged, spinBox, &QSpinBox::setValue);
    QObject::connect(spinBox, &QSpinBox::valueChanged, slider, &QSlider::setValue);
}

struct Check {
    QCheckBox* box;
    bool GeneralSettings::*flag;
};

std::array<Check, 9> ChecksOf(const Ui::FormSetup& ui) {
    return {{{ui.Chroma444Check, &GeneralSettings::JPEGchroma444},
             {ui.FineSamplingCheck, &GeneralSettings::FineSampling},
             {ui.AutoOrientCheck, &GeneralSettings::AutoOrient},
             {ui.OfferGearCheck, &GeneralSettings::OfferGear},
             {ui.TakeGearCheck, &GeneralSettings::TakeGear},
             {ui.WriteMetadataCheck, &GeneralSettings::WriteMetadata},
             {ui.WriteSettingsCheck, &GeneralSettings::WriteSettings},
             {ui.KeepDepthCheck, &GeneralSettings::KeepDepth},
             {ui.LessMemoryCheck, &GeneralSettings::LessMemory}}};
}

}  // namespace

FormSetup::FormSetup(GearTable& gear, GeneralSettings& settings, SettingsStore& store,
                     QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormSetup>()),
      gear_(gear),
      settings_(settings),
      store_(store) {
    ui_->setupUi(this);
    FillGears();
    FillSizes();
    FillFile();
    FillChecks();
    FillLanguages();
    ConnectControls();
}

FormSetup::~FormSetup() = default;

void FormSetup::FillGears() {
    for (int n = 1; n <= gear_.UpperBound(); ++n) {
        ui_->GearCombo->addItem(gear_(n).GearName);
    }
    // Instead of a default gear that is not in the table the first one is chosen.
    ui_->GearCombo->setCurrentIndex(std::max(gear_.Find(gear_.DefaultGearName) - 1, 0));
}

void FormSetup::FillSizes() {
    const auto fill = [](QSlider* slider, QSpinBox* spinBox, QLabel* label, int side) {
        const auto show = [label](int pixels) { label->setText(tr("%1 pixels").arg(pixels)); };
        slider->setRange(smallestPreviewSide, largestPreviewSide);
        slider->setValue(side);
        show(slider->value());
        Bind(slider, spinBox);
        connect(slider, &QSlider::valueChanged, label, show);
    };
    fill(ui_->SliderPreviewWidth, ui_->SpinSliderPreviewWidth, ui_->LabelPreviewWidth,
         settings_.PreviewWidth);
    fill(ui_->SliderPreviewHeight, ui_->SpinSliderPreviewHeight, ui_->LabelPreviewHeight,
         settings_.PreviewHeight);
}

void FormSetup::FillFile() {
    ui_->ComboFileType->clear();
    for (const OutputType type : AllOutputTypes()) {
        ui_->ComboFileType->addItem(ToText(type));
    }
    ui_->ComboFileType->setCurrentText(ToText(OutputTypeFromText(settings_.FileType)));
    for (const auto& [compression, text] : {std::pair{TiffCompression::Usual, tr("Automatic")},
                                            {TiffCompression::Lzw, QStringLiteral("LZW")},
                                            {TiffCompression::Deflate, QStringLiteral("Deflate")},
                                            {TiffCompression::Zstd, QStringLiteral("Zstandard")},
                                            {TiffCompression::None, tr("None")}}) {
        ui_->ComboTiffCompression->addItem(text, ToText(compression));
    }
    ui_->ComboTiffCompression->setCurrentIndex(
        std::max(0, ui_->ComboTiffCompression->findData(settings_.TiffCompression)));
    ui_->SliderJPEGcompression->setRange(lowestJpegQuality, highestJpegQuality);
    ui_->SliderJPEGcompression->setValue(settings_.JPEGcompression);
    Bind(ui_->SliderJPEGcompression, ui_->SpinSliderJPEGcompression);
}

void FormSetup::FillChecks() {
    for (const auto& [box, flag] : ChecksOf(*ui_)) {
        box->setChecked(settings_.*flag);
    }
}

void FormSetup::FillLanguages() {
    for (const Language& language : languages) {
        ui_->ComboLanguage->addItem(language.name.toString(), QString(language.code));
    }
    ui_->ComboLanguage->setCurrentIndex(LanguagePosition(settings_.Language));
}

void FormSetup::ConnectControls() {
    const auto forget = [this] { ui_->LabelSaved->clear(); };
    for (QSlider* const slider : findChildren<QSlider*>()) {
        new WheelGuard(slider);
        connect(slider, &QSlider::valueChanged, this, forget);
    }
    for (QComboBox* const combo : findChildren<QComboBox*>()) {
        new WheelGuard(combo);
        connect(combo, &QComboBox::currentIndexChanged, this, forget);
    }
    for (const Check& check : ChecksOf(*ui_)) {
        connect(check.box, &QCheckBox::toggled, this, forget);
    }
    connect(ui_->CommandOK, &QPushButton::clicked, this, [this] {
        SetMyDefaults();
        accept();
    });
    connect(ui_->CommandCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->CommandSaveDefault, &QPushButton::clicked, this, &FormSetup::SaveAsDefault);
}

void FormSetup::SetMyDefaults() {
    gear_.DefaultGearName = ui_->GearCombo->currentText();
    settings_.PreviewWidth = ui_->SliderPreviewWidth->value();
    settings_.PreviewHeight = ui_->SliderPreviewHeight->value();
    settings_.FileType = ui_->ComboFileType->currentText();
    settings_.TiffCompression = ui_->ComboTiffCompression->currentData().toString();
    settings_.JPEGcompression = static_cast<std::int16_t>(ui_->SliderJPEGcompression->value());
    for (const auto& [box, flag] : ChecksOf(*ui_)) {
        settings_.*flag = box->isChecked();
    }
    settings_.Language = ui_->ComboLanguage->currentData().toString();
}

void FormSetup::SaveAsDefault() {
    SetMyDefaults();
    SaveDefaults(store_, gear_.DefaultGearName, settings_);
    ui_->LabelSaved->setText(tr("Saved"));
}

}  // namespace varnel
