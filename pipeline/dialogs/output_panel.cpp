// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/output_panel.h"

#include <QRegularExpressionValidator>

#include "pipeline/dialogs/slider_binding.h"
#include "pipeline/output/name_pattern.h"
#include "remap/encode/output_format.h"
#include "state/dialogs/wheel_guard.h"
#include "state/settings/default_choices.h"
#include "ui_output_panel.h"

namespace varnel {

OutputPanel::OutputPanel(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::OutputPanel>()) {
    ui_->setupUi(this);
    for (const OutputType type : AllOutputTypes()) {
        ui_->ComboFileType->addItem(ToText(type));
    }
    new WheelGuard(ui_->ComboFileType);
    ui_->SliderJPEGcompression->setRange(lowestJpegQuality, highestJpegQuality);
    Bind(*ui_->SliderJPEGcompression, *ui_->SpinSliderJPEGcompression);
    // A folder would send the file elsewhere; the rest is not allowed in names on memory cards.
    ui_->TextNamePattern->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral(R"([^/\\:*?"<>|]*)")), this));
    ui_->TextNamePattern->setToolTip(
        tr("What the files are called. Tokens: %1").arg(PatternTokens().join(u' ')));
    connect(ui_->ComboFileType, &QComboBox::currentIndexChanged, this, &OutputPanel::WishChanged);
    connect(ui_->SliderJPEGcompression, &QSlider::valueChanged, this, &OutputPanel::WishChanged);
    connect(ui_->Chroma444Check, &QCheckBox::toggled, this, &OutputPanel::WishChanged);
    connect(ui_->FineSamplingCheck, &QCheckBox::toggled, this, &OutputPanel::WishChanged);
    connect(ui_->WriteMetadataCheck, &QCheckBox::toggled, this, &OutputPanel::WishChanged);
    connect(ui_->TextNamePattern, &QLineEdit::textChanged, this, &OutputPanel::WishChanged);
    connect(ui_->NextToPhotoCheck, &QCheckBox::toggled, this, &OutputPanel::NextToPhotoToggled);
    connect(this, &OutputPanel::WishChanged, this, &OutputPanel::ShowState);
    ShowState();
}

OutputPanel::~OutputPanel() = default;

void OutputPanel::Show(const SaveWish& wish, const QString& usual) {
    usualPattern_ = usual;
    shown_ = wish.encoding;
    SetType(wish.encoding.type);
    ui_->SliderJPEGcompression->setValue(wish.encoding.quality);
    ui_->Chroma444Check->setChecked(wish.encoding.chroma444);
    ui_->FineSamplingCheck->setChecked(wish.sampling == SamplingKind::Fine);
    ui_->WriteMetadataCheck->setChecked(wish.writeMetadata);
    ui_->TextNamePattern->setText(wish.pattern.isEmpty() ? usual : wish.pattern);
    ui_->TextNamePattern->setPlaceholderText(usual);
    ShowState();
}

SaveWish OutputPanel::Wish() const {
    const QString pattern = ui_->TextNamePattern->text().trimmed();
    OutputEncoding encoding = shown_;
    encoding.type = OutputTypeFromText(ui_->ComboFileType->currentText());
    encoding.quality = ui_->SliderJPEGcompression->value();
    encoding.chroma444 = ui_->Chroma444Check->isChecked();
    return {encoding, ui_->WriteMetadataCheck->isChecked(),
            pattern == usualPattern_ || !PatternError().isEmpty() ? QString() : pattern,
            ui_->FineSamplingCheck->isChecked() ? SamplingKind::Fine : SamplingKind::Classic};
}

// An empty box means the usual names.
QString OutputPanel::PatternError() const {
    const QString pattern = ui_->TextNamePattern->text().trimmed();
    return pattern.isEmpty() ? QString() : varnel::PatternError(pattern);
}

void OutputPanel::ShowExample(const QString& name) {
    const QString error = PatternError();
    ui_->LabelExample->setText(error.isEmpty() ? name : error);
    ui_->LabelExample->setToolTip(ui_->LabelExample->text());
}

void OutputPanel::ShowSize(const QString& size) {
    ui_->LabelExpectedSize->setText(size);
}

QList<QWidget*> OutputPanel::TabOrder() const {
    return {ui_->ComboFileType,   ui_->SliderJPEGcompression, ui_->SpinSliderJPEGcompression,
            ui_->Chroma444Check,  ui_->FineSamplingCheck,     ui_->WriteMetadataCheck,
            ui_->TextNamePattern, ui_->NextToPhotoCheck};
}

void OutputPanel::HideType() {
    ui_->ComboFileType->hide();
    ui_->HeadingComboFileType->hide();
}

void OutputPanel::SetType(OutputType type) {
    ui_->ComboFileType->setCurrentText(ToText(type));
}

bool OutputPanel::NextToPhoto() const {
    return ui_->NextToPhotoCheck->isChecked();
}

void OutputPanel::SetNextToPhoto(bool on) {
    ui_->NextToPhotoCheck->setChecked(on);
}

// What the type does not take is out of reach.
void OutputPanel::ShowState() {
    const OutputFormat& format = FormatOf(Wish().encoding.type);
    const bool takesQuality = format.takesQuality;
    ui_->SliderJPEGcompression->setEnabled(takesQuality);
    ui_->SpinSliderJPEGcompression->setEnabled(takesQuality);
    ui_->HeadingSliderJPEGcompression->setEnabled(takesQuality);
    ui_->Chroma444Check->setEnabled(format.takesChroma);
    ui_->WriteMetadataCheck->setEnabled(format.holds.metadata);
}

}  // namespace varnel
