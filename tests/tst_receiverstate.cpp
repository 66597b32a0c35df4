// SPDX-License-Identifier: BSD-3-Clause
#include "receiverlines.h"
#include "receiverstate.h"
#include "simulator.h"
#include "statereport.h"

#include <GeographicLib/LocalCartesian.hpp>
#include <QJsonArray>
#include <QRandomGenerator>
#include <QtTest>

using namespace ReceiverLines;

namespace {

// A body framed as a sentence, or as a log when it starts with '#'; a leading '!'
// spoils the checksum.
QByteArray framed(const QByteArray &body)
{
    if (body.startsWith('!')) {
        QByteArray line = framed(body.mid(1));
        line[line.size() - 3] = line.at(line.size() - 3) == '0' ? '1' : '0';
        return line;
    }
    return body.startsWith('#') ? log(body.mid(1)) : sentence(body);
}

void feed(ReceiverState &state, const QList<QByteArray> &bodies)
{
    for (const QByteArray &body : bodies)
        state.feed(framed(body));
}

QByteArray logHeader(const char *name, int second = 0)
{
    return "#" + QByteArray(name) + "A,COM1,0,78.5,FINESTEERING,2310," + QByteArray::number(345600 + second)
        + ".000,02000000,b1f6,16248;";
}

QString text(double value)
{
    return isKnown(value) ? QString::number(value) : QStringLiteral("-");
}

// "G25 70/260 u L1 C/A:46 L2C:50", satellites joined by " | ".
QString described(const QVector<SatelliteInfo> &satellites)
{
    QStringList entries;
    for (const SatelliteInfo &s : satellites) {
        QString entry = QStringLiteral("%1%2 %3/%4")
                            .arg(systemLetter(s.system))
                            .arg(s.prn)
                            .arg(text(s.elevation), text(s.azimuth));
        if (s.used)
            entry += QStringLiteral(" u");
        for (const SignalInfo &signal : s.trackedSignals)
            entry += QStringLiteral(" %1:%2").arg(signal.name, text(signal.cn0));
        entries << entry;
    }
    return entries.join(QStringLiteral(" | "));
}

// The described satellite whose description starts with key ("G25").
QString describedSatellite(const QVector<SatelliteInfo> &satellites, const QString &key)
{
    for (const SatelliteInfo &s : satellites) {
        if (described({s}).startsWith(key + QLatin1Char(' ')))
            return described({s});
    }
    return QString();
}

void feedCapture(ReceiverState &state, const QString &name)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    state.feed(file.readAll());
}

const GeographicLib::LocalCartesian kBase(30.5285, 114.3578, 24.0);

// A BESTPOS of the epoch `second` at metre offsets from kBase.
QByteArray bestposAt(int second, const char *type, double east, double north)
{
    double lat = 0, lon = 0, height = 0;
    kBase.Reverse(east, north, 0.0, lat, lon, height);
    return framed(logHeader("BESTPOS", second) + "SOL_COMPUTED," + type + "," + QByteArray::number(lat, 'f', 11) + ","
        + QByteArray::number(lon, 'f', 11) + "," + QByteArray::number(height, 'f', 4)
        + ",0.0,WGS84,0.01,0.01,0.02,\"0\",1.0,0.0,20,18,18,16,00,21,3f,37");
}

GnssSystem systemOf(rxsim::GnssSystem system)
{
    static const QMap<rxsim::GnssSystem, GnssSystem> kSystems{{rxsim::GnssSystem::Gps, GnssSystem::GPS},
        {rxsim::GnssSystem::Glonass, GnssSystem::GLONASS}, {rxsim::GnssSystem::Galileo, GnssSystem::Galileo},
        {rxsim::GnssSystem::Bds, GnssSystem::BDS}, {rxsim::GnssSystem::Qzss, GnssSystem::QZSS},
        {rxsim::GnssSystem::Sbas, GnssSystem::SBAS}};
    return kSystems.value(system);
}

} // namespace

