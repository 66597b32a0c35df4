// SPDX-License-Identifier: BSD-3-Clause
// The maker's ASCII logs: solutions, attitude, observations, satellite lists,
// ephemerides, broadcast parameters and receiver status.
#include "formatting.h"
#include "messages.h"

#include <algorithm>
#include <iterator>

namespace rxsim {

namespace {

// Satellites used with more than one signal.
int multiSignalCount(const Epoch &e)
{
    return int(std::count_if(e.satellites.cbegin(), e.satellites.cend(),
                             [](const TrackedSatellite &s) { return s.used && s.measurements.size() > 1; }));
}

QByteArray differentialAge(const Epoch &e)
{
    return fixed(e.differentialAge, 3);
}

// The 21 fields shared by the position logs and the first block of BESTNAV.
void positionBlock(Fields &f, const Epoch &e, const PositionFix &fix)
{
    f << fix.status << fix.type << fixed(fix.latitude, 11) << fixed(fix.longitude, 11) << fixed(fix.height, 4)
      << fixed(e.undulation, 4) << "WGS84" << fixed(fix.latitudeStd, 4) << fixed(fix.longitudeStd, 4)
      << fixed(fix.heightStd, 4) << kStationId << differentialAge(e) << "0.000" << e.satellites.size()
      << e.usedCount << e.usedCount << multiSignalCount(e) << "00" << "00" << kGalileoMask << kGpsGloBdsMask;
}

void positionLog(MessageWriter &w, const char *name, const PositionFix &fix)
{
    Fields f;
    positionBlock(f, w.epoch(), fix);
    w.log(name, f);
}

void bestpos(MessageWriter &w) { positionLog(w, "BESTPOS", w.epoch().best); }
void psrpos(MessageWriter &w) { positionLog(w, "PSRPOS", w.epoch().pseudorange); }
void tdifpos(MessageWriter &w) { positionLog(w, "TDIFPOS", w.epoch().timeDifferenced); }
void matchedpos(MessageWriter &w) { positionLog(w, "MATCHEDPOS", w.epoch().matched); }
void matchedposh(MessageWriter &w) { positionLog(w, "MATCHEDPOSH", w.epoch().matched); }

const char *velocityStatus(const Epoch &e)
{
    return e.usedCount >= 4 ? "SOL_COMPUTED" : "INSUFFICIENT_OBS";
}

void velocityLog(MessageWriter &w, const char *name, double latency)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << velocityStatus(e) << "DOPPLER_VELOCITY" << fixed(latency, 3) << differentialAge(e)
      << fixed(e.horizontalSpeed, 4) << fixed(e.track, 4) << fixed(e.verticalSpeed, 4) << "0.0";
    w.log(name, f);
}

void bestvel(MessageWriter &w) { velocityLog(w, "BESTVEL", 0.150); }
void psrvel(MessageWriter &w) { velocityLog(w, "PSRVEL", 0.150); }
void tdifvel(MessageWriter &w) { velocityLog(w, "TDIFVEL", 0.050); }

void bestxyz(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const PositionFix &p = e.best;
    const Vec3 v = enuToEcef(e.velocityEnu, p.latitude, p.longitude);
    Fields f;
    f << p.status << p.type << fixed(p.ecef.x, 4) << fixed(p.ecef.y, 4) << fixed(p.ecef.z, 4)
      << fixed(p.longitudeStd * 1.1, 4) << fixed(p.latitudeStd * 1.2, 4) << fixed(p.heightStd * 0.9, 4)
      << velocityStatus(e) << "DOPPLER_VELOCITY" << fixed(v.x, 4) << fixed(v.y, 4) << fixed(v.z, 4) << "0.0150"
      << "0.0140" << "0.0210" << kStationId << "0.150" << differentialAge(e) << "0.000" << e.satellites.size()
      << e.usedCount << e.usedCount << multiSignalCount(e) << "0" << "00" << kGalileoMask << kGpsGloBdsMask;
    w.log("BESTXYZ", f);
}

void bestnavLog(MessageWriter &w, const char *name)
{
    const Epoch &e = w.epoch();
    Fields f;
    positionBlock(f, e, e.best);
    f << velocityStatus(e) << "DOPPLER_VELOCITY" << "0.150" << differentialAge(e) << fixed(e.horizontalSpeed, 4)
      << fixed(e.track, 4) << fixed(e.verticalSpeed, 4) << "0.0210" << "0.0150";
    w.log(name, f);
}

void bestnav(MessageWriter &w) { bestnavLog(w, "BESTNAV"); }
void bestnavh(MessageWriter &w) { bestnavLog(w, "BESTNAVH"); }

// The dual-antenna heading solution; the four heading logs share one layout.
void headingLog(MessageWriter &w, const char *name)
{
    const Epoch &e = w.epoch();
    const bool solved = e.usedCount >= 5;
    Fields f;
    f << (solved ? "SOL_COMPUTED" : "INSUFFICIENT_OBS") << (solved ? "NARROW_INT" : "NONE")
      << fixed(e.baselineLength, 4) << fixed(e.heading, 4) << fixed(e.pitch, 4) << "0.0000" << fixed(0.12, 4)
      << fixed(0.21, 4) << kStationId << e.satellites.size() << e.usedCount << e.usedCount << multiSignalCount(e)
      << "0" << "00" << kGalileoMask << kGpsGloBdsMask;
    w.log(name, f);
}

void heading(MessageWriter &w) { headingLog(w, "HEADING"); }
void heading2(MessageWriter &w) { headingLog(w, "HEADING2"); }
void kvnheading(MessageWriter &w) { headingLog(w, "KVNHEADING"); }
void kvnheading2(MessageWriter &w) { headingLog(w, "KVNHEADING2"); }

void inspva(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << e.gpsWeek << fixed(e.gpsSecondsOfWeek, 3) << fixed(e.best.latitude, 11) << fixed(e.best.longitude, 11)
      << fixed(e.best.height + e.undulation, 4) << fixed(e.velocityEnu.y, 4) << fixed(e.velocityEnu.x, 4)
      << fixed(e.velocityEnu.z, 4) << fixed(e.roll, 4) << fixed(e.pitch, 4) << fixed(e.heading, 4)
      << "INS_SOLUTION_GOOD";
    w.log("INSPVA", f);
}

// Raw increments of one 100 Hz sample, in the IMU's scaled counts; the log lists
// the axes as Z, -Y, X.
void rawimux(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const double velocityScale = 0.01 / std::ldexp(1.0, -29);
    const double angleScale = 0.01 / std::ldexp(1.0, -33);
    auto noisy = [&](double value, double scale, int axis) {
        return qint64(std::llround(value * scale + 200.0 * (hashUniform(w.seed(), quint64(e.elapsedMs), quint64(axis)) - 0.5)));
    };
    Fields f;
    f << "00" << "0D" << e.gpsWeek << fixed(e.gpsSecondsOfWeek, 3) << "00000000"
      << noisy(e.specificForce.z, velocityScale, 0) << noisy(-e.specificForce.y, velocityScale, 1)
      << noisy(e.specificForce.x, velocityScale, 2) << noisy(e.angularRate.z, angleScale, 3)
      << noisy(-e.angularRate.y, angleScale, 4) << noisy(e.angularRate.x, angleScale, 5);
    w.log("RAWIMUX", f);
}

void agric(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const PositionFix &p = e.best;
    const QDate d = e.utc.date();
    const QTime t = e.utc.time();
    Fields f;
    f << "GNSS" << "236" << d.year() << d.month() << d.day() << t.hour() << t.minute()
      << fixed(t.second() + t.msec() / 1000.0, 2) << p.ggaQuality << (e.usedCount >= 5 ? 4 : 0)
      << e.usedCountOf(GnssSystem::Gps) << e.usedCountOf(GnssSystem::Bds) << e.usedCountOf(GnssSystem::Glonass)
      << fixed(e.baselineEnu.y, 4) << fixed(e.baselineEnu.x, 4) << fixed(e.baselineEnu.z, 4)
      << fixed(p.latitudeStd, 4) << fixed(p.longitudeStd, 4) << fixed(p.heightStd, 4) << fixed(e.heading, 4)
      << fixed(e.pitch, 4) << fixed(e.roll, 4) << fixed(e.horizontalSpeed, 4) << fixed(e.velocityEnu.y, 4)
      << fixed(e.velocityEnu.x, 4) << fixed(e.velocityEnu.z, 4) << "0.0150" << "0.0140" << "0.0210"
      << fixed(p.latitude, 11) << fixed(p.longitude, 11) << fixed(p.height, 4) << fixed(p.ecef.x, 4)
      << fixed(p.ecef.y, 4) << fixed(p.ecef.z, 4) << fixed(p.latitudeStd, 4) << fixed(p.longitudeStd, 4)
      << fixed(p.heightStd, 4) << fixed(p.longitudeStd * 1.1, 4) << fixed(p.latitudeStd * 1.2, 4)
      << fixed(p.heightStd * 0.9, 4) << fixed(e.baseLatitude, 11) << fixed(e.baseLongitude, 11)
      << fixed(e.baseHeight, 4) << fixed(e.secondaryLatitude, 11) << fixed(e.secondaryLongitude, 11)
      << fixed(e.secondaryHeight, 4) << qint64(std::llround(e.gpsSecondsOfWeek * 1000.0)) << fixed(e.differentialAge, 1)
      << fixed(e.track, 4) << fixed(e.undulation, 4) << "0.000" << "0.000" << e.usedCountOf(GnssSystem::Galileo)
      << "0" << "0" << "0";
    w.log("AGRIC", f);
}

void time(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const QDate d = e.utc.date();
    const QTime t = e.utc.time();
    Fields f;
    f << "VALID" << scientific(1.7e-9 + 1e-10 * std::sin(e.elapsedMs / 60000.0), 9) << scientific(4.2e-9, 9)
      << fixed(-double(e.leapSeconds), 10) << d.year() << d.month() << d.day() << t.hour() << t.minute()
      << t.second() * 1000 + t.msec() << "VALID";
    w.log("TIME", f);
}

// The DOP logs list the satellites used in the solution by the receiver's numbers.
void dopLog(MessageWriter &w, const char *name)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << fixed(e.dops.gdop, 4) << fixed(e.dops.pdop, 4) << fixed(e.dops.hdop, 4) << fixed(e.dops.htdop, 4)
      << fixed(e.dops.tdop, 4) << fixed(Receiver::kElevationMask, 1) << e.usedCount;
    for (const TrackedSatellite &s : e.satellites) {
        if (s.used)
            f << receiverPrn(*s.satellite);
    }
    w.log(name, f);
}

