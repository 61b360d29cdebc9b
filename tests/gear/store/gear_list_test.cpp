// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/store/gear_list.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <cmath>
#include <initializer_list>

#include "gear/store/gear_entry.h"

namespace varnel {
namespace {

GearTable Table(std::initializer_list<const char*> names, const char* defaultName) {
    GearTable table;
    for (const char* name : names) {
        table.Resize(table.UpperBound() + 1);
        table(table.UpperBound()).GearName = QString::fromLatin1(name);
    }
    table.DefaultGearName = QString::fromLatin1(defaultName);
    return table;
}

std::string Names(const GearTable& table) {
    QStringList names;
    for (int n = 1; n <= table.UpperBound(); ++n) {
        names.append(table(n).GearName);
    }
    return (names.join(u',') + u':' + table.DefaultGearName).toStdString();
}

GearNames Zuiko() {
    return {QStringLiteral("Olympus"), QStringLiteral("E-3"), QStringLiteral("Olympus"),
            QStringLiteral("Zuiko ED 8mm f/3.5")};
}

TEST(GearList, AddsTheEditedGearAtTheEnd) {
    GearTable table = Table({"a"}, "a");
    table(0).GearName = QStringLiteral("b");
    table(0).hAOV = 12.0F;
    EXPECT_EQ(AddEditedGear(table), 2);
    EXPECT_EQ(Names(table), "a,b:a");
    EXPECT_EQ(table(2).hAOV, 12.0F);
}

TEST(GearList, DeletingPassesTheDefaultOn) {
    const struct {
        int deleted;
        const char *before, *after;
    } cases[] = {
        {1, "a", "b,c:b"}, {2, "b", "a,c:a"}, {3, "c", "a,b:a"},
        {1, "c", "b,c:c"}, {2, "a", "a,c:a"}, {3, "gone", "a,b:gone"},
    };
    for (const auto& c : cases) {
        GearTable table = Table({"a", "b", "c"}, c.before);
        DeleteGear(table, c.deleted);
        EXPECT_EQ(Names(table), c.after) << c.deleted << c.before;
    }
    EXPECT_TRUE(MayDeleteGear(Table({"a", "b"}, "a")));
    EXPECT_FALSE(MayDeleteGear(Table({"a"}, "a")));
    EXPECT_FALSE(MayDeleteGear(Table({}, "")));
}

TEST(GearList, RenamingTheDefaultTakesItAlong) {
    const struct {
        int n;
        const char *names[2], *before, *after;
    } cases[] = {
        {1, {"a", "b"}, "a", "new,b:new"},
        {2, {"a", "b"}, "a", "a,new:a"},
        {1, {"a", "a"}, "a", "new,a:new"},
        {2, {"a", "a"}, "a", "a,new:a"},  // the first of that name is the default
        {2, {"a", "b"}, "gone", "a,new:gone"},
    };
    for (const auto& c : cases) {
        GearTable table = Table({c.names[0], c.names[1]}, c.before);
        table(0).GearName = QStringLiteral("new");
        ReplaceWithEditedGear(table, c.n);
        EXPECT_EQ(Names(table), c.after);
    }
}

TEST(GearOrigins, TellsWhichGearsAreOtherOnesNow) {
    GearTable table = Table({"a", "b", "c", "b", "d"}, "a");
    GearOrigins origins(table);
    DeleteGear(table, 1);
    origins.NoteDeleted(1);
    table(1).hAOV = 5.0F;                       // b
    table(2).GearName = QStringLiteral("new");  // c
    table(3).hAOV = 6.0F;                       // the second b: no photo's
    AddEditedGear(table);
    origins.NoteAdded();
    std::string told;
    for (const GearChange& change : origins.Redefined(table)) {
        told += (change.from.GearName + u'>' + change.to.GearName + u' ').toStdString();
    }
    EXPECT_EQ(told, "b>b c>new ");
}

TEST(GearEntry, NamesTheGear) {
    const char* built = "Olympus E-3 + Olympus Zuiko ED 8mm f/3.5";
    const struct {
        const char *typed, *taken;
        bool isNew;
        std::string name;
    } cases[] = {
        {"", "b", true, built},
        {"  ", "b", true, built},
        {"mine", "b", true, "mine"},
        {" mine", "b", true, " mine"},
        {"mine", "mine", true, "mine 2"},
        {"mine", "mine", false, "mine"},
        {"", built, true, std::string(built) + " 2"},
        {"", built, false, built},
    };
    for (const auto& c : cases) {
        GearTable table = Table({c.taken}, "");
        GearEntry entry;
        entry.typedName = QString::fromLatin1(c.typed);
        entry.names = Zuiko();
        entry.isNew = c.isNew;
        DefineEditedGear(table, entry);
        EXPECT_EQ(table(0).GearName.toStdString(), c.name);
        EXPECT_EQ(NamesOf(table(0)), Zuiko());
    }
}

TEST(GearEntry, TakesOnlyWhatTheUserSet) {
    GearTable table;
    FillGearFromCatalogue(Zuiko(), table(0));
    const GearRecord catalogue = table(0);
    DefineEditedGear(table, {QStringLiteral("a"), Zuiko(), true});
    EXPECT_EQ(table(0).hAOV, catalogue.hAOV);
    EXPECT_FALSE(table(0).UserAdjusted);
    SetNumber(&GearRecord::OfsetX, -7, table(0));
    DefineEditedGear(table, {QStringLiteral("b"), Zuiko(), false});
    EXPECT_EQ(table(0).OfsetX, -7.0F);
    EXPECT_EQ(table(0).GearRatio, catalogue.GearRatio);
    EXPECT_EQ(table(0).vAOV, catalogue.vAOV);
    SetNumber(&GearRecord::hAOV, 118, table(0));
    DefineEditedGear(table, {{}, Zuiko(), false});
    EXPECT_EQ(table(0).hAOV, 118.0F);
    EXPECT_EQ(table(0).vAOV, 118.0F);
    EXPECT_TRUE(table(0).UserAdjusted && table(0).SetByHand);
    DropAdjustments(table(0));
    DefineEditedGear(table, {catalogue.GearName, Zuiko(), false});
    table(0).GearName.clear();
    EXPECT_EQ(table(0), catalogue);
}

TEST(GearEntry, FitsSlidersAndRanges) {
    const struct {
        float value;
        int position;
    } positions[] = {
        {118.5F, 118}, {119.5F, 120}, {-0.5F, 0}, {-3.6F, -4}, {1e30F, 32767}, {NAN, 0},
    };
    for (const auto& c : positions) {
        EXPECT_EQ(SliderPosition(c.value), c.position) << c.value;
    }
    EXPECT_EQ(Widened(hAovRange, 4), (SliderRange{4, 280}));
    EXPECT_EQ(Widened(hAovRange, 281), (SliderRange{10, 281}));
    EXPECT_EQ(Widened(ratioRange, 400), (SliderRange{10, 400}));
    EXPECT_EQ(Widened(ofsetRange, -201), (SliderRange{-201, 200}));
}

}  // namespace
}  // namespace varnel