class ReceiverStateTest : public QObject
{
    Q_OBJECT
private slots:
    void capturedSatellites_data();
    void capturedSatellites();
    void capturedFix_data();
    void capturedFix();
    void sentences_data();
    void sentences();
    void clock_data();
    void clock();
    void quality_data();
    void quality();
    void speedAndCourse_data();
    void speedAndCourse();
    void statistics_data();
    void statistics();
    void sinceResetStaysBoundedAndTrue();
    void rxsimSourcesMakeOneList();
    void damagedInputIsHarmless();
    void notificationsAreCoalesced();
    void report();
};

void ReceiverStateTest::capturedSatellites_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("expected");
    const QString skytraq = QStringLiteral("skytraq-px1172rh-excerpt.log");
    const QString quectel = QStringLiteral("quectel-lc79d-excerpt.log");
    // Values read from the sentences by hand.
    QTest::newRow("GPS 4.11 ids 1 and 6") << skytraq << "G25 70/260 u L1 C/A:46 L2C:50";
    QTest::newRow("GPS without C/N0") << skytraq << "G2 55/52 L1 C/A:-";
    QTest::newRow("GLONASS 74") << skytraq << "R10 58/249 u G1 C/A:43";
    QTest::newRow("Galileo E1 and E5b") << skytraq << "E36 61/251 u E1:42 E5b:51";
    QTest::newRow("BDS used") << skytraq << "C29 76/355 u B1I:50";
    QTest::newRow("BDS not used") << skytraq << "C26 30/301 B1I:-";
    QTest::newRow("GPS L1 and L5") << quectel << "G1 38/160 u L1 C/A:35 L5:38";
    QTest::newRow("GPS without position") << quectel << "G19 -/- L1 C/A:13";
    QTest::newRow("GLONASS 85") << quectel << "R21 -/- G1 C/A:13";
    QTest::newRow("Galileo 103") << quectel << "E3 35/240 u E1:43 E5a:39";
}

void ReceiverStateTest::capturedSatellites()
{
    QFETCH(QString, file);
    QFETCH(QString, expected);
    ReceiverState state;
    feedCapture(state, file);
    QCOMPARE(describedSatellite(state.satellites(), expected.section(QLatin1Char(' '), 0, 0)), expected);
}

void ReceiverStateTest::capturedFix_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<double>("lat");
    QTest::addColumn<double>("lon");
    QTest::addColumn<QString>("quality");
    QTest::addColumn<double>("heightEllipsoid");
    QTest::addColumn<double>("heading");
    QTest::addColumn<QString>("utc");
    QTest::addColumn<int>("satellites");
    QTest::newRow("SkyTraq") << "skytraq-px1172rh-excerpt.log" << 44.068785103 << -121.314063962 << "RTK float"
                             << 1107.33 << 244.65 << "2022-03-29T00:38:33.000Z" << 38;
    QTest::newRow("Quectel") << "quectel-lc79d-excerpt.log" << 50.040892117 << 19.980529900 << "single" << kUnknown
                             << kUnknown << "2020-11-30T08:04:00.000Z" << 16;
}

void ReceiverStateTest::capturedFix()
{
    QFETCH(QString, file);
    QFETCH(double, lat);
    QFETCH(double, lon);
    QFETCH(double, heightEllipsoid);
    QFETCH(double, heading);
    ReceiverState state;
    feedCapture(state, file);
    const FixInfo &fix = state.fix();
    QVERIFY(std::abs(fix.lat - lat) < 1e-8 && std::abs(fix.lon - lon) < 1e-8);
    QTEST(fixQualityName(fix.quality), "quality");
    QCOMPARE(fix.satellitesUsed, 14);
    QCOMPARE(text(fix.heightEllipsoid), text(heightEllipsoid));
    QCOMPARE(text(fix.heading), text(heading));
    QTEST(fix.utc.toString(Qt::ISODateWithMs), "utc");
    QTEST(state.satellites().size(), "satellites");
}

