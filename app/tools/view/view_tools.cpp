// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/view_tools.h"

#include <optional>
#include <vector>

#include "app/panels/menu_entry.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

constexpr QLatin1StringView viewKey("PictureView");
constexpr QLatin1StringView insetKey("Inset");

// Four shares with commas between them.
QString TextOf(const QRectF& inset) {
    return QStringLiteral("%1,%2,%3,%4")
        .arg(inset.x(), 0, 'f', 4)
        .arg(inset.y(), 0, 'f', 4)
        .arg(inset.width(), 0, 'f', 4)
        .arg(inset.height(), 0, 'f', 4);
}

// Nothing for what is no place on the area.
std::optional<QRectF> InsetFrom(const QString& text) {
    std::vector<double> shares;
    for (const QString& part : text.split(u',')) {
        bool ok = false;
        shares.push_back(part.toDouble(&ok));
        if (!ok || !(shares.back() >= 0.0 && shares.back() <= 1.0)) {
            return {};
        }
    }
    if (shares.size() != 4 || shares[2] < 0.05 || shares[3] < 0.05) {
        return {};
    }
    return QRectF(shares[0], shares[1], shares[2], shares[3]);
}

}  // namespace

ViewTools::ViewTools(QMainWindow* window, const WindowParts& parts, SettingsStore& store)
    : QObject(window),
      pictures_(*parts.pictures),
      menu_(parts.viewMenu),
      buttons_(parts.views),
      store_(store) {
    AddChoice(PictureView::Split, "CmdViewSplit", tr("S&plit"),
              tr("Photo and result side by side"));
    AddChoice(PictureView::Result, "CmdViewResult", tr("Res&ult"),
              tr("The result as large as possible, with the photo as a small picture on it"));
    AddChoice(PictureView::Photo, "CmdViewPhoto", tr("P&hoto"),
              tr("The photo as shot as large as possible"));
    menu_->addSeparator();
    connect(&choices_, &QActionGroup::triggered, this, [this](const QAction* choice) {
        pictures_.SetView(static_cast<PictureView>(choice->data().toInt()));
    });
    Restore();
}

void ViewTools::AddChoice(PictureView view, const char* name, const QString& text,
                          const QString& tip) {
    QAction* const entry = AddMenuEntry(menu_, name, text);
    entry->setCheckable(true);
    entry->setChecked(view == pictures_.View());
    entry->setData(static_cast<int>(view));
    entry->setToolTip(tip);
    choices_.addAction(entry);
    QToolButton* const button = buttons_.at(static_cast<std::size_t>(view));
    button->setObjectName(
        QString::fromLatin1(name).replace(QStringLiteral("CmdView"), QStringLiteral("CmdShow")));
    button->setDefaultAction(entry);
}

void ViewTools::Choose(PictureView view) {
    choices_.actions().at(static_cast<int>(view))->setChecked(true);
    pictures_.SetView(view);
}

void ViewTools::Restore() {
    const int view = store_.Get(setting::Window, viewKey, {}).toInt();
    if (view > 0 && view < choices_.actions().size()) {
        Choose(static_cast<PictureView>(view));
    }
    if (const auto inset = InsetFrom(store_.Get(setting::Window, insetKey, {}))) {
        pictures_.SetInset(*inset);
    }
}

void ViewTools::Save() {
    store_.Save(setting::Window, viewKey, QString::number(static_cast<int>(pictures_.View())));
    store_.Save(setting::Window, insetKey, TextOf(pictures_.Inset()));
}

}  // namespace varnel
