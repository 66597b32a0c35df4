// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"

#include "receiver.h"
#include "linechecksum.h"
#include "pageroutes.h"
#include "simulator.h"

#include <QtTest>


using namespace rxsim;

namespace {

struct Run
{
    QVector<Simulator::SentLine> lines;
    QVector<QByteArray> chunks;
    QByteArray bytes;
    Tally tally;
};

Run simulate(const SimulatorSettings &settings, qint64 durationMs)
{
    Run run;
    Simulator simulator(settings);
    while (simulator.nextTickMs() < durationMs) {
        for (const QByteArray &chunk : simulator.step()) {
            run.chunks << chunk;
            run.bytes += chunk;
        }
        run.lines += simulator.lastLines();
    }
    run.tally = simulator.tally();
    return run;
}

SimulatorSettings settingsFor(int mode, quint64 seed = 1)
{
    SimulatorSettings settings;
    settings.mode = mode;
    settings.seed = seed;
    return settings;
}

QList<QByteArray> cutLines(const QByteArray &bytes)
{
    QList<QByteArray> lines;
    int start = 0;
    for (int end = bytes.indexOf("\r\n"); end >= 0; end = bytes.indexOf("\r\n", start)) {
        lines << bytes.mid(start, end + 2 - start);
        start = end + 2;
    }
    return lines;
}

// Feeds lines to a console in `mode`, each line with the page the simulator names
// for it on screen, so that page runs its whole parse (field counts included) while
// every page offered the line before it is hidden. Then every page must have taken
// exactly its lines, and every page the simulator names must exist in the mode.
void expectEveryLineOnItsPage(int mode, const QList<QByteArray> &lines)
{
    ModuleHarness h(mode);
    const QStringList existing = h.pageLabels();
    QHash<QString, quint64> expected;
    quint64 expectedRefused = 0;
    QString shown;
    for (const QByteArray &line : lines) {
        const QString page = pageForLine(mode, line);
        if (page.isEmpty())
            ++expectedRefused;
        else
            ++expected[page];
        if (!page.isEmpty() && page != shown && existing.contains(page)) {
            QVERIFY(h.show(page));
            shown = page;
        }
        h.feed(line);
    }

    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QVERIFY2(existing.contains(it.key()), qPrintable(QStringLiteral("no page %1 in mode %2").arg(it.key()).arg(mode)));
    for (const QString &label : existing)
        QVERIFY2(h.taken(label) == expected.value(label),
                 qPrintable(QStringLiteral("%1 took %2 lines, expected %3")
                                .arg(label)
                                .arg(h.taken(label))
                                .arg(expected.value(label))));
    QCOMPARE(h.module().lineCount(), quint64(lines.size()));
    QCOMPARE(h.module().lineCount() - h.takenByAny(), expectedRefused);
}

} // namespace

class RxsimTest : public QObject
{
    Q_OBJECT
private slots:
    void everyLineIsTakenByItsPage_data();
    void everyLineIsTakenByItsPage();
    void faultsDoWhatTheySay_data();
    void faultsDoWhatTheySay();
    void messagesOfOneInstantAgree();
    void clocksAndMotionAgree();
    void theSkyMovesSmoothly();
    void ratesAreHonoured_data();
    void ratesAreHonoured();
};

void RxsimTest::everyLineIsTakenByItsPage_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("consoleMode");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    // 65 s: two ephemeris bursts, the hourly logs once, the five-second lists.
    QTest::newRow("mode 0") << 0 << 0 << 30.5285 << 114.3578;
    QTest::newRow("mode 1") << 1 << 1 << 30.5285 << 114.3578;
    QTest::newRow("mode 2") << 2 << 2 << 30.5285 << 114.3578;
    QTest::newRow("mode 2, south-west") << 2 << 2 << -33.45 << -70.66;
    QTest::newRow("mode 7") << 7 << 7 << 30.5285 << 114.3578;
    // The binary modes' NMEA through the NMEA pages.
    QTest::newRow("mode 4 via NMEA pages") << 4 << 0 << 30.5285 << 114.3578;
    QTest::newRow("mode 5 via NMEA pages") << 5 << 0 << 51.5 << -0.1;
}

