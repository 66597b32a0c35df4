// SPDX-License-Identifier: BSD-3-Clause
#include "pageroutes.h"

#include "lineframe.h"
#include "routetable.h"

namespace rxsim {

namespace {

// The NMEA kinds the binary decoder of modes 4 and 5 reports by name.
const char *const kDecoderKinds[] = {"GGA", "RMC", "GSA", "GSV", "GLL", "GST", "GBS", "VTG", "ZDA"};

bool isDecoderMode(int mode)
{
    return mode == 4 || mode == 5;
}

// The decoder is fed bytes, not text: the XOR of the bytes between '$' and the
// first '*', read as the console reads it (blanks trimmed, base 16).
bool sentenceChecksumAccepted(const QByteArray &line)
{
    const int star = line.indexOf('*');
    if (star < 0)
        return false;
    int end = 1;
    while (end < star && line.at(end) != '\0')
        ++end;
    bool ok = false;
    const uint received = QString::fromUtf8(line.constData() + star + 1, line.size() - star - 1).toUInt(&ok, 16);
    return ok && received == xorChecksum(line.constData() + 1, end - 1);
}

QString decoderKindOf(const QByteArray &line)
{
    if (!line.startsWith('$') || line.size() < 7 || line.at(6) != ',' || !sentenceChecksumAccepted(line))
        return QString();
    for (const char *kind : kDecoderKinds) {
        if (line.mid(3, 3) == kind)
            return QLatin1String(kind);
    }
    return QString();
}

} // namespace

QStringList pageLabels(int mode)
{
    QStringList labels;
    if (isDecoderMode(mode)) {
        for (const char *kind : kDecoderKinds)
            labels << QLatin1String(kind);
        return labels;
    }
    for (const PageRoute *route : offeredRoutes(mode))
        labels << QLatin1String(route->label);
    return labels;
}

QString pageForLine(int mode, const QByteArray &line)
{
    if (isDecoderMode(mode))
        return decoderKindOf(line);
    const PageRoute *route = routeTakingLine(mode, QString::fromUtf8(line));
    return route ? QLatin1String(route->label) : QString();
}

} // namespace rxsim
