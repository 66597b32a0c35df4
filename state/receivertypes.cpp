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

struct QualityName
{
    FixQuality quality;
    const char *name;
};

constexpr QualityName kQualities[] = {
    {FixQuality::NoFix, "no fix"},
    {FixQuality::Single, "single"},
    {FixQuality::Dgnss, "DGNSS"},
    {FixQuality::Pps, "PPS"},
    {FixQuality::RtkFixed, "RTK fixed"},
    {FixQuality::RtkFloat, "RTK float"},
    {FixQuality::DeadReckoning, "dead reckoning"},
    {FixQuality::Manual, "manual"},
    {FixQuality::Simulation, "simulation"},
    {FixQuality::Sbas, "SBAS"},
    {FixQuality::Ppp, "PPP"},
};

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

QString fixQualityName(FixQuality quality)
{
    for (const QualityName &entry : kQualities) {
        if (entry.quality == quality)
            return QString::fromLatin1(entry.name);
    }
    return QStringLiteral("no fix");
}

const QVector<FixQuality> &allFixQualities()
{
    static const QVector<FixQuality> qualities = [] {
        QVector<FixQuality> list;
        for (const QualityName &entry : kQualities)
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
