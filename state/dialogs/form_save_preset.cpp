// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/dialogs/form_save_preset.h"

#include "remap/projection/projection_info.h"
#include "state/adjustments/slider_table.h"
#include "ui_form_save_preset.h"

namespace varnel {

FormSavePreset::FormSavePreset(const ImageRecord& image, const GeneralSettings& settings,
                               SettingsStore& store, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormSavePreset>()),
      image_(image),
      settings_(settings),
      store_(store) {
    ui_->setupUi(this);
    ui_->TextName->setMaxLength(longestPresetName);
    Propose();
    connect(ui_->TextName, &QLineEdit::textChanged, this, &FormSavePreset::ShowState);
    for (const auto& [part, box] : Boxes()) {
        connect(box, &QCheckBox::toggled, this, &FormSavePreset::ShowState);
    }
    connect(ui_->CmdOK, &QPushButton::clicked, this, &FormSavePreset::Save);
    connect(ui_->CmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    ShowState();
}

FormSavePreset::~FormSavePreset() = default;

std::vector<FormSavePreset::PartBox> FormSavePreset::Boxes() const {
    return {{PresetPart::Projection, ui_->CheckProjection},
            {PresetPart::OutputAov, ui_->CheckOutputAov},
            {PresetPart::Rotation, ui_->CheckRotation},
            {PresetPart::Shift, ui_->CheckShift},
            {PresetPart::Output, ui_->CheckOutput}};
}

// What the photo shows.
void FormSavePreset::Propose() {
    const Projection projection = ProjectionFromIndex(image_.Projection);
    ui_->CheckProjection->setChecked(true);
    ui_->CheckOutputAov->setChecked(Reads(projection, SliderId::AovOutput));
    ui_->CheckRotation->setChecked(
        Reads(projection, SliderId::X) &&
        (image_.RotateX != 0.0F || image_.RotateY != 0.0F || image_.RotateZ != 0.0F));
    ui_->CheckShift->setChecked(Reads(projection, SliderId::XTranslate) &&
                                (image_.TranslateX != 0.0F || image_.TranslateY != 0.0F));
}

PresetParts FormSavePreset::Parts() const {
    PresetParts parts;
    for (const auto& [part, box] : Boxes()) {
        if (box->isChecked()) {
            parts.push_back(part);
        }
    }
    return parts;
}

QString FormSavePreset::Name() const {
    return ui_->TextName->text().trimmed();
}

void FormSavePreset::ShowState() {
    const Presets own = OwnPresets(store_);
    const bool replaces = FindPreset(own, Name()) != nullptr;
    const QString error =
        Parts().empty() ? tr("Choose what the preset sets.") : PresetNameError(Name(), {});
    ui_->CmdOK->setEnabled(error.isEmpty());
    ui_->LabelMessage->setText(!error.isEmpty() ? error
                               : replaces       ? tr("It replaces your preset of this name.")
                                                : QString());
}

void FormSavePreset::Save() {
    Presets own = OwnPresets(store_);
    Preset saved{Name(), PresetSettings(Parts(), image_, settings_)};
    if (const Preset* const same = FindPreset(own, saved.name)) {
        own[static_cast<std::size_t>(same - own.data())] = std::move(saved);
    } else {
        own.push_back(std::move(saved));
    }
    SaveOwnPresets(store_, own);
    accept();
}

}  // namespace varnel
