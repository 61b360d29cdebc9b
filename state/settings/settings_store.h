// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where settings are kept between runs: texts under a section and a key of the application Varnel.
// Throws nothing; errors are returned by Settle.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>
#include <map>
#include <memory>
#include <utility>

#include "base/reason.h"

namespace varnel {

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    // The stored text, or the fallback when the key is missing.
    virtual QString Get(const QString& section, const QString& key,
                        const QString& fallback) const = 0;
    virtual void Save(const QString& section, const QString& key, const QString& value) = 0;
    // The file's full name; empty for a store that has none.
    virtual QString Path() const { return {}; }
    // Writes what was saved to the disk, and returns the messages for the user since the last call,
    // each event once.
    virtual Reasons Settle() { return {}; }
};

// Keeps everything in memory.
class MemoryStore : public SettingsStore {
  public:
    QString Get(const QString& section, const QString& key, const QString& fallback) const override;
    void Save(const QString& section, const QString& key, const QString& value) override;
    bool Contains(const QString& section, const QString& key) const;

  private:
    std::map<std::pair<QString, QString>, QString> values_;
};

// The store of this user: the file Varnel/Varnel.conf in the configuration folder, on Linux
// $XDG_CONFIG_HOME or ~/.config. A section of the store is a section of the file, with the same
// keys. What other processes save meanwhile is kept, key by key; the last writer of a key wins.
// Damage does not lose gears (see settings_recovery.h); now dates a damaged file's name. Where
// nothing can be written the values last for this run. The destructor settles, too.
std::unique_ptr<SettingsStore> OpenUserStore(const QDateTime& now);
std::unique_ptr<SettingsStore> OpenFileStore(const QString& path, const QDateTime& now);

}  // namespace varnel
