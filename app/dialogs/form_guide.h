// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The user guide in a window of its own that may stay open beside the work. Its pages are Markdown
// files with pictures, links from page to page included, those of another language in a folder of
// its code; they are installed with the program and nothing of them comes from a network. Throws
// nothing.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>

namespace varnel {

// The first page, as a program in that folder finds it: in the language of that code, or else in
// English; empty when there is none.
QString GuideStartPage(const QString& programFolder, const QString& language);

// Shows pictures no wider than itself.
class GuideText : public QTextBrowser {
  public:
    using QTextBrowser::QTextBrowser;
    QVariant loadResource(int type, const QUrl& name) override;
};

class FormGuide : public QDialog {
    Q_OBJECT
  public:
    explicit FormGuide(const QString& startPage, QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void PrepareText();
    void PrepareSearch();
    void ConnectWays(QPushButton* contents, QPushButton* back, QPushButton* forward);
    // From the cursor to the end of the page, then on the other pages, then on this one from its
    // start.
    void FindNext();
    bool FindOn(const QString& page, const QString& wanted);

    GuideText* text_ = nullptr;
    QLineEdit* wanted_ = nullptr;
    QString startPage_;
};

}  // namespace varnel