void psrdop(MessageWriter &w) { dopLog(w, "PSRDOP"); }
void psrdop2(MessageWriter &w) { dopLog(w, "PSRDOP2"); }

int glonassFrequency(const Satellite &s)
{
    return s.system == GnssSystem::Glonass ? s.glonassChannel + 7 : 0;
}

// Doppler of the satellite's motion alone; the received one adds the vehicle's
// motion and the clock drift.
double trueDoppler(const TrackedSatellite &s)
{
    return -s.rangeRate / (kLightSpeed / s.measurements.first().frequency);
}

QByteArray hex8(quint32 value)
{
    return QByteArray::number(value, 16).rightJustified(8, '0');
}

void satvis(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << "TRUE" << "TRUE" << e.satellites.size();
    for (const TrackedSatellite &s : e.satellites) {
        f << receiverPrn(*s.satellite) << glonassFrequency(*s.satellite) << "0" << fixed(s.elevation, 2)
          << fixed(s.azimuth, 2) << fixed(trueDoppler(s), 3) << fixed(s.measurements.first().doppler, 3);
    }
    w.log("SATVIS", f);
}

// One line per system: the group opens with GPS and closes with SBAS, the words the
// visibility page watches for.
void satvis2(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    static const GnssSystem kOrder[] = {GnssSystem::Gps, GnssSystem::Glonass, GnssSystem::Galileo, GnssSystem::Bds,
                                        GnssSystem::Qzss, GnssSystem::Sbas};
    int remaining = int(std::size(kOrder));
    for (GnssSystem system : kOrder) {
        Fields f;
        f << systemName(system) << "TRUE" << "TRUE" << e.trackedCount(system);
        for (const TrackedSatellite &s : e.satellites) {
            if (s.satellite->system != system)
                continue;
            f << s.satellite->prn << glonassFrequency(*s.satellite) << "0" << fixed(s.elevation, 2)
              << fixed(s.azimuth, 2) << fixed(s.measurements.first().doppler, 3);
        }
        w.log("SATVIS2", f, --remaining);
    }
}

