// SPDX-License-Identifier: BSD-3-Clause
#include "basestation.h"
#include "rtcm3encoder.h"
#include "rtcm3framer.h"
#include "sky.h"

#include <GeographicLib/Geocentric.hpp>

#include <QProcess>
#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

Q_DECLARE_METATYPE(Rtcm3MsmEpoch)

namespace {

constexpr int kGuardMs = 60000; // against a hang only

// Reads `bits` bits at bit `at` of a frame's payload, MSB first.
qint64 field(const QByteArray &frame, int at, int bits, bool isSigned = false)
{
    quint64 v = 0;
    for (int i = at; i < at + bits; ++i)
        v = v << 1 | ((uchar(frame.at(3 + i / 8)) >> (7 - i % 8)) & 1u);
    return isSigned && bits < 64 && (v >> (bits - 1)) ? qint64(v) - (qint64(1) << bits) : qint64(v);
}

// MSM4 of one frame: header fields, then those of one cell (in cell mask order).
QVector<qint64> msm4Fields(const QByteArray &frame, int cell)
{
    const int satellites = qPopulationCount(quint64(field(frame, 73, 64)));
    const int signalCount = qPopulationCount(quint64(field(frame, 137, 32)));
    const int cells = qPopulationCount(quint64(field(frame, 169, satellites * signalCount)));
    QVector<qint64> out{field(frame, 0, 12), field(frame, 24, 30), field(frame, 54, 1), satellites, signalCount, cells};
    if (cell >= cells)
        return out;
    int satellite = -1; // the cell's satellite: count the set bits of the cell mask rows
    for (int seen = -1, i = 0; seen < cell; ++i) {
        seen += int(field(frame, 169 + i, 1));
        satellite = i / signalCount;
    }
    const int sats = 169 + satellites * signalCount, cellData = sats + 18 * satellites;
    out << field(frame, sats + 8 * satellite, 8) << field(frame, sats + 8 * satellites + 10 * satellite, 10)
        << field(frame, cellData + 15 * cell, 15, true) << field(frame, cellData + 15 * cells + 22 * cell, 22, true)
        << field(frame, cellData + 37 * cells + 4 * cell, 4) << field(frame, cellData + 41 * cells + cell, 1)
        << field(frame, cellData + 42 * cells + 6 * cell, 6);
    return out;
}

// The next solution reported: GGA quality, or BESTPOS's type as one (4 NARROW_INT, 1 SINGLE).
int nextSolution(QTcpSocket &socket)
{
    while (socket.canReadLine() || socket.waitForReadyRead(kGuardMs)) {
        const QByteArray line = socket.readLine();
        if (line.startsWith("$GNGGA"))
            return line.split(',').value(6).toInt();
        if (line.startsWith("#BESTPOSA"))
            return line.contains(";SOL_COMPUTED,NARROW_INT,") ? 4 : line.contains(";SOL_COMPUTED,SINGLE,") ? 1 : -1;
    }
    return -1;
}

} // namespace

class RxsimRtcmTest : public QObject
{
    Q_OBJECT
private slots:
    void msm4FieldsAtTheirLimits_data();
    void msm4FieldsAtTheirLimits();
    void stationPositionIsBitExact();
    void convbinDecodesTheBaseStation_data();
    void convbinDecodesTheBaseStation();
    void fixedOnlyWhileValidFramesArrive();
};

