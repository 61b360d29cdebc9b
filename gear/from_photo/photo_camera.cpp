// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/from_photo/photo_camera.h"

#include <QRegularExpression>
#include <QStringList>

#include "gear/catalogue/camera_catalogue.h"
#include "gear/from_photo/exif_names.h"

namespace varnel {

namespace {

QStringList BrandsOf(const QString& name) {
    QStringList brands;
    const QString upper = name.simplified().toUpper();
    for (const MakeName& make : MakeNames()) {
        if (upper.startsWith(QStringView(make.words))) {
            brands.append(QStringView(make.brand).toString());
        }
    }
    return brands;
}

// Sony's model codes: "ILCE-7RM3A" is the Alpha 7R III, "SLT-A77V" an SLT-A77 with GPS.
QString SonyTradeName(const QString& compact) {
    static const QRegularExpression alpha(QStringLiteral("^ILC[AE](\\d+[CRS]?)(?:M([2-5]))?A?$"));
    static const QRegularExpression withGps(QStringLiteral("^(SLTA\\d+)V$"));
    if (const auto match = alpha.match(compact); match.hasMatch()) {
        const QStringList marks{{},
                                {},
                                QStringLiteral("II"),
                                QStringLiteral("III"),
                                QStringLiteral("IV"),
                                QStringLiteral("V")};
        return QStringLiteral("ALPHA") + match.captured(1) + marks[match.captured(2).toInt()];
    }
    const auto match = withGps.match(compact);
    return match.hasMatch() ? match.captured(1) : compact;
}

QString AliasOf(const QString& brand, const QString& normal) {
    for (const CameraAlias& alias : CameraAliases()) {
        if (brand == QStringView(alias.brand) &&
            CameraNormalForm(brand, QStringView(alias.exif).toString()) == normal) {
            return QStringView(alias.model).toString();
        }
    }
    return {};
}

QString ModelOf(const QString& brand, const QString& exif) {
    const QString normal = CameraNormalForm(brand, exif);
    if (const QString model = AliasOf(brand, normal); !model.isEmpty()) {
        return model;
    }
    for (const QString& model : FillCameraModels(brand)) {
        if (CameraNormalForm(brand, model) == normal) {
            return model;
        }
    }
    return {};
}

}  // namespace

QString CameraNormalForm(const QString& brand, const QString& model) {
    static const QRegularExpression separators(QStringLiteral("[^A-Z0-9+*]"));
    static const QRegularExpression mark(QStringLiteral("(?:MARK|MK)(?=[IV])"));
    QString normal = model.simplified().toUpper();
    for (const MakerAffix& affix : MakerAffixes()) {
        if (brand != QStringView(affix.brand)) {
            continue;
        }
        if (normal.startsWith(QStringView(affix.before))) {
            normal.remove(0, static_cast<qsizetype>(affix.before.size()));
        }
        if (!affix.after.empty() && normal.endsWith(QStringView(affix.after))) {
            normal.chop(static_cast<qsizetype>(affix.after.size()));
        }
    }
    normal.remove(separators);
    normal.remove(mark);
    return brand == u"Sony" ? SonyTradeName(normal) : normal;
}

CatalogueEntry CameraFromExif(const QString& make, const QString& model) {
    const QStringList brands = BrandsOf(make);
    for (const QString& brand : brands.isEmpty() ? BrandsOf(model) : brands) {
        if (const QString known = ModelOf(brand, model); !known.isEmpty()) {
            return {brand, known};
        }
    }
    return {};
}

}  // namespace varnel