void satxyz2(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << e.usedCount;
    for (const TrackedSatellite &s : e.satellites) {
        if (!s.used)
            continue;
        f << systemName(s.satellite->system) << s.satellite->prn << fixed(s.position.x, 3) << fixed(s.position.y, 3)
          << fixed(s.position.z, 3) << fixed(s.clockCorrection * kLightSpeed, 3) << fixed(s.ionoDelay, 3)
          << fixed(s.tropoDelay, 3) << "0" << "0";
    }
    w.log("SATXYZ2", f);
}

quint32 signalMask(const TrackedSatellite &s)
{
    quint32 mask = 0;
    for (int i = 0; i < s.measurements.size(); ++i)
        mask |= 1u << i;
    return mask;
}

void bestsats(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << e.satellites.size();
    for (const TrackedSatellite &s : e.satellites) {
        f << systemName(s.satellite->system) << s.satellite->prn
          << (s.used ? "GOOD" : s.satellite->system == GnssSystem::Sbas ? "NOTUSED" : "ELEVATIONERROR")
          << hex8(signalMask(s));
    }
    w.log("BESTSATS", f);
}

void rtkdata(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const PositionFix &p = e.best;
    // The reference satellite is the highest one used.
    const TrackedSatellite *reference = nullptr;
    for (const TrackedSatellite &s : e.satellites) {
        if (s.used && (!reference || s.elevation > reference->elevation))
            reference = &s;
    }
    Fields f;
    f << p.status << p.type << (e.rtkFixed ? "1" : "0") << e.satellites.size() << e.usedCount << e.usedCount
      << multiSignalCount(e) << "0" << "00" << kGalileoMask << kGpsGloBdsMask << "0" << "0";
    const double sx = p.longitudeStd * p.longitudeStd, sy = p.latitudeStd * p.latitudeStd,
                 sz = p.heightStd * p.heightStd;
    const double covariance[9] = {sx, 0.1 * sx, 0.05 * sz, 0.1 * sx, sy, 0.08 * sz, 0.05 * sz, 0.08 * sz, sz};
    for (double c : covariance)
        f << scientific(c, 6);
    for (int i = 0; i < 6; ++i)
        f << "0";
    f << (reference ? receiverPrn(*reference->satellite) : 0) << std::max(e.usedCount - 1, 0);
    for (const TrackedSatellite &s : e.satellites) {
        if (!s.used || &s == reference)
            continue;
        const double ambiguity = std::floor(hashUniform(w.seed(), quint64(s.satellite->prn), quint64(s.satellite->system), 7) * 400.0) - 200.0;
        const double residual = 0.004 * (hashUniform(w.seed(), quint64(e.elapsedMs), quint64(s.satellite->prn)) - 0.5);
        f << receiverPrn(*s.satellite) << fixed(ambiguity, 3) << fixed(residual, 4);
    }
    w.log("RTKDATA", f);
}

