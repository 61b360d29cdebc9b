// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/revision_age.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

struct Start {
    const char* name;
    QDate today;
    const char* stored;  // null: nothing stored yet
    int told;            // the age in the message, 0 for none
    const char* after;   // null: still nothing stored
};

void PrintTo(const Start& start, std::ostream* out) {
    *out << start.name;
}

const Release release{{2023, 1, 1}, QStringLiteral("https://varnel.example/download")};

constexpr QLatin1StringView section("Revision");
constexpr QLatin1StringView key("RevisionAge");

class CheckRevisionAgeAt : public testing::TestWithParam<Start> {};

TEST_P(CheckRevisionAgeAt, TellsOnceInEachNewMonth) {
    const Start& start = GetParam();
    MemoryStore store;
    if (start.stored != nullptr) {
        store.Save(section, key, QString::fromLatin1(start.stored));
    }
    const std::optional<QString> text = CheckRevisionAge(store, start.today, release);
    EXPECT_EQ(text.has_value(), start.told != 0);
    if (text) {
        EXPECT_TRUE(text->contains(QStringLiteral("more than %1 months old.").arg(start.told)))
            << text->toStdString();
    }
    EXPECT_EQ(store.Contains(section, key), start.after != nullptr);
    EXPECT_EQ(store.Get(section, key, {}), QString::fromLatin1(start.after));
    // The second start of the same day says and changes nothing.
    EXPECT_FALSE(CheckRevisionAge(store, start.today, release));
    EXPECT_EQ(store.Get(section, key, {}), QString::fromLatin1(start.after));
}

INSTANTIATE_TEST_SUITE_P(
    Months, CheckRevisionAgeAt,
    testing::Values(Start{"ReleaseMonth", {2023, 1, 31}, nullptr, 0, "0"},
                    Start{"June", {2023, 6, 30}, nullptr, 0, "5"},
                    Start{"LastQuietDay", {2023, 7, 31}, "5", 0, "6"},
                    Start{"FirstToldDay", {2023, 8, 1}, "5", 7, "7"},
                    Start{"FirstStartInAugust", {2023, 8, 20}, nullptr, 7, "7"},
                    Start{"SameMonth", {2023, 8, 31}, "7", 0, "7"},
                    Start{"NextMonth", {2023, 9, 1}, "7", 8, "8"},
                    Start{"AcrossTheYear", {2024, 1, 1}, "11", 12, "12"},
                    Start{"YearsLater", {2026, 3, 15}, "7", 38, "38"},
                    Start{"ClockSetBack", {2023, 9, 1}, "20", 0, "20"},
                    Start{"ClockSetBackBeforeTheReminder", {2023, 2, 1}, "20", 0, "1"},
                    Start{"ClockBeforeTheRelease", {2022, 12, 1}, nullptr, 0, "-1"},
                    Start{"StoredTextIsNoNumber", {2023, 8, 1}, "seven", 7, "7"}),
    [](const auto& start) { return std::string(start.param.name); });

TEST(CheckRevisionAge, SpeaksInSixLines) {
    MemoryStore store;
    EXPECT_EQ(CheckRevisionAge(store, {2023, 8, 1}, release),
              QStringLiteral("This version of Varnel is now more than 7 months old.\n"
                             "An updated revision is likely available.\n"
                             "It is recommended that you upgrade the executable file.\n"
                             "\n"
                             "Upgraded executables may be downloaded from\n"
                             "https://varnel.example/download"));
}

TEST(CheckRevisionAge, SendsNobodyToAnAddressThatThereIsNot) {
    MemoryStore store;
    EXPECT_EQ(CheckRevisionAge(store, {2023, 8, 1}, {release.date, {}}),
              QStringLiteral("This version of Varnel is now more than 7 months old.\n"
                             "An updated revision is likely available.\n"
                             "It is recommended that you upgrade the executable file."));
}

TEST(CheckRevisionAge, CountsFromTheReleaseThatWasBuilt) {
    MemoryStore store;
    const QDate date = ThisRelease().date;
    ASSERT_TRUE(date.isValid());
    EXPECT_FALSE(CheckRevisionAge(store, date));
    EXPECT_EQ(store.Get(section, key, {}), QStringLiteral("0"));
    EXPECT_FALSE(CheckRevisionAge(store, date.addMonths(6)));
    EXPECT_TRUE(CheckRevisionAge(store, date.addMonths(7)));
}

}  // namespace
}  // namespace varnel
