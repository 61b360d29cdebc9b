// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/lensfun_data.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "gear/lens/import/fisheye_design.h"
#include "gear/lens/import/xml_reading.h"
#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

struct Terms {
    QString model;
    double focal = 0.0;
    double realFocal = 0.0;  // 0: not given
    std::map<QString, double> values;

    double operator[](const char* name) const {
        const auto found = values.find(QLatin1String(name));
        return found == values.end() ? 0.0 : found->second;
    }
};

struct Entry {
    QString maker, model;
    QString type = QStringLiteral("rectilinear");
    double crop = 0.0;
    double aspect = 1.5;  // longer by shorter side
    double focal = 0.0;
    QList<Terms> distortions, colours, realFocals;
};

constexpr double fullFrameDiagonal = 43.266615305567875;  // mm

double HalfDiagonal(const Entry& entry) {
    return fullFrameDiagonal / entry.crop / 2.0;
}

// Half the shorter side in mm: lensfun's unit of radius.
double UnitRadius(const Entry& entry) {
    return HalfDiagonal(entry) / std::hypot(entry.aspect, 1.0);
}

// "4:3" or a number.
double Ratio(const QString& text) {
    const QStringList parts = text.split(u':');
    const double one = parts[0].toDouble();
    return parts.size() == 2 ? one / parts[1].toDouble() : one;
}

Terms ReadTerms(XmlReading& xml) {
    Terms terms;
    terms.model = xml.Attribute(u"model");
    terms.focal = xml.Number(u"focal", 0.0);
    terms.realFocal = xml.Number(u"real-focal", 0.0);
    for (const char* const name :
         {"a", "b", "c", "k1", "k2", "kr", "kb", "vr", "cr", "br", "vb", "cb", "bb"}) {
        const QString key = QLatin1String(name);
        if (xml.Has(key)) {
            terms.values[key] = xml.Number(key, 0.0);
        }
    }
    return terms;
}

void ReadElement(XmlReading& xml, Entry& entry) {
    const QString name = xml.Name();
    if (name == u"maker" && xml.Attribute(u"lang").isEmpty()) {
        entry.maker = xml.Text();
    } else if (name == u"model" && xml.Attribute(u"lang").isEmpty()) {
        entry.model = xml.Text();
    } else if (name == u"type") {
        entry.type = xml.Text();
    } else if (name == u"cropfactor") {
        entry.crop = xml.Text().toDouble();
        xml.Require(name, entry.crop > 0.01 && entry.crop < 1000.0);
    } else if (name == u"aspect-ratio") {
        entry.aspect = Ratio(xml.Text());
        xml.Require(name, entry.aspect >= 1.0 && entry.aspect < 10.0);
    } else if (name == u"focal") {
        entry.focal = xml.Number(xml.Has(u"value") ? u"value" : u"min", 0.0);
    } else if (name == u"distortion") {
        entry.distortions.append(ReadTerms(xml));
    } else if (name == u"tca") {
        entry.colours.append(ReadTerms(xml));
    } else if (name == u"real-focal-length") {
        entry.realFocals.append(ReadTerms(xml));
    }
}

std::vector<Entry> ReadEntries(XmlReading& xml) {
    std::vector<Entry> fisheyes;
    while (xml.NextElement()) {
        if (xml.Name() != u"lens") {
            continue;
        }
        Entry entry;
        const int depth = xml.Depth();
        while (xml.NextElementWithin(depth)) {
            ReadElement(xml, entry);
        }
        if (DesignOfLensfun(entry.type.toStdString())) {
            xml.Require(QStringLiteral("cropfactor"), entry.crop > 0.0);
            fisheyes.push_back(std::move(entry));
        }
    }
    return fisheyes;
}

// The radius in the picture by the ideal one, divided by the latter; both in units.
std::function<double(double)> Polynomial(const Terms& terms) {
    if (terms.model == u"poly3") {
        return [k = terms["k1"]](double r) { return 1.0 - k + k * r * r; };
    }
    if (terms.model == u"poly5") {
        return [k1 = terms["k1"], k2 = terms["k2"]](double r) {
            return 1.0 + r * r * (k1 + k2 * r * r);
        };
    }
    if (terms.model == u"ptlens") {
        return [a = terms["a"], b = terms["b"], c = terms["c"]](double r) {
            return 1.0 - a - b - c + r * (c + r * (b + r * a));
        };
    }
    if (terms.model.isEmpty() || terms.model == u"none") {
        return [](double) { return 1.0; };
    }
    return nullptr;
}

LensFormula FormulaOf(const Entry& entry, const Terms& terms) {
    LensFormula formula;
    const auto polynomial = Polynomial(terms);
    const FisheyeDesign design = *DesignOfLensfun(entry.type.toStdString());
    const double unit = UnitRadius(entry);
    const double focal = terms.realFocal > 0.0 ? terms.realFocal / polynomial(0.0) : terms.focal;
    formula.radius = [=](double angle) {
        const double ideal = focal * DesignRadius(design, angle);
        return ideal * polynomial(ideal / unit);
    };
    formula.corner = HalfDiagonal(entry);
    formula.shorterSide = 2.0 * unit;
    // Where a circle leaves corners dark its rim is not told; no lens of the database sees further.
    formula.widest = 110.0 * std::numbers::pi / 180.0;
    return formula;
}

// The entry for the nearest focal length.
const Terms* Nearest(const QList<Terms>& list, double focal) {
    const auto found = std::ranges::min_element(
        list, {}, [&](const Terms& terms) { return std::abs(terms.focal - focal); });
    return found == list.end() ? nullptr : &*found;
}