void RxsimRtcmTest::msm4FieldsAtTheirLimits_data()
{
    QTest::addColumn<Rtcm3MsmEpoch>("epoch");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("cell");
    // number, epoch time, more follow, satellites, signals, cells; then the cell's rough
    // ms, rough 1/1024 ms, fine pseudorange, fine phase, lock, half cycle, CNR
    QTest::addColumn<QVector<qint64>>("fields");

    const qint64 sunday = qint64(2300) * 7 * 86400000; // a GPS week's start
    const double ms = 299792.458;                      // metres per millisecond
    Rtcm3MsmEpoch e;
    e.gpsMilliseconds = sunday + 3000;
    QTest::newRow("empty GPS epoch") << e << 1 << 0 << QVector<qint64>{1074, 3000, 0, 0, 0, 0};
    e.moreMessagesFollow = true;
    e.system = Rtcm3System::BDS; // BDS time is 14 s behind: the previous week's end
    QTest::newRow("BDS before its week") << e << 1 << 0 << QVector<qint64>{1124, 604789000, 1, 0, 0, 0};
    e.system = Rtcm3System::GLONASS; // UTC Sunday 21:00:01 (18 leap seconds), 3 h behind GLONASS
    e.gpsMilliseconds = sunday + (21 * 3600 + 19) * 1000;
    QTest::newRow("GLONASS Monday") << e << 1 << 0 << QVector<qint64>{1084, (1 << 27) | 1000, 1, 0, 0, 0};

    // Ranges on the 1/1024 ms grid leave nothing for the fine fields.
    e.system = Rtcm3System::Galileo;
    e.moreMessagesFollow = false;
    e.gpsMilliseconds = sunday;
    for (int id = 64; id >= 1; --id) {
        const double range = (70.0 + id / 1024.0) * ms;
        e.satellites << Rtcm3SatelliteObservation{id, {{2, range, range, 1.0, false, 45.0}}};
    }
    QTest::newRow("64 satellites, last cell") << e << 1 << 63
                                              << QVector<qint64>{1094, 0, 0, 64, 1, 64, 70, 64, 0, 0, 5, 0, 45};
    e.satellites.last().observations << Rtcm3SignalObservation{7, 70.0 * ms, kRtcm3NoRange, 0.0, false, 0.0};
    QTest::newRow("65 cells: split, more follow")
        << e << 2 << 0 << QVector<qint64>{1094, 0, 1, 32, 2, 33, 70, 1, 0, 0, 5, 0, 45};

    // The rough range (254.990234 ms) is 70.2 m beyond the first code; the fine fields
    // reach 292.7 m (code) and 1171.1 m (phase) from it.
    const double code = 254.99 * ms;
    e.satellites = {Rtcm3SatelliteObservation{5, {{1, code, code + 1240.0, 0.031, false, 70.0},
                                  {32, code + 290.0, code - 1102.0, 0.032, false, 0.0},
                                  {3, code - 223.0, kRtcm3NoRange, 600.0, true, 1.0}}}};
    const double rough = 261110 / 1024.0;
    const auto units = [&](double metres, int bits) { return std::llround((metres / ms - rough) * (1 << bits)); };
    QTest::newRow("phase at the edge, C/N0 above 63")
        << e << 1 << 0 << QVector<qint64>{1094, 0, 0, 1, 3, 3, 254, 1014, units(code, 24), units(code + 1240.0, 29), 0, 0, 63};
    QTest::newRow("code beyond reach, no phase, long lock")
        << e << 1 << 1 << QVector<qint64>{1094, 0, 0, 1, 3, 3, 254, 1014, -16384, -2097152, 15, 1, 1};
    QTest::newRow("phase beyond reach, no C/N0")
        << e << 1 << 2 << QVector<qint64>{1094, 0, 0, 1, 3, 3, 254, 1014, units(code + 290.0, 24), -2097152, 1, 0, 0};
    e.satellites = {Rtcm3SatelliteObservation{9, {{2, 255.2 * ms, 255.2 * ms, 1.0, false, 40.0}}}};
    QTest::newRow("rough range beyond 255 ms")
        << e << 1 << 0 << QVector<qint64>{1094, 0, 0, 1, 1, 1, 255, 0, -16384, -2097152, 5, 0, 40};
}

void RxsimRtcmTest::msm4FieldsAtTheirLimits()
{
    QFETCH(Rtcm3MsmEpoch, epoch);
    QFETCH(int, frames);
    QFETCH(int, cell);
    QFETCH(QVector<qint64>, fields);
    const QVector<QByteArray> encoded = Rtcm3Encoder::msm4(epoch);
    Rtcm3Framer framer;
    for (const QByteArray &frame : encoded)
        framer.feed(frame.constData(), frame.size(), [](const uchar *, int) {});
    QCOMPARE(framer.frames(), qint64(frames)); // whole, and their CRCs hold
    QCOMPARE(msm4Fields(encoded.first(), cell), fields);
    QCOMPARE(field(encoded.last(), 54, 1), qint64(epoch.moreMessagesFollow));
}