void RxsimTest::everyLineIsTakenByItsPage()
{
    QFETCH(int, mode);
    QFETCH(int, consoleMode);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    SimulatorSettings settings = settingsFor(mode);
    settings.platform.latitude = latitude;
    settings.platform.longitude = longitude;
    const Run run = simulate(settings, 65000);

    QList<QByteArray> lines;
    for (const Simulator::SentLine &sent : run.lines)
        lines << sent.line;
    QCOMPARE(cutLines(run.bytes), lines);
    if (mode == consoleMode) {
        // The summary's counts are the ones the console must show.
        for (const QString &label : pageLabels(mode)) {
            const auto n = std::count_if(lines.cbegin(), lines.cend(),
                                         [&](const QByteArray &l) { return pageForLine(mode, l) == label; });
            QCOMPARE(run.tally.intactFor(label), quint64(n));
            QCOMPARE(run.tally.takenFor(label), quint64(n));
        }
    } else {
        // The decoder modes send only what the decoder knows.
        for (const Simulator::SentLine &sent : run.lines)
            QVERIFY2(!sent.page.isEmpty(), sent.line.constData());
    }
    expectEveryLineOnItsPage(consoleMode, lines);
}

void RxsimTest::faultsDoWhatTheySay_data()
{
    QTest::addColumn<double>("corrupt");
    QTest::addColumn<double>("truncate");
    QTest::addColumn<double>("drop");
    QTest::addColumn<double>("garbage");
    QTest::newRow("corrupted checksums") << 0.1 << 0.0 << 0.0 << 0.0;
    QTest::newRow("truncated lines") << 0.0 << 0.1 << 0.0 << 0.0;
    QTest::newRow("lost line ends") << 0.0 << 0.0 << 0.1 << 0.0;
    QTest::newRow("garbage bursts") << 0.0 << 0.0 << 0.0 << 0.1;
    QTest::newRow("everything at once") << 0.05 << 0.05 << 0.05 << 0.05;
}

void RxsimTest::faultsDoWhatTheySay()
{
    QFETCH(double, corrupt);
    QFETCH(double, truncate);
    QFETCH(double, drop);
    QFETCH(double, garbage);
    SimulatorSettings settings = settingsFor(1, 7);
    settings.faults.corruptChecksum = corrupt;
    settings.faults.truncate = truncate;
    settings.faults.dropTerminator = drop;
    settings.faults.garbage = garbage;
    const Run run = simulate(settings, 60000);
    const Tally &t = run.tally;

    // The stated share of lines is hit (binomial spread of some thousands of lines).
    const double lineFaultRate = corrupt + truncate + drop;
    QVERIFY(t.linesSent > 3000);
    QVERIFY(qAbs(double(t.linesFaulted) / t.linesSent - lineFaultRate) < 0.02);
    QVERIFY(qAbs(double(t.garbageBursts) / t.linesSent - garbage) < 0.02);

    // Exactly the lines the simulator calls intact pass the library's check.
    quint64 intact = t.intactWithoutPage;
    for (quint64 n : t.intact)
        intact += n;
    int passing = 0;
    const QList<QByteArray> lines = cutLines(run.bytes);
    for (const QByteArray &line : lines)
        passing += checkLineChecksum(QString::fromUtf8(line)) ? 1 : 0;
    QCOMPARE(quint64(passing), intact);
    QCOMPARE(quint64(lines.size()), t.linesCut);
    // Each kind at its own rate: a truncated line keeps its frame character, not its checksum.
    const auto truncated = std::count_if(lines.cbegin(), lines.cend(), [](const QByteArray &line) {
        return (line.startsWith('$') || line.startsWith('#')) && !line.contains('*');
    });
    QVERIFY(qAbs(double(truncated) / t.linesSent - truncate) < 0.02);

    // A console fed the damaged stream takes what the summary says it takes.
    ModuleHarness h(settings.mode);
    h.feed(run.bytes);
    for (const QString &label : h.pageLabels())
        QCOMPARE(h.taken(label), t.takenFor(label));
    QCOMPARE(h.module().lineCount(), t.linesCut);
}

namespace {
// The fields of a line: after ';' for a log, after the address for a sentence.
QList<QByteArray> fieldsOf(const QByteArray &line)
{
    QByteArray body = line.left(line.indexOf('*'));
    body = body.mid(body.indexOf(line.startsWith('#') ? ';' : ',') + 1);
    return body.split(',');
}

double nmeaDegrees(const QByteArray &value, const QByteArray &hemisphere)
{
    const int dot = value.indexOf('.');
    const double degrees = value.left(dot - 2).toDouble() + value.mid(dot - 2).toDouble() / 60.0;
    return hemisphere == "S" || hemisphere == "W" ? -degrees : degrees;
}
} // namespace

