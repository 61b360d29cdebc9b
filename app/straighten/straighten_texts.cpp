// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/straighten_texts.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FormStraighten)
};

QString Number(double value, int digits) {
    return QLocale().toString(value, 'f', digits);
}

QString EdgesText(const SolvedLens& solved) {
    const auto used = std::ranges::count(solved.edges, true, &EdgeResult::used);
    return Texts::tr(
               "%1 of %2 edges are used. Edges held out of the measuring are off straight by "
               "%3 pixels with the present numbers, by %4 with the measured lens.")
        .arg(used)
        .arg(solved.edges.size())
        .arg(Number(solved.heldOutBefore, 2), Number(solved.heldOutAfter, 2));
}

QString AnglesText(const StraightenModel& model) {
    const SolvedLens& solved = *model.Result()->solved;
    QString error =
        Texts::tr("Expected error of angles: %1°.").arg(Number(solved.angleErrorDegrees, 1));
    if (solved.anglesFixed) {
        return error;
    }
    return error + u' ' +
           (model.KnowsSensor()
                ? Texts::tr("Angles not fixed: tag edges, or give the focal length.")
                : Texts::tr("Angles not fixed: tag edges that are upright, level or run away."));
}

QString ColourText(const ColourEstimates& colour, bool halved) {
    const QString text =
        Texts::tr("Colour at the outermost edges: red off by %1 ± %2 pixels, blue by %3 ± %4.")
            .arg(Number(colour.red.atRim, 2), Number(colour.red.deviation, 2),
                 Number(colour.blue.atRim, 2), Number(colour.blue.deviation, 2));
    return halved ? text + u' ' +
                        Texts::tr(
                            "This is too small by up to half a pixel: the JPEG file has "
                            "colours at half its resolution.")
                  : text;
}

}  // namespace

QString FiguresText(const StraightenModel& model) {
    if (!model.Result()) {
        return {};
    }
    const Measurement& result = *model.Result();
    if (result.error != MeasureError::None) {
        return Texts::tr(
                   "Too few straight edges: %1 are needed at least, more are better. Click "
                   "near both ends of edges to add them.")
            .arg(leastEdges);
    }
    QStringList lines{EdgesText(*result.solved)};
    if (!result.solved->improved) {
        lines.append(Texts::tr("The present numbers do as well or better: they stay."));
        return lines.join(u'\n');
    }
    lines.append(Texts::tr("Expected bend: %1 pixels, in a view 110° across with 24 megapixels.")
                     .arg(Number(result.solved->expectedBend, 1)));
    lines.append(AnglesText(model));
    if (result.colour) {
        lines.append(
            ColourText(*result.colour,
                       std::ranges::any_of(model.Photos(), &StraightenModel::Photo::halvedColour)));
    } else if (model.Known().colour) {
        lines.append(Texts::tr("The edges do not tell of colour fringes."));
    }
    return lines.join(u'\n');
}

QString TagText(EdgeTag tag) {
    switch (tag) {
        case EdgeTag::Upright:
            return Texts::tr("upright");
        case EdgeTag::Level:
            return Texts::tr("level");
        case EdgeTag::Away:
            return Texts::tr("runs away");
        case EdgeTag::None:
            break;
    }
    return {};
}

}  // namespace varnel