// Observations: one entry per tracked signal.
void rangeLog(MessageWriter &w, const char *name, int decimals)
{
    const Epoch &e = w.epoch();
    int observations = 0;
    for (const TrackedSatellite &s : e.satellites)
        observations += s.measurements.size();
    Fields f;
    f << observations;
    for (const TrackedSatellite &s : e.satellites) {
        for (const TrackedSignal &g : s.measurements) {
            f << receiverPrn(*s.satellite) << glonassFrequency(*s.satellite) << fixed(g.pseudorange, decimals)
              << fixed(g.pseudorangeStd, 3) << fixed(g.carrierPhase, decimals) << fixed(g.phaseStd, 3)
              << fixed(g.doppler, 3) << fixed(g.cn0, 1) << fixed(g.lockTime, 3)
              << hex8(g.trackingStatus);
        }
    }
    w.log(name, f);
}

void range(MessageWriter &w) { rangeLog(w, "RANGE", 3); }
void rangeh(MessageWriter &w) { rangeLog(w, "RANGEH", 4); }

void obsvm(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    int observations = 0;
    for (const TrackedSatellite &s : e.satellites)
        observations += s.measurements.size();
    Fields f;
    f << observations;
    for (const TrackedSatellite &s : e.satellites) {
        for (const TrackedSignal &g : s.measurements) {
            f << glonassFrequency(*s.satellite) << s.satellite->prn << fixed(g.pseudorange, 3)
              << fixed(g.carrierPhase, 3) << qint64(std::llround(g.pseudorangeStd * 100.0))
              << qint64(std::llround(g.phaseStd * 10000.0)) << fixed(g.doppler, 3)
              << qint64(std::llround(g.cn0 * 100.0)) << "0" << fixed(g.lockTime, 1)
              << hex8(g.trackingStatus);
        }
    }
    w.log("OBSVM", f);
}

