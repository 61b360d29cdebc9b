// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/names.h"

#include "base/nearest_name.h"
#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "library/guard.h"
#include "library/view.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

// "BRAND/MODEL"
QStringList WithBrands(const QStringList& brands, QStringList (*models)(const QString&)) {
    QStringList names;
    for (const QString& brand : brands) {
        for (const QString& model : models(brand)) {
            names.append(QStringLiteral("%1/%2").arg(brand, model));
        }
    }
    return names;
}

varnel_status List(varnel_names** names, varnel_error** error, QStringList (*list)()) {
    return Guarded(error, [&] { Place(names, "names") = NewNames(list()); });
}

}  // namespace

QStringList CameraNames() {
    return WithBrands(FillCameraBrands(), &FillCameraModels);
}

QStringList LensNames() {
    return WithBrands(FillLensBrands(), &FillLensModels);
}

QStringList ViewProjections() {
    QStringList keys;
    for (const Projection projection : AllProjections()) {
        keys.append(KeyOf(projection).toLower());
    }
    return keys;
}

QString NotAmong(const QStringList& names, const QString& what, const QString& given) {
    const QString near = Nearest(given, names);
    const QString missing = QStringLiteral("%1 \"%2\"").arg(what, given);
    return near.isEmpty() ? missing : QStringLiteral("%1; did you mean \"%2\"?").arg(missing, near);
}

varnel_names* NewNames(const QStringList& names) {
    auto list = std::make_unique<varnel_names>();
    for (const QString& name : names) {
        list->all.push_back(name.toStdString());
    }
    return list.release();
}

}  // namespace varnel

size_t varnel_names_count(const varnel_names* names) {
    return names == nullptr ? 0 : names->all.size();
}

const char* varnel_names_at(const varnel_names* names, size_t index) {
    return index < varnel_names_count(names) ? names->all[index].c_str() : nullptr;
}

void varnel_names_free(varnel_names* names) {
    delete names;
}

varnel_status varnel_list_cameras(varnel_names** names, varnel_error** error) {
    return varnel::List(names, error, &varnel::CameraNames);
}

varnel_status varnel_list_lenses(varnel_names** names, varnel_error** error) {
    return varnel::List(names, error, &varnel::LensNames);
}

varnel_status varnel_list_projections(varnel_names** names, varnel_error** error) {
    return varnel::List(names, error, &varnel::ViewProjections);
}

varnel_status varnel_list_settings(varnel_names** names, varnel_error** error) {
    return varnel::List(names, error, &varnel::ViewSettings);
}
