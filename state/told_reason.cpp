// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/told_reason.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <optional>
#include <vector>

namespace varnel {

namespace {

// What has more fixed words stands before what has fewer.
constexpr const char* reasons[] = {
    // remap: numbers that make no picture
    QT_TRANSLATE_NOOP("Reasons", "Overflow: %1 does not fit 32 bits"),
    QT_TRANSLATE_NOOP("Reasons", "Overflow: %1 does not fit 16 bits"),
    QT_TRANSLATE_NOOP("Reasons", "Overflow: %1 does not fit a single-precision number"),
    QT_TRANSLATE_NOOP("Reasons", "Division by zero: %1 is 0"),
    QT_TRANSLATE_NOOP("Reasons", "Division by zero: %1 is no number"),
    QT_TRANSLATE_NOOP("Reasons", "Division by zero: %1"),
    QT_TRANSLATE_NOOP("Reasons", "a sequence of one frame has no steps"),
    QT_TRANSLATE_NOOP("Reasons", "half the picture's width"),
    QT_TRANSLATE_NOOP("Reasons", "the tangent of half the angle of view"),
    QT_TRANSLATE_NOOP("Reasons", "the sine of LensMapFactor x OutputAOV x effect / 2"),
    QT_TRANSLATE_NOOP("Reasons", "the reference radius (from ImageCircleRadius and Ratio)"),
    QT_TRANSLATE_NOOP("Reasons",
                      "the row divisor (the picture is more than three times as wide as high)"),
    QT_TRANSLATE_NOOP("Reasons", "the row divisor"),
    QT_TRANSLATE_NOOP("Reasons", "the picture's side"),
    QT_TRANSLATE_NOOP("Reasons", "the progress value"),
    QT_TRANSLATE_NOOP("Reasons", "the scale"),
    QT_TRANSLATE_NOOP("Reasons", "the effect"),
    QT_TRANSLATE_NOOP("Reasons", "a rotation angle"),
    QT_TRANSLATE_NOOP("Reasons", "the angle in radians"),
    QT_TRANSLATE_NOOP("Reasons", "the effective angle of view"),
    QT_TRANSLATE_NOOP("Reasons", "the circle's radius"),
    QT_TRANSLATE_NOOP("Reasons", "a translation"),
    QT_TRANSLATE_NOOP("Reasons", "a side"),
    QT_TRANSLATE_NOOP("Reasons", "a preview side"),
    QT_TRANSLATE_NOOP("Reasons", "an image"),
    QT_TRANSLATE_NOOP("Reasons", "an output column"),
    QT_TRANSLATE_NOOP("Reasons", "an output row"),
    QT_TRANSLATE_NOOP("Reasons", "an output position"),
    // remap: written files
    QT_TRANSLATE_NOOP("Reasons", "there is not enough memory"),
    QT_TRANSLATE_NOOP("Reasons", "there is no picture"),
    QT_TRANSLATE_NOOP("Reasons", "the picture could not be encoded"),
    QT_TRANSLATE_NOOP("Reasons", "the metadata have no place in the file"),
    QT_TRANSLATE_NOOP("Reasons", "the file would be larger than %1 bytes"),
    QT_TRANSLATE_NOOP("Reasons", "written without its EXIF: too long for a JPEG file"),
    QT_TRANSLATE_NOOP("Reasons", "written without part of its EXIF: too long for a JPEG file"),
    QT_TRANSLATE_NOOP("Reasons", "written without its XMP: too long for a JPEG file"),
    QT_TRANSLATE_NOOP("Reasons", "written without its IPTC: too long for a JPEG file"),
    QT_TRANSLATE_NOOP("Reasons", "written without its settings: too long for a JPEG file"),
    QT_TRANSLATE_NOOP("Reasons",
                      "written without its settings: the photo's XMP has no place for them"),
    QT_TRANSLATE_NOOP("Reasons", "written without its %1: not in a TIFF file of this kind"),
    QT_TRANSLATE_NOOP("Reasons", "written without its metadata: it cannot be read"),
    QT_TRANSLATE_NOOP("Reasons", "written without its %1: it cannot be read"),
    QT_TRANSLATE_NOOP("Reasons", "written without its colour profile: %1"),
    QT_TRANSLATE_NOOP("Reasons", "written without its metadata: %1"),
    QT_TRANSLATE_NOOP("Reasons", "BMP files hold no metadata"),
    QT_TRANSLATE_NOOP("Reasons", "BMP files hold no settings"),
    QT_TRANSLATE_NOOP("Reasons", "BMP files hold no colour profile"),
    QT_TRANSLATE_NOOP("Reasons", "BMP files hold no metadata or settings"),
    QT_TRANSLATE_NOOP("Reasons", "BMP files hold no metadata or colour profile"),
    QT_TRANSLATE_NOOP("Reasons", "BMP files hold no settings or colour profile"),
    QT_TRANSLATE_NOOP("Reasons", "BMP files hold no metadata, settings or colour profile"),
    // decoder
    QT_TRANSLATE_NOOP("Reasons", "there is no such file"),
    QT_TRANSLATE_NOOP("Reasons", "the link leads nowhere"),
    QT_TRANSLATE_NOOP("Reasons", "this is a folder, not a picture"),
    QT_TRANSLATE_NOOP("Reasons", "this is no regular file"),
    QT_TRANSLATE_NOOP("Reasons", "no permission to read it"),
    QT_TRANSLATE_NOOP("Reasons", "the file is empty"),
    QT_TRANSLATE_NOOP("Reasons", "it cannot be opened"),
    QT_TRANSLATE_NOOP("Reasons", "this is not a picture of a known type"),
    QT_TRANSLATE_NOOP("Reasons", "the picture has no pixels"),
    QT_TRANSLATE_NOOP("Reasons", "the picture cannot be decoded"),
    QT_TRANSLATE_NOOP("Reasons", "its pixels cannot be converted to 24-bit colour"),
    QT_TRANSLATE_NOOP("Reasons", "too large: %1 x %2 pixels, a side may have %3"),
    QT_TRANSLATE_NOOP("Reasons",
                      "too large: %1 x %2 pixels need more than three quarters of this machine's "
                      "memory"),
    QT_TRANSLATE_NOOP("Reasons", "too large for a quick look"),
    QT_TRANSLATE_NOOP("Reasons", "cancelled"),
    QT_TRANSLATE_NOOP("Reasons", "took too long (more than %1 seconds)"),
    QT_TRANSLATE_NOOP("Reasons", "there is no memory for it to be had (%1)"),
    QT_TRANSLATE_NOOP("Reasons", "the decoder could not be started (%1)"),
    QT_TRANSLATE_NOOP("Reasons", "it ends at once"),
    QT_TRANSLATE_NOOP("Reasons",
                      "the system ended the decoder, perhaps for want of memory (signal %1)"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder tried something forbidden (system call %1)"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder tried something forbidden"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder died of it (signal %1)"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder gave up on it"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: the decoder's answer makes no sense"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: the raw photo cannot be read"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: the file is cut short"),
    QT_TRANSLATE_NOOP("Reasons", "damaged: %1"),
    // state: files that are replaced as a whole
    QT_TRANSLATE_NOOP("Reasons", "Not a regular file"),
    QT_TRANSLATE_NOOP("Reasons", "%1 (while creating a temporary file)"),
    QT_TRANSLATE_NOOP("Reasons", "%1 (while setting its permissions)"),
    QT_TRANSLATE_NOOP("Reasons", "%1 (while syncing the folder)"),
    QT_TRANSLATE_NOOP("Reasons", "%1 (while syncing)"),
    QT_TRANSLATE_NOOP("Reasons", "%1 (while writing)"),
    QT_TRANSLATE_NOOP("Reasons", "%1 (while closing)"),
    QT_TRANSLATE_NOOP("Reasons", "%1 (while renaming)"),
    // state: the settings file
    QT_TRANSLATE_NOOP("Reasons",
                      "%1: the settings cannot be written (%2); changes last only until the "
                      "program ends"),
    QT_TRANSLATE_NOOP("Reasons", "%1: the settings cannot be read (%2); %3"),
    QT_TRANSLATE_NOOP("Reasons",
                      "%1: the settings were damaged (%2); %3, the damaged file could not be set "
                      "aside"),
    QT_TRANSLATE_NOOP("Reasons",
                      "%1: the settings were damaged (%2); %3, the damaged file is kept as %4"),
    QT_TRANSLATE_NOOP("Reasons", "their last good copy is used"),
    QT_TRANSLATE_NOOP("Reasons", "without a copy they begin afresh"),
    QT_TRANSLATE_NOOP("Reasons", "without a copy what could be read is used"),
    QT_TRANSLATE_NOOP("Reasons", "all its names are taken"),
    QT_TRANSLATE_NOOP("Reasons", "the damaged file could not be set aside: %1"),
    QT_TRANSLATE_NOOP("Reasons", "the folder cannot be made"),
    QT_TRANSLATE_NOOP("Reasons", "another program keeps them locked"),
    QT_TRANSLATE_NOOP("Reasons", "the gears' section has lost its title"),
    QT_TRANSLATE_NOOP("Reasons", "the number of gears is missing"),
    QT_TRANSLATE_NOOP("Reasons", "gear %1 of %2 is missing"),
    QT_TRANSLATE_NOOP("Reasons", "the default gear is missing"),
    QT_TRANSLATE_NOOP("Reasons", "not UTF-8 text"),
    QT_TRANSLATE_NOOP("Reasons", "cut short"),
    QT_TRANSLATE_NOOP("Reasons", "line %1 is no setting"),
    QT_TRANSLATE_NOOP("Reasons", "empty"),
};

struct Pattern {
    const char* text;
    QRegularExpression expression;  // its placeholders as groups, in the order of their numbers
};

std::vector<Pattern> MakePatterns() {
    static const QRegularExpression placeholder(QStringLiteral("%[1-9]"));
    std::vector<Pattern> patterns;
    for (const char* const text : reasons) {
        QStringList fixed;
        for (const QString& part : QString::fromUtf8(text).split(placeholder)) {
            fixed.append(QRegularExpression::escape(part));
        }
        patterns.push_back(
            {text, QRegularExpression(
                       QRegularExpression::anchoredPattern(fixed.join(QStringLiteral("(.+?)"))),
                       QRegularExpression::DotMatchesEverythingOption)});
    }
    return patterns;
}

// All at once: what stands for a placeholder may look like another one.
QString Filled(const QString& text, const QStringList& values) {
    QString filled;
    for (qsizetype n = 0; n < text.size(); ++n) {
        const int value = text[n] == u'%' && n + 1 < text.size() ? text[n + 1].digitValue() : -1;
        if (value >= 1 && value <= values.size()) {
            filled += values[value - 1];
            ++n;
        } else {
            filled += text[n];
        }
    }
    return filled;
}

std::optional<QString> Translated(const QString& reason) {
    static const std::vector<Pattern> patterns = MakePatterns();
    for (const Pattern& pattern : patterns) {
        if (const auto match = pattern.expression.match(reason); match.hasMatch()) {
            QStringList values;
            for (const QString& value : match.capturedTexts().mid(1)) {
                values.append(ToldReason(value));
            }
            return Filled(QCoreApplication::translate("Reasons", pattern.text), values);
        }
    }
    return std::nullopt;
}

// "there is not enough memory (so says the image library)"
std::optional<QString> WithAddition(const QString& reason) {
    const qsizetype bracket = reason.indexOf(QStringLiteral(" ("));
    if (bracket < 0 || !reason.endsWith(u')')) {
        return std::nullopt;
    }
    const std::optional<QString> before = Translated(reason.left(bracket));
    return before ? std::optional(*before + reason.mid(bracket)) : std::nullopt;
}

}  // namespace

QString ToldReason(const QString& reason) {
    const QString separator = QStringLiteral("; ");
    const QStringList parts = reason.split(separator);
    if (parts.size() > 1 && Translated(parts.front())) {
        QStringList told;
        for (const QString& part : parts) {
            told.append(ToldReason(part));
        }
        return told.join(separator);
    }
    if (const std::optional<QString> told = Translated(reason)) {
        return *told;
    }
    return WithAddition(reason).value_or(reason);
}

QString ToldReason(const char* what) {
    return ToldReason(QString::fromUtf8(what));
}

}  // namespace varnel