void RxsimTest::messagesOfOneInstantAgree()
{
    SimulatorSettings settings = settingsFor(2, 9);
    settings.platform.latitude = -12.5;
    settings.platform.longitude = -45.25;
    Simulator simulator(settings);
    simulator.step(); // the first instant sends every periodic log
    QMultiHash<QByteArray, QList<QByteArray>> byName;
    for (const auto &sent : simulator.lastLines()) {
        const QByteArray name = sent.line.left(sent.line.indexOf(','));
        byName.insert(name, fieldsOf(sent.line));
    }

    const QList<QByteArray> gga = byName.value("$GNGGA");
    const QList<QByteArray> rmc = byName.value("$GNRMC");
    const QList<QByteArray> bestpos = byName.value("#BESTPOSA");
    const QList<QByteArray> bestnav = byName.value("#BESTNAVA");
    const QList<QByteArray> agric = byName.value("#AGRICA");
    const double latitude = bestpos.at(2).toDouble();
    const double longitude = bestpos.at(3).toDouble();
    QVERIFY(latitude < -12.0 && longitude < -45.0);
    for (const double lat : {nmeaDegrees(gga.at(1), gga.at(2)), nmeaDegrees(rmc.at(2), rmc.at(3)),
                             bestnav.at(2).toDouble(), agric.at(29).toDouble()})
        QVERIFY(qAbs(lat - latitude) < 1e-8);
    for (const double lon : {nmeaDegrees(gga.at(3), gga.at(4)), nmeaDegrees(rmc.at(4), rmc.at(5)),
                             bestnav.at(3).toDouble(), agric.at(30).toDouble()})
        QVERIFY(qAbs(lon - longitude) < 1e-8);
    QCOMPARE(gga.at(8).toDouble(), bestpos.at(4).toDouble());

    // Satellites: in view per GSV (the groups without signal id), in SATVIS, in
    // RANGE, tracked in BESTPOS; used in GGA, PSRDOP and BESTPOS.
    int inView = 0;
    for (auto it = byName.cbegin(); it != byName.cend(); ++it) {
        const QList<QByteArray> &f = it.value();
        if (it.key().endsWith("GSV") && f.at(1) == "1" && f.size() % 4 == 3)
            inView += f.at(2).toInt();
    }
    const QList<QByteArray> satvis = byName.value("#SATVISA");
    const QList<QByteArray> range = byName.value("#RANGEA");
    QSet<int> rangePrns;
    for (int i = 1; i + 9 < range.size(); i += 10)
        rangePrns.insert(range.at(i).toInt());
    QVERIFY(inView > 20);
    QCOMPARE(satvis.at(2).toInt(), inView);
    QCOMPARE(rangePrns.size(), inView);
    QCOMPARE(bestpos.at(13).toInt(), inView);
    const QList<QByteArray> psrdop = byName.value("#PSRDOPA");
    QCOMPARE(psrdop.at(6).toInt(), gga.at(6).toInt());
    QCOMPARE(psrdop.size(), 7 + psrdop.at(6).toInt());
    QCOMPARE(bestpos.at(14).toInt(), gga.at(6).toInt());
    QCOMPARE(gga.at(7), QByteArray::number(psrdop.at(2).toDouble(), 'f', 1));
}

