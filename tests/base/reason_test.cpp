// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/reason.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QIODevice>
#include <cerrno>

#include "base/error_text.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

QByteArray Streamed(const Reason& reason) {
    QByteArray block;
    QDataStream out(&block, QIODevice::WriteOnly);
    out << reason;
    return block;
}

// Nothing when the bytes are corrupt.
std::optional<Reason> Taken(const QByteArray& block) {
    QDataStream in(block);
    Reason reason;
    in >> reason;
    return in.status() == QDataStream::Ok ? std::optional(reason) : std::nullopt;
}

const Reason diskFull(ReasonCode::WhileWriting, Reason(ReasonCode::SystemError, ENOSPC));

TEST(Reason, IsToldWithItsArgumentsWhateverTheyLookLike) {
    const std::pair<Reason, const char*> cases[] = {
        {{}, ""},
        {ReasonCode::Cancelled, "cancelled"},
        {{ReasonCode::SideTooLong, 40'000, 1, 32767},
         "too large: 40000 x 1 pixels, a side may have 32767"},
        {diskFull, "No space left on device (while writing)"},
        {{ReasonCode::SettingsUnwritable, Text("/%2/%1"), Text("100 %1; 2")},
         "/%2/%1: the settings cannot be written (100 %1; 2); changes last only until the program "
         "ends"},
        {{ReasonCode::Added, ReasonCode::CannotBeDecoded, Text("Bogus marker")},
         "the picture cannot be decoded (Bogus marker)"},
        {{ReasonCode::Of, Text("/a"), diskFull}, "/a: No space left on device (while writing)"},
        {Joined({ReasonCode::XmpTooLong, {}, {ReasonCode::TypeHoldsNoProfile, Text("BMP")}}),
         "written without its XMP: too long for a JPEG file; BMP files hold no colour profile"},
        {Joined({{}, ReasonCode::FileEmpty}), "the file is empty"},
        {Joined({}), ""}};
    for (const auto& [reason, told] : cases) {
        EXPECT_EQ(ErrorText(reason).toStdString(), told);
        EXPECT_EQ(Taken(Streamed(reason)), reason) << told;
    }
}

TEST(Reason, KnowsTheSystemsErrorThatItComesFrom) {
    EXPECT_TRUE(Reason(ReasonCode::Of, Text("/a"), diskFull).IsBy(ENOSPC));
    EXPECT_FALSE(diskFull.IsBy(EACCES));
    EXPECT_FALSE(Reason(ReasonCode::Words, Text("No space left on device")).IsBy(ENOSPC));
}

// What the other process says may be anything.
TEST(Reason, OfOtherBytesIsCorruptOrSound) {
    const auto bytes = [](quint16 code, auto... more) {
        QByteArray block;
        QDataStream out(&block, QIODevice::WriteOnly);
        out << code;
        (out << ... << more);
        return block;
    };
    constexpr auto Code = [](ReasonCode code) { return static_cast<quint16>(code); };
    QByteArray deep = Streamed(ReasonCode::Cancelled);
    for (int n = 0; n < 100'000; ++n) {
        deep.prepend(QByteArray("\0\1\1\2", 4));  // words that are a reason
    }
    const QByteArray corrupt[] = {
        {},
        bytes(Code(ReasonCode::Count), quint8{0}),
        bytes(quint16{0xFFFF}, quint8{0}),
        bytes(Code(ReasonCode::Cancelled), quint8{1}, quint8{1}, Text("too many")),
        bytes(Code(ReasonCode::Damaged), quint8{0}),
        bytes(Code(ReasonCode::Damaged), quint8{1}, quint8{3}, Text("of no kind")),
        bytes(Code(ReasonCode::Damaged), quint8{200}),
        bytes(Code(ReasonCode::SystemError), quint8{1}, quint8{1}, Text("no number")),
        bytes(Code(ReasonCode::SystemError), quint8{1}, quint8{0}, qint64{1} << 40),
        bytes(Code(ReasonCode::Several), quint8{0}),
        deep};
    for (const QByteArray& block : corrupt) {
        EXPECT_FALSE(Taken(block)) << block.left(20).toHex().toStdString();
    }
    const Reason told(ReasonCode::Damaged, Text("two\nlines\x1b[0m "));
    EXPECT_EQ(ErrorText(*Taken(Streamed(told))), Text("damaged: two lines [0m"));
    const QByteArray sound = Streamed({ReasonCode::Of, Text("/a"), diskFull});
    for (qsizetype place = 0; place < sound.size(); ++place) {
        EXPECT_FALSE(Taken(sound.left(place)));
        for (const char value : {'\0', '\1', '\x7F', '\xFF'}) {
            QByteArray spoilt = sound;
            spoilt[place] = value;
            if (const auto reason = Taken(spoilt)) {
                ErrorText(*reason);
            }
        }
    }
}

}  // namespace
}  // namespace varnel