void RxsimRtcmTest::stationPositionIsBitExact()
{
    const QByteArray f = Rtcm3Encoder::stationPosition({4095, -2267863.9519, -5009282.0979, -13743895.3472, true, false, true, true});
    QCOMPARE(f.size(), 3 + 19 + 3);
    QCOMPARE((QVector<qint64>{field(f, 0, 12), field(f, 12, 12), field(f, 30, 4), field(f, 34, 38, true),
                              field(f, 74, 38, true), field(f, 114, 38, true)}),
             (QVector<qint64>{1005, 4095, 0b1011, -22678639519, -50092820979, -137438953472}));
}

void RxsimRtcmTest::convbinDecodesTheBaseStation_data()
{
    QTest::addColumn<QVector<double>>("place");
    QTest::addColumn<QDateTime>("start");
    QTest::newRow("default place") << QVector<double>{30.5285, 114.3578, 24.0} << QDateTime({2024, 5, 20}, {2, 0}, Qt::UTC);
    QTest::newRow("ECEF all negative, GPS week ends")
        << QVector<double>{-40.0, -120.0, 100.0} << QDateTime({2024, 5, 18}, {23, 59, 40}, Qt::UTC);
    QTest::newRow("GLONASS day ends") << QVector<double>{51.5, -0.1, 45.0} << QDateTime({2024, 5, 20}, {20, 59, 57}, Qt::UTC);
}

