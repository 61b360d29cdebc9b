// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files by the command line's own words.

#include <QDateTime>
#include <QStringList>
#include <atomic>
#include <csignal>
#include <functional>
#include <ostream>
#include <streambuf>
#include <string>

#include "cli/convert.h"
#include "library/guard.h"
#include "state/settings/settings_store.h"

namespace varnel {

namespace {

// Hands on whole lines without their ends.
class LineBuffer : public std::streambuf {
  public:
    explicit LineBuffer(std::function<void(const std::string&)> take) : take_(std::move(take)) {}

  protected:
    int_type overflow(int_type c) override {
        if (traits_type::eq_int_type(c, traits_type::eof())) {
            return traits_type::not_eof(c);
        }
        if (c == '\n') {
            take_(line_);
            line_.clear();
        } else {
            line_ += traits_type::to_char_type(c);
        }
        return c;
    }

  private:
    std::function<void(const std::string&)> take_;
    std::string line_;
};

QStringList Arguments(const char* const* words, size_t count) {
    QStringList arguments{QStringLiteral("varnel-convert")};
    for (size_t n = 0; n < count; ++n) {
        arguments.append(TextOf(Given(words, "words")[n], "words"));
    }
    // Of two the last counts, and lists are asked for by functions of their own.
    arguments.insert(1, QStringLiteral("--json"));
    return arguments;
}

std::unique_ptr<SettingsStore> StoreFor(bool user) {
    return user ? OpenUserStore(QDateTime::currentDateTime()) : std::make_unique<MemoryStore>();
}

void Convert(const QStringList& arguments, bool userSettings, varnel_report report, void* user) {
    std::atomic<int> stop = 0;
    QString complaints;
    LineBuffer lines([&](const std::string& line) {
        if (report != nullptr && report(user, line.c_str()) != 0) {
            stop = SIGTERM;  // as the signal would end the run
        }
    });
    LineBuffer errors([&](const std::string& line) {
        complaints += (complaints.isEmpty() ? QString() : QStringLiteral("\n")) +
                      QString::fromStdString(line);
    });
    std::ostream out(&lines);
    std::ostream err(&errors);
    const Console console{.out = out, .err = err, .stop = &stop};
    const auto store = StoreFor(userSettings);
    const int exitCode = RunConvert(arguments, *store, console);
    if (exitCode >= exitStopped) {
        throw CallError(VARNEL_STOPPED, complaints);
    }
    if (exitCode != exitAllWritten) {
        throw CallError(exitCode == exitUsage ? VARNEL_BAD_ARGUMENT : VARNEL_NOT_WRITTEN,
                        complaints);
    }
}

}  // namespace

}  // namespace varnel

varnel_status varnel_convert(const char* const* words, size_t count, int user_settings,
                             varnel_report report, void* user, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::Convert(varnel::Arguments(words, count), user_settings != 0, report, user);
    });
}