void ReceiverStateTest::sentences_data()
{
    QTest::addColumn<QList<QByteArray>>("bodies");
    QTest::addColumn<QString>("expected");
    const auto zda = [](const char *seconds) { return "GNZDA,1200" + QByteArray(seconds) + ".00,20,05,2024,00,00"; };
    const QByteArray gsv5 = "GPGSV,1,1,01,05,40,120,40";
    QTest::newRow("from GP to GN") << QList<QByteArray>{gsv5, "GNGSV,1,1,01,05,41,121,42"} << "G5 41/121 L1 C/A:42";
    QTest::newRow("GN by ranges") << QList<QByteArray>{"GNGSV,1,1,03,33,10,100,30,65,20,200,31,193,30,300,32"}
                                  << "R1 20/200 G1 C/A:31 | J1 30/300 L1 C/A:32 | S120 10/100 L1 C/A:30";
    QTest::newRow("own talkers") << QList<QByteArray>{"GAGSV,1,1,01,101,10,10,30", "GBGSV,1,1,01,201,11,11,31",
        "GQGSV,1,1,01,193,12,12,32", "GIGSV,1,1,01,05,13,13,33"}
                                 << "E1 10/10 E1:30 | C1 11/11 B1I:31 | J1 12/12 L1 C/A:32 | I5 13/13 L5 SPS:33";
    QTest::newRow("4.11 signal ids")
        << QList<QByteArray>{gsv5 + ",1", "GPGSV,1,1,01,05,40,120,44,8", "GPGSV,1,1,01,05,40,120,20,F",
               "GAGSV,1,1,01,11,30,90,41,1", "GBGSV,1,1,01,19,50,10,39,B"}
        << "G5 40/120 L1 C/A:40 L5:44 signal id F:20 | E11 30/90 E5a:41 | C19 50/10 B2I:39";
    QTest::newRow("GSA before GSV") << QList<QByteArray>{"GNGSA,A,3,05,,,,,,,,,,,,1.2,0.8,0.9,1", gsv5}
                                    << "G5 40/120 u L1 C/A:40";
    QTest::newRow("a later GSA replaces") << QList<QByteArray>{"GNGSA,A,3,05,06,,,,,,,,,,,1.2,0.8,0.9,1",
        "GPGSV,1,1,02,05,40,120,40,06,30,60,35", "GNGSA,A,3,06,,,,,,,,,,,,1.2,0.8,0.9,1"}
                                          << "G5 40/120 L1 C/A:40 | G6 30/60 u L1 C/A:35";
    QTest::newRow("consecutive GSA add up") << QList<QByteArray>{"GPGSV,1,1,02,05,40,120,40,06,30,60,35",
        "GNGSA,A,3,05,,,,,,,,,,,,1.2,0.8,0.9,1", "GNGSA,A,3,06,,,,,,,,,,,,1.2,0.8,0.9,1"}
                                            << "G5 40/120 u L1 C/A:40 | G6 30/60 u L1 C/A:35";
    QTest::newRow("system id over talker") << QList<QByteArray>{"GNGSA,A,3,10,,,,,,,,,,,,1.2,0.8,0.9,4",
        "GBGSV,1,1,01,10,40,120,40"} << "C10 40/120 u B1I:40";
    // The log sets the clock: the satellite seen before it must not look stale.
    QTest::newRow("PSRDOP by list numbers")
        << QList<QByteArray>{"GLGSV,1,1,01,65,20,200,31", logHeader("PSRDOP") + "1.5,1.2,0.8,1.0,0.7,5.0,1,38"}
        << "R1 20/200 u G1 C/A:31";
    QTest::newRow("GSV, SATVIS2 and RANGE join")
        << QList<QByteArray>{"GLGSV,1,1,01,65,20,200,31", gsv5,
               logHeader("SATVIS2") + "GLONASS,TRUE,TRUE,1,1,1,0,25.50,201.00,0",
               logHeader("SATVIS2") + "QZSS,TRUE,TRUE,1,193,0,0,60.00,150.00,0",
               logHeader("RANGE")
                   + "3,38,1,2e7,0.1,1e8,0.01,100,40.5,1000,00a10000,"
                     "33,0,2e7,0.1,1e8,0.01,100,45.0,1000,00050000,"
                     "5,0,2e7,0.1,1e8,0.01,100,38.0,1000,05200000"}
        << "G5 40/120 L1 C/A:40 L2C:38 | R1 25.5/201 G1 C/A:31 G2 C/A:40.5 | J1 60/150 L1 C/A:45";
    // RANGE fed again within a tenth of a second is held back and read out the newest.
    const auto range = [](const char *cn0) {
        return logHeader("RANGE") + "1,5,0,2e7,0.1,1e8,0.01,100," + QByteArray(cn0) + ",1000,00000000";
    };
    QTest::newRow("RANGE held back, newest read")
        << QList<QByteArray>{range("40.5"), range("41.0"), range("42.0")} << "G5 -/- L1 C/A:42";
    QTest::newRow("RANGE held back, damaged")
        << QList<QByteArray>{range("40.5"), "!" + range("42.0")} << "G5 -/- L1 C/A:40.5";
    QTest::newRow("empty and absurd values")
        << QList<QByteArray>{"GPGSV,1,1,02,05,,,,06,999,-5,1000"} << "G5 -/- L1 C/A:- | G6 -/- L1 C/A:-";
    QTest::newRow("bad checksum") << QList<QByteArray>{"!" + gsv5} << "";
    QTest::newRow("unread talkers and numbers")
        << QList<QByteArray>{"PQGSV,1,1,01,05,40,120,40", "GPGSV,1,1,01,99,40,120,40", "GAGSV,1,1,01,37,4,1,40"} << "";
    QTest::newRow("stale after 10 s") << QList<QByteArray>{zda("00"), gsv5, zda("11")} << "";
    QTest::newRow("kept for 10 s") << QList<QByteArray>{zda("00"), gsv5, zda("10")} << "G5 40/120 L1 C/A:40";
    QTest::newRow("a stale used set") << QList<QByteArray>{zda("00"), "GNGSA,A,3,05,,,,,,,,,,,,1.2,0.8,0.9,1",
        zda("11"), gsv5} << "G5 40/120 L1 C/A:40";
    QTest::newRow("a stale signal goes alone")
        << QList<QByteArray>{zda("00"), gsv5 + ",8", zda("06"), gsv5, zda("12")} << "G5 40/120 L1 C/A:40";
}

