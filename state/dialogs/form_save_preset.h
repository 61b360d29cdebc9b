// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A photo's settings and those of the output as a preset of the user: its name, and which of them
// it holds. A preset of the user that has the name already is replaced, after a word about it.
// Throws nothing.
#pragma once

#include <QDialog>
#include <memory>

#include "pipeline/output/preset_output.h"

class QCheckBox;

namespace Ui {
class FormSavePreset;
}

namespace varnel {

class FormSavePreset : public QDialog {
    Q_OBJECT

  public:
    FormSavePreset(const ImageRecord& image, const GeneralSettings& settings, SettingsStore& store,
                   QWidget* parent = nullptr);
    ~FormSavePreset() override;

  private:
    struct PartBox {
        PresetPart part;
        QCheckBox* box;
    };
    std::vector<PartBox> Boxes() const;
    void Propose();
    PresetParts Parts() const;
    QString Name() const;
    void ShowState();
    void Save();

    std::unique_ptr<Ui::FormSavePreset> ui_;
    const ImageRecord image_;
    const GeneralSettings settings_;
    SettingsStore& store_;
};

}  // namespace varnel
