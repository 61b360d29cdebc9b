// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/form_straighten.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <cmath>

#include "app/straighten/straighten_texts.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "base/shortage.h"
#include "pipeline/photos/jpeg_colour.h"
#include "remap/display/hourglass.h"
#include "remap/render/render.h"
#include "remap/render/result_size.h"
#include "state/adjustments/frame_reading.h"
#include "ui_form_straighten.h"

namespace varnel {

namespace {

constexpr float shownAngle = 110.0F;  // degrees across the straightened view

// A photo that is in no list: a guess.
ImageRecord RecordFor(const LoadedPicture& photo) {
    ImageRecord record;
    TakeSize({photo.size, photo.orientation}, record);
    GuessFrame(photo.bitmap->metadata.photo.origin, std::nullopt, record);
    return record;
}

}  // namespace

FormStraighten::FormStraighten(Ports ports, std::optional<PhotoToMeasure> photo, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormStraighten>()),
      ports_(std::move(ports)),
      forList_(photo.has_value()),
      model_(ports_.pool, this),
      edges_(new EdgeView(model_, this)),
      straight_(new PictureBox({}, this)) {
    ui_->setupUi(this);
    SetUpPictures();
    SetUpControls();
    ConnectButtons();
    if (photo) {
        ui_->ComboPhotos->addItem(QFileInfo(photo->path).fileName());
        model_.Add({photo->bitmap, photo->path, photo->record, HasHalvedColour(photo->path)});
        ui_->EditName->setText(ports_.lenses.FreeName(LensName()));
    }
    ShowPhoto();
    Show();
}

FormStraighten::~FormStraighten() = default;

void FormStraighten::SetUpPictures() {
    straight_->setObjectName(QStringLiteral("PicStraight"));
    straight_->setAccessibleName(tr("The photo made straight"));
    for (PictureBox* const box : {static_cast<PictureBox*>(edges_), straight_}) {
        box->setMinimumSize(240, 200);
        box->setFocusPolicy(Qt::TabFocus);  // or it gets no place in the order
        ui_->LayoutPictures->addWidget(box, 1);
    }
    setTabOrder(ui_->CmdAddPhotos, edges_);
    setTabOrder(edges_, straight_);
    setTabOrder(straight_, ui_->EdgeTable);
    connect(edges_, &EdgeView::EdgeClicked, this, [this](int edge) {
        Select(edge);
        ToggleSelected();
    });
    connect(edges_, &EdgeView::MenuWanted, this, &FormStraighten::ShowMenu);
    connect(edges_, &EdgeView::EdgeWanted, &model_, &StraightenModel::Trace);
    connect(edges_, &EdgeView::BegunChanged, this, [this] { Say({}); });
    connect(edges_, &EdgeView::RoomChanged, this, &FormStraighten::ShowPhoto);
    drawTimer_.setSingleShot(true);
    drawTimer_.setInterval(0);
    connect(&drawTimer_, &QTimer::timeout, this, &FormStraighten::DrawStraight);
}

void FormStraighten::SetUpControls() {
    ui_->EdgeTable->setColumnCount(4);
    ui_->EdgeTable->setHorizontalHeaderLabels(
        {tr("Photo"), tr("Length"), tr("Off straight"), tr("Direction")});
    ui_->EdgeTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui_->EdgeTable->verticalHeader()->hide();
    ui_->EdgeTable->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    for (QPushButton* const button : {ui_->CmdUse, ui_->CmdUseForAll}) {
        button->setVisible(forList_);
    }
    ui_->CmdSaveLens->setVisible(!ports_.lenses.Path().isEmpty());
    connect(ui_->EdgeTable, &QTableWidget::itemSelectionChanged, this, &FormStraighten::OnSelected);
    connect(ui_->SpinFocal, &QDoubleSpinBox::valueChanged, this, &FormStraighten::Know);
    connect(ui_->CheckNinety, &QCheckBox::toggled, this, &FormStraighten::Know);
    connect(ui_->CheckColour, &QCheckBox::toggled, this, &FormStraighten::Know);
    connect(ui_->ComboPhotos, &QComboBox::currentIndexChanged, this, &FormStraighten::ShowPhoto);
    connect(ui_->EditName, &QLineEdit::textChanged, this, &FormStraighten::Show);
    connect(&model_, &StraightenModel::Changed, this, &FormStraighten::Show);
    connect(&model_, &StraightenModel::NotTraced, this, [this] {
        Say(tr("No edge was found between these two places; click nearer to its ends."));
    });
    connect(&model_, &StraightenModel::Failed, this, [this] { Say(ShortageText(Scarce::Memory)); });
}

void FormStraighten::ConnectButtons() {
    for (const auto& [button, tag] : {std::pair{ui_->CmdTagUpright, EdgeTag::Upright},
                                      {ui_->CmdTagLevel, EdgeTag::Level},
                                      {ui_->CmdTagAway, EdgeTag::Away},
                                      {ui_->CmdTagNone, EdgeTag::None}}) {
        connect(button, &QPushButton::clicked, this, [this, its = tag] { TagSelected(its); });
    }
    connect(ui_->CmdTakeAway, &QPushButton::clicked, this, &FormStraighten::ToggleSelected);
    connect(ui_->CmdAddPhotos, &QPushButton::clicked, this, [this] {
        const QString first = model_.Photos().empty() ? QString() : model_.Photos().front().path;
        AddPhotos(ports_.choosePhotos(first.isEmpty() ? first : QFileInfo(first).absolutePath()));
    });
    connect(ui_->CmdSaveLens, &QPushButton::clicked, this, &FormStraighten::Save);
    connect(ui_->CmdUse, &QPushButton::clicked, this, [this] { Finish(false); });
    connect(ui_->CmdUseForAll, &QPushButton::clicked, this, [this] { Finish(true); });
    connect(ui_->CmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

void FormStraighten::AddPhotos(const QStringList& paths) {
    const Hourglass hourglass;
    QStringList errors;
    setEnabled(false);  // events are handled while photos are read
    const auto enable = qScopeGuard([this] { setEnabled(true); });
    for (const QString& path : paths) {
        if (const QString error = Added(path); !error.isEmpty()) {
            errors.append(error);
        }
    }
    if (!errors.isEmpty()) {
        Say(errors.join(QStringLiteral("; ")));
    }
}

QString FormStraighten::Added(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    LoadedPicture loaded;
    const QString shortage = Shortage([&] { loaded = ports_.photos.Load(path); });
    if (!loaded.bitmap) {
        return name + QStringLiteral(": ") +
               (shortage.isEmpty() ? ErrorText(loaded.reason) : shortage);
    }
    const bool first = model_.Photos().empty();
    const ImageRecord record = RecordFor(loaded);
    if (!model_.Add({std::move(loaded.bitmap), path, record, HasHalvedColour(path)})) {
        return model_.Photos().size() == StraightenModel::mostPhotos
                   ? tr("%1: four photos are the most").arg(name)
                   : tr("%1: it is not as large as the first photo, or held otherwise").arg(name);
    }
    ui_->ComboPhotos->addItem(name);
    if (first) {
        ui_->EditName->setText(ports_.lenses.FreeName(LensName()));
        ShowPhoto();
    }
    return {};
}

// As the camera and its lens are called, or the photo.
QString FormStraighten::LensName() const {
    const StraightenModel::Photo& photo = model_.Photos().front();
    const CameraInfo& origin = photo.bitmap->metadata.photo.origin;
    const QString lens = origin.LensModel.isEmpty() ? origin.Model : origin.LensModel;
    return lens.isEmpty() ? QFileInfo(photo.path).completeBaseName()
                          : tr("%1, measured").arg(lens.simplified());
}

void FormStraighten::Show() {
    ui_->LabelFigures->setText(FiguresText(model_));
    ui_->SpinFocal->setEnabled(model_.KnowsSensor());
    ui_->ComboPhotos->setVisible(model_.Photos().size() > 1);
    ui_->CmdAddPhotos->setEnabled(model_.Photos().size() < StraightenModel::mostPhotos);
    const bool usable = model_.HasLens() && !ui_->EditName->text().trimmed().isEmpty();
    for (QPushButton* const button : {ui_->CmdUse, ui_->CmdUseForAll, ui_->CmdSaveLens}) {
        button->setEnabled(usable);
    }
    ShowStatus();
    ShowTable();
    OnSelected();
    drawTimer_.start();
}

void FormStraighten::ShowStatus() {
    const bool measuring = model_.Measuring();
    ui_->BarMeasure->setVisible(measuring);
    const QString text = edges_->Begun()    ? tr("Now click near the other end of the edge.")
                         : !said_.isEmpty() ? said_
                         : !measuring       ? QString()
                         : !model_.Result() ? tr("Looking for straight edges...")
                                            : tr("Measuring...");
    ui_->LabelStatus->setText(text);
    ui_->LabelStatus->setToolTip(text);
}

void FormStraighten::ShowTable() {
    const QScopedValueRollback showing(showing_, true);
    QTableWidget& table = *ui_->EdgeTable;
    table.setColumnHidden(0, model_.Photos().size() < 2);
    table.setRowCount(static_cast<int>(model_.Edges().size()));
    for (int row = 0; row < table.rowCount(); ++row) {
        const EdgeOnPhoto& edge = model_.Edges()[static_cast<std::size_t>(row)];
        const QString off =
            edge.away      ? tr("taken away")
            : !edge.result ? QString()
            : edge.result->used
                ? tr("%1 px").arg(QLocale().toString(edge.result->rms, 'f', 2))
                : tr("%1 px, not used").arg(QLocale().toString(edge.result->rms, 'f', 2));
        const QStringList texts{QString::number(edge.trace.photo + 1),
                                tr("%1 px").arg(std::lround(Span(edge.trace))), off,
                                TagText(edge.trace.tag)};
        for (int column = 0; column < texts.size(); ++column) {
            if (table.item(row, column) == nullptr) {
                table.setItem(row, column, new QTableWidgetItem);
            }
            table.item(row, column)->setText(texts[column]);
        }
    }
}

void FormStraighten::ShowPhoto() {
    const QString shortage =
        Shortage([&] { edges_->ShowPhoto(std::max(ui_->ComboPhotos->currentIndex(), 0)); });
    if (!shortage.isEmpty()) {
        Say(shortage);
    }
    drawTimer_.start();
}

void FormStraighten::DrawStraight() {
    edges_->RedrawOverlays();
    if (edges_->Reduced() == nullptr) {
        return;
    }
    ImageRecord record = ShapedAsPhoto(model_.Straightened(edges_->Photo()));
    record.OutputAOV = shownAngle;
    record.EffectRectilinear = 100.0F;
    SilentProgress silent;
    RenderContext context{
        .bitmaps = bitmaps_, .smoothPreview = [] { return true; }, .runner = &ports_.pool};
    try {
        const Bitmap& photo = *edges_->Reduced();
        bitmaps_.PreviewSourceBitmap =
            std::make_unique<Bitmap>(photo.Format(), photo.Size(), photo.SharedPixels());
        Render(Projection::Rectilinear, record, SizeKind::Thumbnails, silent, context);
        straight_->Show(bitmaps_.ResultBitmap.get());
    } catch (const RunTimeError&) {  // the record's numbers make no picture
        straight_->Show(nullptr);
    } catch (const std::bad_alloc&) {
        Say(ShortageText(Scarce::Memory));
    }
}

int FormStraighten::Selected() const {
    const QModelIndexList rows = ui_->EdgeTable->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void FormStraighten::Select(int edge) {
    ui_->EdgeTable->selectRow(edge);
}

void FormStraighten::OnSelected() {
    if (showing_) {
        return;
    }
    const int edge = Selected();
    for (QPushButton* const button : {ui_->CmdTagUpright, ui_->CmdTagLevel, ui_->CmdTagAway,
                                      ui_->CmdTagNone, ui_->CmdTakeAway}) {
        button->setEnabled(edge >= 0);
    }
    const bool away = edge >= 0 && model_.Edges()[static_cast<std::size_t>(edge)].away;
    ui_->CmdTakeAway->setText(away ? tr("&Bring back") : tr("&Take away"));
    edges_->SelectEdge(edge);
}

void FormStraighten::ShowMenu(int edge, QPoint position) {
    Select(edge);
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QPushButton* const button : {ui_->CmdTagUpright, ui_->CmdTagLevel, ui_->CmdTagAway,
                                      ui_->CmdTagNone, ui_->CmdTakeAway}) {
        connect(menu->addAction(button->text()), &QAction::triggered, button,
                &QAbstractButton::click);
    }
    menu->popup(position);
}

void FormStraighten::TagSelected(EdgeTag tag) {
    if (const int edge = Selected(); edge >= 0) {
        model_.Tag(static_cast<std::size_t>(edge), tag);
    }
}

void FormStraighten::ToggleSelected() {
    if (const int edge = Selected(); edge >= 0) {
        model_.Toggle(static_cast<std::size_t>(edge));
    }
}

void FormStraighten::Know() {
    const double focal = ui_->SpinFocal->value();
    model_.Know({focal > 0.0 ? std::optional(focal) : std::nullopt, ui_->CheckNinety->isChecked(),
                 ui_->CheckColour->isChecked()});
}

void FormStraighten::Save() {
    const LensReference lens = model_.Lens(ui_->EditName->text().trimmed());
    const Reason error = ports_.lenses.Add(*lens);
    Say(error.isEmpty() ? tr("\"%1\" is now among your lenses.").arg(lens->name)
                        : ErrorText(error));
}

void FormStraighten::Finish(bool forAll) {
    use_ = MeasuredLensUse{model_.Lens(ui_->EditName->text().trimmed()), forAll};
    accept();
}

void FormStraighten::reject() {
    use_.reset();
    QDialog::reject();
}

void FormStraighten::Say(const QString& text) {
    said_ = text;
    ShowStatus();
}

// Escape first gives up the edge that was begun; Delete takes the chosen one away.
void FormStraighten::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && edges_->Begun()) {
        edges_->GiveUpEdge();
    } else if (event->key() == Qt::Key_Delete && ui_->EdgeTable->hasFocus()) {
        ToggleSelected();
    } else {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace varnel
