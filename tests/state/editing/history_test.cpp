// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/history.h"

#include <gtest/gtest.h>

#include "state/editing/list_order.h"
#include "state/editing/step_names.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using Images = RecordArray<ImageRecord>;

using testing::Text;

Images Photos(const char* names) {
    Images images;
    for (const char* name = names; *name != '\0'; ++name) {
        ImageRecord image;
        image.Folder = Text("/p");
        image.FileName = QChar::fromLatin1(*name);
        images.Append(image);
    }
    return images;
}

std::string Names(const Images& images) {
    QString names;
    for (const ImageRecord& image : images) {
        names += image.FileName;
    }
    return names.toStdString();
}

std::vector<ImageRecord> All(const Images& images) {
    return {images.begin(), images.end()};
}

TEST(History, EveryKindOfChangeGoesBackAndForth) {
    Images images = Photos("abc");
    History history(images);
    history.Note(Text("1 add"));
    std::vector<std::vector<ImageRecord>> states{{}, All(images)};
    const auto note = [&](const char* name) {
        history.Note(Text(name));
        states.push_back(All(images));
    };
    images(2).RotateY = 10.0F;
    note("2 one");
    for (ImageRecord& image : images) {
        image.GearName = Text("gear");
    }
    note("3 all");
    std::swap(images(1), images(3));
    note("4 order");
    Images fewer;
    fewer.Append(images(2));
    images = fewer;
    note("5 remove");
    history.Note(Text("nothing changed"));
    for (std::size_t n = states.size() - 1; n-- > 0;) {
        EXPECT_EQ(history.UndoName().front(), QChar::fromLatin1(static_cast<char>('1' + n)));
        ASSERT_TRUE(history.Undo());
        EXPECT_EQ(All(images), states[n]) << n;
    }
    EXPECT_FALSE(history.Undo());
    for (std::size_t n = 1; n < states.size(); ++n) {
        ASSERT_TRUE(history.Redo());
        EXPECT_EQ(All(images), states[n]) << n;
    }
    EXPECT_TRUE(history.RedoName().isEmpty());
    history.Undo();
    images(1).RotateX = 1.0F;
    history.Note(Text("another way"));
    EXPECT_TRUE(history.RedoName().isEmpty());
}

TEST(History, SaysWhichLinesChangedAndWherePhotosWere) {
    Images images = Photos("abcd");
    History history(images);
    history.Absorb();
    history.MarkSaved({});
    images(1).RotateX = images(3).RotateX = 5.0F;
    history.Note(Text("turn"));
    const auto turned = history.Undo();
    EXPECT_EQ(turned->changed, (std::vector<int>{0, 2}));
    EXPECT_FALSE(turned->origin);
    images = Photos("dac");
    history.Note(Text("list"));
    const auto listed = history.Undo();
    EXPECT_EQ(Names(images), "abcd");
    EXPECT_EQ(listed->origin, (std::vector<int>{1, -1, 2, 0}));
    EXPECT_FALSE(history.ChangedSinceSaved());
}

TEST(History, MovesOfOneSliderAreOneStepUntilItIsSealed) {
    Images images = Photos("ab");
    History history(images);
    history.Absorb();
    const auto move = [&](float degrees, const StepKey& key) {
        images(1).RotateY = degrees;
        history.Note(Text("move"), key);
    };
    struct {
        StepKey second;
        bool seal;
        float back;  // where undoing leads
    } const rows[] = {{{1, 0}, false, 0.0F},
                      {{1, 0}, true, 10.0F},
                      {{1, 0, 1}, false, 10.0F},
                      {{2, 0}, false, 10.0F},
                      {{}, false, 10.0F}};
    for (const auto& row : rows) {
        move(0.0F, {});
        move(10.0F, {1, 0});
        if (row.seal) {
            history.Seal();
        }
        move(20.0F, row.second);
        history.Undo();
        EXPECT_EQ(images(1).RotateY, row.back);
    }
    move(0.0F, {});
    history.MarkSaved({});
    const QString before = history.UndoName();
    move(10.0F, {1, 0});
    EXPECT_TRUE(history.ChangedSinceSaved());
    move(0.0F, {1, 0});  // there and back leaves nothing
    EXPECT_FALSE(history.ChangedSinceSaved());
}

TEST(History, AChangeTakenBackByHandIsSaved) {
    Images images = Photos("ab");
    History history(images);
    history.Absorb();
    history.MarkSaved({});
    for (const float degrees : {10.0F, 0.0F}) {
        images(1).RotateY = degrees;
        history.Note(Text("turn"));
        EXPECT_EQ(history.ChangedSinceSaved(), degrees != 0.0F);
    }
    history.Undo();
    EXPECT_TRUE(history.ChangedSinceSaved());
    history.Undo();
    EXPECT_FALSE(history.ChangedSinceSaved());
}

