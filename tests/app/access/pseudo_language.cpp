// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/access/pseudo_language.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace varnel::testing {

QMap<SourceText, QString> ReadTranslations(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    QMap<SourceText, QString> translations;
    SourceText source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            source.context = xml.readElementText();
        } else if (xml.name() == u"source") {
            source.text = xml.readElementText();
        } else if (xml.name() == u"translation") {
            const bool isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            const QString text = xml.readElementText();
            translations[source] = isFinished ? text : QString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return translations;
}

PseudoLanguage::PseudoLanguage()
    : known_(ReadTranslations(QStringLiteral(VARNEL_SOURCES "/translations/varnel_de.ts"))) {
    QCoreApplication::installTranslator(this);
}

PseudoLanguage::~PseudoLanguage() {
    QCoreApplication::removeTranslator(this);
}

QString PseudoLanguage::translate(const char* context, const char* text, const char* /*comment*/,
                                  int /*n*/) const {
    const QString source = QString::fromUtf8(text);
    if (!known_.contains({QString::fromUtf8(context), source})) {
        return {};
    }
    static constexpr QStringView plain = u"AEIOUSZaeiousz";
    static constexpr QStringView marked = u"ÅÉÎÖÛŠŽåéîöûšž";
    const qsizetype end = source.contains(u'\t') ? source.indexOf(u'\t') : source.size();
    QString pseudo = source.left(end);
    for (qsizetype n = 0; n < end; ++n) {
        const bool isLetterToPress = n > 0 && source[n - 1] == u'&';
        if (const qsizetype at = plain.indexOf(source[n]); at >= 0 && !isLetterToPress) {
            pseudo[n] = marked[at];
        }
    }
    return u'[' + pseudo + QString(end / 3, u'~') + u']' + source.mid(end);
}

QString Unmarked(const QString& text) {
    static const QRegularExpression names(
        QStringLiteral("Varnel|Rectilinear|Equidistance|Horizon|Stereographic|Panini|Cylindrical"
                       "|Mercator|Equirectangular|Fisheye|Equidistant|Equisolid|Orthographic"
                       "|LittlePlanet|Unrolled|TIFF?|JPEG|BMP|PNG|FreeImage|Morph"
                       "|English|Deutsch|Español|Français|OfsetX|OfsetY|GearRatio|Canon|EOS"
                       "|\\d+D|Sigma|EX|mm|f:|DejaVu|CRF"
                       "|https://\\S+|(?:[\\w.-]*/)+[\\w.-]*|\\w+\\.(?:bmp|tif|TIF|JPG)"
                       "|(?:Ctrl|Alt|Shift)\\+|\\bF\\d|\\tB$|<[^>]*>"));
    QString outside;
    int depth = 0;
    for (const QChar c : text) {
        depth += c == u'[' ? 1 : c == u']' ? -1 : 0;
        if (depth == 0 && c != u']') {
            outside += c;
        }
    }
    outside.remove(names);
    static const QRegularExpression words(QStringLiteral("\\p{L}{2,}"));
    return words.match(outside).captured();
}

}  // namespace varnel::testing
