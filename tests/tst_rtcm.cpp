// SPDX-License-Identifier: BSD-3-Clause
// The correction stream's figures from real receivers' RTCM 3 (gpsd's captures, also decoded
// by RTKLIB's convbin) and from frames built here at the edges.
#include "correctionstatistics.h"

#include <GeographicLib/Geocentric.hpp>

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <bitset>
#include <cmath>

namespace {

// Fields appended most significant bit first, as the frames carry them.
struct Bits
{
    QByteArray bytes;
    int used = 0;
    Bits &add(quint64 value, int count)
    {
        for (int i = count - 1; i >= 0; --i, ++used) {
            if (used % 8 == 0)
                bytes.append('\0');
            if (i < 64 && (value >> i & 1))
                bytes[used / 8] = char(bytes[used / 8] | 0x80 >> used % 8);
        }
        return *this;
    }
};

// Bit by bit, apart from the framer's table.
quint32 slowCrc24q(const QByteArray &bytes)
{
    quint32 crc = 0;
    for (const char c : bytes) {
        crc ^= quint32(uchar(c)) << 16;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc << 1 ^ (crc & 0x800000 ? 0x1864CFB : 0);
    }
    return crc & 0xFFFFFF;
}

QByteArray frame(const QByteArray &payload)
{
    QByteArray bytes = QByteArray(1, char(0xD3)) + char(payload.size() >> 8) + char(payload.size()) + payload;
    const quint32 crc = slowCrc24q(bytes);
    return bytes + char(crc >> 16) + char(crc >> 8) + char(crc);
}

// The payloads of the CRC-valid frames, found without the framer.
QVector<QByteArray> payloadsOf(const QByteArray &stream)
{
    QVector<QByteArray> payloads;
    for (int at = 0; at + 6 <= stream.size(); ++at) {
        const int length = (uchar(stream[at + 1]) & 3) << 8 | uchar(stream[at + 2]);
        const QByteArray crc = stream.mid(at + 3 + length, 3);
        if (uchar(stream[at]) == 0xD3 && crc.size() == 3
            && slowCrc24q(stream.mid(at, 3 + length)) == quint32(uchar(crc[0]) << 16 | uchar(crc[1]) << 8 | uchar(crc[2]))) {
            payloads.append(stream.mid(at + 3, length));
            at += length + 5;
        }
    }
    return payloads;
}

QByteArray msmPayload(int type, quint32 epoch, bool more, quint64 satellites, quint32 signalMask, quint64 cellMask, int dataBits)
{
    const int maskBits = int(std::bitset<64>(satellites).count() * std::bitset<32>(signalMask).count());
    Bits bits;
    bits.add(type, 12).add(7, 12).add(epoch, 30).add(more, 1).add(0, 18).add(satellites, 64).add(signalMask, 32);
    return bits.add(0, qMax(0, maskBits - 64)).add(cellMask, qMin(64, maskBits)).add(0, dataBits).bytes;
}

QByteArray referencePayload(int type, double lat, double lon, double height, double antennaHeight)
{
    double x, y, z;
    GeographicLib::Geocentric::WGS84().Forward(lat, lon, height, x, y, z);
    Bits bits;
    bits.add(type, 12).add(3, 12).add(0, 10).add(quint64(std::llround(x * 1e4)), 38).add(0, 2);
    bits.add(quint64(std::llround(y * 1e4)), 38).add(0, 2).add(quint64(std::llround(z * 1e4)), 38);
    return type == 1006 ? bits.add(quint64(std::llround(antennaHeight * 1e4)), 16).bytes : bits.bytes;
}

QMap<int, qint64> countsOf(const CorrectionSnapshot &snapshot)
{
    QMap<int, qint64> counts;
    for (const CorrectionTypeFigures &figures : snapshot.messageTypes)
        counts[figures.messageType] = figures.count;
    return counts;
}

CorrectionSnapshot fed(const QByteArray &stream, int chunkSize = 97)
{
    CorrectionStatistics statistics;
    for (int at = 0; at < stream.size(); at += chunkSize)
        statistics.feed(stream.constData() + at, qMin(chunkSize, stream.size() - at), at);
    return statistics.snapshot(stream.size());
}

QByteArray capture(const QString &name)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestRtcm : public QObject
{
    Q_OBJECT

private slots:
    void framesPerType_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file : {"rtcm3.log", "rtcm3.2-excerpt.log", "ublox-f9p-rtcm.log", "ublox-zed-f9t-rtcm3-excerpt.log"})
            QTest::newRow(file) << QString::fromLatin1(file);
    }

    void framesPerType()
    {
        QFETCH(QString, file);
        const QByteArray stream = capture(file);
        QMap<int, qint64> expected;
        const QVector<QByteArray> payloads = payloadsOf(stream);
        for (const QByteArray &payload : payloads)
            ++expected[uchar(payload[0]) << 4 | uchar(payload[1]) >> 4];
        QVERIFY(expected.size() >= 2);
        const CorrectionSnapshot snapshot = fed(stream);
        QCOMPARE(countsOf(snapshot), expected);
        QCOMPARE(snapshot.frames, qint64(payloads.size()));
        QCOMPARE(snapshot.bytes, qint64(stream.size()));
    }

    void againstRtklib_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *file : {"rtcm3.2-excerpt.log", "ublox-f9p-rtcm.log", "ublox-zed-f9t-rtcm3-excerpt.log"})
            QTest::newRow(file) << QString::fromLatin1(file);
    }

    // The reference point (convbin's APPROX POSITION XYZ, from 1005/1006) and, for the first
    // epochs convbin writes, each system's satellites: the same set as one of the MSMs of
    // that system, in stream order (convbin drops the parts of an epoch whose times disagree).
    void againstRtklib()
    {
        QFETCH(QString, file);
        const QString convbin = QStandardPaths::findExecutable(QStringLiteral("convbin"));
        if (convbin.isEmpty())
            QSKIP("RTKLIB's convbin (Debian package rtklib) is not installed: nothing to compare with");
        // Only the station and MSM frames, so that the epochs convbin writes come from MSMs
        // (the F9P sends legacy observables of other epochs alongside).
        QTemporaryDir dir;
        QFile input(dir.filePath(QStringLiteral("msm.rtcm3")));
        QVERIFY(input.open(QIODevice::WriteOnly));
        const QVector<QByteArray> payloads = payloadsOf(capture(file));
        for (const QByteArray &payload : payloads) {
            const int type = uchar(payload[0]) << 4 | uchar(payload[1]) >> 4;
            if (type == 1005 || type == 1006 || (type > 1070 && type < 1140))
                input.write(frame(payload));
        }
        input.close();
        QProcess process;
        process.start(convbin, {QStringLiteral("-r"), QStringLiteral("rtcm3"), input.fileName(),
                                QStringLiteral("-o"), dir.filePath(QStringLiteral("out.obs")), QStringLiteral("-d"), dir.path()});
        QVERIFY(process.waitForFinished(60000));
        QFile obs(dir.filePath(QStringLiteral("out.obs")));
        QVERIFY(obs.open(QIODevice::ReadOnly | QIODevice::Text));
        const QString systemLetters = QStringLiteral("GRESJCI");
        QVector<QMap<QChar, QSet<int>>> epochs;
        QVector<double> approx;
        bool inEpoch = false;
        while (!obs.atEnd() && epochs.size() <= 10) {
            const QString line = QString::fromLatin1(obs.readLine());
            if (line.contains(QLatin1String("APPROX POSITION XYZ")) && approx.isEmpty()) {
                for (const QString &field : line.left(42).split(QLatin1Char(' '), Qt::SkipEmptyParts))
                    approx.append(field.toDouble());
            } else if (line.startsWith(QLatin1Char('>'))) {
                inEpoch = line.mid(31, 1) == QLatin1String("0");
                if (inEpoch)
                    epochs.append(QMap<QChar, QSet<int>>());
            } else if (inEpoch && systemLetters.contains(line.at(0)) && line.mid(1, 2).trimmed().toInt() > 0) {
                epochs.last()[line.at(0)].insert(line.mid(1, 2).toInt());
            }
        }
        QVERIFY(epochs.size() >= 2);
        const CorrectionSnapshot snapshot = fed(capture(file));
        QCOMPARE(approx.size(), 3);
        QCOMPARE(snapshot.referenceValid, approx != QVector<double>(3, 0.0));
        if (snapshot.referenceValid) {
            QVERIFY(qAbs(snapshot.referenceX - approx[0]) < 5e-4);
            QVERIFY(qAbs(snapshot.referenceY - approx[1]) < 5e-4);
            QVERIFY(qAbs(snapshot.referenceZ - approx[2]) < 5e-4);
        }
        QMap<QChar, QVector<QSet<int>>> decoded;
        for (const QByteArray &payload : payloads) {
            if (const auto msm = decodeMsmHeader(reinterpret_cast<const uchar *>(payload.constData()), payload.size())) {
                QSet<int> satellites;
                for (int id = 1; id <= 64; ++id) {
                    if (msm->satelliteMask >> (64 - id) & 1)
                        satellites.insert(msm->system == Rtcm3System::SBAS ? id + 19 : id);
                }
                QCOMPARE(satellites.size(), msm->satelliteCount);
                decoded[systemLetters.at(int(msm->system))].append(satellites);
            }
        }
        QMap<QChar, int> next;
        for (const auto &epoch : qAsConst(epochs)) {
            for (auto system = epoch.cbegin(); system != epoch.cend(); ++system) {
                const QVector<QSet<int>> &sets = decoded.value(system.key());
                int &at = next[system.key()];
                while (at < sets.size() && sets[at] != system.value())
                    ++at;
                QVERIFY2(at++ < sets.size(), qPrintable(QStringLiteral("%1 in epoch %2").arg(system.key()).arg(epochs.indexOf(epoch))));
            }
        }
    }

    void framing_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("crcFailures");
        QTest::addColumn<int>("skippedBytes");
        QTest::addColumn<QList<int>>("types");
        const QByteArray good = frame(referencePayload(1005, 10, 20, 30, 0));
        QByteArray damaged = good;
        damaged[8] = char(damaged[8] ^ 0x10);
        QTest::newRow("CRC failure, then a good frame") << damaged + good << 1 << 1 << good.size() << QList<int>{1005};
        QTest::newRow("false preamble in noise") << QByteArray::fromHex("1122d300024050010203") + good << 1 << 1 << 10 << QList<int>{1005};
        QTest::newRow("false preamble over a frame") << QByteArray::fromHex("d30010") + good << 1 << 1 << 3 << QList<int>{1005};
        QTest::newRow("length 0") << frame({}) << 1 << 0 << 0 << QList<int>{};
        QTest::newRow("length 1023") << frame(Bits().add(1029, 12).bytes + QByteArray(1021, ' ')) << 1 << 0 << 0 << QList<int>{1029};
        QTest::newRow("cut short") << good.left(good.size() - 1) << 0 << 0 << 0 << QList<int>{};
    }

    void framing()
    {
        QFETCH(QByteArray, stream);
        const CorrectionSnapshot snapshot = fed(stream, 5);
        QTEST(int(snapshot.frames), "frames");
        QTEST(int(snapshot.crcFailures), "crcFailures");
        QTEST(int(snapshot.skippedBytes), "skippedBytes");
        QTEST(countsOf(snapshot).keys(), "types");
    }

    void msmHeader_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<quint64>("satelliteMask");
        QTest::addColumn<quint32>("signalMask");
        QTest::addColumn<quint64>("cellMask");
        QTest::addColumn<int>("dataBits");
        QTest::addColumn<int>("satellites"); // -1: refused
        QTest::addColumn<int>("cells");
        const quint64 three = 0x7ull << 20;
        QTest::newRow("MSM7 with its data") << 1077 << three << 0x3u << quint64(0x3F) << 3 * 36 + 6 * 80 << 3 << 6;
        QTest::newRow("MSM7 a byte short") << 1077 << three << 0x3u << quint64(0x3F) << 3 * 36 + 6 * 80 - 8 << -1 << 0;
        QTest::newRow("truncated MSM4: masks, no data") << 1074 << three << 0xFu << quint64(0xFFF) << 0 << -1 << 0;
        QTest::newRow("half the cells observed") << 1134 << three << 0x3u << quint64(0x2A) << 3 * 18 + 3 * 48 << 3 << 3;
        QTest::newRow("64 satellites") << 1081 << ~0ull << 0x1u << ~0ull << 64 * 10 + 64 * 15 << 64 << 64;
        QTest::newRow("64 cells, 32 by 2") << 1091 << 0xFFFFFFFFull << 0x3u << ~0ull << 32 * 10 + 64 * 15 << 32 << 64;
        QTest::newRow("66 cells") << 1101 << 0x1FFFFFFFFull << 0x3u << ~0ull << 33 * 10 + 66 * 15 << -1 << 0;
        QTest::newRow("1078 is no MSM") << 1078 << three << 0x3u << quint64(0x3F) << 1000 << -1 << 0;
    }

    void msmHeader()
    {
        QFETCH(int, type);
        QFETCH(quint64, satelliteMask);
        QFETCH(quint32, signalMask);
        QFETCH(quint64, cellMask);
        QFETCH(int, dataBits);
        QFETCH(int, satellites);
        QFETCH(int, cells);
        const QByteArray payload = msmPayload(type, 1, false, satelliteMask, signalMask, cellMask, dataBits);
        const auto msm = decodeMsmHeader(reinterpret_cast<const uchar *>(payload.constData()), payload.size());
        QCOMPARE(msm.has_value(), satellites >= 0);
        const CorrectionSnapshot snapshot = fed(frame(payload));
        if (msm) {
            QCOMPARE(msm->satelliteCount, satellites);
            QCOMPARE(msm->cellCount, cells);
            QCOMPARE(snapshot.systems[size_t(msm->system)].messageType, type);
        }
        for (const CorrectionSystemFigures &system : snapshot.systems)
            QCOMPARE(system.satelliteCount, system.messageType == type ? satellites : 0);
    }

    void referencePoint_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("lat");
        QTest::addColumn<double>("lon");
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("antennaHeight");
        QTest::newRow("1005 north-east") << 1005 << 48.137 << 11.575 << 519.2 << qQNaN();
        QTest::newRow("1006 south-west, below the ellipsoid") << 1006 << -33.45 << -70.66 << -25.5 << 1.25;
        QTest::newRow("1006 highest antenna") << 1006 << 0.5 << 179.9 << 8000.0 << 6.5535;
    }

    void referencePoint()
    {
        QFETCH(int, type);
        QFETCH(double, lat);
        QFETCH(double, lon);
        QFETCH(double, height);
        QFETCH(double, antennaHeight);
        const CorrectionSnapshot snapshot = fed(frame(referencePayload(type, lat, lon, height, antennaHeight)));
        QVERIFY(snapshot.referenceValid);
        QVERIFY(qAbs(snapshot.referenceLat - lat) < 1e-8 && qAbs(snapshot.referenceLon - lon) < 1e-8);
        QVERIFY(qAbs(snapshot.referenceHeight - height) < 1e-3);
        QCOMPARE(std::isnan(snapshot.antennaHeight), std::isnan(antennaHeight));
        QVERIFY(!(qAbs(snapshot.antennaHeight - antennaHeight) > 1e-6));
        QCOMPARE(snapshot.stationId, 3);
        QVERIFY(qAbs(baselineMetres(snapshot, lat, lon, height + 100) - 100) < 1e-3);
        QVERIFY(std::isnan(baselineMetres(snapshot, lat, qQNaN(), height)));
    }

    // Satellites split over the parts of one epoch count together; the next epoch starts afresh.
    void multipleMessageEpoch()
    {
        const QByteArray firstPart = frame(msmPayload(1074, 1000, true, 0x7ull << 61, 0x1u, 0x7, 3 * 18 + 3 * 48));
        const QByteArray secondPart = frame(msmPayload(1074, 1000, false, 0x3ull << 40, 0x1u, 0x3, 2 * 18 + 2 * 48));
        const QByteArray nextEpoch = frame(msmPayload(1074, 2000, false, 0x1ull << 50, 0x1u, 0x1, 18 + 48));
        QCOMPARE(fed(firstPart + secondPart).systems[0].satelliteCount, 5);
        QCOMPARE(fed(firstPart + secondPart + nextEpoch).systems[0].satelliteCount, 1);
        QCOMPARE(fed(secondPart + secondPart).systems[0].satelliteCount, 2);
    }

    void reportRateAndReset()
    {
        CorrectionStatistics statistics;
        const QByteArray reference = frame(referencePayload(1005, 1, 2, 3, 0));
        statistics.feed(reference.constData(), reference.size(), 0);
        const QByteArray msm = frame(msmPayload(1074, 0, false, 1ull << 63, 0x1u, 0x1, 18 + 48));
        for (qint64 ms = 0; ms < 20000; ms += 1000)
            statistics.feed(msm.constData(), msm.size(), ms);
        CorrectionSnapshot snapshot = statistics.snapshot(19500);
        QCOMPARE(snapshot.lastFrameAgeMs, 500);
        QCOMPARE(snapshot.messageTypes.last().rateHz, 1.0);
        QCOMPARE(snapshot.messageTypes.last().name, QStringLiteral("GPS MSM4"));
        const QByteArray expected = QStringLiteral(R"({"bytes": %1, "frames": 21, "crcFailures": 0, "messageTypes": {"1005": 1, "1074": 20}, "stationId": 7})")
                                        .arg(reference.size() + 20 * msm.size()).toLatin1();
        QCOMPARE(correctionsReport(snapshot), QJsonDocument::fromJson(expected).object());
        statistics.reset();
        snapshot = statistics.snapshot(20000);
        QCOMPARE(correctionsReport(snapshot), QJsonDocument::fromJson(R"({"bytes": 0, "frames": 0, "crcFailures": 0, "messageTypes": {}, "stationId": null})").object());
        QVERIFY(!snapshot.referenceValid && snapshot.lastFrameAgeMs == -1 && snapshot.systems[0].satelliteCount == 0);
        QVERIFY(std::isnan(baselineMetres(snapshot, 1, 2, 3)));
    }
};

QTEST_GUILESS_MAIN(TestRtcm)
#include "tst_rtcm.moc"
