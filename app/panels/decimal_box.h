// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A spin box for numbers that are whole as a rule: it shows decimals only where there are some, and
// takes them with a point or a comma, whatever the language. Throws nothing.
#pragma once

#include <QDoubleSpinBox>

namespace varnel {

class DecimalBox : public QDoubleSpinBox {
    Q_OBJECT
  public:
    explicit DecimalBox(QWidget* parent = nullptr);

    QSize sizeHint() const override { return Widened(QDoubleSpinBox::sizeHint()); }
    QSize minimumSizeHint() const override { return Widened(QDoubleSpinBox::minimumSizeHint()); }

  protected:
    QString textFromValue(double value) const override;
    double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

  private:
    // The ends of the range are whole, what is between them may not be.
    QSize Widened(QSize size) const;
};

}  // namespace varnel
