// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/xml_reading.h"

#include <cmath>

namespace varnel {

XmlReading::XmlReading(const QByteArray& bytes) : xml_(bytes) {
    xml_.setEntityExpansionLimit(0);
}

// Reads on to the next tag.
bool XmlReading::Step() {
    if (!error_.isEmpty()) {
        return false;
    }
    while (pending_ || !xml_.atEnd()) {
        const auto token = pending_ ? xml_.tokenType() : xml_.readNext();
        pending_ = false;
        if (token == QXmlStreamReader::DTD && !xml_.entityDeclarations().isEmpty()) {
            Require(QStringLiteral("<!ENTITY"), false);
            return false;
        }
        if (token == QXmlStreamReader::StartElement) {
            ++depth_;
            return true;
        }
        if (token == QXmlStreamReader::EndElement) {
            --depth_;
            return true;
        }
    }
    return false;
}

bool XmlReading::NextElement() {
    return NextElementWithin(0);
}

bool XmlReading::NextElementWithin(int depth) {
    while (Step()) {
        if (depth_ < depth) {
            return false;
        }
        if (xml_.isStartElement()) {
            return true;
        }
    }
    return false;
}

double XmlReading::Number(QStringView attribute, double otherwise) {
    if (!Has(attribute)) {
        return otherwise;
    }
    bool good = false;
    const double number = Attribute(attribute).toDouble(&good);
    good = good && std::abs(number) <= 1e6;
    Require(attribute.toString(), good);
    return good ? number : otherwise;
}

QString XmlReading::Text() {
    QString text;
    while (!pending_ && !xml_.atEnd()) {
        const auto token = xml_.readNext();
        if (token == QXmlStreamReader::Characters) {
            text += xml_.text();
        }
        pending_ = token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement;
    }
    return text.simplified();
}

void XmlReading::Require(const QString& key, bool good) {
    if (!good && error_.isEmpty()) {
        error_ =
            Reason(ReasonCode::AtLine, xml_.lineNumber(), Reason(ReasonCode::KeyUnusable, key));
    }
}

Reason XmlReading::Error() const {
    if (error_.isEmpty() && xml_.hasError()) {
        return {ReasonCode::AtLine, xml_.lineNumber(),
                Reason(ReasonCode::Words, xml_.errorString())};
    }
    return error_;
}

}  // namespace varnel