void ReceiverStateTest::sentences()
{
    QFETCH(QList<QByteArray>, bodies);
    ReceiverState state;
    feed(state, bodies);
    QTEST(described(state.satellites()), "expected");
}

void ReceiverStateTest::clock_data()
{
    QTest::addColumn<QList<QByteArray>>("bodies");
    QTest::addColumn<QString>("now");
    QTest::addColumn<bool>("utcKnown");
    const auto gga
        = [](const char *time) { return "GNGGA," + QByteArray(time) + ".00,3031.71,N,11421.468,E,1,12,0.9,24,M,,M,,"; };
    QTest::newRow("ZDA") << QList<QByteArray>{"GNZDA,120000.50,20,05,2024,00,00"} << "2024-05-20T12:00:00.500Z" << true;
    QTest::newRow("GGA after RMC, past midnight")
        << QList<QByteArray>{"GNRMC,235959.00,A,3031.71,N,11421.468,E,0.0,0.0,200524,,,A", gga("000001")}
        << "2024-05-21T00:00:01.000Z" << true;
    // GPS week 2310, 345600 s, less 18 leap seconds.
    QTest::newRow("log header") << QList<QByteArray>{logHeader("BESTVEL")
        + "SOL_COMPUTED,DOPPLER_VELOCITY,0.15,0,1,90,0,0"}
                                << "2024-04-17T23:59:42.000Z" << true;
    QTest::newRow("time of day only") << QList<QByteArray>{gga("235959"), gga("000001")} << "1970-01-02T00:00:01.000Z"
                                      << false;
}

void ReceiverStateTest::clock()
{
    QFETCH(QList<QByteArray>, bodies);
    ReceiverState state;
    feed(state, bodies);
    QTEST(QDateTime::fromMSecsSinceEpoch(state.nowMs(), Qt::UTC).toString(Qt::ISODateWithMs), "now");
    QTEST(state.fix().utc.isValid(), "utcKnown");
}

