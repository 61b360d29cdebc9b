// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Saving to disks that are full, and in programs that are killed.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <functional>
#include <optional>
#include <thread>

#include "base/error_text.h"
#include "remap/encode/encode_bitmap.h"
#include "remap/encode/save_bitmap.h"
#include "tests/support/bitmaps.h"
#include "tests/support/contents.h"
#include "tests/support/limits.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::NamesIn;
using testing::WriteFile;

constexpr int sizes = 60;
constexpr int moments = 50;
constexpr int page = 4096;  // what a small file system counts in

struct Type {
    const char* name;
    OutputEncoding encoding;
    bool inPieces = false;  // put into the file while it is made
};

class SaveFaults : public ::testing::TestWithParam<Type> {
  protected:
    SaveResult Save(const QString& path) const {
        FileSeries series;
        return GetParam().inPieces
                   ? SaveBitmap(GetParam().encoding, picture_.get(), FileInSeries{path, series})
                   : SaveBitmap(GetParam().encoding, picture_.get(), path);
    }
    // Noise, so that every type makes a file of many pages.
    const BitmapHandle picture_ =
        testing::Noise(GetParam().inPieces ? PixelSize{1000, 1000} : PixelSize{420, 320});
    const QByteArray whole_ = EncodeBitmap(GetParam().encoding, picture_.get()).bytes;
    const QByteArray older_ = QByteArray(3 * page, 'o');
};

// What came of many savings. All fits into a pipe at once.
struct Tally {
    int saved = 0;
    int refused = 0;
    int falseSuccesses = 0;
    int lost = 0;
    int strays = 0;
    int withoutReason = 0;
    bool operator==(const Tally&) const = default;
};

void Count(const SaveResult& result, const QString& path, const QByteArray& before,
           const QByteArray& whole, const char16_t* words, Tally& tally) {
    const QByteArray contents = Contents(path);
    const qsizetype expected = result.ok || !before.isEmpty() ? 1 : 0;
    tally.saved += result.ok ? 1 : 0;
    tally.refused += result.ok ? 0 : 1;
    tally.falseSuccesses += result.ok && contents != whole ? 1 : 0;
    tally.lost += !result.ok && contents != before ? 1 : 0;
    tally.strays += NamesIn(QFileInfo(path).path()).size() != expected ? 1 : 0;
    tally.withoutReason +=
        !result.ok && !ErrorText(result.reason).startsWith(QStringView(words)) ? 1 : 0;
}

// Sizes from nothing to a byte less than the file; the last ten cut only its end.
int LimitFor(int i, int length) {
    return i < sizes - 10 ? i * (length / (sizes - 10)) : length - (1 << (sizes - 1 - i));
}

TEST_P(SaveFaults, AFileThatCannotGrowIsNoSuccessAndKeepsTheOlderOne) {
    for (const QByteArray& before : {QByteArray(), older_}) {
        Tally tally;
        for (int i = 0; i < sizes; ++i) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(QStringLiteral("picture"));
            if (!before.isEmpty()) {
                WriteFile(path, before);
            }
            const SaveResult result = [&] {
                const testing::FileSizeLimit limit(LimitFor(i, static_cast<int>(whole_.size())));
                return Save(path);
            }();
            Count(result, path, before, whole_, u"File too large (while writing)", tally);
        }
        EXPECT_EQ(tally, (Tally{.refused = sizes}));
    }
}

