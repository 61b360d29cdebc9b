// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any bytes as a settings file: values that were read are the same once they were written and read
// again, and that file is whole.
#include <cstdlib>

#include "state/settings/settings_recovery.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    varnel::SettingsReading reading = varnel::ReadSettingsText(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    const auto values = reading.values.InOrder();
    const varnel::SettingsReading again =
        varnel::ReadSettingsText(varnel::SettingsText(reading.values));
    // An empty file counts as damaged.
    if (!values.empty() && (!again.damage.isEmpty() || again.values.InOrder() != values)) {
        std::abort();
    }
    varnel::HoldsGear(reading.values);
    varnel::GearDamage(reading.values);
    varnel::RepairGears(reading.values);
    return 0;
}
