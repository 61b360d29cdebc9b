// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A style with a frame around what has the keyboard where that style shows nothing: a dialog's
// default button, which looks the same with and without it, and lists. The hints in empty fields
// and the guide's links can be read in dark colours, too. Throws nothing.
#pragma once

#include <QProxyStyle>
#include <QStyleOptionComboBox>

namespace varnel {

class FocusStyle : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

  private:
    void DrawShortened(const QStyleOptionComboBox& combo, QPainter* painter,
                       const QWidget* widget) const;
};

}  // namespace varnel
