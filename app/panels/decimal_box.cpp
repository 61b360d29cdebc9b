// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/decimal_box.h"

#include <cmath>

namespace varnel {

namespace {

constexpr int mostDecimals = 2;

}  // namespace

DecimalBox::DecimalBox(QWidget* parent) : QDoubleSpinBox(parent) {
    setDecimals(mostDecimals);
    setGroupSeparatorShown(false);
}

QSize DecimalBox::Widened(QSize size) const {
    return {size.width() + fontMetrics().horizontalAdvance(QStringLiteral(".88")), size.height()};
}

QString DecimalBox::textFromValue(double value) const {
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    for (int decimals = 0; decimals < mostDecimals; ++decimals) {
        const double shift = std::pow(10.0, decimals);
        if (std::fabs(std::round(value * shift) / shift - value) < 1e-6) {
            return plain.toString(value, 'f', decimals);
        }
    }
    return plain.toString(value, 'f', mostDecimals);
}

double DecimalBox::valueFromText(const QString& text) const {
    QString own = text;
    int position = 0;
    validate(own, position);
    return QDoubleSpinBox::valueFromText(own);
}

QValidator::State DecimalBox::validate(QString& text, int& position) const {
    const QString point = locale().decimalPoint();
    text.replace(QLatin1Char('.'), point);
    text.replace(QLatin1Char(','), point);
    return QDoubleSpinBox::validate(text, position);
}

}  // namespace varnel
