// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/settings_store.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <utility>

#include "files/dir_lock.h"
#include "state/settings/settings_recovery.h"
#include "state/settings/settings_text.h"

namespace varnel {

namespace {

constexpr int longestWait = 5000;  // ms for another process to finish writing

class FileStore : public SettingsStore {
  public:
    FileStore(QString path, QDateTime now) : path_(std::move(path)), now_(std::move(now)) {
        SettingsFile file = ReadSettingsFile(path_);
        if (!file.IsWhole() || !file.CopyIsFresh()) {
            const DirLock lock(Folder(), longestWait);
            file = ReadSettingsFile(path_);  // another process may have repaired it
            values_ = Recover(file, lock.IsHeld()).values;
        } else {
            values_ = file.reading.values;
        }
    }
    FileStore(const FileStore&) = delete;
    FileStore& operator=(const FileStore&) = delete;
    ~FileStore() override { Write(); }

    QString Get(const QString& section, const QString& key,
                const QString& fallback) const override {
        const QString* const found = values_.Find(section, key);
        return found == nullptr ? fallback : *found;
    }

    void Save(const QString& section, const QString& key, const QString& value) override {
        values_.Set(section, key, value);
        changed_.Set(section, key, value);
    }

    QString Path() const override { return path_; }

    Reasons Settle() override {
        Write();
        return std::exchange(messages_, {});
    }

  private:
    QString Folder() const { return QFileInfo(path_).path(); }

    // The file's values after damage was repaired and the copy renewed, where necessary.
    RescuedSettings Recover(const SettingsFile& file, bool isLocked) {
        if (!file.IsWhole()) {
            RescuedSettings rescued = RescueSettings(path_, file, values_, isLocked, now_);
            // Each save gets here again while the file cannot be set aside or replaced.
            if (!reportedAside_.contains(rescued.aside)) {
                reportedAside_.append(rescued.aside);
                messages_.append(rescued.message);
            }
            return rescued;
        }
        if (isLocked && !file.CopyIsFresh()) {
            // Without a fresh copy nothing is lost yet, so there is no message about a failure.
            WriteSettingsFile(CopyOf(path_), file.bytes);
        }
        // A file that was deleted during the run is made again from the known values.
        return {file.exists ? file.reading.values : values_, {}, {}, {}};
    }

    void Write() {
        if (changed_.Empty()) {
            return;
        }
        const Reason reason = TryToWrite();
        if (!reason.isEmpty() && !std::exchange(isUnwritableReported_, true)) {
            messages_.append({ReasonCode::SettingsUnwritable, path_, reason});
        }
    }

    // The reason if it fails; the changes are then written by the next call that succeeds.
    Reason TryToWrite() {
        if (!QDir().mkpath(Folder())) {
            return ReasonCode::FolderNotMade;
        }
        const DirLock lock(Folder(), longestWait);
        if (!lock.IsHeld()) {
            return ReasonCode::SettingsLocked;
        }
        const SettingsFile file = ReadSettingsFile(path_);
        if (!file.canBeRead) {
            return file.reason;  // a file that cannot be read is not replaced
        }
        RescuedSettings taken = Recover(file, true);
        if (!taken.mustStay.isEmpty()) {
            return taken.mustStay;
        }
        SettingsValues merged = std::move(taken.values);
        merged.Merge(changed_);
        const QByteArray bytes = SettingsText(merged);
        if (bytes != file.bytes) {
            Reason reason = WriteSettingsFile(path_, bytes);
            if (!reason.isEmpty()) {
                return reason;
            }
        }
        values_ = std::move(merged);
        changed_ = {};
        if (HoldsGear(values_) && bytes != file.copyBytes) {
            WriteSettingsFile(CopyOf(path_), bytes);
        }
        return {};
    }

    QString path_;
    QDateTime now_;
    SettingsValues values_;
    SettingsValues changed_;  // not yet written
    Reasons messages_;
    QStringList reportedAside_;  // names of damaged files that have a message; empty: not set aside
    bool isUnwritableReported_ = false;
};

}  // namespace

QString MemoryStore::Get(const QString& section, const QString& key,
                         const QString& fallback) const {
    const auto found = values_.find({section, key});
    return found == values_.end() ? fallback : found->second;
}

void MemoryStore::Save(const QString& section, const QString& key, const QString& value) {
    values_[{section, key}] = value;
}

bool MemoryStore::Contains(const QString& section, const QString& key) const {
    return values_.contains({section, key});
}

std::unique_ptr<SettingsStore> OpenFileStore(const QString& path, const QDateTime& now) {
    return std::make_unique<FileStore>(path, now);
}

std::unique_ptr<SettingsStore> OpenUserStore(const QDateTime& now) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return OpenFileStore(folder + QStringLiteral("/Varnel/Varnel.conf"), now);
}

}  // namespace varnel
