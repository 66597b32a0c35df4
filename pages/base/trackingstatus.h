// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

// The name of the signal a channel tracks, decoded from the channel tracking status
// word of the observation logs (system in bits 16-18, signal type in bits 21-25,
// bit 26 telling L2C from L2P(Y)); empty for a combination the receiver never sends.
QString trackingStatusSignalName(int status);
