// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/undo_tools.h"
#include "app/panels/menu_entry.h"

#include <QApplication>
#include <QKeyEvent>

namespace varnel {

namespace {

const QList<QKeySequence>& UndoKeys() {
    static const QList<QKeySequence> keys{QKeySequence(Qt::CTRL | Qt::Key_Z)};
    return keys;
}

const QList<QKeySequence>& RedoKeys() {
    static const QList<QKeySequence> keys{QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                                          QKeySequence(Qt::CTRL | Qt::Key_Y)};
    return keys;
}

}  // namespace

UndoTools::UndoTools(const WindowParts& parts, const WindowView& view, Workspace& workspace,
                     QObject* parent)
    : QObject(parent),
      workspace_(workspace),
      undo_(AddMenuEntry(parts.editMenu, "CmdEditUndo", {}, UndoKeys())),
      redo_(AddMenuEntry(parts.editMenu, "CmdEditRedo", {}, RedoKeys())) {
    connect(undo_, &QAction::triggered, this, [this, &view] {
        if (!view.Locked()) {
            workspace_.list.Undo();
        }
    });
    connect(redo_, &QAction::triggered, this, [this, &view] {
        if (!view.Locked()) {
            workspace_.list.Redo();
        }
    });
    for (SliderRow* const row : parts.adjustments->Rows()) {
        connect(row->Slider(), &QSlider::sliderReleased, this,
                [this] { workspace_.model.steps.Seal(); });
        for (auto* const field : row->findChildren<QAbstractSpinBox*>()) {
            field->installEventFilter(this);
        }
    }
    // Every press and release of a mouse button, wherever it is, ends the step at hand.
    QApplication::instance()->installEventFilter(this);
    connect(&workspace_.model.steps, &ListSteps::Changed, this, [this] { ShowNames(); });
    ShowNames();
}

UndoTools::~UndoTools() {
    QApplication::instance()->removeEventFilter(this);
}

void UndoTools::ShowNames() {
    const auto show = [](QAction* entry, const QString& plain, const QString& named,
                         const QString& step) {
        entry->setEnabled(!step.isEmpty());
        entry->setText(step.isEmpty() ? plain : named.arg(step));
    };
    show(undo_, tr("&Undo"), tr("&Undo %1"), workspace_.model.steps.UndoName());
    show(redo_, tr("&Redo"), tr("&Redo %1"), workspace_.model.steps.RedoName());
}

bool UndoTools::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease) {
        workspace_.model.steps.Seal();
    } else if (event->type() == QEvent::ShortcutOverride &&
               qobject_cast<QAbstractSpinBox*>(watched) != nullptr) {
        // A number's field would keep these keys for its own text, which has no steps to go back
        // to.
        const auto* const key = static_cast<QKeyEvent*>(event);
        const QKeySequence pressed(key->keyCombination());
        if (UndoKeys().contains(pressed) || RedoKeys().contains(pressed)) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace varnel
