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
        SettingsFile file = LookAtSettings(path_);
        if (!file.IsWhole() || !file.CopyIsFresh()) {
            const DirLock lock(Folder(), longestWait);
            file = LookAtSettings(path_);  // another process may have mended it
            values_ = Take(file, lock.IsHeld()).values;
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

    Reasons Settle() override {
        Write();
        return std::exchange(toTell_, {});
    }

  private:
    QString Folder() const { return QFileInfo(path_).path(); }

    // The file's values after whatever has to be done about its damage and its copy.
    RescuedSettings Take(const SettingsFile& file, bool isLocked) {
        if (!file.IsWhole()) {
            RescuedSettings rescued = RescueSettings(path_, file, values_, isLocked, now_);
            // Each save comes here again while the file cannot be set aside or replaced.
            if (!toldAside_.contains(rescued.aside)) {
                toldAside_.append(rescued.aside);
                toTell_.append(rescued.told);
            }
            return rescued;
        }
        if (isLocked && !file.CopyIsFresh()) {
            // Without a fresh copy nothing is lost yet, so a failure is not told.
            WriteSettingsFile(CopyOf(path_), file.bytes);
        }
        // A file that went away during the run is made again from what is known.
        return {file.exists ? file.reading.values : values_, {}, {}, {}};
    }

    void Write() {
        if (changed_.Empty()) {
            return;
        }
        const Reason reason = TryToWrite();
        if (!reason.isEmpty() && !std::exchange(isToldUnwritable_, true)) {
            toTell_.append({ReasonCode::SettingsUnwritable, path_, reason});
        }
    }

    // The reason when it fails; what was changed is then tried again the next time.
    Reason TryToWrite() {
        if (!QDir().mkpath(Folder())) {
            return ReasonCode::FolderNotMade;
        }
        const DirLock lock(Folder(), longestWait);
        if (!lock.IsHeld()) {
            return ReasonCode::SettingsLocked;
        }
        const SettingsFile file = LookAtSettings(path_);
        if (!file.canBeRead) {
            return file.reason;  // and what cannot be read is not replaced
        }
        RescuedSettings taken = Take(file, true);
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
    Reasons toTell_;
    QStringList toldAside_;  // of these damaged files; the empty name: of one not set aside
    bool isToldUnwritable_ = false;
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
