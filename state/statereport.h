// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

#include <QJsonObject>

// The snapshot as JSON, for tools and services: "fix", "satellites" and "statistics"
// (since the reset, with "window" and "byQuality" beside). Unknown values are null;
// qualities and systems are written as words (fixQualityName(), systemName()).
QJsonObject receiverReport(const ReceiverSnapshot &snapshot);
