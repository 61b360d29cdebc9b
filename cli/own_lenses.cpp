// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/own_lenses.h"

#include <algorithm>
#include <memory>

#include "base/error_text.h"
#include "cli/report/json_line.h"
#include "gear/catalogue/gear_catalogue.h"
#include "gear/lens/import/import_lenses.h"
#include "gear/lens/lens_folder.h"

namespace varnel {

namespace {

QString LensLine(const QString& model, bool json) {
    const QString brand = ownLensBrand;
    return json ? QString::fromUtf8(JsonLine({{u"brand", brand}, {u"model", model}}))
                : brand + u'/' + model;
}

// The first few.
QString NamesOf(const QList<SampledLens>& lenses) {
    constexpr qsizetype most = 5;
    QStringList names;
    for (const SampledLens& lens : lenses.first(std::min(most, lenses.size()))) {
        names.append(lens.name);
    }
    if (lenses.size() > most) {
        names.append(QStringLiteral("..."));
    }
    return names.join(QStringLiteral(", "));
}

}  // namespace

QString TakeLensFile(Options& options) {
    if (options.lensFile.isEmpty()) {
        return {};
    }
    const ImportedLenses imported = ImportLenses(options.lensFile);
    if (imported.lenses.isEmpty()) {
        return ErrorText(imported.reason);
    }
    if (imported.lenses.size() > 1) {
        return QStringLiteral(
                   "%1 has %2 lenses (%3); take them over with --import-lens and name "
                   "one with --lens")
            .arg(options.lensFile)
            .arg(imported.lenses.size())
            .arg(NamesOf(imported.lenses));
    }
    options.curve = std::make_shared<const SampledLens>(imported.lenses.first());
    return {};
}

std::variant<QStringList, QString> ImportOwnLenses(const Options& options, SettingsStore& store) {
    if (store.Path().isEmpty()) {
        return QStringLiteral("these settings have no folder for lenses");
    }
    const LensFolder folder = LensFolder::Beside(store.Path());
    const ImportedLenses imported = ImportLenses(options.lensFile);
    if (imported.lenses.isEmpty()) {
        return ErrorText(imported.reason);
    }
    QStringList lines;
    for (SampledLens lens : imported.lenses) {
        lens.name = folder.FreeName(lens.name);
        if (const Reason error = folder.Add(lens); !error.isEmpty()) {
            return ErrorText(error);
        }
        lines.append(LensLine(lens.name, options.json));
    }
    return lines;
}

QStringList OwnLensModels(const SettingsStore& store) {
    QStringList names;
    if (!store.Path().isEmpty()) {
        for (const LensFolder::Entry& entry : LensFolder::Beside(store.Path()).List().entries) {
            names.append(entry.lens->name);
        }
    }
    return names;
}

LensReference OwnLens(const SettingsStore& store, const QString& model) {
    return store.Path().isEmpty() ? LensReference()
                                  : LensReference(LensFolder::Beside(store.Path()).Find(model));
}

}  // namespace varnel