// Broadcast orbit elements that fit the simulated orbits (circular, so the
// eccentricity and harmonic corrections are small stand-ins).
struct Elements
{
    double sqrtA, deltaN, m0, ecc, omega, cuc, cus, crc, crs, cic, cis, i0, idot, omega0, omegaDot, af0, af1, tgd;
    int toe;
};

Elements elementsOf(MessageWriter &w, const Satellite &sat)
{
    const Epoch &e = w.epoch();
    const quint64 key = hashMix(w.seed(), quint64(sat.system), quint64(sat.prn));
    auto small = [&](int i, double scale) { return (hashUniform(key, quint64(i)) - 0.5) * 2.0 * scale; };
    Elements el;
    el.toe = int(e.gpsSecondsOfWeek / 7200.0) * 7200;
    const double t = Sky::skyTime(e.gpsMs - qint64((e.gpsSecondsOfWeek - el.toe) * 1000.0));
    el.sqrtA = std::sqrt(sat.radius);
    el.deltaN = 4.5e-9 + small(1, 5e-10);
    el.ecc = 0.002 + std::fabs(small(2, 0.008));
    el.omega = small(3, kPi);
    el.m0 = std::remainder(sat.argumentOfLatitude0 + sat.meanMotion * t - el.omega, 2.0 * kPi);
    el.cuc = small(4, 4e-6);
    el.cus = small(5, 8e-6);
    el.crc = 220.0 + small(6, 60.0);
    el.crs = small(7, 90.0);
    el.cic = small(8, 1.5e-7);
    el.cis = small(9, 1.5e-7);
    el.i0 = sat.inclination + small(10, 0.01);
    el.idot = small(11, 3e-10);
    el.omega0 = std::remainder(sat.node0 - kEarthRotationRate * t, 2.0 * kPi);
    el.omegaDot = -8.1e-9 + small(12, 3e-10);
    el.af0 = small(13, 4e-4);
    el.af1 = small(14, 5e-12);
    el.tgd = small(15, 1e-8);
    return el;
}

template <typename F>
void perSatellite(MessageWriter &w, GnssSystem system, F &&f)
{
    const Epoch &e = w.epoch();
    int remaining = e.trackedCount(system);
    for (const TrackedSatellite &s : e.satellites) {
        if (s.satellite->system == system)
            f(*s.satellite, --remaining);
    }
}

