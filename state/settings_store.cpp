// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings_store.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

namespace varnel {

namespace {

class UserStore : public SettingsStore {
  public:
    UserStore()
        : settings_(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Varnel"),
                    QStringLiteral("Varnel")) {
        // Only this user's own settings count, not those of the whole machine.
        settings_.setFallbacksEnabled(false);
    }

    QString Get(const QString& section, const QString& key,
                const QString& fallback) const override {
        const QVariant value = settings_.value(Path(section, key), fallback);
        // A comma that was typed into the file without quotes makes the value a list.
        return value.typeId() == QMetaType::QStringList ? value.toStringList().join(u',')
                                                        : value.toString();
    }

    void Save(const QString& section, const QString& key, const QString& value) override {
        settings_.setValue(Path(section, key), value);
    }

  private:
    static QString Path(const QString& section, const QString& key) { return section + u'/' + key; }

    QSettings settings_;
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

std::unique_ptr<SettingsStore> OpenUserStore() {
    return std::make_unique<UserStore>();
}

}  // namespace varnel
