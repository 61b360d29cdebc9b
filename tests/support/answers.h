// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A person in front of the program's real dialogs.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <functional>
#include <utility>
#include <vector>

namespace varnel::testing {

// Answers the modal windows that come up, one after the other, as a person in front of them would.
// While one is answered it may open the next.
class Answers {
  public:
    using Answer = std::function<void(QDialog*)>;
    explicit Answers(std::vector<Answer> answers) : answers_(std::move(answers)) { LookLater(); }
    ~Answers() { EXPECT_EQ(next_, answers_.size()) << "a window that was expected did not come"; }

  private:
    void LookLater() {
        QTimer::singleShot(30, &context_, [this] {
            LookLater();
            Look();
        });
    }
    void Look() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == answering_ || !dialog->isVisible() ||
            next_ == answers_.size()) {
            return;
        }
        QDialog* const before = std::exchange(answering_, dialog);
        answers_[next_++](dialog);
        answering_ = before;
    }
    std::vector<Answer> answers_;
    std::size_t next_ = 0;
    QDialog* answering_ = nullptr;
    QObject context_;
};

}  // namespace varnel::testing