void RxsimRtcmTest::convbinDecodesTheBaseStation()
{
    QFETCH(QVector<double>, place);
    QFETCH(QDateTime, start);
    QTemporaryDir dir;
    const QString rtcm = dir.filePath(QStringLiteral("base.rtcm")), obs = dir.filePath(QStringLiteral("base.obs"));
    constexpr int kSeconds = 5;
    QCOMPARE(QProcess::execute(QStringLiteral(RXSIM_EXECUTABLE),
                 {"--rtcm", "--duration", QString::number(kSeconds), "--as-fast-as-possible", "--output", rtcm, "--lat",
                  QString::number(place[0], 'f', 7), "--lon", QString::number(place[1], 'f', 7), "--height",
                  QString::number(place[2], 'f', 3), "--start", start.toString(Qt::ISODate)}),
             0);
    QCOMPARE(QProcess::execute(QStringLiteral("convbin"), {"-r", "rtcm3", "-tr", start.toString(QStringLiteral("yyyy/MM/dd HH:mm:ss")), "-o", obs, rtcm}), 0);
    QFile file(obs);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    rxsim::Vec3 antenna;
    GeographicLib::Geocentric::WGS84().Forward(place[0], place[1], place[2] + rxsim::geoidUndulation(place[0], place[1]),
                                               antenna.x, antenna.y, antenna.z);
    const QByteArray approx = *std::find_if(lines.begin(), lines.end(),
                                            [](const QByteArray &l) { return l.contains("APPROX POSITION XYZ"); });
    const rxsim::Vec3 header{approx.mid(0, 14).toDouble(), approx.mid(14, 14).toDouble(), approx.mid(28, 14).toDouble()};
    QVERIFY2((header - antenna).norm() < 0.01, approx.constData());

    const double lat = place[0] * rxsim::kDegree, lon = place[1] * rxsim::kDegree;
    const rxsim::Vec3 up{std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
    const QDateTime gpsEpoch(QDate(1980, 1, 6), QTime(0, 0), Qt::UTC);
    const rxsim::Sky sky;
    for (int i = 0; i < lines.size(); ++i) {
        if (!lines[i].startsWith('>'))
            continue;
        const QList<QByteArray> t = lines[i].simplified().split(' ');
        QMap<QByteArray, double> pseudoranges; // first code of each satellite
        for (int k = i + 1; k <= i + t[8].toInt(); ++k)
            pseudoranges.insert(lines[k].left(3), lines[k].mid(3, 14).toDouble());
        const QDateTime time(QDate(t[1].toInt(), t[2].toInt(), t[3].toInt()), QTime(t[4].toInt(), t[5].toInt()), Qt::UTC);
        const double skyTime = rxsim::Sky::skyTime(gpsEpoch.msecsTo(time.addMSecs(qint64(t[6].toDouble() * 1000))));
        QList<QByteArray> expected;
        QVector<double> clockTerms;
        for (const rxsim::Satellite &s : sky.satellites()) {
            const rxsim::Vec3 los = s.positionAt(skyTime) - antenna;
            const char letter = "GR.EC."[int(s.system)];
            if (letter == '.' || los.dot(up) / los.norm() < std::sin(5.0 * rxsim::kDegree))
                continue;
            expected << letter + QByteArray::number(s.prn).rightJustified(2, '0');
            clockTerms << pseudoranges.value(expected.last()) - los.norm();
        }
        std::sort(expected.begin(), expected.end());
        QCOMPARE(pseudoranges.keys(), expected);
        // One clock for all satellites, of a sensible size.
        std::sort(clockTerms.begin(), clockTerms.end());
        QVERIFY2(clockTerms.last() - clockTerms.first() < 3.0 && std::fabs(clockTerms.first()) < 1000.0,
                 qPrintable(QStringLiteral("%1 .. %2 m").arg(clockTerms.first()).arg(clockTerms.last())));
    }
    QCOMPARE(int(std::count_if(lines.begin(), lines.end(), [](const QByteArray &l) { return l.startsWith('>'); })), kSeconds);
}

void RxsimRtcmTest::fixedOnlyWhileValidFramesArrive()
{
    QProcess rxsim;
    rxsim.setReadChannel(QProcess::StandardError);
    rxsim.start(QStringLiteral(RXSIM_EXECUTABLE), {"--mode", "1", "--needs-corrections", "--listen", "0", "--duration", "60"});
    while (!rxsim.canReadLine() && rxsim.waitForReadyRead(kGuardMs)) {
    }
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, quint16(rxsim.readLine().split(':').last().trimmed().toUInt()));
    QVERIFY(socket.waitForConnected(kGuardMs));

    // A base station's second; it also completes a false frame begun in the noise.
    rxsim::BaseStation base(rxsim::PlatformSettings{}, 1, QDateTime(QDate(2024, 5, 20), QTime(2, 0), Qt::UTC));
    const QByteArray valid = base.framesAt(0);
    QByteArray broken = valid.left(25); // 1005 with a bit flipped: its CRC fails
    broken[6] = char(broken.at(6) ^ 0x10);
    QRandomGenerator random(7);
    QElapsedTimer clock;
    clock.start();
    // Noise and damaged frames: never fixed.
    while (clock.elapsed() < 3000) {
        QByteArray noise(512, Qt::Uninitialized);
        random.fillRange(reinterpret_cast<quint32 *>(noise.data()), noise.size() / 4);
        socket.write(broken + noise + broken);
        QCOMPARE(nextSolution(socket), 1);
    }
    // Valid frames once a second for longer than one frame holds: fixed soon, then
    // for as long as they come.
    qint64 lastSent = -1000;
    int solution = 0;
    while (clock.elapsed() < 10000) {
        if (clock.elapsed() - lastSent >= 1000) {
            socket.write(valid);
            lastSent = clock.elapsed();
        }
        QVERIFY(std::exchange(solution, nextSolution(socket)) != 4 || solution == 4); // fixed stays fixed
    }
    QCOMPARE(solution, 4);
    // Silence: single again about 5 s after the last frame.
    while (solution == 4 && clock.elapsed() - lastSent < 9000)
        solution = nextSolution(socket);
    QCOMPARE(solution, 1);
    const qint64 silence = clock.elapsed() - lastSent;
    QVERIFY2(silence >= 4500 && silence <= 7500, qPrintable(QString::number(silence)));
    rxsim.kill();
    rxsim.waitForFinished();
}

QTEST_GUILESS_MAIN(RxsimRtcmTest)
#include "tst_rxsimrtcm.moc"
