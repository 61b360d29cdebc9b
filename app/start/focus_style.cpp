// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/focus_style.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace varnel {

namespace {

constexpr int dark = 128;  // of 255
constexpr QColor linkOnDark(110, 175, 255);

void PaintFrame(QPainter& painter, const QRect& place, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
    painter.restore();
}

}  // namespace

void FocusStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        combo != nullptr && element == CE_ComboBoxLabel) {
        DrawShortened(*combo, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (widget == nullptr || !widget->hasFocus()) {
        return;
    }
    const QPalette& colours = option->palette;
    if (element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
        PaintFrame(*painter, option->rect, colours.color(QPalette::Highlight));
    }
    const auto* const button = qobject_cast<const QPushButton*>(widget);
    if (element == CE_PushButton && button != nullptr && button->isDefault() &&
        option->state.testFlag(State_KeyboardFocusChange)) {
        PaintFrame(*painter, option->rect.adjusted(4, 4, -4, -4),
                   colours.color(QPalette::ButtonText));
    }
}

// A tool that is on is seen in both themes; the edge of boxes and of round buttons, which is darker
// than the window, in dark colours, too.
void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const QPalette& colours = option->palette;
    if (element == PE_PanelButtonTool && option->state.testFlag(State_On)) {
        QColor pressed = colours.color(QPalette::Highlight);
        pressed.setAlpha(90);
        painter->fillRect(option->rect.adjusted(1, 1, -1, -1), pressed);
    }
    const bool round = element == PE_IndicatorRadioButton;
    if ((round || element == PE_IndicatorCheckBox) &&
        colours.color(QPalette::Window).lightness() < dark) {
        QColor edge = colours.color(QPalette::WindowText);
        edge.setAlpha(110);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(edge);
        painter->setBrush(Qt::NoBrush);
        const QRectF place = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        const double corner = round ? place.width() / 2.0 : 2.0;
        painter->drawRoundedRect(place, corner, corner);
        painter->restore();
    }
}

// A text that has too little room ends in dots.
void FocusStyle::DrawShortened(const QStyleOptionComboBox& combo, QPainter* painter,
                               const QWidget* widget) const {
    constexpr int margins = 2;  // between the field and its text
    QStyleOptionComboBox shortened(combo);
    const int icon = combo.currentIcon.isNull() ? 0 : combo.iconSize.width() + 4;
    const int room =
        subControlRect(CC_ComboBox, &combo, SC_ComboBoxEditField, widget).width() - icon - margins;
    shortened.currentText = combo.fontMetrics.elidedText(combo.currentText, Qt::ElideRight, room);
    QProxyStyle::drawControl(CE_ComboBoxLabel, &shortened, painter, widget);
}

void FocusStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    QColor hint = palette.color(QPalette::Text);
    hint.setAlpha(128);
    palette.setColor(QPalette::PlaceholderText, hint);
    if (palette.color(QPalette::Base).lightness() < dark &&
        palette.color(QPalette::Link).lightness() <= dark) {
        palette.setColor(QPalette::Link, linkOnDark);
    }
}

}  // namespace varnel
