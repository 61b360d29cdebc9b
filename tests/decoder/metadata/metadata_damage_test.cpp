// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Damaged and hostile metadata beside sound pixels: they never cost the picture.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSet>
#include <array>
#include <iostream>
#include <map>

#include "base/error_text.h"
#include "decoder/process/decoder_reader.h"
#include "remap/encode/encode_bitmap.h"
#include "tests/support/files.h"
#include "tests/support/seeds/described_files.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/mutate.h"

namespace varnel {
namespace {

using testing::DescribedKind;
using testing::MetadataBlocks;
using testing::Mutator;
using testing::PixelBytes;

const Reason allLost = ReasonCode::MetadataUnreadable;
constexpr qint64 mostMilliseconds = 9000;  // five seconds, a new decoder and a busy machine

class Damage : public Mutator {
  public:
    using Mutator::Mutator;

    // One or two of the blocks, and at times the entries that lead there.
    MetadataBlocks Blocks() {
        MetadataBlocks blocks = testing::SoundBlocks(Below(2) == 0);
        const std::array all{&blocks.exif, &blocks.xmp, &blocks.iptc, &blocks.profile};
        const auto first = static_cast<std::size_t>(Below(4));
        for (const std::size_t n : {first, static_cast<std::size_t>(Below(2) == 0 ? first : 0)}) {
            QByteArray& block = *all[n];
            const bool hasPlaces = n == 0 && block.size() > 20;
            block = hasPlaces && Below(2) == 0 ? WithOtherPlaces(block)
                                               : Damaged(block + '\0', *all[Below(4)] + '\0');
        }
        if (Below(4) == 0) {
            const std::uint64_t seed = static_cast<std::uint64_t>(Below(1'000'000));
            blocks.spoilEntry = [seed](QByteArray& entry) {
                Mutator mutator(seed);
                entry = mutator.Damaged(entry, entry).leftJustified(10, '\0', true);
            };
        }
        return blocks;
    }

  private:
    // Numbers that lead to any place in the block, back to a directory that leads here as well.
    QByteArray WithOtherPlaces(QByteArray block) {
        for (qint64 count = 1 + Below(8); count > 0; --count) {
            const qint64 place = 6 + 2 * Below(block.size() / 2 - 5);
            const qint64 target = Below(block.size());
            block.replace(place, 4,
                          Below(2) == 0 ? testing::Number(target, 4)
                                        : testing::Number(target, 4, testing::Order::Big));
        }
        return block;
    }
};

class MetadataTrial {
  public:
    explicit MetadataTrial(const DescribedKind& kind)
        : kind_(kind),
          sound_(PixelBytes(Read(reader_, kind.file(testing::SoundBlocks(false))).bitmap.get())) {}

    // What became of the metadata, for the tally.
    std::string Try(const MetadataBlocks& blocks, bool write) {
        QElapsedTimer timer;
        timer.start();
        const pid_t decoder = reader_.ProcessId();
        const LoadedPicture picture = Read(reader_, kind_.file(blocks));
        EXPECT_LT(timer.elapsed(), mostMilliseconds);
        slowest_ = std::max(slowest_, timer.elapsed());
        EXPECT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        if (!picture.bitmap) {
            return "lost";
        }
        EXPECT_TRUE(PixelBytes(picture.bitmap.get()) == sound_);
        const Reasons notes = picture.bitmap->metadata.photo.notes;
        for (const Reason& note : notes) {
            EXPECT_EQ(notes.count(note), 1);
        }
        if (reader_.ProcessId() != decoder) {
            EXPECT_EQ(notes, Reasons{allLost});
        }
        if (write) {
            Write(picture.bitmap.get());
        }
        return reader_.ProcessId() != decoder ? "died" : notes.isEmpty() ? "read" : "noted";
    }
    qint64 Slowest() const { return slowest_; }