void ReceiverStateTest::quality_data()
{
    QTest::addColumn<QList<QByteArray>>("bodies");
    QTest::addColumn<QString>("quality");
    const auto gga = [](char quality) {
        return "GNGGA,120000.00,3031.71,N,11421.468,E," + QByteArray(1, quality) + ",12,0.9,24,M,,M,,";
    };
    const QByteArray rmc = "GNRMC,120000.00,A,3031.71,N,11421.468,E,0.0,0.0,200524,,,";
    const QByteArray bestpos = logHeader("BESTPOS") + "%1,30.5,114.3,24,0,WGS84,0.01,0.01,0.02,\"0\",1,0,20,18";
    QTest::newRow("RMC keeps GGA's SBAS") << QList<QByteArray>{gga('9'), rmc + "D"} << "SBAS";
    QTest::newRow("RMC's mode wins") << QList<QByteArray>{gga('4'), rmc + "F"} << "RTK float";
    QTest::newRow("RMC without mode") << QList<QByteArray>{rmc.chopped(3)} << "single";
    QTest::newRow("void RMC") << QList<QByteArray>{gga('4'), "GNRMC,120000.00,V,,,,,,,200524,,,N"} << "no fix";
    QTest::newRow("unknown position type")
        << QList<QByteArray>{QByteArray(bestpos).replace("%1", "SOL_COMPUTED,NEW_KIND")} << "single";
    QTest::newRow("no solution") << QList<QByteArray>{gga('4'), QByteArray(bestpos).replace("%1", "COLD_START,NONE")}
                                 << "no fix";
}

void ReceiverStateTest::quality()
{
    QFETCH(QList<QByteArray>, bodies);
    ReceiverState state;
    feed(state, bodies);
    QTEST(fixQualityName(state.fix().quality), "quality");
}

void ReceiverStateTest::speedAndCourse_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("expected"); // m/s, degrees
    QTest::newRow("RMC in knots") << QByteArray("GNRMC,074159.799,A,3114.8943,N,12135.2444,E,10.0,4.94,250215,,,A")
                                  << "5.14444 4.94";
    QTest::newRow("VTG in km/h") << QByteArray("GNVTG,171.0,T,,M,010.0,N,036.0,K,D") << "10 171";
    QTest::newRow("VTG in knots only") << QByteArray("GNVTG,171.0,T,,M,010.0,N,,K,D") << "5.14444 171";
    QTest::newRow("BESTVEL in m/s") << logHeader("BESTVEL") + "SOL_COMPUTED,DOPPLER_VELOCITY,0.15,0,8.25,93.5,0.1,0"
                                    << "8.25 93.5";
    QTest::newRow("BESTVEL without a solution") << logHeader("BESTVEL") + "INSUFFICIENT_OBS,NONE,0,0,8.25,93.5,0,0"
                                                << "- -";
}

void ReceiverStateTest::speedAndCourse()
{
    QFETCH(QByteArray, body);
    ReceiverState state;
    feed(state, {body});
    QTEST(text(state.fix().speed) + ' ' + text(state.fix().course), "expected");
}

void ReceiverStateTest::statistics_data()
{
    QTest::addColumn<int>("quality"); // -1: all samples
    QTest::addColumn<double>("referenceEast");
    QTest::addColumn<QVector<double>>("expected"); // samples, sdEast, sdNorth, cep50, cep95, 2DRMS
    // Points 1 m east and west (RTK fixed), 2 m north and south (RTK float).
    QTest::newRow("all") << -1 << kUnknown << QVector<double>{4, 0.816497, 1.632993, 1, 2, 3.651484};
    QTest::newRow("RTK fixed") << int(FixQuality::RtkFixed) << kUnknown
                               << QVector<double>{2, 1.414214, 0, 1, 1, 2.828427};
    QTest::newRow("RTK float") << int(FixQuality::RtkFloat) << kUnknown
                               << QVector<double>{2, 0, 2.828427, 2, 2, 5.656854};
    QTest::newRow("from a point 3 m east")
        << -1 << 3.0 << QVector<double>{4, 0.816497, 1.632993, 3.605551, 4, 3.651484};
}

