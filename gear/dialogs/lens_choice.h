// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The lenses that the gear editor offers: those of the catalogue, and where lenses can be kept also
// typical ones, the user's own, and lensfun's. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <optional>

#include "gear/lens/lens_folder.h"
#include "state/records/gear_record.h"
#include "state/settings/settings_store.h"

namespace varnel {

class LensChoice {
  public:
    // The user's own lenses lie beside the store, if it is a file.
    explicit LensChoice(const SettingsStore* store);

    const std::optional<LensFolder>& Folder() const { return folder_; }
    // In the order in which they are offered.
    QStringList Brands() const;
    QStringList Models(const QString& brand) const;
    // None for a lens of two numbers, and for one whose file is not there.
    LensReference Curve(const QString& brand, const QString& model) const;

    // Looks at the folder anew.
    void Reload();
    void SetLensfun(const QList<SampledLens>& lenses);
    // Offers the gear's lens, too, although no catalogue and no file may have it.
    void Remember(const GearRecord& gear);
    void Forget();
    // Puts the curve that the gear has among the user's own, unless it is there, and gives it to
    // the gear under that name and brand. Returns why that failed.
    Reason Keep(GearRecord& gear) const;

  private:
    std::optional<LensFolder> folder_;
    using Curves = std::map<QString, LensReference>;  // by model
    std::map<QString, Curves> curves_;                // by brand
    Curves remembered_;                               // of brand remembered, perhaps without curves
    QString rememberedBrand_;
};

// What is to be said of where a curve comes from.
QString OriginText(const SampledLens& lens);

}  // namespace varnel
