// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/hugin_project.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "gear/lens/import/fisheye_design.h"
#include "gear/lens/lens_file.h"

namespace varnel {

namespace {

constexpr std::size_t mostPhotos = 2000;

// The numbers of a line by their letter. "=3" stands for what the fourth photo has.
struct Photo {
    qint64 line = 0;
    std::array<double, 128> numbers{};
    double operator[](char letter) const { return numbers[static_cast<unsigned char>(letter)]; }
};

// At words like w6000, f3 or a=0; names in quotes may hold spaces and end the reading.
Reason ReadPhoto(const QByteArray& line, const std::vector<Photo>& earlier, Photo& photo) {
    for (const QByteArray& word : line.split(' ')) {
        if (word.startsWith("n\"")) {
            break;
        }
        if (word.size() < 2 || !QByteArray("wvfabcde").contains(word[0]) ||
            (word[1] >= 'A' && word[1] <= 'z')) {
            continue;
        }
        const bool refers = word[1] == '=';
        bool good = false;
        double number = word.mid(refers ? 2 : 1).toDouble(&good);
        if (refers && good) {
            good = number >= 0.0 && number < static_cast<double>(earlier.size());
            number = good ? earlier[static_cast<std::size_t>(number)][word[0]] : 0.0;
        }
        if (!good || !(std::abs(number) <= 1e6)) {
            return {ReasonCode::KeyUnusable, QString::fromLatin1(word.left(1))};
        }
        photo.numbers[static_cast<unsigned char>(word[0])] = number;
    }
    return {};
}

Reason ReadHeight(const QByteArray& line, Photo& photo) {
    for (const QByteArray& word : line.split(' ')) {
        if (word.startsWith('h')) {
            photo.numbers['h'] = word.mid(1).toDouble();
        }
    }
    const auto side = [&](char letter) { return photo[letter] >= 1.0 && photo[letter] <= 1e6; };
    return side('w') && side('h') ? Reason()
                                  : Reason(ReasonCode::KeyMissing, QStringLiteral("w, h"));
}

Reason MakeLens(const Photo& photo, FisheyeDesign design, SampledLens& lens) {
    const double half = photo['v'] / 2.0 * std::numbers::pi / 180.0;
    const double designRadius = DesignRadius(design, half);
    if (!(half > 0.01 && half <= std::numbers::pi && designRadius > 0.0)) {
        return {ReasonCode::KeyUnusable, QStringLiteral("v")};
    }
    const PixelSize size{static_cast<int>(photo['w']), static_cast<int>(photo['h'])};
    lens.centre = LensCentre{size.width / 2.0 + photo['d'], size.height / 2.0 - photo['e'], size};
    LensFormula formula;
    MeasurePicture(*lens.centre, formula);
    const double focal = size.width / 2.0 / designRadius;  // pixels
    const double unit = formula.shorterSide / 2.0;
    const double a = photo['a'], b = photo['b'], c = photo['c'];
    formula.radius = [=](double angle) {
        const double ideal = focal * DesignRadius(design, angle);
        const double r = ideal / unit;
        return ideal * (1.0 - a - b - c + r * (c + r * (b + r * a)));
    };
    return FillKnotsFromPixels(formula, lens);
}

}  // namespace

bool IsHuginProject(const QByteArray& text) {
    const QList<QByteArray> lines = text.split('\n');
    return std::ranges::any_of(lines, [](const QByteArray& line) {
        return line.startsWith("i ") && line.contains(" w") && line.contains(" f");
    });
}

ImportedLenses HuginLenses(const QByteArray& text, const QString& fileName) {
    ImportedLenses imported;
    std::vector<Photo> photos;
    qint64 number = 0;
    for (const QByteArray& line : text.split('\n')) {
        ++number;
        if (!line.startsWith("i ") || photos.size() >= mostPhotos) {
            continue;
        }
        Photo photo;
        photo.line = number;
        Reason reason = ReadPhoto(line.trimmed(), photos, photo);
        if (reason.isEmpty()) {
            reason = ReadHeight(line.trimmed(), photo);
        }
        if (!reason.isEmpty()) {
            return {{}, {ReasonCode::AtLine, number, reason}};
        }
        photos.push_back(photo);
    }
    for (const Photo& photo : photos) {
        const auto design = DesignOfHugin(static_cast<int>(photo['f']));
        if (!design) {
            continue;
        }
        SampledLens lens;
        lens.name = TidyLensName(QFileInfo(fileName).completeBaseName());
        lens.origin.kind = LensOrigin::Kind::Imported;
        lens.origin.source = QStringLiteral("Hugin project ") + QFileInfo(fileName).fileName();
        const Reason reason = MakeLens(photo, *design, lens);
        imported.Add(reason.isEmpty() ? reason : Reason(ReasonCode::AtLine, photo.line, reason),
                     std::move(lens));
    }
    if (imported.lenses.isEmpty() && imported.reason.isEmpty()) {
        imported.reason = ReasonCode::NoFisheye;
    }
    return imported;
}

}  // namespace varnel
