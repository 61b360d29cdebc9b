// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/lens_choice.h"

#include <QCoreApplication>
#include <QLocale>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "gear/lens/import/lensfun_data.h"

namespace varnel {

namespace {

QString Translated(const char* text) {
    return QCoreApplication::translate("LensChoice", text);
}

}  // namespace

LensChoice::LensChoice(const SettingsStore* store) {
    if (store != nullptr && !store->Path().isEmpty()) {
        folder_ = LensFolder::Beside(store->Path());
    }
    Reload();
}

QStringList LensChoice::Brands() const {
    QStringList brands = FillLensBrands();
    if (folder_) {
        brands.append({typicalLensBrand, ownLensBrand});
    }
    for (const auto& [brand, curves] : curves_) {
        if (!brands.contains(brand)) {
            brands.append(brand);
        }
    }
    if (!rememberedBrand_.isEmpty() && !brands.contains(rememberedBrand_)) {
        brands.append(rememberedBrand_);
    }
    return brands;
}

QStringList LensChoice::Models(const QString& brand) const {
    if (brand == typicalLensBrand) {
        return {typicalLensModels[0], typicalLensModels[1]};
    }
    QStringList models = FillLensModels(brand);
    if (const auto curves = curves_.find(brand); curves != curves_.end()) {
        for (const auto& [model, curve] : curves->second) {
            models.append(model);
        }
    }
    for (const auto& [model, curve] : remembered_) {
        if (brand == rememberedBrand_ && !models.contains(model)) {
            models.append(model);
        }
    }
    return models;
}

LensReference LensChoice::Curve(const QString& brand, const QString& model) const {
    const auto in = [&](const Curves& curves) {
        const auto found = curves.find(model);
        return found == curves.end() ? LensReference() : found->second;
    };
    const auto curves = curves_.find(brand);
    const LensReference curve = curves == curves_.end() ? LensReference() : in(curves->second);
    return curve || brand != rememberedBrand_ ? curve : in(remembered_);
}

void LensChoice::Reload() {
    curves_.erase(ownLensBrand);
    if (folder_) {
        for (const LensFolder::Entry& entry : folder_->List().entries) {
            curves_[ownLensBrand].try_emplace(entry.lens->name, entry.lens);
        }
    }
}

void LensChoice::SetLensfun(const QList<SampledLens>& lenses) {
    for (const SampledLens& lens : lenses) {
        curves_[lensfunBrand].try_emplace(lens.name, std::make_shared<const SampledLens>(lens));
    }
}

void LensChoice::Remember(const GearRecord& gear) {
    if (gear.Lens || LacksLens(gear)) {
        rememberedBrand_ = gear.LensBrand;
        remembered_ = {{gear.LensModel, gear.Lens}};
    }
}

void LensChoice::Forget() {
    rememberedBrand_.clear();
    remembered_.clear();
}

Reason LensChoice::Keep(GearRecord& gear) const {
    if (!folder_ || !gear.Lens) {
        return {};
    }
    LensReference kept = folder_->Find(gear.Lens->name);
    if (!(kept == gear.Lens)) {
        SampledLens lens = *gear.Lens;
        lens.name = folder_->FreeName(lens.name);
        if (Reason reason = folder_->Add(lens); !reason.isEmpty()) {
            return reason;
        }
        kept = std::make_shared<const SampledLens>(std::move(lens));
    }
    gear.LensBrand = ownLensBrand;
    gear.LensModel = kept->name;
    gear.Lens = kept;
    return {};
}

QString OriginText(const SampledLens& lens) {
    const LensOrigin& origin = lens.origin;
    if (origin.kind != LensOrigin::Kind::Measured) {
        return origin.source;
    }
    QString text = origin.date.isValid()
                       ? Translated(QT_TRANSLATE_NOOP("LensChoice", "Measured on %1"))
                             .arg(QLocale().toString(origin.date, QLocale::ShortFormat))
                       : Translated(QT_TRANSLATE_NOOP("LensChoice", "Measured"));
    if (!origin.photos.isEmpty()) {
        text += Translated(QT_TRANSLATE_NOOP("LensChoice", " from %1"))
                    .arg(origin.photos.join(QStringLiteral(", ")));
    }
    if (origin.residual) {
        text += Translated(QT_TRANSLATE_NOOP("LensChoice", "; its edges are straight to %1 px"))
                    .arg(QLocale().toString(*origin.residual, 'f', 2));
    }
    return text;
}

}  // namespace varnel
