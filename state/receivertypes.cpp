// SPDX-License-Identifier: BSD-3-Clause
#include "receivertypes.h"

namespace {

struct SystemNames
{
    GnssSystem system;
    const char *name;
    char letter;
};

constexpr SystemNames kSystems[] = {
    {GnssSystem::GPS, "GPS", 'G'},       {GnssSystem::GLONASS, "GLONASS", 'R'}, {GnssSystem::Galileo, "Galileo", 'E'},
    {GnssSystem::BDS, "BDS", 'C'},       {GnssSystem::QZSS, "QZSS", 'J'},       {GnssSystem::SBAS, "SBAS", 'S'},
    {GnssSystem::NavIC, "NavIC", 'I'},
};

const SystemNames *namesOf(GnssSystem system)
{
    for (const SystemNames &entry : kSystems) {
        if (entry.system == system)
            return &entry;
    }
    return nullptr;
}

struct QualityInfo
{
    FixQuality quality;
    const char *name;
    quint32 rgb;
};

constexpr QualityInfo kQualities[] = {
    {FixQuality::NoFix, "no fix", 0xe53935},
    {FixQuality::Single, "single", 0x1e88e5},
    {FixQuality::Dgnss, "DGNSS", 0x00897b},
    {FixQuality::Pps, "PPS", 0x3949ab},
    {FixQuality::RtkFixed, "RTK fixed", 0x2e7d32},
    {FixQuality::RtkFloat, "RTK float", 0xfb8c00},
    {FixQuality::DeadReckoning, "dead reckoning", 0x6d4c41},
    {FixQuality::Manual, "manual", 0x757575},
    {FixQuality::Simulation, "simulation", 0xad1457},
    {FixQuality::Sbas, "SBAS", 0x5e35b1},
    {FixQuality::Ppp, "PPP", 0x00acc1},
};

// A value outside the list reads as no fix, as the receiver state reads it.
const QualityInfo &infoOf(FixQuality quality)
{
    for (const QualityInfo &entry : kQualities) {
        if (entry.quality == quality)
            return entry;
    }
    return kQualities[0];
}

} // namespace

QString systemName(GnssSystem system)
{
    const SystemNames *names = namesOf(system);
    return names ? QString::fromLatin1(names->name) : QStringLiteral("unknown");
}

QChar systemLetter(GnssSystem system)
{
    const SystemNames *names = namesOf(system);
    return QLatin1Char(names ? names->letter : '?');
}

const QVector<GnssSystem> &knownSystems()
{
    static const QVector<GnssSystem> systems = [] {
        QVector<GnssSystem> list;
        for (const SystemNames &entry : kSystems)
            list << entry.system;
        return list;
    }();
    return systems;
}

QString fixQualityName(FixQuality quality) { return QString::fromLatin1(infoOf(quality).name); }

quint32 fixQualityRgb(FixQuality quality) { return infoOf(quality).rgb; }

const QVector<FixQuality> &allFixQualities()
{
    static const QVector<FixQuality> qualities = [] {
        QVector<FixQuality> list;
        for (const QualityInfo &entry : kQualities)
            list << entry.quality;
        return list;
    }();
    return qualities;
}

double SatelliteInfo::bestCn0() const
{
    double best = kUnknown;
    for (const SignalInfo &signal : trackedSignals) {
        if (isKnown(signal.cn0) && (!isKnown(best) || signal.cn0 > best))
            best = signal.cn0;
    }
    return best;
}
