// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "sessionindex.h"
#include "trackexport.h"

class QIODevice;

// The epochs [first, last] of a recording as the receiver state reads them: one point
// per epoch that brought a position of its own. The state starts as a seek to the
// first epoch starts it, so the epoch knows its date and fix quality.
bool collectTrack(QIODevice &recording, const SessionIndex &index, int first, int last, QVector<TrackPoint> *points,
                  QString *error);

// The bytes of the epochs [first, last] unchanged: a recording of its own.
bool copyEpochs(QIODevice &recording, const SessionIndex &index, int first, int last, QIODevice &out, QString *error);

// The epochs between two typed receiver times (parseReceiverTime; empty: the start or
// the end of the recording): the first where time reaches `from`, the last before time
// goes past `to`. False and a reason when a time is unreadable, not in the recording,
// or `to` comes before `from`.
bool epochSpan(const SessionIndex &index, const QString &from, const QString &to, int *first, int *last,
               QString *reason);

// The recording's epochs between two typed times (epochSpan) written to out as "csv",
// "gpx", "kml" (their positions) or "raw" (their bytes); false and a reason otherwise.
bool exportSession(QIODevice &recording, const SessionIndex &index, const QString &format, const QString &from,
                   const QString &to, const QString &name, QIODevice &out, QString *error);
