// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/from_photo/photo_lens.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "gear/from_photo/exif_names.h"
#include "gear/from_photo/lens_name.h"

namespace varnel {

namespace {

constexpr float nameTolerance = 0.06F;  // millimetres and aperture numbers
// Cameras store focal lengths and apertures in steps.
constexpr float focalTolerance = 0.02F;
constexpr float apertureTolerance = 0.05F;
constexpr float shortestOfNikon = 5.0F;  // millimetres; the least that its cameras can store

struct KnownLens {
    CatalogueEntry entry;
    LensName name;
    float setTo = 0.0F;  // the focal length of a zoom lens's row
    bool silent = false;

    float FocalLength() const { return name.IsZoom() ? setTo : name.shortest; }
};

bool IsSilent(const CatalogueEntry& lens) {
    return std::ranges::any_of(SilentLenses(), [&](const SilentLens& silent) {
        return lens.brand == QStringView(silent.brand) &&
               (silent.model.empty() || lens.model == QStringView(silent.model));
    });
}

KnownLens KnownLensOf(const CatalogueEntry& entry) {
    static const QRegularExpression setting(QStringLiteral(" at (\\d+) mm$"));
    KnownLens lens{entry, ParseLensName(entry.model), 0.0F, IsSilent(entry)};
    lens.setTo = setting.match(entry.model).captured(1).toFloat();
    if (entry.brand == u"Nikon" && entry.model == u"8 mm") {
        lens.name.aperture = 2.8F;
    }
    return lens;
}

std::vector<KnownLens> AllLenses() {
    std::vector<KnownLens> lenses;
    for (const QString& brand : FillLensBrands()) {
        for (const QString& model : FillLensModels(brand)) {
            lenses.push_back(KnownLensOf({brand, model}));
        }
    }
    return lenses;
}

bool Near(float one, float other) {
    return std::abs(one - other) < nameTolerance;
}

// Whether aperture and focal length of the exposure are possible with the lens.
bool ExposureFits(const KnownLens& lens, const CameraInfo& origin, const CatalogueEntry& camera) {
    if (origin.FNumber > 0.0F && origin.FNumber < lens.name.aperture * (1.0F - apertureTolerance)) {
        return false;
    }
    const float reported = origin.FocalLength;
    const float focal = lens.FocalLength();
    if (reported <= 0.0F || focal == 0.0F) {
        return true;
    }
    if (lens.name.IsZoom()) {
        return std::abs(reported - focal) <= 0.5F;
    }
    return std::abs(reported - focal) <= focal * focalTolerance ||
           (camera.brand == u"Nikon" && reported == shortestOfNikon && focal < shortestOfNikon);
}

QStringList MakersIn(const QStringList& words) {
    QStringList makers;
    for (const LensWord& known : LensWords()) {
        if (words.contains(QStringView(known.word).toString())) {
            makers.append(QStringView(known.brand).toString());
        }
    }
    return makers;
}

bool HasOnlyCommonWords(const QStringList& words) {
    return std::ranges::all_of(words, [](const QString& word) {
        return std::ranges::any_of(CommonLensWords(), [&](std::u16string_view common) {
            return word == QStringView(common);
        });
    });
}

// "----" and "0.0 mm f/0.0" stand for a lens that reported nothing.
bool NamesLens(const QString& text) {
    static const QRegularExpression blank(
        QStringLiteral("^[^A-Za-z1-9]*$|^(?:DT )?0(?:\\.0)?\\s*mm\\b|^(?:unknown|none|n/a)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return !blank.match(text.simplified()).hasMatch();
}

// The lens as named in a photo's EXIF.
struct ExifLens {
    LensName name;
    QStringList makers;    // empty when none is named
    bool unknown = false;  // some lens that is none of the catalogue's
};

ExifLens ExifLensOf(const CameraInfo& origin) {
    ExifLens exif{ParseLensName(origin.LensModel), {}};
    exif.makers = MakersIn(exif.name.words);
    if (exif.makers.isEmpty() && NamesLens(origin.LensMake)) {
        exif.makers = MakersIn(ParseLensName(origin.LensMake).words);
        exif.unknown = exif.makers.isEmpty();
    }
    if (exif.makers.isEmpty() && !HasOnlyCommonWords(exif.name.words)) {
        exif.unknown = true;
    }
    // Sony's lenses for mirrorless cameras: its 16 mm there is no fisheye.
    const QString first = exif.name.words.value(0);
    exif.unknown = exif.unknown || first == u"E" || first == u"FE";
    exif.unknown = exif.unknown || exif.name.shortest == 0.0F;
    return exif;
}

// The Pentax zoom is Tokina's with another name on it.
bool IsBy(const KnownLens& lens, const QStringList& makers) {
    return makers.isEmpty() || makers.contains(lens.entry.brand) ||
           (lens.entry.brand == u"Tokina" && makers.contains(u"Pentax"));
}

bool NameFits(const KnownLens& lens, const ExifLens& exif) {
    const LensName& name = exif.name;
    const bool apertureFits = name.aperture == 0.0F || lens.name.aperture == 0.0F ||
                              Near(name.aperture, lens.name.aperture);
    return !exif.unknown && IsBy(lens, exif.makers) && apertureFits &&
           Near(name.shortest, lens.name.shortest) && Near(name.longest, lens.name.longest);
}

// The catalogue's own way to name a lens.
bool IsCatalogueName(const KnownLens& lens, const QString& text) {
    const QString given = text.simplified();
    return given.compare(lens.entry.model, Qt::CaseInsensitive) == 0 ||
           given.compare(lens.entry.brand + u' ' + lens.entry.model, Qt::CaseInsensitive) == 0;
}

// Whose lenses a camera most likely has on it.
QString OwnLensBrand(const CatalogueEntry& camera) {
    if (camera.brand == u"OM System") {
        return QStringLiteral("Olympus");
    }
    static const QRegularExpression aMount(QStringLiteral("^(?:DSLR|SLT|Alpha (?:68|77|99))"));
    if (camera.brand == u"Sony" && !aMount.match(camera.model).hasMatch()) {
        return {};  // the catalogue has no lens for it
    }
    return camera.brand;
}

bool IsMadeForAll(const KnownLens& lens) {
    return lens.entry.brand == u"Sigma" || !FillCameraBrands().contains(lens.entry.brand);
}

CatalogueEntry OnlyOne(const std::vector<KnownLens>& lenses, const CatalogueEntry& camera,
                       bool makerStated, bool named) {
    std::vector<KnownLens> own;
    std::vector<KnownLens> others;
    const QString ownBrand = OwnLensBrand(camera);
    for (const KnownLens& lens : lenses) {
        if (!named && lens.silent) {
            continue;
        }
        if (lens.entry.brand == ownBrand) {
            own.push_back(lens);
        } else if (makerStated || IsMadeForAll(lens)) {
            others.push_back(lens);
        }
    }
    const std::vector<KnownLens>& first = own.empty() ? others : own;
    return first.size() == 1 && (named || !first.front().name.IsZoom()) ? first.front().entry
                                                                        : CatalogueEntry();
}

bool NamesFisheye(const LensName& name) {
    return std::ranges::any_of(name.words, [](const QString& word) {
        return word.contains(u"FISH") || word == u"CIRCULAR" || word == u"FE";
    });
}

}  // namespace

PhotoLenses LensesFromExif(const CameraInfo& origin, const CatalogueEntry& camera) {
    if (FindLens(camera.brand, camera.model)) {
        return {{camera}, camera, true};  // built in: both catalogues have it under one name
    }
    PhotoLenses found;
    found.isNamed = NamesLens(origin.LensModel);
    const ExifLens exif = ExifLensOf(origin);
    std::vector<KnownLens> fitting;
    for (const KnownLens& lens : AllLenses()) {
        if (found.isNamed && IsCatalogueName(lens, origin.LensModel)) {
            return {{lens.entry}, lens.entry, true};
        }
        if (ExposureFits(lens, origin, camera) && (!found.isNamed || NameFits(lens, exif))) {
            fitting.push_back(lens);
            found.fitting.push_back(lens.entry);
        }
    }
    if (found.isNamed || origin.FocalLength > 0.0F) {
        found.lens = OnlyOne(fitting, camera, !exif.makers.isEmpty(), found.isNamed);
    }
    return found;
}

bool NamesPlainLens(const CameraInfo& origin) {
    const LensName name = ParseLensName(origin.LensModel);
    return name.shortest > 0.0F && !NamesFisheye(name) &&
           LensesFromExif(origin, CameraFromExif(origin.Make, origin.Model)).fitting.empty();
}

}  // namespace varnel
