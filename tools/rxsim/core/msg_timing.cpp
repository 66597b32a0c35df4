// SPDX-License-Identifier: BSD-3-Clause
// The timing receiver's "$" sentences: system times, leap second, 1PPS, timing
// position, survey-in progress, satellite counts and interference report.
#include "formatting.h"
#include "messages.h"

#include <algorithm>

namespace rxsim {

namespace {

constexpr int kTimeQuality = 3;  // precise
constexpr int kLeapFlag = 3;     // leap second from this system's own messages
constexpr double kSurveySeconds = 120.0;
const qint64 kMsPerWeek = 7LL * 86400 * 1000;

QByteArray seconds9(qint64 ms)
{
    return fixed(double(ms) / 1000.0, 9);
}

void bdstime(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const qint64 bdsMs = e.gpsMs - 14000 - 1356 * kMsPerWeek;
    Fields f;
    f << kTimeQuality << bdsMs / kMsPerWeek << seconds9(bdsMs % kMsPerWeek) << bdsMs / 1000 << e.gpsWeek
      << seconds9(e.gpsMs % kMsPerWeek) << e.leapSeconds << kLeapFlag;
    w.sentence("BDSTIME", f);
}

void gpstime(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << kTimeQuality << e.gpsWeek << seconds9(e.gpsMs % kMsPerWeek) << e.gpsMs / 1000 << e.leapSeconds << kLeapFlag;
    w.sentence("GPSTIME", f);
}

void galtime(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const qint64 galMs = e.gpsMs - 1024 * kMsPerWeek;
    Fields f;
    f << kTimeQuality << galMs / kMsPerWeek << seconds9(galMs % kMsPerWeek) << galMs / 1000 << e.gpsWeek
      << seconds9(e.gpsMs % kMsPerWeek) << e.leapSeconds << kLeapFlag;
    w.sentence("GALTIME", f);
}

void glotime(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    // Moscow time, days counted in the four-year interval that began in 1996.
    const QDateTime moscow = e.utc.addSecs(3 * 3600);
    const QDateTime intervalStart(QDate(1996, 1, 1), QTime(0, 0), Qt::UTC);
    const qint64 sinceStart = intervalStart.msecsTo(QDateTime(moscow.date(), moscow.time(), Qt::UTC));
    const qint64 dayMs = 86400000;
    Fields f;
    f << kTimeQuality << (sinceStart / dayMs) % 1461 + 1 << seconds9(sinceStart % dayMs) << sinceStart / 1000
      << e.gpsWeek << seconds9(e.gpsMs % kMsPerWeek) << e.leapSeconds << kLeapFlag;
    w.sentence("GLOTIME", f);
}

void utctime(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const QDate d = e.utc.date();
    const QTime t = e.utc.time();
    Fields f;
    f << kTimeQuality << d.year() << padded(d.month(), 2) << padded(d.day(), 2) << padded(t.hour(), 2)
      << padded(t.minute(), 2) << fixed(t.second() + t.msec() / 1000.0, 3) << "0";
    w.sentence("UTCTIME", f);
}

void lsinfo(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << "0" << "1" << e.gpsWeek + 137 << "518400" << e.leapSeconds << e.leapSeconds;
    w.sentence("LSINFO", f);
}

bool surveyed(const Epoch &e)
{
    return e.elapsedMs >= qint64(kSurveySeconds * 1000.0);
}

void ppsinfo(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    auto tenthsOfNs = [&](int key, double spread) {
        return qint64(std::llround((hashUniform(w.seed(), quint64(e.elapsedMs), quint64(key)) - 0.5) * spread));
    };
    Fields f;
    f << (surveyed(e) ? 2 : 1) << tenthsOfNs(1, surveyed(e) ? 60.0 : 200.0) << tenthsOfNs(2, 400.0)
      << qint64(std::llround(e.clockDrift * 10.0));
    w.sentence("PPSINFO", f);
}

// The survey-in mean converges on the antenna from the first single fixes.
PositionFix surveyMean(const Epoch &e)
{
    PositionFix mean = e.pseudorange;
    const double weight = 1.0 / std::sqrt(1.0 + std::min(double(e.elapsedMs) / 1000.0, kSurveySeconds));
    mean.latitude = e.latitude + (e.pseudorange.latitude - e.latitude) * weight;
    mean.longitude = e.longitude + (e.pseudorange.longitude - e.longitude) * weight;
    mean.height = e.height + (e.pseudorange.height - e.height) * weight;
    mean.latitudeStd = 3.0 * weight; // 3D spread of the mean, m
    return mean;
}

void timpos(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const PositionFix mean = surveyMean(e);
    Fields f;
    f << (e.usedCount >= 4 ? 3 : 1) << fixed(e.pseudorange.latitude, 9) << fixed(e.pseudorange.longitude, 9)
      << fixed(e.pseudorange.height + e.undulation, 3) << fixed(mean.latitude, 9) << fixed(mean.longitude, 9)
      << fixed(mean.height + e.undulation, 3) << fixed(e.dops.pdop, 2);
    w.sentence("TIMPOS", f);
}

void tpfinfo(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const PositionFix mean = surveyMean(e);
    Fields f;
    f << (surveyed(e) ? 3 : 2) << qint64(std::min(double(e.elapsedMs) / 1000.0, kSurveySeconds))
      << fixed(mean.latitudeStd * 100.0, 1) << fixed(mean.latitude, 9) << fixed(mean.longitude, 9)
      << fixed(mean.height + e.undulation, 3);
    w.sentence("TPFINFO", f);
}

// Tracked and used satellites per system; the console shows the tracked counts.
void svnum(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    for (GnssSystem system : {GnssSystem::Gps, GnssSystem::Bds, GnssSystem::Galileo, GnssSystem::Glonass,
                              GnssSystem::Qzss})
        f << e.trackedCount(system) << e.usedCountOf(system);
    w.sentence("SVNUM", f);
}

void jam(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << e.gpsWeek << fixed(e.gpsSecondsOfWeek, 3) << "0" << "0";
    for (int channel = 0; channel < 6; ++channel) {
        // Interference flag, its strength and the notch filter state of each channel.
        const double u = hashUniform(w.seed(), quint64(e.elapsedMs / 10000), quint64(channel));
        f << (u > 0.9 ? 1 : 0) << (u > 0.9 ? int(u * 40.0) : 0) << "0";
    }
    w.sentence("JAM", f);
}

} // namespace

void addTimingKinds(QVector<MessageKind> &kinds)
{
    kinds << MessageKind{"BDSTIME", 1000, 0, kTimingMode, bdstime} << MessageKind{"GPSTIME", 1000, 0, kTimingMode, gpstime}
          << MessageKind{"GALTIME", 1000, 0, kTimingMode, galtime} << MessageKind{"GLOTIME", 1000, 0, kTimingMode, glotime}
          << MessageKind{"UTCTIME", 1000, 0, kTimingMode, utctime} << MessageKind{"LSINFO", 5000, 0, kTimingMode, lsinfo}
          << MessageKind{"PPSINFO", 1000, 0, kTimingMode, ppsinfo} << MessageKind{"TIMPOS", 1000, 0, kTimingMode, timpos}
          << MessageKind{"TPFINFO", 1000, 0, kTimingMode, tpfinfo} << MessageKind{"SVNUM", 1000, 0, kTimingMode, svnum}
          << MessageKind{"JAM", 1000, 0, kTimingMode, jam};
}

} // namespace rxsim
