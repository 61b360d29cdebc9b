// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Why there is no result, in words, with the option that helps. Throws std::bad_alloc only.
#pragma once

#include <QString>

#include "cli/options/options.h"
#include "pipeline/conversion/conversion_run.h"

namespace varnel {

// Why nothing is written under a name that was refused to a result of the photo; the refusal has an
// error.
QString RefusalText(const Options& options, const QString& photo, const TargetRefusal& refusal);

// Of a conversion that ended neither written nor skipped; the photo is the path as given.
QString FailureText(const Options& options, const QString& photo, const Conversion& conversion,
                    const ConversionOutcome& outcome);

// What does the rest of a stopped run.
QString HowToGoOn(const Options& options);

}  // namespace varnel
