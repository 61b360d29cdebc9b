// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/project_tools.h"

#include <QDir>
#include <QFileInfo>
#include <QMenuBar>

#include "app/panels/menu_entry.h"
#include "base/error_text.h"

namespace varnel {

ProjectTools::ProjectTools(QMainWindow* window, WindowView& view, Workspace& workspace,
                           const WorkingState& state, SettingsStore& store,
                           const WindowPorts& ports)
    : QObject(window),
      window_(window),
      view_(view),
      workspace_(workspace),
      state_(state),
      store_(store),
      ports_(ports) {
    auto* const sep = window->findChild<QAction*>(QStringLiteral("Sep2"));
    AddEntries(window->menuBar()->actions().constFirst()->menu(), sep);
    connect(&workspace_.model.steps, &ListSteps::Changed, this, [this] { ShowState(); });
    ShowState();
}

void ProjectTools::AddEntries(QMenu* menu, QAction* before) {
    menu->insertSeparator(before);
    const auto add = [&](const char* name, const QString& text, const QKeySequence& keys,
                         auto handler) {
        QAction* const entry = AddMenuEntry(menu, name, text, {keys}, before);
        connect(entry, &QAction::triggered, this, handler);
        return entry;
    };
    add("CmdOpenProject", tr("Open project..."), Qt::CTRL | Qt::SHIFT | Qt::Key_O,
        [this] { ChooseAndOpen(); });
    save_ = add("CmdSaveProject", tr("Save project"), Qt::CTRL | Qt::ALT | Qt::Key_S,
                [this] { Save(); });
    saveAs_ = add("CmdSaveProjectAs", tr("Save project as..."), {}, [this] { SaveAs(); });
    recent_ = new QMenu(tr("Recent projects"), menu);
    recent_->setObjectName(QStringLiteral("MenuRecentProjects"));
    recent_->setToolTipsVisible(true);
    menu->insertMenu(before, recent_);
    connect(menu, &QMenu::aboutToShow, this, &ProjectTools::FillRecent);
    FillRecent();
}

void ProjectTools::FillRecent() {
    recent_->clear();
    for (const QString& path : RecentProjects(store_)) {
        QString name = QFileInfo(path).fileName();
        QAction* const entry = recent_->addAction(name.replace(u'&', QStringLiteral("&&")));
        entry->setToolTip(QDir::toNativeSeparators(path));
        connect(entry, &QAction::triggered, this, [this, path] { Open(path); });
    }
    recent_->setEnabled(!recent_->isEmpty());
}

void ProjectTools::ShowState() {
    const QString project = workspace_.model.steps.Project();
    view_.ShowProject(QFileInfo(project).completeBaseName(),
                      !ChangedProject().isEmpty() || workspace_.model.steps.UnsavedPhotos() > 0);
    save_->setEnabled(!state_.Images.Empty() || !project.isEmpty());
    saveAs_->setEnabled(save_->isEnabled());
}

QStringList ProjectTools::OpenFrom(const QStringList& files) {
    QStringList others;
    QString project;
    for (const QString& file : files) {
        if (!IsProjectName(file)) {
            others.append(file);
        } else if (project.isEmpty()) {
            project = file;
        }
    }
    if (!project.isEmpty()) {
        Open(project);
    }
    return others;
}

QString ProjectTools::StartFolder() const {
    const QString known = workspace_.model.steps.Project().isEmpty()
                              ? RecentProjects(store_).value(0)
                              : workspace_.model.steps.Project();
    if (!known.isEmpty()) {
        return QFileInfo(known).absolutePath();
    }
    return state_.Images.Empty() ? QDir::homePath() : state_.Images(1).Folder + u'/';
}

void ProjectTools::ChooseAndOpen() {
    const QString path =
        workspace_.model.activity.Busy() ? QString() : ports_.dialogs.ChooseProject(StartFolder());
    if (!path.isEmpty()) {
        Open(path);
    }
}

void ProjectTools::Open(const QString& path) {
    if (workspace_.model.activity.Busy()) {
        return;
    }
    ReadProject project = OpenProject(path);
    const bool asks = project.error.isEmpty() && workspace_.model.steps.ChangedSinceSaved() &&
                      (!state_.Images.Empty() || !workspace_.model.steps.Project().isEmpty());
    if (asks && !SavedOrDiscarded({ChangedProject(), workspace_.model.steps.UnsavedPhotos()})) {
        return;
    }
    if (asks) {
        project = OpenProject(path);  // it may be the one that was just saved
    }
    if (!project.error.isEmpty()) {
        Tell(tr("Could not open %1").arg(path), {project.error});
        return;
    }
    Show(project, QFileInfo(path).absoluteFilePath());
    NoteRecentProject(QFileInfo(path).absoluteFilePath(), store_);
}

void ProjectTools::Show(const ReadProject& project, const QString& path) {
    int line = 0;  // a photo whose file exists is shown first
    while (line < project.images.UpperBound() - 1 &&
           project.missing.contains(SourcePath(project.images(line + 1)))) {
        ++line;
    }
    const bool none = project.missing.size() == project.images.UpperBound();
    workspace_.list.TakeProject(project.images, none ? 0 : line, path);
    Tell(tr("Some photos of the project are not where they were"), project.missing);
    Tell(tr("Some settings of the project could not be used"), project.notes);
}

QString ProjectTools::ChangedProject() const {
    const ListSteps& steps = workspace_.model.steps;
    return steps.ChangedSinceSaved() ? QFileInfo(steps.Project()).fileName() : QString();
}

bool ProjectTools::MayClose(int converting) {
    const UnsavedWork work{ChangedProject(), workspace_.model.steps.UnsavedPhotos(),
                           state_.BatchQueue.UpperBound() + converting};
    return (work.project.isEmpty() && work.photos == 0 && work.queued == 0) ||
           SavedOrDiscarded(work);
}

// Nothing is lost that the user was not asked about.
bool ProjectTools::SavedOrDiscarded(const UnsavedWork& work) {
    switch (ports_.dialogs.AskToSave(work)) {
        case SaveFirst::Save:
            return Save();
        case SaveFirst::DoNotSave:
            return true;
        case SaveFirst::Cancel:
            break;
    }
    return false;
}

bool ProjectTools::Save() {
    const QString& path = workspace_.model.steps.Project();
    return path.isEmpty() ? SaveAs() : SaveTo(QString(path));
}

bool ProjectTools::SaveAs() {
    if (workspace_.model.activity.Busy()) {
        return false;
    }
    const QString known = workspace_.model.steps.Project();
    const QString proposal =
        known.isEmpty() ? QDir(StartFolder()).filePath(tr("photos") + projectEnding.toString())
                        : known;
    const QString path = ports_.dialogs.ChooseProjectName(proposal);
    return !path.isEmpty() && SaveTo(QFileInfo(ProjectName(path)).absoluteFilePath());
}

bool ProjectTools::SaveTo(const QString& path) {
    if (workspace_.model.activity.Busy()) {
        return false;
    }
    const WriteResult written = WriteProject(path, state_.Images);
    if (!written) {
        Tell(tr("Could not save %1").arg(path), {ErrorText(written.reason)});
        return false;
    }
    workspace_.model.steps.MarkSaved(path);
    NoteRecentProject(path, store_);
    view_.ShowStatus(tr("Saved %1").arg(path));
    return true;
}

void ProjectTools::Tell(const QString& text, const QStringList& lines) {
    constexpr qsizetype mostLines = 10;
    if (lines.isEmpty()) {
        return;
    }
    QStringList shown = lines.first(std::min(mostLines, lines.size()));
    if (lines.size() > mostLines) {
        shown.append(tr("... and %1 more").arg(lines.size() - mostLines));
    }
    ports_.notices.Tell(text, shown.join(u'\n'));
}

}  // namespace varnel
