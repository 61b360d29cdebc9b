// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/dialogs/form_guide.h"

#include <QBoxLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QShortcut>
#include <QTextBlock>
#include <QTextList>
#include <algorithm>

#include "app/panels/named_button.h"
#include "app/picture/first_size.h"

namespace varnel {

namespace {

// Beside bin, where the installation and the build both have it.
constexpr char16_t shippedPages[] = u"../share/varnel/guide/";

constexpr int margin = 24;

// Markdown knows no colours: commands get a background colour, lines more space between them.
void SetOff(QTextDocument& page, const QColor& ground) {
    QTextCursor cursor(&page);
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format;
        if (block.blockFormat().hasProperty(QTextFormat::BlockCodeFence)) {
            format.setBackground(ground);
        } else if (block.blockFormat().headingLevel() > 1) {
            format.setTopMargin(18);
        } else if (!block.textList()) {
            format.setLineHeight(3, QTextBlockFormat::LineDistanceHeight);
        }
        cursor.setPosition(block.position());
        cursor.mergeBlockFormat(format);
    }
}

}  // namespace

QString GuideStartPage(const QString& programFolder, const QString& language) {
    const QDir pages(
        QDir::cleanPath(QDir(programFolder).absoluteFilePath(QString::fromUtf16(shippedPages))));
    for (const QString& page :
         {language + QStringLiteral("/index.md"), QStringLiteral("index.md")}) {
        if (pages.exists(page)) {
            return pages.filePath(page);
        }
    }
    return {};
}

QVariant GuideText::loadResource(int type, const QUrl& name) {
    QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) {
        return resource;
    }
    QImage picture = QImage::fromData(resource.toByteArray());
    const int room = std::max(200, viewport()->width() - 2 * margin);
    if (picture.width() > room) {
        const int pixels = static_cast<int>(room * devicePixelRatioF());
        if (picture.width() > pixels) {
            picture = picture.scaledToWidth(pixels, Qt::SmoothTransformation);
        }
        picture.setDevicePixelRatio(static_cast<double>(picture.width()) / room);
    }
    return picture;
}

FormGuide::FormGuide(const QString& startPage, QWidget* parent)
    : QDialog(parent, Qt::Window), startPage_(startPage) {
    setObjectName(QStringLiteral("FormGuide"));
    setWindowTitle(tr("Varnel user guide"));
    resize(FirstSize(*this, {860, 760}));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    auto* const bar = new QHBoxLayout;
    bar->setContentsMargins(9, 0, 9, 0);
    layout->addLayout(bar);
    // In the order of the Tab key.
    auto* const contents =
        NamedButton("CmdGuideContents", tr("&Contents"), tr("The first page"), this);
    auto* const back = NamedButton("CmdGuideBack", tr("&Back"), tr("The page before"), this);
    auto* const forward =
        NamedButton("CmdGuideForward", tr("&Forward"), tr("The page after"), this);
    wanted_ = new QLineEdit(this);
    text_ = new GuideText(this);
    bar->addWidget(contents);
    bar->addWidget(back);
    bar->addWidget(forward);
    bar->addStretch();
    bar->addWidget(wanted_);
    layout->addWidget(text_, 1);
    PrepareText();
    PrepareSearch();
    ConnectWays(contents, back, forward);
    text_->setFocus();
    text_->setSource(QUrl::fromLocalFile(startPage));
}

void FormGuide::PrepareText() {
    text_->setObjectName(QStringLiteral("TextGuide"));
    text_->setAccessibleName(tr("Page of the guide"));
    // Pictures are made to fit before the length of the page is known.
    text_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // Emitted for back and forward, too, which do not go through doSetSource.
    connect(text_, &QTextBrowser::sourceChanged, text_, [this] {
        text_->document()->setDocumentMargin(margin);
        SetOff(*text_->document(), text_->palette().color(QPalette::AlternateBase));
    });
}

void FormGuide::PrepareSearch() {
    wanted_->setObjectName(QStringLiteral("TextGuideFind"));
    wanted_->setPlaceholderText(tr("Find in the guide"));
    wanted_->setAccessibleName(tr("Find in the guide"));
    wanted_->setClearButtonEnabled(true);
    connect(wanted_, &QLineEdit::returnPressed, this, &FormGuide::FindNext);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, wanted_,
            qOverload<>(&QWidget::setFocus));
}

void FormGuide::ConnectWays(QPushButton* contents, QPushButton* back, QPushButton* forward) {
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(contents, &QPushButton::clicked, this,
            [this] { text_->setSource(QUrl::fromLocalFile(startPage_)); });
    connect(back, &QPushButton::clicked, text_, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, text_, &QTextBrowser::forward);
    connect(text_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(text_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
}

// The dialog would press its first button from anywhere, and so leave the page that is read.
void FormGuide::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || qobject_cast<QPushButton*>(focusWidget()) != nullptr) {
        QDialog::keyPressEvent(event);
    }
}

void FormGuide::FindNext() {
    const QString wanted = wanted_->text();
    if (wanted.isEmpty() || text_->find(wanted)) {
        return;
    }
    const QFileInfo here(text_->source().toLocalFile());
    QStringList pages = here.dir().entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
    std::rotate(pages.begin(), pages.begin() + pages.indexOf(here.fileName()) + 1, pages.end());
    for (const QString& page : pages) {
        if (FindOn(here.dir().filePath(page), wanted)) {
            return;
        }
    }
}

bool FormGuide::FindOn(const QString& page, const QString& wanted) {
    QFile file(page);
    QTextDocument looked;
    if (file.open(QIODevice::ReadOnly)) {
        looked.setMarkdown(QString::fromUtf8(file.readAll()));
    }
    if (looked.find(wanted).isNull()) {
        return false;
    }
    text_->setSource(QUrl::fromLocalFile(page));
    text_->moveCursor(QTextCursor::Start);
    return text_->find(wanted);
}

}  // namespace varnel