// Keplerian block shared by the GPS and BDS ephemerides, from A to IDOT.
void keplerBlock(Fields &f, const Elements &el)
{
    f << fixed(el.sqrtA * el.sqrtA, 3) << scientific(el.deltaN) << scientific(el.m0) << scientific(el.ecc)
      << scientific(el.omega) << scientific(el.cuc) << scientific(el.cus) << scientific(el.crc) << scientific(el.crs)
      << scientific(el.cic) << scientific(el.cis) << scientific(el.i0) << scientific(el.idot);
}

void gpsephemeris(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    perSatellite(w, GnssSystem::Gps, [&](const Satellite &sat, int remaining) {
        const Elements el = elementsOf(w, sat);
        const int iode = (el.toe / 7200) % 256;
        Fields f;
        f << sat.prn << fixed(e.gpsSecondsOfWeek, 1) << "0" << iode << iode << e.gpsWeek << e.gpsWeek << el.toe;
        keplerBlock(f, el);
        f << scientific(el.omega0) << scientific(el.omegaDot) << iode << el.toe << scientific(el.tgd)
          << scientific(el.af0) << scientific(el.af1) << "0.000000000e+00" << "TRUE" << "1.458614684e-04" << "2.0";
        w.log("GPSEPHEMERIS", f, remaining);
    });
}

void bdsephem(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    perSatellite(w, GnssSystem::Bds, [&](const Satellite &sat, int remaining) {
        const Elements el = elementsOf(w, sat);
        const int bdsWeek = e.gpsWeek - 1356;
        const int aode = (el.toe / 3600) % 32;
        Fields f;
        f << sat.prn << fixed(e.gpsSecondsOfWeek - 14.0, 1) << "0" << aode << aode << bdsWeek << bdsWeek << el.toe;
        keplerBlock(f, el);
        f << scientific(el.omega0) << scientific(el.omegaDot) << aode << el.toe << scientific(el.tgd)
          << scientific(el.tgd * 0.6) << scientific(el.af0) << scientific(el.af1) << "0.000000000e+00" << "TRUE"
          << "1.458614684e-04" << "2.0";
        w.log("BDSEPHEM", f, remaining);
    });
}

void galephem(MessageWriter &w)
{
    perSatellite(w, GnssSystem::Galileo, [&](const Satellite &sat, int remaining) {
        const Elements el = elementsOf(w, sat);
        const int iod = (el.toe / 600) % 1024;
        Fields f;
        f << sat.prn << "TRUE" << "TRUE" << "0" << "0" << "0" << "0" << "0" << "0" << "107" << "0" << iod << el.toe
          << scientific(el.sqrtA) << scientific(el.deltaN) << scientific(el.m0) << scientific(el.ecc)
          << scientific(el.omega) << scientific(el.cuc) << scientific(el.cus) << scientific(el.crc)
          << scientific(el.crs) << scientific(el.cic) << scientific(el.cis) << scientific(el.i0)
          << scientific(el.idot) << scientific(el.omega0) << scientific(el.omegaDot) << el.toe << scientific(el.af0)
          << scientific(el.af1) << "0.000000000e+00" << el.toe << scientific(el.af0) << scientific(el.af1)
          << "0.000000000e+00" << scientific(el.tgd) << scientific(el.tgd * 1.1);
        w.log("GALEPHEM", f, remaining);
    });
}