void RxsimTest::clocksAndMotionAgree()
{
    const Run timing = simulate(settingsFor(7), 1000);
    QHash<QByteArray, QList<QByteArray>> byName;
    for (const auto &sent : timing.lines)
        byName.insert(sent.line.left(sent.line.indexOf(',')), fieldsOf(sent.line));
    // GPS time runs 18 s ahead of UTC, BDS time 14 s behind GPS time.
    const QList<QByteArray> gps = byName.value("$GPSTIME"), bds = byName.value("$BDSTIME"), zda = byName.value("$GNZDA");
    const QByteArray &hms = zda.at(0);
    const double utcSecondsOfDay = hms.left(2).toInt() * 3600 + hms.mid(2, 2).toInt() * 60 + hms.mid(4).toDouble();
    QCOMPARE(std::fmod(gps.at(2).toDouble(), 86400.0) - 18.0, utcSecondsOfDay);
    QCOMPARE(bds.at(2).toDouble(), gps.at(2).toDouble() - 14.0);
    QCOMPARE(bds.at(1).toInt(), gps.at(1).toInt() - 1356);

    // On the move: speed and track the same in every message, the vehicle on its loop.
    SimulatorSettings settings = settingsFor(1);
    settings.platform.loopRadius = 80.0;
    settings.platform.speed = 12.0;
    const Run moving = simulate(settings, 1000);
    byName.clear();
    for (const auto &sent : moving.lines)
        byName.insert(sent.line.left(sent.line.indexOf(',')), fieldsOf(sent.line));
    const QList<QByteArray> vtg = byName.value("$GNVTG"), bestvel = byName.value("#BESTVELA"),
                            bestpos = byName.value("#BESTPOSA");
    QVERIFY(qAbs(bestvel.at(4).toDouble() - 12.0) < 0.05);
    QVERIFY(qAbs(vtg.at(6).toDouble() - bestvel.at(4).toDouble() * 3.6) < 0.01);
    QVERIFY(qAbs(vtg.at(0).toDouble() - bestvel.at(5).toDouble()) < 0.01);
    const Vec3 offset = ecefToEnu(geodeticToEcef(bestpos.at(2).toDouble(), bestpos.at(3).toDouble(), 0.0)
                                      - geodeticToEcef(settings.platform.latitude, settings.platform.longitude, 0.0),
                                  settings.platform.latitude, settings.platform.longitude);
    QVERIFY(qAbs(std::hypot(offset.x, offset.y) - 80.0) < 0.5);
}

void RxsimTest::theSkyMovesSmoothly()
{
    Receiver receiver(PlatformSettings(), true, 1, SimulatorSettings().startUtc);
    QHash<int, TrackedSatellite> previous;
    QSet<int> systems;
    int multiSignal = 0, total = 0;
    for (qint64 ms = 0; ms <= 300000; ms += 1000) {
        const Epoch e = receiver.at(ms);
        QHash<int, TrackedSatellite> now;
        for (const TrackedSatellite &s : e.satellites) {
            const int key = int(s.satellite->system) * 1000 + s.satellite->prn;
            now.insert(key, s);
            systems.insert(int(s.satellite->system));
            ++total;
            multiSignal += s.measurements.size() > 1 ? 1 : 0;
            QVERIFY(s.elevation >= Receiver::kElevationMask && s.elevation <= 90.0);
            if (!previous.contains(key))
                continue;
            const TrackedSatellite &p = previous.value(key);
            QVERIFY(qAbs(s.elevation - p.elevation) < 0.1);
            QVERIFY(qAbs(std::remainder(s.azimuth - p.azimuth, 360.0)) < 1.0 || s.elevation > 85.0);
            QVERIFY(qAbs(s.measurements.first().cn0 - p.measurements.first().cn0) < 1.0);
            QVERIFY(s.measurements.first().lockTime > p.measurements.first().lockTime);
        }
        previous = now;
    }
    QCOMPARE(systems.size(), kSystemCount);
    QVERIFY(multiSignal > total * 3 / 4);
}

void RxsimTest::ratesAreHonoured_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("periodMs");
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("lines");
    QTest::newRow("GGAH by default") << "GGAH" << -1 << "GGAH" << 100;
    QTest::newRow("RANGE off") << "RANGE" << 0 << "Range" << 0;
    QTest::newRow("PSRDOP every 3 s") << "PSRDOP" << 3000 << "Psrdop" << 7;
    QTest::newRow("ephemeris bursts every 15 s") << "GALEPHEM" << 15000 << "Galephem" << -2;
}

void RxsimTest::ratesAreHonoured()
{
    QFETCH(QString, message);
    QFETCH(int, periodMs);
    QFETCH(QString, page);
    QFETCH(int, lines);
    SimulatorSettings settings = settingsFor(2);
    if (periodMs >= 0)
        settings.periodsMs.insert(message, periodMs);
    const Run run = simulate(settings, 20000);
    if (lines >= 0) {
        QCOMPARE(run.tally.intactFor(page), quint64(lines));
        return;
    }
    // Bursts: one log per Galileo satellite in view, -lines times.
    int bursts = 0;
    bool inBurst = false;
    for (const auto &sent : run.lines) {
        const bool ephemeris = sent.page == page;
        bursts += ephemeris && !inBurst ? 1 : 0;
        inBurst = ephemeris;
    }
    QCOMPARE(bursts, -lines);
}

QTEST_MAIN(RxsimTest)
#include "tst_rxsim.moc"