void AddColours(const Entry& entry, double focal, SampledLens& lens) {
    const Terms* const terms = Nearest(entry.colours, focal);
    if (terms == nullptr || (terms->model != u"linear" && terms->model != u"poly3")) {
        return;
    }
    const bool linear = terms->model == u"linear";
    const double unit = UnitRadius(entry);
    const auto shift = [&](const char* constant, const char* first, const char* second) {
        // Numbers that are not given leave the colour as it is.
        const double v = terms->values.contains(QLatin1String(constant)) ? (*terms)[constant] : 1.0;
        const double c = linear ? 0.0 : (*terms)[first];
        const double b = linear ? 0.0 : (*terms)[second];
        return ShiftOver(lens, [=](double radius) {
            const double r = radius / unit;
            return radius * (v - 1.0 + c * r + b * r * r);
        });
    };
    lens.red = shift(linear ? "kr" : "vr", "cr", "br");
    lens.blue = shift(linear ? "kb" : "vb", "cb", "bb");
}

double FocalInName(const QString& name) {
    static const QRegularExpression pattern(QStringLiteral("(\\d+(?:\\.\\d+)?)\\s*mm"));
    return pattern.match(name).captured(1).toDouble();
}

void AddLens(const Entry& entry, Terms terms, const QString& name, ImportedLenses& imported) {
    SampledLens lens;
    lens.name = TidyLensName(name);
    const Terms* const real = Nearest(entry.realFocals, terms.focal);
    if (terms.realFocal == 0.0 && real != nullptr && real->focal == terms.focal) {
        terms.realFocal = real->realFocal;
    }
    Reason reason;
    const auto polynomial = Polynomial(terms);
    if (!polynomial) {
        reason = Reason(ReasonCode::ModelUnknown, TidyLensName(terms.model));
    } else if (!(terms.focal > 0.0 && polynomial(0.0) > 0.0)) {
        reason = Reason(ReasonCode::KeyUnusable, QStringLiteral("focal"));
    } else {
        reason = FillKnots(FormulaOf(entry, terms), lens);
    }
    if (reason.isEmpty()) {
        AddColours(entry, terms.focal, lens);
    }
    imported.Add(reason, std::move(lens));
}

void AddEntry(const Entry& entry, bool nameIsTaken, ImportedLenses& imported) {
    QString name = entry.model.startsWith(entry.maker, Qt::CaseInsensitive)
                       ? entry.model
                       : entry.maker + u' ' + entry.model;
    const double focal = entry.focal > 0.0 ? entry.focal : FocalInName(name);
    if (nameIsTaken) {
        name += QStringLiteral(" (crop %1)").arg(entry.crop);
    }
    if (entry.distortions.isEmpty()) {
        Terms ideal;
        ideal.focal = focal;
        AddLens(entry, ideal, name, imported);
    }
    for (const Terms& terms : entry.distortions) {
        const bool several = entry.distortions.size() > 1;
        AddLens(
            entry, terms,
            several ? QStringLiteral("%1, %2 mm").arg(name, QString::number(terms.focal)) : name,
            imported);
    }
}

}  // namespace

ImportedLenses LensfunLenses(const QByteArray& bytes, const QString& fileName) {
    XmlReading xml(bytes);
    const std::vector<Entry> entries = ReadEntries(xml);
    ImportedLenses imported;
    imported.reason = xml.Error();
    if (!imported.reason.isEmpty()) {
        return imported;
    }
    for (const Entry& entry : entries) {
        const auto same = std::ranges::count_if(
            entries, [&](const Entry& other) { return other.model == entry.model; });
        AddEntry(entry, same > 1, imported);
    }
    for (SampledLens& lens : imported.lenses) {
        lens.origin.kind = LensOrigin::Kind::Imported;
        lens.origin.source = QStringLiteral("lensfun database, CC BY-SA 3.0 (%1)")
                                 .arg(QFileInfo(fileName).fileName());
    }
    if (imported.lenses.isEmpty() && imported.reason.isEmpty()) {
        imported.reason = ReasonCode::NoFisheye;
    }
    return imported;
}

QStringList LensfunFolders() {
    QStringList roots{QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                          QStringLiteral("/lensfun/updates"),
                      QStringLiteral("/var/lib/lensfun-updates"),
                      QStringLiteral("/usr/local/share/lensfun"),
                      QStringLiteral("/usr/share/lensfun")};
    QStringList folders;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                        QStringLiteral("/lensfun");
    if (QFileInfo(own).isDir()) {
        folders.append(own);
    }
    for (const QString& root : roots) {
        for (const QString& version :
             {QStringLiteral("/version_2"), QStringLiteral("/version_1"), QString()}) {
            if (!QDir(root + version).entryList({QStringLiteral("*.xml")}, QDir::Files).isEmpty()) {
                folders.append(root + version);
                break;
            }
        }
    }
    return folders;
}

QList<SampledLens> LensfunFisheyes(const QStringList& folders, const std::atomic<bool>* stopped) {
    std::map<QString, SampledLens> byName;
    for (const QString& folder : folders) {
        for (const QFileInfo& file :
             QDir(folder).entryInfoList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name)) {
            if (stopped != nullptr && *stopped) {
                return {};
            }
            const FileReading reading = ReadSmallFile(file.filePath(), largestForeignFile);
            for (const SampledLens& lens : LensfunLenses(reading.bytes, file.fileName()).lenses) {
                byName.try_emplace(lens.name, lens);
            }
        }
    }
    QList<SampledLens> lenses;
    for (auto& [name, lens] : byName) {
        lenses.append(std::move(lens));
    }
    return lenses;
}

}  // namespace varnel