// A photo's size and first gear come from looking at it: no step, and no step takes them away.
TEST(History, WhatLookingAtAPhotoBringsStays) {
    Images images = Photos("ab");
    History history(images);
    history.Note(Text("add"));
    history.MarkSaved({});
    images(1).Width = 60;
    images(1).Height = 40;
    images(1).GearName = Text("gear");
    history.Absorb();
    EXPECT_FALSE(history.ChangedSinceSaved());
    images(1).RotateX = 10.0F;
    images(1).OfsetX = 2.0F;
    history.Note(Text("turn"));
    // Read again, turned upright now: the centre moved to the top.
    images(1).Width = 40;
    images(1).Height = 60;
    images(1).Orientation = 6;
    images(1).OfsetX = 0.0F;
    images(1).OfsetY = 2.0F;
    history.Absorb();
    history.Undo();
    EXPECT_EQ(images(1).RotateX, 0.0F);
    EXPECT_EQ(images(1).Width, 40);
    EXPECT_EQ(images(1).Orientation, 6);
    history.Undo();
    history.Redo();
    EXPECT_EQ(images(1).GearName, Text("gear"));
    history.Redo();
    EXPECT_EQ(images(1).OfsetY, 2.0F);
}

TEST(History, KeepsABoundedNumberOfStepsAndLines) {
    for (const int photos : {1, 20000}) {
        Images images;
        images.Resize(photos);
        History history(images);
        history.Absorb();
        const int noted = photos == 1 ? 250 : 20;
        for (int n = 1; n <= noted; ++n) {
            images(1).RotateX = images(photos).RotateY = static_cast<float>(n);
            history.Note(Text("turn"));
        }
        int undone = 0;
        while (history.Undo()) {
            ++undone;
        }
        EXPECT_EQ(undone, photos == 1 ? 200 : 12);  // 40,000 lines a step
        EXPECT_EQ(images(1).RotateX, static_cast<float>(noted - undone));
    }
}

TEST(History, AGearsChangeIsAStepThatLeavesAnotherGearAlone) {
    GearTable table;
    table.Resize(2);
    table(2).GearName = Text("A");
    const GearRecord before = table(2);
    table(2).OfsetX = 4.5F;
    const GearRecord after = table(2);
    Images images = Photos("ab");
    History history(images);
    history.Note(Text("add"));
    history.Note(Text("circle"), {}, {.onAllLines = true, .gear = GearChange{before, after}});
    const auto back = history.Undo();
    EXPECT_TRUE(back->changed.empty() && back->besides.onAllLines);
    EXPECT_TRUE(ChangeGear(table, *back->besides.gear));
    EXPECT_EQ(table(2), before);
    const auto again = history.Redo();
    EXPECT_TRUE(ChangeGear(table, *again->besides.gear));
    EXPECT_EQ(table(2), after);
    table(2).hAOV = 1.0F;  // edited
    EXPECT_FALSE(ChangeGear(table, *history.Undo()->besides.gear));
    EXPECT_EQ(table(2).OfsetX, 4.5F);
    table.Remove(2);
    EXPECT_FALSE(ChangeGear(table, *back->besides.gear));
    EXPECT_EQ(history.UndoName(), Text("add"));
}

TEST(History, WhatComesLateIsUndoneWithItsStep) {
    const StepKey key{photoGearKey, 1};
    Images images = Photos("abc");
    History history(images);
    history.Note(Text("add"));
    const auto give = [&](int n, const char* gear) {
        images(n).GearName = Text(gear);
        images(n).SettingsApplied = true;
        GearRecord record;
        record.GearName = Text(gear);
        history.NoteLate(Text("gears"), key, {.gear = {}, .newGears = {record}});
    };
    give(2, "B");
    images(1).RotateX = 10.0F;
    history.Note(Text("turn"));
    images.Append(Photos("d")(1));
    history.Note(Text("add more"));
    give(3, "C");
    EXPECT_EQ(history.StepsSince(key), 2);
    EXPECT_EQ(history.UnsavedPhotos(), 0);
    EXPECT_EQ(history.UndoName(), Text("add more"));
    const std::vector<ImageRecord> all = All(images);
    history.Undo();
    history.Undo();
    EXPECT_EQ(images(1).RotateX, 0.0F);
    EXPECT_EQ(images(2).GearName + images(3).GearName, Text("BC"));
    EXPECT_EQ(history.StepsSince(key), 0);
    const auto undone = history.Undo();
    EXPECT_TRUE(undone->undone);
    EXPECT_EQ(undone->besides.newGears.size(), 2U);
    EXPECT_EQ(All(images), All(Photos("abc")));
    EXPECT_FALSE(history.StepsSince(key).has_value());
    EXPECT_FALSE(history.Redo()->undone);
    history.Redo();
    history.Redo();
    EXPECT_EQ(All(images), all);
}

