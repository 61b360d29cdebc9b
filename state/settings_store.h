// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where settings are kept between runs: texts under a section and a key of the application Varnel.
#pragma once

#include <QString>
#include <QStringView>
#include <map>
#include <memory>
#include <utility>

namespace varnel {

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    // The stored text, or the fallback when the key is missing.
    virtual QString Get(const QString& section, const QString& key,
                        const QString& fallback) const = 0;
    virtual void Save(const QString& section, const QString& key, const QString& value) = 0;
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

// The platform's store for this user; on Linux the file Varnel/Varnel.conf in the configuration
// folder. A section is its group, a key stands as it is.
std::unique_ptr<SettingsStore> OpenUserStore();

}  // namespace varnel
