// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/records/projection.h"

namespace varnel {

QString ToText(Projection projection) {
    static constexpr std::array names{u"Varnel", u"Rectilinear", u"Equidistance", u"Horizon"};
    return QString::fromUtf16(names[static_cast<std::size_t>(projection)]);
}

std::optional<Projection> ProjectionFromText(QStringView text) {
    for (const Projection projection : allProjections) {
        if (text.compare(ToText(projection), Qt::CaseInsensitive) == 0) {
            return projection;
        }
    }
    return std::nullopt;
}

Projection ProjectionFromIndex(int index) {
    return index >= 0 && index <= 2 ? static_cast<Projection>(index) : Projection::Horizon;
}

}  // namespace varnel
