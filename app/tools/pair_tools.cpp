// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/pair_tools.h"

#include <QLayout>
#include <algorithm>

namespace varnel {

PairBar::PairBar(QWidget* parent) : LineBar("BarPairs", "LabelPairs", parent) {
    connect(AddButton("CmdPairsRawOnly", tr("Use RAW only"),
                      tr("Takes the JPEG files of these photos out of the list")),
            &QPushButton::clicked, this, &PairBar::RawOnlyWanted);
    connect(AddButton("CmdPairsClose", tr("Close"), tr("Hides this line")), &QPushButton::clicked,
            this, &PairBar::Closed);
}

void PairBar::ShowPairs(int pairs) {
    Text().setText(pairs == 1 ? tr("1 photo was added as RAW and as JPEG")
                              : tr("%1 photos were added as RAW and as JPEG").arg(pairs));
    setVisible(pairs > 0);
}

PairTools::PairTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
                     QObject* owner)
    : QObject(owner),
      view_(view),
      workspace_(workspace),
      bar_(new PairBar(parts.pictures->parentWidget())) {
    parts.pictures->parentWidget()->layout()->addWidget(bar_);
    connect(&workspace_.model, &WorkspaceModel::PhotosAdded, this, &PairTools::OnAdded);
    connect(&workspace_.model.list, &ImageSelection::Refilled, this, &PairTools::Refresh);
    connect(&workspace_.model.list, &ImageSelection::Rearranged, this, &PairTools::Refresh);
    connect(bar_, &PairBar::RawOnlyWanted, this, &PairTools::UseRawOnly);
    connect(bar_, &PairBar::Closed, this, [this] {
        pairs_.clear();
        Refresh();
    });
}

QStringList PairTools::Paths() const {
    QStringList paths;
    for (const ImageRecord& image : workspace_.model.list.Images()) {
        paths.append(SourcePath(image));
    }
    return paths;
}

void PairTools::OnAdded(const QStringList& added) {
    pairs_ = RawPairsIn(Paths());
    std::erase_if(pairs_, [&](const RawPair& pair) {
        return !added.contains(pair.raw) && !added.contains(pair.jpeg);
    });
    bar_->ShowPairs(static_cast<int>(pairs_.size()));
}

void PairTools::Refresh() {
    const QStringList paths = Paths();
    std::erase_if(pairs_, [&](const RawPair& pair) {
        return !paths.contains(pair.raw) || !paths.contains(pair.jpeg);
    });
    bar_->ShowPairs(static_cast<int>(pairs_.size()));
}

void PairTools::UseRawOnly() {
    if (view_.Locked() || workspace_.model.activity.Busy()) {
        return;
    }
    const QStringList paths = Paths();
    QString current = workspace_.model.list.CurrentPath();
    QStringList left = paths;
    std::vector<int> lines;
    for (const auto& [raw, jpeg] : pairs_) {
        current = current == jpeg ? raw : current;
        left.removeAll(jpeg);
    }
    for (int line = 0; line < paths.size(); ++line) {
        if (!left.contains(paths[line])) {
            lines.push_back(line);
        }
    }
    const auto shown = static_cast<int>(left.indexOf(current));
    workspace_.list.Remove(lines, std::max(shown, 0));
}

}  // namespace varnel
