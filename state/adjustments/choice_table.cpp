// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/choice_table.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr std::array directions{
    ChoiceOption{1, QT_TRANSLATE_NOOP("Choices", "Clockwise")},
    ChoiceOption{-1, QT_TRANSLATE_NOOP("Choices", "Counter-clockwise")}};

constexpr std::array poses{
    ChoiceOption{static_cast<int>(CameraPose::Level), QT_TRANSLATE_NOOP("Choices", "Level")},
    ChoiceOption{static_cast<int>(CameraPose::Up), QT_TRANSLATE_NOOP("Choices", "Upward")},
    ChoiceOption{static_cast<int>(CameraPose::Down), QT_TRANSLATE_NOOP("Choices", "Downward")}};

constexpr std::array rows{
    ChoiceRowData{
        .id = ChoiceId::UnrollDirection,
        .control = "ComboUnrollDirection",
        .heading = QT_TRANSLATE_NOOP("Choices", "Direction"),
        .tip = QT_TRANSLATE_NOOP("Choices",
                                 "Which way round the photo the unrolled picture goes from left "
                                 "to right"),
        .field = "UnrollDirection",
        .options = directions,
        .Of = [](const ImageRecord& image) { return image.UnrollDirection < 0 ? -1 : 1; },
        .Give = [](int value, ImageRecord& image) { image.UnrollDirection = value < 0 ? -1 : 1; },
    },
    ChoiceRowData{
        .id = ChoiceId::Marks,
        .control = "CheckMarks",
        .heading = QT_TRANSLATE_NOOP("Choices", "Marks"),
        .tip = QT_TRANSLATE_NOOP("Choices",
                                 "Draws N, E, S and W and the angles into the unrolled picture"),
        .field = "Marks",
        .Of = [](const ImageRecord& image) { return image.Marks ? 1 : 0; },
        .Give = [](int value, ImageRecord& image) { image.Marks = value != 0; },
    },
    ChoiceRowData{
        .id = ChoiceId::Pose,
        .control = "ComboPose",
        .heading = QT_TRANSLATE_NOOP("Choices", "Camera"),
        .tip = QT_TRANSLATE_NOOP("Choices", "How the camera was held when the photo was taken"),
        .field = "Pose",
        .options = poses,
        .Of = [](const ImageRecord& image) { return static_cast<int>(image.Pose); },
        .Give = [](int value, ImageRecord& image) { image.Pose = static_cast<CameraPose>(value); },
    },
    ChoiceRowData{
        .id = ChoiceId::Tunnel,
        .control = "CheckTunnel",
        .heading = QT_TRANSLATE_NOOP("Choices", "Tunnel"),
        .tip = QT_TRANSLATE_NOOP(
            "Choices", "Looks the other way: the sky in the middle, the ground around it"),
        .field = "Tunnel",
        .Of = [](const ImageRecord& image) { return image.Tunnel ? 1 : 0; },
        .Give = [](int value, ImageRecord& image) { image.Tunnel = value != 0; },
    },
};
static_assert(rows.size() == choiceCount);

}  // namespace

std::span<const ChoiceRowData> ChoiceRows() {
    return rows;
}

const ChoiceRowData& ChoiceRowOf(ChoiceId id) {
    return *std::ranges::find(rows, id, &ChoiceRowData::id);
}

std::vector<ChoiceId> ChoicesOf(Projection projection) {
    std::vector<ChoiceId> read;
    for (const ChoiceRowData& row : rows) {
        if (ReadsChoice(projection, row.id)) {
            read.push_back(row.id);
        }
    }
    return read;
}

QString ChoiceText(const char* text) {
    return QCoreApplication::translate("Choices", text);
}

}  // namespace varnel
