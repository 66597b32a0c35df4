// SPDX-License-Identifier: BSD-3-Clause
#include "viewpalette.h"

namespace ViewPalette {

const QVector<Cn0Band> &cn0Bands()
{
    static const QVector<Cn0Band> bands = {
        {-std::numeric_limits<double>::infinity(), QStringLiteral("< 25"), QColor(0xd3, 0x2f, 0x2f)},
        {25, QStringLiteral("25 – 35"), QColor(0xf5, 0x7c, 0x00)},
        {35, QStringLiteral("35 – 45"), QColor(0xaf, 0xb4, 0x2b)},
        {45, QStringLiteral("≥ 45"), QColor(0x38, 0x8e, 0x3c)},
    };
    return bands;
}

QColor cn0Colour(double cn0)
{
    if (!isKnown(cn0))
        return unknownColour();
    QColor colour = cn0Bands().first().colour;
    for (const Cn0Band &band : cn0Bands()) {
        if (cn0 >= band.from)
            colour = band.colour;
    }
    return colour;
}

QColor unknownColour() { return QColor(0x9e, 0x9e, 0x9e); }

QColor fixQualityColour(FixQuality quality) { return QColor(QRgb(fixQualityRgb(quality))); }

QColor warningColour() { return QColor(0xe5, 0x39, 0x35); }

QColor seriesColour(int index)
{
    static const QColor colours[] = {
        QColor(0x1f, 0x77, 0xb4), QColor(0x2c, 0xa0, 0x2c), QColor(0x94, 0x67, 0xbd), QColor(0x8c, 0x56, 0x4b),
        QColor(0x17, 0xbe, 0xcf), QColor(0xbc, 0xbd, 0x22), QColor(0x7f, 0x7f, 0x7f),
    };
    constexpr int count = int(sizeof colours / sizeof colours[0]);
    return colours[((index % count) + count) % count];
}

OutcomeColours outcomeColours(LineOutcome outcome)
{
    switch (outcome) {
    case LineOutcome::Taken: return {};
    case LineOutcome::NoPage: return {QColor(0x61, 0x61, 0x61), QColor()};
    case LineOutcome::Refused: return {QColor(0x8a, 0x4b, 0x00), QColor(0xff, 0xf3, 0xe0)};
    case LineOutcome::BadChecksum: return {QColor(0xb7, 0x1c, 0x1c), QColor(0xfd, 0xec, 0xea)};
    case LineOutcome::CutShort: return {QColor(0xad, 0x14, 0x57), QColor(0xfc, 0xe4, 0xec)};
    case LineOutcome::TooLong: return {QColor(0x4a, 0x14, 0x8c), QColor(0xf3, 0xe5, 0xf5)};
    case LineOutcome::Garbage: break;
    }
    return {QColor(0x42, 0x42, 0x42), QColor(0xee, 0xee, 0xee)};
}

QColor invalidEntryColour() { return QColor(0xff, 0xcd, 0xd2); }

} // namespace ViewPalette