// A place in which mounting is allowed and that goes away with the process.
bool OwnMounts() {
    const uid_t user = ::geteuid();
    const gid_t group = ::getegid();
    if (::unshare(CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
            return false;
        }
        WriteFile(QStringLiteral("/proc/self/setgroups"), "deny");
        WriteFile(QStringLiteral("/proc/self/uid_map"), "0 " + QByteArray::number(user) + " 1");
        WriteFile(QStringLiteral("/proc/self/gid_map"), "0 " + QByteArray::number(group) + " 1");
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool MountSmall(const QString& folder, int pages) {
    const QByteArray options = "size=" + QByteArray::number(pages * page);
    return ::mount("none", QFile::encodeName(folder).constData(), "tmpfs", 0,
                   options.constData()) == 0;
}

// Runs it in a process of its own. Nothing when it could not do its work.
std::optional<Tally> InChild(const std::function<std::optional<Tally>()>& work) {
    int ends[2];
    if (::pipe(ends) != 0) {
        return std::nullopt;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        const std::optional<Tally> tally = work();
        ::_exit(tally && ::write(ends[1], &*tally, sizeof(Tally)) == sizeof(Tally) ? 0 : 1);
    }
    ::close(ends[1]);
    Tally tally;
    const bool told = ::read(ends[0], &tally, sizeof(Tally)) == sizeof(Tally);
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return told ? std::optional(tally) : std::nullopt;
}

// Pages left on the disk: a single one at first, one too few at last but three, then enough.
int RoomFor(int i, int needed) {
    return i >= sizes - 3 ? needed + i - (sizes - 3) : 1 + (needed - 2) * i / (sizes - 4);
}

TEST_P(SaveFaults, AFullDiskIsNoSuccessAndKeepsTheOlderFile) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture"));
    const int needed = static_cast<int>((whole_.size() + page - 1) / page);
    ASSERT_GE(needed, sizes);  // so that all sizes differ
    for (const QByteArray& before : {QByteArray(), older_}) {
        const std::optional<Tally> tally = InChild([&]() -> std::optional<Tally> {
            if (!OwnMounts()) {
                return std::nullopt;
            }
            Tally counted;
            for (int i = 0; i < sizes; ++i) {
                const int kept = static_cast<int>(before.size()) / page;
                const int room = RoomFor(i, needed);
                if (!MountSmall(folder.path(), kept + room)) {
                    return std::nullopt;
                }
                if (!before.isEmpty()) {
                    WriteFile(path, before);
                }
                const SaveResult result = Save(path);
                Count(result, path, before, whole_, u"No space left on device (while ", counted);
                ::umount2(QFile::encodeName(folder.path()).constData(), MNT_DETACH);
            }
            return counted;
        });
        if (!tally) {
            GTEST_SKIP() << "no small file system may be mounted here";
        }
        EXPECT_EQ(*tally, (Tally{.saved = 3, .refused = sizes - 3}));
    }
}

TEST_P(SaveFaults, AKilledProgramLeavesTheOlderOrTheNewFile) {
    using Clock = std::chrono::steady_clock;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture"));
    const auto start = Clock::now();
    ASSERT_TRUE(Save(path).ok);
    const Clock::duration lasting = Clock::now() - start;
    int neither = 0;
    for (int i = 0; i < moments; ++i) {
        WriteFile(path, older_);
        const pid_t child = ::fork();
        if (child == 0) {
            ::_exit(Save(path).ok ? 0 : 1);
        }
        std::this_thread::sleep_for(lasting * i * 5 / (4 * moments));  // a little beyond its end
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const QByteArray contents = Contents(path);
        neither += contents != older_ && contents != whole_ ? 1 : 0;
    }
    EXPECT_EQ(neither, 0);
    EXPECT_TRUE(Save(path).ok);
    EXPECT_EQ(NamesIn(folder.path()).join(u' '), QStringLiteral("picture"));
}

INSTANTIATE_TEST_SUITE_P(Types, SaveFaults,
                         ::testing::Values(Type{"Tiff", OutputType::Tiff},
                                           Type{"Jpeg", {OutputType::Jpeg, 100}},
                                           Type{"Bmp", OutputType::Bmp},
                                           Type{"Png", OutputType::Png},
                                           Type{"TiffInPieces", OutputType::Tiff, true},
                                           Type{"PngInPieces", OutputType::Png, true},
                                           Type{"JpegInPieces", {OutputType::Jpeg, 100}, true}),
                         [](const auto& type) { return std::string(type.param.name); });

}  // namespace
}  // namespace varnel