void ReceiverStateTest::statistics()
{
    QFETCH(int, quality);
    QFETCH(double, referenceEast);
    QFETCH(QVector<double>, expected);
    ReceiverState state;
    // The epoch's second position replaces its first.
    state.feed(bestposAt(0, "NARROW_INT", 1, 0) + bestposAt(1, "NARROW_INT", -1, 0) + bestposAt(2, "NARROW_FLOAT", 0, 5)
        + bestposAt(2, "NARROW_FLOAT", 0, 2) + bestposAt(3, "NARROW_FLOAT", 0, -2));
    if (isKnown(referenceEast)) {
        double lat = 0, lon = 0, height = 0;
        kBase.Reverse(referenceEast, 0, 0, lat, lon, height);
        state.setReferencePoint(lat, lon, height);
    }
    const ReceiverSnapshot snapshot = state.snapshot();
    QCOMPARE(snapshot.deviations.size(), 4);
    QVERIFY(std::abs(snapshot.deviations.first().east - (1 - (isKnown(referenceEast) ? referenceEast : 0))) < 1e-6);
    for (const StatisticsSet &set : {snapshot.window, snapshot.sinceReset}) {
        const PositionStatistics s = quality < 0 ? set.all : set.byQuality.value(FixQuality(quality));
        const QVector<double> got{double(s.samples), s.sdEast, s.sdNorth, s.cep50, s.cep95, s.drms2};
        for (int i = 0; i < got.size(); ++i)
            QVERIFY2(std::abs(got.at(i) - expected.at(i)) < 1e-5, qPrintable(QString::number(got.at(i))));
        QVERIFY(
            std::abs(s.sdUp) < 1e-5 && std::abs(s.meanLat - 30.5285) < 1e-9 && std::abs(s.meanLon - 114.3578) < 1e-9);
    }
}

void ReceiverStateTest::sinceResetStaysBoundedAndTrue()
{
    ReceiverState state;
    state.setStatisticsWindowSeconds(60);
    const int epochs = 150000; // more than the kept 100,000: thinned, counted whole
    for (int second = 0; second < epochs; ++second)
        state.feed(bestposAt(second, "NARROW_INT", second % 3 - 1, 0));
    ReceiverSnapshot snapshot = state.snapshot();
    QCOMPARE(snapshot.sinceReset.all.samples, epochs);
    QCOMPARE(snapshot.sinceReset.byQuality.value(FixQuality::RtkFixed).samples, epochs);
    QVERIFY(std::abs(snapshot.sinceReset.all.sdEast - std::sqrt(2.0 / 3.0)) < 1e-3);
    QCOMPARE(snapshot.window.all.samples, 61);
    state.resetStatistics();
    state.feed(bestposAt(epochs, "NARROW_INT", 0, 0));
    snapshot = state.snapshot();
    QCOMPARE(snapshot.sinceReset.all.samples, 1);
    QCOMPARE(snapshot.window.all.samples, 61);
}

void ReceiverStateTest::rxsimSourcesMakeOneList()
{
    rxsim::SimulatorSettings settings;
    rxsim::Simulator simulator(settings);
    ReceiverState state;
    state.feed(simulator.run(20001));
    rxsim::Receiver receiver(settings.platform, true, settings.seed, settings.startUtc); // owns the epoch's sky
    const rxsim::Epoch epoch = receiver.at(20000);
    const QVector<SatelliteInfo> satellites = state.satellites();
    QCOMPARE(satellites.size(), epoch.satellites.size());
    for (const rxsim::TrackedSatellite &expected : epoch.satellites) {
        const GnssSystem system = systemOf(expected.satellite->system);
        const int prn = expected.satellite->prn - (system == GnssSystem::QZSS ? 192 : 0);
        const auto found = std::find_if(satellites.cbegin(), satellites.cend(),
            [&](const SatelliteInfo &s) { return s.system == system && s.prn == prn; });
        QVERIFY2(found != satellites.cend(), qPrintable(QStringLiteral("%1 %2").arg(systemName(system)).arg(prn)));
        QVERIFY(std::abs(found->elevation - expected.elevation) <= 0.5);
        QCOMPARE(found->trackedSignals.size(), expected.measurements.size());
        QCOMPARE(found->used, expected.used);
    }
    const FixInfo &fix = state.fix();
    QVERIFY(std::abs(fix.lat - epoch.best.latitude) < 1e-8 && std::abs(fix.lon - epoch.best.longitude) < 1e-8);
    QCOMPARE(fix.quality, FixQuality::RtkFixed);
    QCOMPARE(fix.satellitesUsed, epoch.usedCount);
    QVERIFY(std::abs(fix.heading - epoch.heading) < 1e-3 && std::abs(fix.speed - epoch.horizontalSpeed) < 1e-3);
    const ReceiverSnapshot snapshot = state.snapshot();
    QCOMPARE(snapshot.history.size(), 20);
    QCOMPARE(snapshot.history.last().timeMs - snapshot.history.first().timeMs, qint64(19000));
    QCOMPARE(snapshot.history.last().satellitesInView, epoch.satellites.size());
    QCOMPARE(snapshot.trails.size(), epoch.satellites.size());
    QVERIFY(std::all_of(snapshot.trails.cbegin(), snapshot.trails.cend(),
        [](const SatelliteTrail &trail) { return trail.points.size() == 1; })); // 30 s apart
}

