// SPDX-License-Identifier: BSD-3-Clause
#include "receiver.h"

#include <algorithm>

namespace rxsim {

namespace {

const QDateTime kGpsEpoch(QDate(1980, 1, 6), QTime(0, 0), Qt::UTC);
constexpr double kHillHeight = 1.5;   // m, the loop rises and falls once a lap
constexpr double kAntennaSpacing = 1.2; // m, primary to secondary antenna along the vehicle

double wrapDegrees(double a)
{
    a = std::fmod(a, 360.0);
    return a < 0.0 ? a + 360.0 : a;
}

// Inverts a symmetric 4x4 matrix in place (Gauss-Jordan); false when singular.
bool invert4(double m[4][4])
{
    double inv[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    for (int col = 0; col < 4; ++col) {
        int pivot = col;
        for (int r = col + 1; r < 4; ++r) {
            if (std::fabs(m[r][col]) > std::fabs(m[pivot][col]))
                pivot = r;
        }
        if (std::fabs(m[pivot][col]) < 1e-12)
            return false;
        std::swap(m[pivot], m[col]);
        std::swap(inv[pivot], inv[col]);
        const double p = m[col][col];
        for (int c = 0; c < 4; ++c) {
            m[col][c] /= p;
            inv[col][c] /= p;
        }
        for (int r = 0; r < 4; ++r) {
            if (r == col)
                continue;
            const double f = m[r][col];
            for (int c = 0; c < 4; ++c) {
                m[r][c] -= f * m[col][c];
                inv[r][c] -= f * inv[col][c];
            }
        }
    }
    std::copy(&inv[0][0], &inv[0][0] + 16, &m[0][0]);
    return true;
}

Dops dopsOf(const QVector<TrackedSatellite> &satellites, double lat, double lon, const Vec3 &antenna)
{
    double n[4][4] = {};
    int rows = 0;
    for (const TrackedSatellite &s : satellites) {
        if (!s.used)
            continue;
        const Vec3 los = ecefToEnu(s.position - antenna, lat, lon) * (1.0 / s.range);
        const double h[4] = {-los.x, -los.y, -los.z, 1.0};
        for (int i = 0; i < 4; ++i) {
            for (int j = 0; j < 4; ++j)
                n[i][j] += h[i] * h[j];
        }
        ++rows;
    }
    Dops d;
    if (rows < 4 || !invert4(n))
        return d;
    d.gdop = std::sqrt(n[0][0] + n[1][1] + n[2][2] + n[3][3]);
    d.pdop = std::sqrt(n[0][0] + n[1][1] + n[2][2]);
    d.hdop = std::sqrt(n[0][0] + n[1][1]);
    d.vdop = std::sqrt(n[2][2]);
    d.tdop = std::sqrt(n[3][3]);
    d.htdop = std::sqrt(n[0][0] + n[1][1] + n[3][3]);
    return d;
}

} // namespace

double geoidUndulation(double latitudeDeg, double longitudeDeg)
{
    return 18.0 * std::sin(2.0 * latitudeDeg * kDegree) * std::cos(longitudeDeg * kDegree)
        - 8.0 * std::cos(latitudeDeg * kDegree) + 3.0 * std::sin(3.0 * longitudeDeg * kDegree);
}

int Epoch::trackedCount(GnssSystem system) const
{
    return int(std::count_if(satellites.cbegin(), satellites.cend(),
                             [system](const TrackedSatellite &s) { return s.satellite->system == system; }));
}

int Epoch::usedCountOf(GnssSystem system) const
{
    return int(std::count_if(satellites.cbegin(), satellites.cend(), [system](const TrackedSatellite &s) {
        return s.used && s.satellite->system == system;
    }));
}

qint64 gpsMillisecondsAt(const QDateTime &utc)
{
    return kGpsEpoch.msecsTo(utc) + 18000;
}

Receiver::Receiver(const PlatformSettings &platform, RtkCorrections rtk, quint64 seed, const QDateTime &startUtc)
    : m_platform(platform)
    , m_rtk(rtk)
    , m_seed(seed)
    , m_startGpsMs(gpsMillisecondsAt(startUtc))
{
}

void Receiver::platformState(double t, Epoch &e, double &lat, double &lon, double &hMsl) const
{
    const double radius = std::max(m_platform.loopRadius, 1.0);
    const double omega = m_platform.speed / radius; // rad/s, clockwise seen from above
    const double theta = 0.3 + omega * t;
    const Vec3 offset{radius * std::sin(theta), radius * std::cos(theta), kHillHeight * std::sin(theta)};
    const Vec3 velocity{radius * omega * std::cos(theta), -radius * omega * std::sin(theta),
                        kHillHeight * omega * std::cos(theta)};

    const Vec3 centre = geodeticToEcef(m_platform.latitude, m_platform.longitude,
                                       m_platform.height + geoidUndulation(m_platform.latitude, m_platform.longitude));
    double hEllipsoid = 0.0;
    ecefToGeodetic(centre + enuToEcef({offset.x, offset.y, 0.0}, m_platform.latitude, m_platform.longitude), lat, lon,
                   hEllipsoid);
    e.undulation = geoidUndulation(lat, lon);
    hMsl = m_platform.height + offset.z;

    e.velocityEnu = velocity;
    e.horizontalSpeed = std::hypot(velocity.x, velocity.y);
    e.verticalSpeed = velocity.z;
    // A parked vehicle keeps the heading it stopped with.
    const double heading = wrapDegrees(theta / kDegree + 90.0);
    e.track = e.horizontalSpeed > 0.0 ? wrapDegrees(std::atan2(velocity.x, velocity.y) / kDegree) : 0.0;
    e.heading = heading;
    e.pitch = e.horizontalSpeed > 0.0 ? std::atan2(velocity.z, e.horizontalSpeed) / kDegree : 0.0;
    const double centripetal = m_platform.speed * omega;
    // The body leans out of the turn a little.
    e.roll = std::atan2(centripetal, kGravity) / kDegree * 0.2;
    e.specificForce = {0.0, -centripetal, kGravity};
    e.angularRate = {0.0, 0.0, -omega};
}

PositionFix Receiver::fix(const Epoch &e, double lat, double lon, double h, double horizontalNoise,
                          double verticalNoise, quint64 key, double t) const
{
    PositionFix f;
    const double north = SmoothNoise(hashMix(m_seed, key, 1), horizontalNoise, 20.0, 140.0).at(t);
    const double east = SmoothNoise(hashMix(m_seed, key, 2), horizontalNoise, 20.0, 140.0).at(t);
    const double up = SmoothNoise(hashMix(m_seed, key, 3), verticalNoise, 20.0, 140.0).at(t);
    const double metresPerDegree = 111320.0;
    f.latitude = lat + north / metresPerDegree;
    f.longitude = lon + east / (metresPerDegree * std::cos(lat * kDegree));
    f.height = h + up;
    f.latitudeStd = horizontalNoise * (0.9 + 0.2 * hashUniform(m_seed, key, quint64(t / 10)));
    f.longitudeStd = horizontalNoise * (0.8 + 0.2 * hashUniform(m_seed, key + 1, quint64(t / 10)));
    f.heightStd = verticalNoise * (1.0 + 0.3 * hashUniform(m_seed, key + 2, quint64(t / 10)));
    f.ecef = geodeticToEcef(f.latitude, f.longitude, f.height + e.undulation);
    return f;
}

Epoch Receiver::at(qint64 elapsedMs)
{
    Epoch e;
    e.elapsedMs = elapsedMs;
    e.gpsMs = m_startGpsMs + elapsedMs;
    e.gpsWeek = int(e.gpsMs / (7 * 86400000LL));
    e.gpsSecondsOfWeek = double(e.gpsMs % (7 * 86400000LL)) / 1000.0;
    e.utc = kGpsEpoch.addMSecs(e.gpsMs - e.leapSeconds * 1000);
    const double t = elapsedMs / 1000.0;

    double lat = 0.0, lon = 0.0, hMsl = 0.0;
    platformState(t, e, lat, lon, hMsl);
    e.latitude = lat;
    e.longitude = lon;
    e.height = hMsl;
    const Vec3 antenna = geodeticToEcef(lat, lon, hMsl + e.undulation);
    e.clockBias = 1500.0 + 0.12 * t;
    e.clockDrift = 0.12;
    track(t, antenna, lat, lon, e);
    e.dops = dopsOf(e.satellites, lat, lon, antenna);

    // Simulated corrections flow except for a short outage every four minutes, when
    // the solution falls back to float; real ones fix the solution while they arrive.
    const bool arriving = m_rtk == RtkCorrections::Simulated
        || (m_rtk == RtkCorrections::FromLink && m_correctionsArriving);
    const bool corrections = arriving && e.usedCount >= 5;
    e.rtkFixed = corrections && (m_rtk == RtkCorrections::FromLink || std::fmod(t, 240.0) < 200.0);
    e.differentialAge = corrections ? 1.0 + 0.4 * hashUniform(m_seed, 7, quint64(t)) : 0.0;

    e.pseudorange = fix(e, lat, lon, hMsl, 0.9, 1.6, 10, t);
    e.pseudorange.type = "SINGLE";
    e.timeDifferenced = fix(e, lat, lon, hMsl, 0.25, 0.45, 20, t);
    e.timeDifferenced.type = "PSRDIFF";
    e.timeDifferenced.ggaQuality = 2;
    e.timeDifferenced.rmcMode = 'D';
    if (corrections) {
        e.best = fix(e, lat, lon, hMsl, e.rtkFixed ? 0.008 : 0.12, e.rtkFixed ? 0.015 : 0.22, 30, t);
        e.best.type = e.rtkFixed ? "NARROW_INT" : "NARROW_FLOAT";
        e.best.ggaQuality = e.rtkFixed ? 4 : 5;
        e.best.rmcMode = e.rtkFixed ? 'R' : 'F';
        e.matched = fix(e, lat, lon, hMsl, e.rtkFixed ? 0.01 : 0.14, e.rtkFixed ? 0.018 : 0.25, 40, t);
        e.matched.type = e.best.type;
    } else {
        e.best = e.pseudorange;
        e.matched = e.pseudorange;
    }
    if (e.usedCount < 4) {
        for (PositionFix *f : {&e.best, &e.pseudorange, &e.timeDifferenced, &e.matched}) {
            f->status = "INSUFFICIENT_OBS";
            f->type = "NONE";
            f->ggaQuality = 0;
            f->rmcMode = 'N';
        }
    }

    const double headingNoise = SmoothNoise(hashMix(m_seed, 50), 0.08, 10.0, 60.0).at(t);
    const double pitchNoise = SmoothNoise(hashMix(m_seed, 51), 0.15, 10.0, 60.0).at(t);
    e.heading = std::fmod(e.heading + headingNoise + 360.0, 360.0);
    e.pitch += pitchNoise;
    e.baselineLength = kAntennaSpacing;

    const Vec3 baseOffset{1200.0, 1500.0, 5.0};
    const Vec3 baseEcef = geodeticToEcef(m_platform.latitude, m_platform.longitude,
                                         m_platform.height + geoidUndulation(m_platform.latitude, m_platform.longitude))
        + enuToEcef(baseOffset, m_platform.latitude, m_platform.longitude);
    double baseH = 0.0;
    ecefToGeodetic(baseEcef, e.baseLatitude, e.baseLongitude, baseH);
    e.baseHeight = baseH - geoidUndulation(e.baseLatitude, e.baseLongitude);
    e.baselineEnu = ecefToEnu(e.best.ecef - baseEcef, e.baseLatitude, e.baseLongitude);

    // The secondary antenna sits behind the primary one along the heading.
    const double h = e.heading * kDegree, p = e.pitch * kDegree;
    const Vec3 back{-kAntennaSpacing * std::sin(h) * std::cos(p), -kAntennaSpacing * std::cos(h) * std::cos(p),
                    -kAntennaSpacing * std::sin(p)};
    double secH = 0.0;
    ecefToGeodetic(e.best.ecef + enuToEcef(back, e.best.latitude, e.best.longitude), e.secondaryLatitude,
                   e.secondaryLongitude, secH);
    e.secondaryHeight = secH - e.undulation;
    return e;
}

void Receiver::track(double t, const Vec3 &antenna, double lat, double lon, Epoch &e)
{
    const double skyT = Sky::skyTime(e.gpsMs);
    QHash<quint32, double> stillLocked;
    int channel = 0;
    for (const Satellite &sat : m_sky.satellites()) {
        const Vec3 position = sat.positionAt(skyT);
        const Vec3 los = position - antenna;
        const double range = los.norm();
        const Vec3 enu = ecefToEnu(los, lat, lon) * (1.0 / range);
        const double elevation = std::asin(enu.z) / kDegree;
        if (elevation < kElevationMask)
            continue;

        TrackedSatellite s;
        s.satellite = &sat;
        s.position = position;
        s.elevation = elevation;
        s.azimuth = wrapDegrees(std::atan2(enu.x, enu.y) / kDegree);
        s.range = range;
        s.rangeRate = sat.velocityAt(skyT).dot(los) * (1.0 / range)
            - e.velocityEnu.dot(ecefToEnu(los, lat, lon)) * (1.0 / range);
        const quint64 satKey = (quint64(sat.system) << 16) | quint64(sat.prn);
        s.clockCorrection = (hashUniform(m_seed, satKey, 60) - 0.5) * 2e-4;
        const double sinEl = std::sin(elevation * kDegree);
        s.ionoDelay = (3.0 + 2.0 * hashUniform(m_seed, 61)) / std::sqrt(1.0 - 0.89 * (1.0 - sinEl * sinEl));
        s.tropoDelay = 2.4 / std::sin(std::sqrt(elevation * elevation + 6.25) * kDegree);
        s.used = sat.system != GnssSystem::Sbas && elevation >= 10.0;

        const double cn0Base = 31.0 + 17.0 * std::sqrt(sinEl)
            + SmoothNoise(hashMix(m_seed, satKey, 62), 1.5, 15.0, 60.0).at(t);
        for (int i = 0; i < sat.signalPlans.size(); ++i) {
            const SignalPlan &plan = sat.signalPlans.at(i);
            TrackedSignal sig;
            sig.plan = &plan;
            sig.frequency = sat.frequencyOf(plan);
            const double wavelength = kLightSpeed / sig.frequency;
            const double ionoScale = std::pow(1575.42e6 / sig.frequency, 2.0);
            sig.cn0 = cn0Base + plan.cn0Offset;
            const double noise = SmoothNoise(hashMix(m_seed, satKey, 63 + i), 0.3, 2.0, 9.0).at(t);
            sig.pseudorange = range + e.clockBias - kLightSpeed * s.clockCorrection + s.ionoDelay * ionoScale
                + s.tropoDelay + noise;

            const quint32 lockKey = quint32(satKey << 4) | quint32(i);
            double lockStart = m_lockStart.value(lockKey, t);
            if (m_firstEpoch)
                lockStart = -(200.0 + 3000.0 * hashUniform(m_seed, lockKey, 64)); // locked before the run began
            stillLocked.insert(lockKey, lockStart);
            sig.lockTime = t - lockStart;
            const double ambiguity = std::floor(hashUniform(m_seed, lockKey, quint64(qint64(lockStart * 10.0))) * 2e6) - 1e6;
            sig.carrierPhase = -(range + e.clockBias - kLightSpeed * s.clockCorrection - s.ionoDelay * ionoScale
                                 + s.tropoDelay) / wavelength + ambiguity;
            sig.doppler = -(s.rangeRate + e.clockDrift) / wavelength;
            sig.pseudorangeStd = 0.02 + 8.0 / std::pow(10.0, sig.cn0 / 20.0) * 10.0;
            sig.phaseStd = 0.002 + 0.2 / std::pow(10.0, sig.cn0 / 20.0) * 10.0;
            sig.trackingStatus = 0x1C04u | (quint32(channel & 31) << 5) | (quint32(sat.system) << 16)
                | (quint32(plan.trackingSignal) << 21) | (plan.l2cFlag ? (1u << 26) : 0u);
            s.measurements << sig;
        }
        if (s.used)
            ++e.usedCount;
        ++channel;
        e.satellites << s;
    }
    m_lockStart.swap(stillLocked);
    m_firstEpoch = false;
}

} // namespace rxsim
