// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/film/film_bar.h"

#include <QStyle>
#include <algorithm>
#include <array>

#include "state/dialogs/wheel_guard.h"

namespace varnel {

namespace {

// Named as the command line names them.
constexpr std::array codecs{std::pair{"h264", "H.264"}, std::pair{"h265", "H.265"},
                            std::pair{"av1", "AV1"},    std::pair{"vp9", "VP9"},
                            std::pair{"ffv1", "FFV1"},  std::pair{"prores", "ProRes"}};
// Of the encoders of H.264 and H.265; the others have their own.
constexpr std::array speeds{"ultrafast", "veryfast", "fast", "medium", "slow", "veryslow"};
constexpr int ownQuality = -1;
constexpr int mostCrf = 63;

// A button that now has one text and now another is as wide as the longer one, so that nothing
// beside it moves.
void KeepRoom(QToolButton& button, const QStringList& texts) {
    for (const QString& text : texts) {
        button.setText(text);
        button.setMinimumWidth(std::max(button.minimumWidth(), button.sizeHint().width()));
    }
}

}  // namespace

FilmBar::FilmBar(QWidget* parent)
    : QWidget(parent),
      playing_(new QHBoxLayout),
      choices_(new QBoxLayout(QBoxLayout::LeftToRight)),
      keys_(new QHBoxLayout),
      saving_(new QHBoxLayout),
      time_(new QLabel(this)),
      error_(new QLabel(this)),
      line_(new TimeLine(this)) {
    setObjectName(QStringLiteral("BarFilm"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(9, 4, 9, 4);
    rows->setSpacing(4);
    rows->addLayout(playing_);
    rows->addLayout(choices_);
    choices_->addLayout(keys_);
    choices_->addLayout(saving_);
    play_ = AddButton(playing_, "CmdFilmPlay", tr("Play"), tr("Plays the film (space)"));
    playing_->addWidget(line_, 1);
    time_->setObjectName(QStringLiteral("LabelFilmTime"));
    playing_->addWidget(time_);
    in_ = AddButton(keys_, "CmdFilmIn", tr("In"), tr("The film begins with this frame (I)"));
    out_ = AddButton(keys_, "CmdFilmOut", tr("Out"), tr("The film ends with this frame (O)"));
    key_ = AddButton(keys_, "CmdFilmKey", tr("Set key"), {});
    keying_ = AddButton(keys_, "CmdFilmKeying", tr("Auto key"),
                        tr("Every slider that is moved makes a key at this time; without it only "
                           "those do that have keys already"));
    keying_->setCheckable(true);
    error_->setObjectName(QStringLiteral("LabelFilmError"));
    error_->setTextFormat(Qt::PlainText);
    error_->setWordWrap(true);
    error_->hide();
    rows->addWidget(error_);
    keys_->addStretch(1);
    saving_->addStretch(1);
    AddSaving();
    KeepRoom(*key_, {tr("Remove key"), tr("Set key")});
    ShowPlaying(false);
    ShowKey(false);
    hide();
}

QToolButton* FilmBar::AddButton(QLayout* row, const char* name, const QString& text,
                                const QString& tip) {
    auto* const button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(text);
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::TabFocus);
    row->addWidget(button);
    return button;
}

void FilmBar::AddSaving() {
    codec_ = new QComboBox(this);
    codec_->setObjectName(QStringLiteral("FilmCodecCombo"));
    codec_->setAccessibleName(tr("Codec of the film"));
    codec_->setToolTip(tr("How the film is encoded"));
    for (const auto& [key, name] : codecs) {
        codec_->addItem(QString::fromLatin1(name), QString::fromLatin1(key));
    }
    quality_ = new QSpinBox(this);
    quality_->setObjectName(QStringLiteral("SpinFilmQuality"));
    quality_->setAccessibleName(tr("Quality of the film (CRF)"));
    quality_->setToolTip(tr("CRF of the encoder: a smaller number is a better and longer file"));
    quality_->setRange(ownQuality, mostCrf);
    quality_->setSpecialValueText(tr("Usual quality"));
    quality_->setPrefix(QStringLiteral("CRF "));
    quality_->setValue(ownQuality);
    speed_ = new QComboBox(this);
    speed_->setObjectName(QStringLiteral("FilmSpeedCombo"));
    speed_->setAccessibleName(tr("Speed of encoding"));
    speed_->setToolTip(tr("A slower encoder makes shorter files of the same quality"));
    speed_->addItem(tr("Usual speed"), QString());
    for (const char* const speed : speeds) {
        speed_->addItem(QString::fromLatin1(speed), QString::fromLatin1(speed));
    }
    for (QWidget* const control : std::initializer_list<QWidget*>{codec_, quality_, speed_}) {
        control->setFocusPolicy(Qt::StrongFocus);
        new WheelGuard(control);
        saving_->addWidget(control);
    }
    connect(quality_, &QSpinBox::valueChanged, this, &FilmBar::OutputChanged);
    connect(speed_, &QComboBox::currentIndexChanged, this, &FilmBar::OutputChanged);
    connect(codec_, &QComboBox::currentIndexChanged, this, [this] {
        const QString codec = codec_->currentData().toString();
        const bool named = codec == u"h264" || codec == u"h265";
        speed_->setEnabled(named);
        quality_->setEnabled(codec != u"ffv1" && codec != u"prores");
        Q_EMIT OutputChanged();
    });
    save_ = AddButton(saving_, "CmdFilmSave", tr("Save film ..."),
                      tr("Converts the film with its keys, from In to Out, and writes it"));
}

QSize FilmBar::minimumSizeHint() const {
    const QMargins around = layout()->contentsMargins();
    const int widest = std::max({playing_->minimumSize().width(), keys_->minimumSize().width(),
                                 saving_->minimumSize().width()});
    return {widest + around.left() + around.right(), layout()->totalMinimumSize().height()};
}

void FilmBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int beside =
        keys_->minimumSize().width() + choices_->spacing() + saving_->minimumSize().width();
    choices_->setDirection(layout()->contentsRect().width() < beside ? QBoxLayout::TopToBottom
                                                                     : QBoxLayout::LeftToRight);
}

QWidgetList FilmBar::Controls() const {
    return {play_, line_, in_, out_, key_, keying_, codec_, quality_, speed_, save_};
}

void FilmBar::OfferSaving(bool on) {
    for (QWidget* const control :
         std::initializer_list<QWidget*>{codec_, quality_, speed_, save_}) {
        control->setVisible(on);
    }
}

FilmOutput FilmBar::Output() const {
    FilmOutput output;
    output.codec = codec_->currentData().toString();
    if (quality_->isEnabled() && quality_->value() != ownQuality) {
        output.crf = quality_->value();
    }
    output.speed = speed_->isEnabled() ? speed_->currentData().toString() : QString();
    return output;
}

void FilmBar::Choose(const FilmOutput& output) {
    for (const auto& [choices, chosen] :
         {std::pair{codec_, output.codec}, {speed_, output.speed}}) {
        choices->setCurrentIndex(std::max(choices->findData(chosen), 0));
    }
    quality_->setValue(output.crf.value_or(ownQuality));
}

void FilmBar::ShowTime(double now, double seconds) {
    const QString text = QStringLiteral("%1 / %2").arg(TimeText(now), TimeText(seconds));
    time_->setMinimumWidth(fontMetrics().horizontalAdvance(text) + 4);
    time_->setText(text);
}

void FilmBar::ShowPlaying(bool on) {
    play_->setIcon(style()->standardIcon(on ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
    play_->setText(on ? tr("Pause") : tr("Play"));
    play_->setAccessibleName(play_->text());
}

void FilmBar::ShowKey(bool there) {
    key_->setText(there ? tr("Remove key") : tr("Set key"));
    key_->setToolTip(there
                         ? tr("Removes the key at this time")
                         : tr("A key at this time with the numbers of all sliders that move (K)"));
}

void FilmBar::ShowError(const QString& text) {
    error_->setText(text);
    error_->setVisible(!text.isEmpty());
    line_->setEnabled(text.isEmpty());
    for (QToolButton* const button : {play_, in_, out_, key_, keying_, save_}) {
        button->setEnabled(text.isEmpty());
    }
}

}  // namespace varnel