  private:
    LoadedPicture Read(DecoderReader& reader, const QByteArray& file) {
        const QString path = folder_.Path(QStringLiteral("photo"));
        testing::WriteFile(path, file);
        return ReadPicture(reader, {.path = path, .upright = false});
    }
    // What is left is sound.
    void Write(const Bitmap* bitmap) {
        for (const OutputType type : {OutputType::Jpeg, OutputType::Tiff, OutputType::Png}) {
            const EncodedBitmap file = EncodeBitmap(type, bitmap);
            const LoadedPicture again = Read(written_, file.bytes);
            EXPECT_EQ(again.outcome, LoadOutcome::Loaded) << ErrorText(again.reason).toStdString();
            if (again.bitmap) {
                EXPECT_TRUE(type == OutputType::Jpeg || PixelBytes(again.bitmap.get()) == sound_)
                    << ToText(type).toStdString();
                const Reasons notes = again.bitmap->metadata.photo.notes;
                EXPECT_TRUE(notes.isEmpty())
                    << ToText(type).toStdString() << ErrorText(Joined(notes)).toStdString();
            }
        }
    }

    const DescribedKind& kind_;
    testing::PictureFolder folder_;
    DecoderReader reader_{{}};
    DecoderReader written_{{}};  // another type would have the first one's decoder replaced
    QByteArray sound_;
    qint64 slowest_ = 0;
};

// 500 files of each type.
class DamagedMetadata : public ::testing::TestWithParam<DescribedKind> {};

TEST_P(DamagedMetadata, NeverCostThePicture) {
    constexpr int files = 500;
    MetadataTrial trial(GetParam());
    ASSERT_EQ(trial.Try(testing::SoundBlocks(false), true), "read");
    std::map<std::string, int> tally;
    for (int i = 0; i < files; ++i) {
        SCOPED_TRACE(i);
        Damage damage(static_cast<std::uint64_t>(i) * 1000 + GetParam().type[0]);
        ++tally[trial.Try(damage.Blocks(), i % 10 == 0)];
    }
    std::cout << GetParam().type;
    for (const auto& [fate, count] : tally) {
        std::cout << ", " << fate << ": " << count;
    }
    std::cout << ", slowest: " << trial.Slowest() << " ms\n";
    EXPECT_GT(tally["noted"], 0);
    EXPECT_GT(tally["read"], 0);
}

INSTANTIATE_TEST_SUITE_P(Of, DamagedMetadata, ::testing::ValuesIn(testing::describedKinds),
                         [](const auto& kind) { return std::string(kind.param.type); });

// Blocks made to take memory or time without end.
QByteArray Packet(const QByteArray& before, const QByteArray& properties) {
    return before +
           "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/"
           "22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
           "xmlns:dc='http://purl.org/dc/elements/1.1/'>" +
           properties + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

QByteArray NestedXmp(int depth) {
    return Packet({}, "<dc:subject>" + QByteArray("<rdf:Bag><rdf:li>").repeated(depth) +
                          QByteArray("</rdf:li></rdf:Bag>").repeated(depth) + "</dc:subject>");
}

QByteArray EntityBomb() {
    QByteArray entities = "<!DOCTYPE bomb [<!ENTITY a0 'fish'>";
    for (int n = 1; n < 12; ++n) {
        const QByteArray one = "&a" + QByteArray::number(n - 1) + ';';
        entities += "<!ENTITY a" + QByteArray::number(n) + " '" + one.repeated(10) + "'>";
    }
    return Packet(entities + "]>", "<dc:source>&a11;</dc:source>");
}

QByteArray ManyInBag(int count) {
    return Packet({}, "<dc:subject><rdf:Bag>" + QByteArray("<rdf:li>x</rdf:li>").repeated(count) +
                          "</rdf:Bag></dc:subject>");
}

QByteArray ManyLanguages(int count) {
    QByteArray items;
    for (int n = 0; n < count; ++n) {
        items += "<rdf:li xml:lang='x-" + QByteArray::number(n) + "'>a</rdf:li>";
    }
    return Packet({}, "<dc:title><rdf:Alt>" + items + "</rdf:Alt></dc:title>");
}

// Each entry names the same bytes: so many times more than the block has.
QByteArray ManyEntriesForTheSame(int entries, int length) {
    using testing::Number;
    QByteArray block = QByteArray("Exif\0\0II*\0\x08\0\0\0", 14) + Number(entries, 2);
    const qsizetype place = 8 + 2 + 12 * entries + 4;
    for (int n = 0; n < entries; ++n) {
        block += Number(0xC800 + n, 2) + Number(7, 2) + Number(length, 4) + Number(place, 4);
    }
    return block + Number(0, 4) + testing::PatternBytes(length);
}

// A chain of directories, the last of which leads to the first one.
QByteArray ChainOfDirectories(int count) {
    using testing::Number;
    QByteArray block("Exif\0\0II*\0\x08\0\0\0", 14);
    for (int n = 1; n <= count; ++n) {
        block += Number(1, 2) + Number(0x8769, 2) + Number(4, 2) + Number(1, 4) +
                 Number(8 + 18 * (n % count), 4) + Number(8 + 18 * (n % count), 4);
    }
    return block;
}

TEST(HostileMetadata, NeverCostThePicture) {
    const auto sound = [] { return testing::SoundBlocks(false); };
    const struct {
        const char* name;
        QByteArray MetadataBlocks::*block;
        QByteArray bytes;
    } rows[] = {
        {"nested XMP", &MetadataBlocks::xmp, NestedXmp(1000)},
        {"deeply nested XMP", &MetadataBlocks::xmp, NestedXmp(100'000)},
        {"entity bomb", &MetadataBlocks::xmp, EntityBomb()},
        {"many in a bag", &MetadataBlocks::xmp, ManyInBag(40'000)},
        {"many languages", &MetadataBlocks::xmp, ManyLanguages(20'000)},
        {"zero bytes", &MetadataBlocks::xmp, QByteArray(10'000'000, '\0')},
        {"many IPTC records", &MetadataBlocks::iptc,
         QByteArray("\x1c\2\x19\0\1f", 6).repeated(200'000)},
        {"the same again", &MetadataBlocks::exif, ManyEntriesForTheSame(250, 2'000'000)},
        {"chain", &MetadataBlocks::exif, ChainOfDirectories(3000)},
        {"large profile", &MetadataBlocks::profile, sound().profile + QByteArray(10'000'000, '\0')},
    };
    for (const DescribedKind& kind : testing::describedKinds) {
        MetadataTrial trial(kind);
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(kind.type) + ": " + row.name);
            MetadataBlocks blocks = sound();
            blocks.*row.block = row.bytes;
            QElapsedTimer timer;
            timer.start();
            const std::string fate = trial.Try(blocks, false);
            std::cout << kind.type << ", " << row.name << ": " << fate << ", " << timer.elapsed()
                      << " ms\n";
        }
    }
}

// The decoder's pixels stay, whatever becomes of it while it reads metadata.
TEST(DecoderReader, LosesNoPixelsToMetadata) {
    const testing::PictureFolder folder;
    const QString photo = folder.Path(QStringLiteral("photo"));
    const char* const orders[] = {"signal 11", "signal 7",     "signal 9",  "signal 24",
                                  "stutter",   "other number", "length 77", "length 1000000000000",
                                  "length 0",  "length 50",    "forbidden", "hang"};
    DecoderReader reader({.program = QStringLiteral(VARNEL_DYING_DECODER)});
    for (const char* const order : orders) {
        SCOPED_TRACE(order);
        testing::WriteFile(photo, order);
        QElapsedTimer timer;
        timer.start();
        const LoadedPicture picture = ReadPicture(reader, {photo});
        EXPECT_LT(timer.elapsed(), mostMilliseconds);
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        EXPECT_EQ(PixelBytes(picture.bitmap.get()), QByteArray(24, 'p'));
        EXPECT_EQ(picture.bitmap->metadata.photo.notes, Reasons{allLost});
    }
    testing::WriteFile(photo, orders[0]);
    const LoadedPicture facts = ReadPicture(reader, {.path = photo, .kind = ReadKind::Facts});
    EXPECT_EQ(facts.facts.notes, Reasons{allLost});
}

}  // namespace
}  // namespace varnel
