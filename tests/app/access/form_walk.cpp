// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/access/form_walk.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <algorithm>
#include <map>
#include <vector>

namespace varnel::testing {

namespace {

using Way = std::vector<QWidget*>;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

bool TakesFocus(const QWidget* widget) {
    return (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
           widget->focusProxy() == nullptr;
}

bool IsInput(const QWidget* widget) {
    return qobject_cast<const QComboBox*>(widget) != nullptr ||
           qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
           qobject_cast<const QSlider*>(widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(widget) != nullptr;
}

QRect PlaceIn(const QWidget* ancestor, const QWidget* widget) {
    return {widget->mapTo(ancestor, QPoint()), widget->size()};
}

class Walk {
  public:
    explicit Walk(QWidget& form) : form_(form) {}
    QStringList Faults() {
        for (QWidget* const widget : form_.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->window() == &form_) {
                CheckName(*widget);
                CheckBuddy(*widget);
            }
        }
        CheckLetters();
        CheckKeys();
        return faults_;
    }

  private:
    void Note(const QObject& control, const QString& fault) {
        const QString name = control.objectName();
        faults_.append(form_.objectName() + u'/' +
                       (name.isEmpty() ? Q(control.metaObject()->className()) : name) + Q(": ") +
                       fault);
    }
    const QLabel* LabelOf(const QWidget& widget) const {
        for (const QLabel* const label : form_.findChildren<QLabel*>()) {
            if (label->buddy() == &widget && label->isVisible()) {
                return label;
            }
        }
        return nullptr;
    }
    static QString Spoken(const QWidget& widget) {
        return widget.accessibleName().isEmpty() ? widget.property("text").toString()
                                                 : widget.accessibleName();
    }
    void CheckName(const QWidget& widget) {
        const auto* const label = qobject_cast<const QLabel*>(&widget);
        const bool picture = widget.objectName().startsWith(Q("Pic")) ||
                             (label != nullptr && !label->pixmap().isNull());
        const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
        if ((TakesFocus(&widget) || picture) && widget.accessibleName().isEmpty() &&
            (button == nullptr || button->text().isEmpty()) && LabelOf(widget) == nullptr) {
            Note(widget, Q("has no name"));
        }
        const auto* const push = qobject_cast<const QPushButton*>(button);
        if (push != nullptr || qobject_cast<const QSlider*>(&widget) != nullptr) {
            for (const QWidget* const other : form_.findChildren<QWidget*>()) {
                if (other != &widget && other->metaObject() == widget.metaObject() &&
                    Spoken(*other) == Spoken(widget)) {
                    Note(widget, Q("has the name of another"));
                }
            }
        }
        // Return would press the default one instead.
        if (push != nullptr && !push->autoDefault() &&
            std::ranges::any_of(form_.findChildren<QPushButton*>(), &QPushButton::isDefault)) {
            Note(widget, Q("is not pressed by Return while it has the focus"));
        }
    }
    // A text that stands right before or right above an input, at its left edge. A folder is no
    // name for the files in it, nor "End" for the first of the sliders below it.
    void CheckBuddy(const QWidget& widget) {
        static const QStringList noNames{Q("LabelFolder"), Q("HeadingEnd")};
        const auto* const label = qobject_cast<const QLabel*>(&widget);
        if (label == nullptr || label->text().isEmpty() || label->buddy() != nullptr ||
            noNames.contains(label->objectName())) {
            return;
        }
        if (!QKeySequence::mnemonic(label->text()).isEmpty()) {
            Note(*label, Q("has a letter but no input"));
        }
        for (const QWidget* const input : label->parentWidget()->findChildren<QWidget*>()) {
            if (!IsInput(input) || !TakesFocus(input) || LabelOf(*input) != nullptr) {
                continue;
            }
            const QRect text = PlaceIn(&form_, label);
            const QRect place = PlaceIn(&form_, input);
            const bool before = place.left() >= text.right() && place.left() < text.right() + 16 &&
                                text.contains(text.center().x(), place.center().y());
            const bool above = place.top() >= text.bottom() && place.top() < text.bottom() + 16 &&
                               std::abs(place.left() - text.left()) < 8;
            if (before || above) {
                Note(*label, Q("is not the label of ") + input->objectName());
            }
        }
    }
    void CheckLetters() {
        std::map<QString, QStringList> owners;
        const auto note = [&owners](const QString& text, const QString& name) {
            if (const QString letter = QKeySequence::mnemonic(text).toString(); !letter.isEmpty()) {
                owners[letter].append(name);
            }
        };
        for (const QWidget* const widget : form_.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != &form_) {
                continue;
            }
            const bool titled = qobject_cast<const QGroupBox*>(widget) != nullptr;
            note(widget->property(titled ? "title" : "text").toString(), widget->objectName());
            if (const auto* const bar = qobject_cast<const QMenuBar*>(widget)) {
                for (const QAction* const entry : bar->actions()) {
                    note(entry->text(), entry->text());
                }
            }
        }
        NoteClashes(form_, owners);
        for (const QMenu* const menu : form_.findChildren<QMenu*>()) {
            owners.clear();
            for (const QAction* const entry : menu->actions()) {
                note(entry->text(), entry->objectName());
            }
            NoteClashes(*menu, owners);
        }
    }
    void NoteClashes(const QObject& where, const std::map<QString, QStringList>& owners) {
        for (const auto& [letter, names] : owners) {
            if (names.size() > 1) {
                Note(where, letter + Q(" is the letter of ") + names.join(Q(", ")));
            }
        }
    }

    void CheckKeys() {
        const Way way = Around(Qt::Key_Tab);
        for (const QWidget* const widget : form_.findChildren<QWidget*>()) {
            if (TakesFocus(widget) && widget->isEnabled() && widget->window() == &form_ &&
                !Reached(*widget, way)) {
                Note(*widget, Q("is not reached by Tab"));
            }
        }
        Way back = Around(Qt::Key_Backtab);
        std::ranges::reverse(back);
        if (back.size() != way.size() || !std::ranges::is_permutation(back, way)) {
            Note(form_, Q("Shift+Tab goes another way than Tab"));
        }
        for (std::size_t n = 1; n < way.size(); ++n) {
            if (GoesBack(*way[n - 1], *way[n])) {
                Note(*way[n], Q("comes after ") + way[n - 1]->objectName());
            }
        }
    }
    // From the first in the form's order until the key comes back to it.
    Way Around(Qt::Key key) {
        QWidget* first = form_.nextInFocusChain();
        while (first != &form_ && (!TakesFocus(first) || !first->isEnabled())) {
            first = first->nextInFocusChain();
        }
        // Styles show the focus once a key has moved it.
        QTest::keyClick(form_.focusWidget() != nullptr ? form_.focusWidget() : &form_, key);
        first->setFocus(Qt::TabFocusReason);
        Way way;
        for (QWidget* at = form_.focusWidget(); at != nullptr; at = form_.focusWidget()) {
            if (std::ranges::find(way, at) != way.end()) {
                if (at != way.front()) {
                    Note(*at, Q("keeps the focus"));
                }
                break;
            }
            way.push_back(at);
            if (key == Qt::Key_Tab) {
                CheckFocusSeen(*at);
            }
            QTest::keyClick(at, key);
        }
        return way;
    }
    // One button of a group stands for the others, which the arrow keys reach.
    static bool Reached(const QWidget& widget, const Way& way) {
        return std::ranges::any_of(way, [&widget](const QWidget* at) {
            return at == &widget || (qobject_cast<const QRadioButton*>(at) != nullptr &&
                                     qobject_cast<const QRadioButton*>(&widget) != nullptr &&
                                     at->parentWidget() == widget.parentWidget());
        });
    }
    // Lines are read from left to right and from top to bottom, each frame and column to its end.
    static bool GoesBack(const QWidget& from, const QWidget& to) {
        const QWidget* one = &from;
        const QWidget* other = &to;
        while (!one->parentWidget()->isAncestorOf(&to)) {
            one = one->parentWidget();
        }
        while (other->parentWidget() != one->parentWidget()) {
            other = other->parentWidget();
        }
        const QRect a = one->geometry();
        const QRect b = other->geometry();
        const bool sameLine = b.top() <= a.center().y() && a.center().y() <= b.bottom();
        return (b.bottom() < a.top() && b.left() < a.right()) || (sameLine && b.right() < a.left());
    }
    void CheckFocusSeen(QWidget& widget) {
        const auto picture = [&] {
            const QRect place = PlaceIn(&form_, &widget).adjusted(-4, -4, 4, 4);
            return form_.grab(place & form_.rect()).toImage();
        };
        QApplication::processEvents();
        const QImage with = picture();
        widget.clearFocus();
        QApplication::processEvents();
        if (with == picture()) {
            Note(widget, Q("does not show the focus"));
        }
        widget.setFocus(Qt::TabFocusReason);
    }

    QWidget& form_;
    QStringList faults_;
};

}  // namespace

QStringList FaultsOf(QWidget& form) {
    return Walk(form).Faults();
}

}  // namespace varnel::testing
