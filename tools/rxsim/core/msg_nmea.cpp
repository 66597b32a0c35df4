// SPDX-License-Identifier: BSD-3-Clause
// NMEA sentences: the standard position, time and attitude sentences, the maker's
// high-rate and attitude variants, satellites in view and, for the binary decoder,
// DOP and fault-detection sentences.
#include "formatting.h"
#include "messages.h"

#include <algorithm>

namespace rxsim {

namespace {

constexpr double kKnotsPerMps = 1.943844;

QByteArray valid(const Epoch &e)
{
    return e.best.ggaQuality > 0 ? "A" : "V";
}

QByteArray differentialAge(const Epoch &e)
{
    return e.differentialAge > 0.0 ? fixed(e.differentialAge, 1) : QByteArray();
}

QByteArray ggaStation(const Epoch &e)
{
    return e.differentialAge > 0.0 ? QByteArray("0105") : QByteArray();
}

Fields ggaFields(const Epoch &e, int decimals)
{
    const PositionFix &f = e.best;
    Fields g;
    g << utcClock(e) << nmeaLatitude(f.latitude, decimals) << northSouth(f.latitude)
      << nmeaLongitude(f.longitude, decimals) << eastWest(f.longitude) << f.ggaQuality << padded(e.usedCount, 2)
      << fixed(e.dops.hdop, 1) << fixed(f.height, 4) << "M" << fixed(e.undulation, 4) << "M" << differentialAge(e)
      << ggaStation(e);
    return g;
}

void gga(MessageWriter &w)
{
    w.sentence("GNGGA", ggaFields(w.epoch(), 7));
}

void ggah(MessageWriter &w)
{
    w.sentence("GNGGAH", ggaFields(w.epoch(), 8));
}

Fields rmcFields(const Epoch &e, int decimals)
{
    const PositionFix &f = e.best;
    const QDate d = e.utc.date();
    Fields r;
    r << utcClock(e) << valid(e) << nmeaLatitude(f.latitude, decimals) << northSouth(f.latitude)
      << nmeaLongitude(f.longitude, decimals) << eastWest(f.longitude) << fixed(e.horizontalSpeed * kKnotsPerMps, 3)
      << fixed(e.track, 3) << padded(d.day(), 2) + padded(d.month(), 2) + padded(d.year() % 100, 2) << "" << ""
      << QByteArray(1, f.rmcMode) << "V";
    return r;
}

void rmc(MessageWriter &w)
{
    w.sentence("GNRMC", rmcFields(w.epoch(), 7));
}

void rmch(MessageWriter &w)
{
    w.sentence("GNRMCH", rmcFields(w.epoch(), 8));
}

QByteArray simpleMode(const Epoch &e)
{
    if (e.best.ggaQuality == 0)
        return "N";
    return e.best.ggaQuality == 1 ? "A" : "D";
}

void gll(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields g;
    g << nmeaLatitude(e.best.latitude, 7) << northSouth(e.best.latitude) << nmeaLongitude(e.best.longitude, 7)
      << eastWest(e.best.longitude) << utcClock(e) << valid(e) << simpleMode(e);
    w.sentence("GNGLL", g);
}

void vtg(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields v;
    v << fixed(e.track, 3) << "T" << "" << "M" << fixed(e.horizontalSpeed * kKnotsPerMps, 3) << "N"
      << fixed(e.horizontalSpeed * 3.6, 3) << "K" << simpleMode(e);
    w.sentence("GNVTG", v);
}

void zda(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const QDate d = e.utc.date();
    Fields z;
    z << utcClock(e) << padded(d.day(), 2) << padded(d.month(), 2) << QByteArray::number(d.year()) << "00" << "00";
    w.sentence("GNZDA", z);
}

void gst(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    const PositionFix &f = e.best;
    Fields g;
    g << utcClock(e) << fixed(std::hypot(f.latitudeStd, f.longitudeStd) * 1.4, 3)
      << fixed(std::max(f.latitudeStd, f.longitudeStd) * 1.1, 3) << fixed(std::min(f.latitudeStd, f.longitudeStd), 3)
      << fixed(std::fmod(e.track + 90.0, 180.0), 1) << fixed(f.latitudeStd, 3) << fixed(f.longitudeStd, 3)
      << fixed(f.heightStd, 3);
    w.sentence("GNGST", g);
}

void hdt(MessageWriter &w)
{
    Fields h;
    h << fixed(w.epoch().heading, 4) << "T";
    w.sentence("GNHDT", h);
}

// HPR and TRA: time, heading, pitch, roll, quality of the heading solution,
// satellites, age and station.
Fields attitudeFields(const Epoch &e)
{
    Fields a;
    a << utcClock(e) << fixed(e.heading, 2) << fixed(e.pitch, 2) << fixed(e.roll, 2)
      << (e.usedCount >= 5 ? 4 : 0) << padded(e.usedCount, 2) << differentialAge(e) << ggaStation(e);
    return a;
}

void hpr(MessageWriter &w)
{
    w.sentence("GNHPR", attitudeFields(w.epoch()));
}

void tra(MessageWriter &w)
{
    w.sentence("GNTRA", attitudeFields(w.epoch()));
}

struct Talker
{
    const char *address;
    GnssSystem first;
    GnssSystem second; // SBAS satellites are reported with GPS
};

const Talker kTalkers[] = {
    {"GPGSV", GnssSystem::Gps, GnssSystem::Sbas}, {"GLGSV", GnssSystem::Glonass, GnssSystem::Glonass},
    {"GAGSV", GnssSystem::Galileo, GnssSystem::Galileo}, {"GBGSV", GnssSystem::Bds, GnssSystem::Bds},
    {"GQGSV", GnssSystem::Qzss, GnssSystem::Qzss},
};

struct InView
{
    const TrackedSatellite *satellite;
    double cn0;
};

void gsvGroup(MessageWriter &w, const char *address, const QVector<InView> &group, char signalId)
{
    const int sentences = (group.size() + 3) / 4;
    for (int n = 0; n < sentences; ++n) {
        Fields g;
        g << sentences << n + 1 << padded(group.size(), 2);
        for (int k = n * 4; k < std::min(group.size(), n * 4 + 4); ++k) {
            const TrackedSatellite &s = *group.at(k).satellite;
            g << padded(nmeaPrn(*s.satellite), 2) << padded(std::lround(s.elevation), 2)
              << padded(std::lround(s.azimuth) % 360, 3) << padded(std::lround(group.at(k).cn0), 2);
        }
        if (signalId)
            g << QByteArray(1, signalId);
        w.sentence(address, g);
    }
}

// Per talker, the first signals of all its satellites in one group without a
// signal id (a first sentence without one refreshes the console's list of that
// system), then one group per further signal with the signal id of NMEA 4.11, which
// adds measurements to the same satellites.
void gsv(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    for (const Talker &talker : kTalkers) {
        QVector<InView> primary;
        QVector<char> signalIds;
        for (const TrackedSatellite &s : e.satellites) {
            const GnssSystem system = s.satellite->system;
            if (system != talker.first && system != talker.second)
                continue;
            primary << InView{&s, s.measurements.first().cn0};
            for (int i = 1; i < s.measurements.size(); ++i) {
                const char id = s.measurements.at(i).plan->nmeaSignalId;
                if (!signalIds.contains(id))
                    signalIds << id;
            }
        }
        if (primary.isEmpty())
            continue;
        gsvGroup(w, talker.address, primary, 0);
        std::sort(signalIds.begin(), signalIds.end());
        for (char id : qAsConst(signalIds)) {
            QVector<InView> group;
            for (const InView &v : qAsConst(primary)) {
                for (int i = 1; i < v.satellite->measurements.size(); ++i) {
                    if (v.satellite->measurements.at(i).plan->nmeaSignalId == id)
                        group << InView{v.satellite, v.satellite->measurements.at(i).cn0};
                }
            }
            gsvGroup(w, talker.address, group, id);
        }
    }
}

// One DOP and active satellites sentence per system, with the NMEA 4.11 system id.
void gsa(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    static const struct { GnssSystem system; int id; } kSystems[] = {
        {GnssSystem::Gps, 1}, {GnssSystem::Glonass, 2}, {GnssSystem::Galileo, 3}, {GnssSystem::Bds, 4},
        {GnssSystem::Qzss, 5}};
    for (const auto &system : kSystems) {
        QVector<int> prns;
        for (const TrackedSatellite &s : e.satellites) {
            if (s.used && s.satellite->system == system.system && prns.size() < 12)
                prns << nmeaPrn(*s.satellite);
        }
        if (prns.isEmpty())
            continue;
        Fields g;
        g << "A" << (e.usedCount >= 4 ? 3 : 1);
        for (int i = 0; i < 12; ++i)
            g << (i < prns.size() ? padded(prns.at(i), 2) : QByteArray());
        g << fixed(e.dops.pdop, 1) << fixed(e.dops.hdop, 1) << fixed(e.dops.vdop, 1) << system.id;
        w.sentence("GNGSA", g);
    }
}

void gbs(MessageWriter &w)
{
    const Epoch &e = w.epoch();
    Fields g;
    g << utcClock(e) << fixed(e.best.latitudeStd, 3) << fixed(e.best.longitudeStd, 3) << fixed(e.best.heightStd, 3)
      << "" << "" << "" << "" << "" << "";
    w.sentence("GNGBS", g);
}

} // namespace

void addNmeaKinds(QVector<MessageKind> &kinds)
{
    kinds << MessageKind{"GGA", 1000, 0, kNmeaPageModes | kDecoderModes, gga}
          << MessageKind{"GGAH", 200, 0, kNmeaPageModes, ggah}
          << MessageKind{"RMC", 1000, 0, kNmeaPageModes | kDecoderModes, rmc}
          << MessageKind{"RMCH", 200, 0, kNmeaPageModes, rmch}
          << MessageKind{"GLL", 1000, 0, kNmeaPageModes | kDecoderModes, gll}
          << MessageKind{"VTG", 1000, 0, kNmeaPageModes | kDecoderModes, vtg}
          << MessageKind{"ZDA", 1000, 0, kNmeaPageModes | kDecoderModes, zda}
          << MessageKind{"GST", 1000, 0, kNmeaPageModes | kDecoderModes, gst}
          << MessageKind{"GSA", 1000, 0, kDecoderModes, gsa}
          << MessageKind{"GBS", 1000, 0, kDecoderModes, gbs}
          << MessageKind{"HDT", 1000, 0, kNmeaPageModes, hdt}
          // The attitude sentence HPR has its page among the maker's logs.
          << MessageKind{"HPR", 1000, 0, kLogModes, hpr}
          << MessageKind{"TRA", 1000, 0, kNmeaPageModes, tra}
          << MessageKind{"GSV", 1000, 0, kNmeaPageModes | kDecoderModes, gsv};
}

} // namespace rxsim