void ReceiverStateTest::damagedInputIsHarmless()
{
    ReceiverState state;
    QRandomGenerator random(7);
    for (int i = 0; i < 4000; ++i) {
        QByteArray garbage(int(random.bounded(1, 600)), '\0');
        random.fillRange(reinterpret_cast<quint32 *>(garbage.data()), garbage.size() / 4);
        state.feed(garbage);
    }
    state.feed("\r\n" + QByteArray(300 * 1024, 'x') + framed("GPGSV,1,1,01,07,40,120,40"));
    state.feed(framed("GPGSV,1,1,01" + QByteArray(",05,40,120,40").repeated(15000)));
    QCOMPARE(state.linesUsed(), quint64(1));
    QCOMPARE(described(state.satellites()), QStringLiteral("G5 40/120 L1 C/A:40"));
}

void ReceiverStateTest::notificationsAreCoalesced()
{
    ReceiverState state;
    QSignalSpy changed(&state, &ReceiverState::changed);
    for (int i = 0; i < 1000; ++i)
        state.feed(
            framed("GNGGA,1200" + QByteArray::number(10 + i % 50) + ".00,3031.71,N,11421.468,E,1,12,0.9,24,M,,M,,"));
    QCOMPARE(changed.count(), 0);
    QTRY_COMPARE(changed.count(), 1);
    QTest::qWait(3 * ReceiverState::notifyIntervalMs);
    QCOMPARE(changed.count(), 1);
}

void ReceiverStateTest::report()
{
    ReceiverState state;
    feed(state,
        {"GNRMC,120000.00,A,3031.71,S,11421.468,W,0.0,0.0,200524,,,F", "GPGSV,1,1,02,05,40,120,40,06,30,60,",
            "GPGSV,1,1,01,06,30,60,33,1"});
    const QJsonObject report = receiverReport(state.snapshot());
    const QJsonObject fix = report.value("fix").toObject();
    QCOMPARE(fix.value("quality").toString(), QStringLiteral("RTK float"));
    QCOMPARE(fix.value("utc").toString(), QStringLiteral("2024-05-20T12:00:00.000Z"));
    QVERIFY(fix.value("lat").toDouble() < -30.5 && fix.value("lon").toDouble() < -114.3 && fix.value("hdop").isNull());
    const QJsonArray satellites = report.value("satellites").toArray();
    const QJsonObject plain = satellites.at(0).toObject().value("signals").toArray().at(0).toObject();
    const QJsonObject withId = satellites.at(1).toObject().value("signals").toArray().at(0).toObject();
    QCOMPARE(satellites.at(1).toObject().value("system").toString(), QStringLiteral("GPS"));
    QVERIFY(!plain.contains("nmeaSignalId") && plain.value("cn0").toDouble() == 40);
    QCOMPARE(withId.value("nmeaSignalId").toInt(), 1);
    QCOMPARE(withId.value("name").toString(), QStringLiteral("L1 C/A"));
    const QJsonObject statistics = report.value("statistics").toObject();
    QCOMPARE(statistics.value("samples").toInt(), 1);
    QVERIFY(statistics.value("sdEast").isNull());
    const QJsonObject window = statistics.value("window").toObject();
    QCOMPARE(window["byQuality"].toObject()["RTK float"].toObject()["samples"].toInt(), 1);
}

QTEST_GUILESS_MAIN(ReceiverStateTest)
#include "tst_receiverstate.moc"