void gloephem(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    perSatellite(w, GnssSystem::Glonass, [&](const Satellite &sat, int remaining) {
        // GLONASS ephemerides are state vectors every half hour.
        const qint64 refMs = e.gpsMs - (e.gpsMs % 1800000);
        const double t = Sky::skyTime(refMs);
        const Vec3 p = sat.positionAt(t);
        const Vec3 v = sat.velocityAt(t);
        const QDateTime moscow = e.utc.addSecs(3 * 3600);
        const int tb = (moscow.time().hour() * 3600 + moscow.time().minute() * 60) / 900;
        const quint64 key = hashMix(w.seed(), quint64(sat.prn), 77);
        Fields f;
        f << sat.prn + 37 << sat.glonassChannel + 7 << "1" << "0" << e.gpsWeek << qint64(refMs % 604800000)
          << "-18.000" << moscow.date().dayOfYear() << "0" << "0" << tb << "0" << fixed(p.x, 2) << fixed(p.y, 2)
          << fixed(p.z, 2) << fixed(v.x, 5) << fixed(v.y, 5) << fixed(v.z, 5) << scientific(1.86e-6)
          << scientific(-9.31e-7) << scientific(-2.79e-6) << scientific((hashUniform(key, 1) - 0.5) * 2e-4)
          << scientific((hashUniform(key, 2) - 0.5) * 2e-8) << scientific((hashUniform(key, 3) - 0.5) * 2e-12)
          << tb * 900 << "3" << "0" << "0" << "0";
        w.log("GLOEPHEM", f, remaining);
    });
}

void gpsion(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << "1.024454832e-08" << "2.235174179e-08" << "-5.960464478e-08" << "-1.192092896e-07" << "9.011200000e+04"
      << "1.310720000e+05" << "-6.553600000e+04" << "-5.242880000e+05" << "12" << e.gpsWeek
      << int(e.gpsSecondsOfWeek / 3600.0) * 3600 << "0";
    w.log("GPSION", f);
}

void bdsion(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << "1.396983862e-08" << "1.490116119e-07" << "-8.344650269e-07" << "1.132488251e-06" << "1.187840000e+05"
      << "3.276800000e+04" << "-1.966080000e+05" << "-3.276800000e+05" << "22" << e.gpsWeek - 1356
      << int(e.gpsSecondsOfWeek / 7200.0) * 7200 << "0";
    w.log("BDSION", f);
}

void bd3ion(MessageWriter &w)
{
    Fields f;
    f << "2.881250000e+01" << "6.250000000e-01" << "7.625000000e+00" << "1.250000000e-01" << "-1.250000000e-01"
      << "3.750000000e-01" << "-8.750000000e-01" << "1.250000000e-01" << "0.000000000e+00"
      << w.epoch().gpsWeek - 1356;
    w.log("BD3ION", f);
}

void galion(MessageWriter &w)
{
    Fields f;
    f << "7.250000000e+01" << "2.343750000e-01" << "-3.662109375e-03" << "0" << "0" << "0" << "0" << "0";
    w.log("GALION", f);
}

void utcLog(MessageWriter &w, const char *name, int week)
{
    const Epoch &e = w.epoch();
    Fields f;
    f << week << int(e.gpsSecondsOfWeek / 86400.0) * 86400 << "-2.793967724e-09" << "-8.881784197e-16" << week + 137
      << "7" << e.leapSeconds << e.leapSeconds << "0" << "0";
    w.log(name, f);
}

void gpsutc(MessageWriter &w) { utcLog(w, "GPSUTC", w.epoch().gpsWeek); }
void bdsutc(MessageWriter &w) { utcLog(w, "BDSUTC", w.epoch().gpsWeek - 1356); }

void galutc(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const int week = e.gpsWeek - 1024;
    Fields f;
    f << "1.862645149e-09" << "-3.552713679e-15" << e.leapSeconds << int(e.gpsSecondsOfWeek / 86400.0) * 86400
      << week << week + 137 << "7" << e.leapSeconds << "-2.910383046e-09" << "-1.776356839e-15" << "345600" << week;
    w.log("GALUTC", f);
}

void fwinfo(MessageWriter &w)
{
    Fields f;
    f << "1" << "RXSIM" << "RXSIM-D2" << "RS24A0012345" << "HW1.0" << "FW3.1.7" << "BOOT1.2/BB2.0"
      << "8F3A91C2D4E5F607" << "2024/05/01";
    w.log("FWINFO", f);
}

void antenna(MessageWriter &w)
{
    Fields f;
    f << "1" << "1" << "0" << "0";
    w.log("ANTENNA", f);
}

// The clock-source switch log has a page that no product mode lists.
void clockswitch(MessageWriter &w)
{
    Fields f;
    f << "1";
    w.log("ClockSwitch", f);
}

} // namespace

