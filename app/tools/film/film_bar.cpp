// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/film/film_bar.h"

#include <QHBoxLayout>
#include <QStyle>
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

}  // namespace

FilmBar::FilmBar(QWidget* parent)
    : QWidget(parent),
      time_(new QLabel(this)),
      error_(new QLabel(this)),
      line_(new TimeLine(this)) {
    setObjectName(QStringLiteral("BarFilm"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(9, 4, 9, 4);
    rows->setSpacing(4);
    auto* const first = new QHBoxLayout;
    auto* const second = new QHBoxLayout;
    rows->addLayout(first);
    rows->addLayout(second);
    play_ = AddButton(first, "CmdFilmPlay", tr("Play"), tr("Plays the film (space)"));
    first->addWidget(line_, 1);
    time_->setObjectName(QStringLiteral("LabelFilmTime"));
    first->addWidget(time_);
    in_ = AddButton(second, "CmdFilmIn", tr("In"), tr("The film begins with this frame (I)"));
    out_ = AddButton(second, "CmdFilmOut", tr("Out"), tr("The film ends with this frame (O)"));
    key_ = AddButton(second, "CmdFilmKey", tr("Set key"), {});
    keying_ = AddButton(second, "CmdFilmKeying", tr("Auto key"),
                        tr("Every slider that is moved makes a key at this time; without it only "
                           "those do that have keys already"));
    keying_->setCheckable(true);
    error_->setObjectName(QStringLiteral("LabelFilmError"));
    error_->setTextFormat(Qt::PlainText);
    error_->setWordWrap(true);
    second->addWidget(error_, 1);
    AddSaving(second);
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

void FilmBar::AddSaving(QLayout* row) {
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
        row->addWidget(control);
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
    save_ = AddButton(row, "CmdFilmSave", tr("Save film ..."),
                      tr("Converts the film with its keys, from In to Out, and writes it"));
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
    line_->setEnabled(text.isEmpty());
    for (QToolButton* const button : {play_, in_, out_, key_, keying_, save_}) {
        button->setEnabled(text.isEmpty());
    }
}

}  // namespace varnel
