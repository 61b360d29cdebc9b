// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// XML element by element. Entities of a document's own are an error, so that nothing can be blown
// up. After an error nothing more comes. Throws std::bad_alloc only.
#pragma once

#include <QXmlStreamReader>

#include "base/reason.h"

namespace varnel {

class XmlReading {
  public:
    // The bytes outlive it.
    explicit XmlReading(const QByteArray& bytes);

    // Goes to the next start of an element, of any depth.
    bool NextElement();
    // The same as long as it lies within the element of that depth; false at its end.
    bool NextElementWithin(int depth);
    int Depth() const { return depth_; }  // of the current element; 1 is the root

    // Without its name space.
    QString Name() const { return xml_.name().toString(); }
    QXmlStreamAttributes Attributes() const { return xml_.attributes(); }
    bool Has(QStringView attribute) const {
        return xml_.attributes().hasAttribute(attribute.toString());
    }
    QString Attribute(QStringView name) const {
        return xml_.attributes().value(name.toString()).toString();
    }
    // Finite and within +-1e6; what is no such number is an error.
    double Number(QStringView attribute, double otherwise);
    // What stands in the element up to its end or the first element in it.
    QString Text();

    // The first thing that fails ends the reading; the reason names its line.
    void Require(const QString& key, bool good);
    Reason Error() const;

  private:
    bool Step();

    QXmlStreamReader xml_;
    int depth_ = 0;
    bool pending_ = false;  // Text has read up to the next tag
    Reason error_;
};

}  // namespace varnel