void addLogKinds(QVector<MessageKind> &kinds)
{
    kinds << MessageKind{"BESTPOS", 1000, 0, kLogModes, bestpos} << MessageKind{"BESTVEL", 1000, 0, kLogModes, bestvel}
          << MessageKind{"BESTXYZ", 1000, 0, kLogModes, bestxyz} << MessageKind{"BESTNAV", 1000, 0, kLogModes, bestnav}
          << MessageKind{"BESTNAVH", 1000, 0, kLogModes, bestnavh}
          << MessageKind{"PSRPOS", 1000, 0, kFullLogMode, psrpos} << MessageKind{"PSRVEL", 1000, 0, kLogModes, psrvel}
          << MessageKind{"TDIFPOS", 1000, 0, kLogModes, tdifpos}
          << MessageKind{"TDIFVEL", 1000, 0, kLogModes, tdifvel}
          << MessageKind{"MATCHEDPOS", 1000, 0, kLogModes, matchedpos}
          << MessageKind{"MATCHEDPOSH", 1000, 0, kLogModes, matchedposh}
          // HEADING logs reach no page; they are sent because a receiver sends them.
          << MessageKind{"HEADING", 1000, 0, kLogModes, heading}
          << MessageKind{"HEADING2", 1000, 0, kFullLogMode, heading2}
          << MessageKind{"KVNHEADING", 1000, 0, kLogModes, kvnheading}
          << MessageKind{"KVNHEADING2", 1000, 0, kLogModes, kvnheading2}
          << MessageKind{"AGRIC", 1000, 0, kLogModes, agric} << MessageKind{"INSPVA", 1000, 0, kLogModes, inspva}
          << MessageKind{"RAWIMUX", 1000, 0, kLogModes, rawimux} << MessageKind{"TIME", 1000, 0, kLogModes, time}
          << MessageKind{"PSRDOP", 5000, 0, kLogModes, psrdop} << MessageKind{"PSRDOP2", 5000, 0, kLogModes, psrdop2}
          << MessageKind{"SATVIS", 5000, 0, kLogModes, satvis}
          << MessageKind{"SATVIS2", 5000, 0, kFullLogMode, satvis2}
          << MessageKind{"SATXYZ2", 5000, 0, kFullLogMode, satxyz2}
          << MessageKind{"BESTSATS", 5000, 0, kLogModes, bestsats}
          << MessageKind{"RTKDATA", 1000, 0, kLogModes, rtkdata}
          << MessageKind{"RANGE", 1000, 0, kFullLogMode, range}
          << MessageKind{"RANGEH", 5000, 0, kFullLogMode, rangeh} << MessageKind{"OBSVM", 5000, 0, kLogModes, obsvm}
          << MessageKind{"GPSEPHEMERIS", 30000, 1000, kLogModes, gpsephemeris}
          << MessageKind{"GLOEPHEM", 30000, 2000, kLogModes, gloephem}
          << MessageKind{"BDSEPHEM", 30000, 3000, kLogModes, bdsephem}
          << MessageKind{"GALEPHEM", 30000, 4000, kLogModes, galephem}
          << MessageKind{"GPSION", 60000, 500, kLogModes, gpsion} << MessageKind{"BDSION", 60000, 500, kLogModes, bdsion}
          << MessageKind{"BD3ION", 60000, 500, kLogModes, bd3ion} << MessageKind{"GALION", 60000, 500, kLogModes, galion}
          << MessageKind{"GPSUTC", 60000, 500, kLogModes, gpsutc} << MessageKind{"BDSUTC", 60000, 500, kLogModes, bdsutc}
          << MessageKind{"GALUTC", 60000, 500, kLogModes, galutc} << MessageKind{"FWINFO", 60000, 0, kLogModes, fwinfo}
          << MessageKind{"ANTENNA", 10000, 0, kLogModes, antenna}
          << MessageKind{"CLOCKSWITCH", 60000, 0, kLogModes, clockswitch};
}

} // namespace rxsim