TEST(History, AProjectIsAStepAndTakesItsNameBack) {
    Images images = Photos("ab");
    History history(images);
    history.Note(Text("add"));
    EXPECT_TRUE(history.ChangedSinceSaved());
    images = Photos("c");
    history.NoteProject(Text("open"), Text("/p/x.varnel"));
    EXPECT_FALSE(history.ChangedSinceSaved());
    history.Undo();
    EXPECT_EQ(Names(images), "ab");
    EXPECT_EQ(history.Project(), QString());
    EXPECT_TRUE(history.ChangedSinceSaved());
    history.Redo();
    EXPECT_EQ(history.Project(), Text("/p/x.varnel"));
    EXPECT_FALSE(history.ChangedSinceSaved());
}

TEST(History, PhotosAreUnsavedWhoseAdjustmentsAreInNoFile) {
    Images images = Photos("aab");
    History history(images);
    const auto adjust = [&](int n, float turn) {
        images(n).RotateY = turn;
        images(n).SettingsApplied = true;
        history.Note(Text("adjust"));
        return history.UnsavedPhotos();
    };
    history.Note(Text("add"));
    images(3).GearName = Text("gear");
    history.Note(Text("gear"));
    EXPECT_EQ(history.UnsavedPhotos(), 0);
    images(1).SettingsApplied = true;  // and nothing else
    history.Absorb();
    EXPECT_EQ(history.UnsavedPhotos(), 0);
    EXPECT_EQ(adjust(1, 10.0F), 1);
    EXPECT_EQ(adjust(2, 20.0F), 2);
    EXPECT_EQ(adjust(3, 30.0F), 3);
    history.MarkWritten(images(1), Text("/out/a"));
    history.MarkWritten(images(3), Text("/out/b"));
    EXPECT_EQ(history.UnsavedPhotos(), 1);
    images(1).Width = 300;  // loaded again
    history.Absorb();
    EXPECT_EQ(history.UnsavedPhotos(), 1);
    EXPECT_EQ(adjust(1, 11.0F), 2);
    history.Undo();
    EXPECT_EQ(history.UnsavedPhotos(), 1);
    history.Redo();
    EXPECT_EQ(adjust(1, 10.0F), 1);  // by hand to what the picture has
    adjust(1, 12.0F);
    history.MarkWritten(images(1), Text("/out/a"));  // in place of the first
    EXPECT_EQ(history.UnsavedPhotos(), 1);
    history.Undo();
    EXPECT_EQ(history.UnsavedPhotos(), 2);
    history.MarkSaved(Text("/p/x.varnel"));
    EXPECT_EQ(history.UnsavedPhotos(), 0);
    history.Undo();
    EXPECT_EQ(history.UnsavedPhotos(), 1);
}

TEST(StepBetween, NamesTheSliderThatMoved) {
    const struct {
        double ControlValues::*value;
        const char* name;
    } rows[] = {{&ControlValues::rotateX, "rotate up/down"},
                {&ControlValues::rotateY, "rotate left/right"},
                {&ControlValues::rotateZ, "rotate Z-axis"},
                {&ControlValues::translateX, "transpose left/right"},
                {&ControlValues::translateY, "transpose up/down"},
                {&ControlValues::inputAov, "input hAOV"},
                {&ControlValues::outputAov, "output AOV"}};
    const ControlValues before;
    ControlValues all;
    for (const auto& row : rows) {
        ControlValues after;
        after.*row.value = all.*row.value = 1;
        EXPECT_EQ(StepBetween(before, after).name, Text(row.name));
        EXPECT_TRUE(StepBetween(before, after).slider.has_value());
    }
    EXPECT_EQ(StepBetween(before, all).name, Text("adjustments"));
    all.projection = 1;
    EXPECT_EQ(StepBetween(before, all).name, Text("projection"));
    EXPECT_FALSE(StepBetween(before, all).slider.has_value());
}

TEST(ListOrder, ChosenLinesMoveTogether) {
    using Lines = std::vector<int>;
    EXPECT_EQ(OrderAfterMove(5, {1, 3}, 0), (Lines{1, 3, 0, 2, 4}));
    EXPECT_EQ(OrderAfterMove(5, {1, 3}, 2), (Lines{0, 1, 3, 2, 4}));
    EXPECT_EQ(OrderAfterMove(5, {0}, 5), (Lines{1, 2, 3, 4, 0}));
    EXPECT_EQ(OrderAfterMove(3, {1}, TargetOneUp({1})), (Lines{1, 0, 2}));
    EXPECT_EQ(OrderAfterMove(3, {0}, TargetOneUp({0})), (Lines{0, 1, 2}));
    EXPECT_EQ(OrderAfterMove(3, {1}, TargetOneDown(3, {1})), (Lines{0, 2, 1}));
    EXPECT_EQ(OrderAfterMove(3, {2}, TargetOneDown(3, {2})), (Lines{0, 1, 2}));
}

}  // namespace
}  // namespace varnel
