// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos and lens files through the library.

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include "remap/encode/save_bitmap.h"
#include "tests/support/contents.h"
#include "tests/support/files.h"
#include "tests/support/room_shot.h"
#include "varnel/varnel.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

int Note(void* user, const char* json) {
    auto& lines = *static_cast<QList<QJsonObject>*>(user);
    lines.append(QJsonDocument::fromJson(json).object());
    return lines.size() == 2 ? 1 : 0;
}

class Files : public ::testing::Test {
  protected:
    varnel_status Convert(const QStringList& words) {
        QByteArrayList bytes;
        std::vector<const char*> plain;
        for (const QString& word : words) {
            bytes.append(word.toUtf8());
        }
        for (const QByteArray& word : bytes) {
            plain.push_back(word.constData());
        }
        varnel_error* error = nullptr;
        const varnel_status status =
            varnel_convert(plain.data(), plain.size(), 0, &Note, &lines_, &error);
        text_ = Q(varnel_error_text(error));
        varnel_error_free(error);
        return status;
    }

    testing::PictureFolder files_;
    QList<QJsonObject> lines_;
    QString text_;
};

TEST_F(Files, AreConvertedAndReported) {
    const QString photo = files_.Picture(Q("one.jpg"), OutputType::Jpeg);
    const QString broken = files_.Path(Q("broken.jpg"));
    testing::WriteFile(broken, "no photo");
    EXPECT_EQ(Convert({Q("--gear"), Q("guess"), Q("--projection"), Q("rectilinear"), photo}),
              VARNEL_OK)
        << text_.toStdString();
    ASSERT_EQ(lines_.size(), 1);
    EXPECT_TRUE(QFileInfo::exists(lines_[0][Q("result")].toString()));
    lines_.clear();
    EXPECT_EQ(Convert({Q("--gear=guess"), broken}), VARNEL_NOT_WRITTEN);
    EXPECT_TRUE(text_.contains(Q("broken.jpg"))) << text_.toStdString();
    ASSERT_EQ(lines_.size(), 1);
    EXPECT_EQ(lines_[0][Q("status")].toString(), Q("failed"));
}

TEST_F(Files, AreNotConvertedOnceTheReportSaysStop) {
    QStringList words{Q("--gear=guess"), Q("--jobs=1")};
    for (int n = 0; n < 6; ++n) {
        words.append(files_.Picture(QStringLiteral("p%1.jpg").arg(n), OutputType::Jpeg));
    }
    EXPECT_EQ(Convert(words), VARNEL_STOPPED);
    EXPECT_LT(lines_.size(), 6);
    EXPECT_TRUE(text_.contains(Q("stopped"))) << text_.toStdString();
}

// Measured, written, read again: the same curve.
TEST_F(Files, HoldLenses) {
    const BitmapHandle room = testing::RoomShot();
    // Its bottom row comes first.
    const varnel_image image{room->Bits() + room->Pitch() * 1199,
                             1200,
                             1200,
                             -room->Pitch(),
                             3,
                             VARNEL_UINT8,
                             VARNEL_BGR};
    varnel_lens* measured = nullptr;
    varnel_measurement figures{};
    ASSERT_EQ(varnel_lens_measure(&image, 1, nullptr, &measured, &figures, nullptr), VARNEL_OK);
    EXPECT_GT(figures.edges_used, 10U);
    EXPECT_LT(figures.after, figures.before);
    const QByteArray path = files_.Path(Q("mine.json")).toUtf8();
    ASSERT_EQ(varnel_lens_write(measured, path.constData(), nullptr), VARNEL_OK);
    varnel_lens* read = nullptr;
    ASSERT_EQ(varnel_lens_from_file(path.constData(), 0, nullptr, &read, nullptr), VARNEL_OK);
    const double points[] = {300.0, 300.0, 900.0, 620.0};
    double one[6];
    double other[6];
    ASSERT_EQ(varnel_source_to_direction(measured, 1200, 1200, points, 2, one, nullptr), VARNEL_OK);
    ASSERT_EQ(varnel_source_to_direction(read, 1200, 1200, points, 2, other, nullptr), VARNEL_OK);
    for (int n = 0; n < 6; ++n) {
        EXPECT_NEAR(one[n], other[n], 1e-12);
    }
    // r = 14 mm sin(0.6 theta), 50 pixels a millimetre: what the room was taken with.
    const double theta = std::acos(one[2]);
    EXPECT_NEAR(700.0 * std::sin(0.6 * theta), std::hypot(300.5 - 600.0, 300.5 - 600.0), 4.0);
    varnel_lens_free(read);
    varnel_lens_free(measured);
    EXPECT_EQ(varnel_lens_from_file(path.constData(), 1, nullptr, &read, nullptr),
              VARNEL_NOT_FOUND);
}

}  // namespace
}  // namespace varnel
