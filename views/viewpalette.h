// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "linerecord.h"
#include "receivertypes.h"

#include <QColor>
#include <QString>
#include <QVector>

// Every colour the receiver views share, so that a C/N0 or a fix quality looks the
// same in each picture and in each legend.
namespace ViewPalette {

struct Cn0Band
{
    double from; // dB-Hz: the band holds C/N0 values from here up to the next band
    QString label;
    QColor colour;
};

// Weakest first.
const QVector<Cn0Band> &cn0Bands();
QColor cn0Colour(double cn0); // unknownColour() when the C/N0 is unknown
QColor unknownColour();
QColor fixQualityColour(FixQuality quality);
// Signals too weak for the user's threshold.
QColor warningColour();
// Distinct colours for lines and bars that mean nothing by themselves; cycles.
QColor seriesColour(int index);

// How a line looks in the traffic tables by what became of it. An invalid colour
// leaves the table's own: lines a page took are the ordinary case.
struct OutcomeColours
{
    QColor foreground;
    QColor background;
};
OutcomeColours outcomeColours(LineOutcome outcome);
// The background of an entry the program cannot use (an invalid regular expression).
QColor invalidEntryColour();

} // namespace ViewPalette
