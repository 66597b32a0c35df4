// SPDX-License-Identifier: BSD-3-Clause
#include "receiverstate.h"
#include "sessionindex.h"
#include "sessiontrack.h"

#include <QBuffer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr qint64 kStartMs = 1716170400000; // 2024-05-20T02:00:00Z, rxsim's start below

QByteArray rxsim(int mode, int seconds, const QStringList &extra = {}, qint64 startMs = kStartMs)
{
    QProcess process;
    process.start(RXSIM_EXECUTABLE,
                  QStringList{"--mode", QString::number(mode), "--duration", QString::number(seconds), "--seed", "5",
                              "--as-fast-as-possible", "--start",
                              QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC).toString(Qt::ISODate)}
                      + extra);
    process.waitForFinished(60000);
    return process.readAllStandardOutput();
}

bool indexOf(const QByteArray &bytes, SessionIndex *index)
{
    QBuffer buffer;
    buffer.setData(bytes);
    return buffer.open(QIODevice::ReadOnly) && index->build(buffer);
}

QVector<SessionMarker> markersOf(const SessionIndex &index, SessionMarker::Kind kind)
{
    QVector<SessionMarker> found;
    for (const SessionMarker &marker : index.markers()) {
        if (marker.kind == kind)
            found << marker;
    }
    return found;
}

} // namespace

class RecordingTest : public QObject
{
    Q_OBJECT
private slots:
    void epochsOfEveryMode_data();
    void epochsOfEveryMode();
    void qualityMarkersAtTheFloatSpells();
    void kindsThatStopAndComeBack();
    void badInput_data();
    void badInput();
    void cancelledScan();
    void receiverTimes_data();
    void receiverTimes();
    void spans_data();
    void spans();
    void trackAndCutAgree();
};

void RecordingTest::epochsOfEveryMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("faults");
    const QStringList every = {"--corrupt", "0.03", "--truncate", "0.03", "--drop-crlf", "0.03", "--garbage", "0.03"};
    for (const int mode : {0, 1, 2, 7}) {
        QTest::addRow("mode %d", mode) << mode << QStringList();
        QTest::addRow("mode %d, damaged", mode) << mode << every;
    }
}

// One epoch per receiver second, in order, dated, each holding the bytes between two
// seconds. Damage never adds an epoch; a second whose every timed line is lost joins the
// one before.
void RecordingTest::epochsOfEveryMode()
{
    QFETCH(int, mode);
    QFETCH(QStringList, faults);
    const QByteArray bytes = rxsim(mode, 90, faults);
    SessionIndex index;
    QVERIFY(indexOf(bytes, &index));
    QVERIFY(index.hasReceiverTime());
    QVERIFY(index.hasDates());
    QCOMPARE(index.fileSize(), qint64(bytes.size()));
    QVERIFY(index.epochCount() <= 90 && index.epochCount() >= (faults.isEmpty() ? 90 : 85));
    QCOMPARE(index.epochTimeMs(0), kStartMs);
    for (int epoch = 0; epoch < index.epochCount(); ++epoch) {
        if (epoch > 0) {
            const qint64 step = index.epochTimeMs(epoch) - index.epochTimeMs(epoch - 1);
            QVERIFY2(step == 1000 || (!faults.isEmpty() && (step == 2000 || step == 3000)), qPrintable(QString::number(step)));
        }
        QCOMPARE(index.epochAt(index.epochOffset(epoch)), epoch);
        QVERIFY(index.epochEnd(epoch) > index.epochOffset(epoch));
    }
    QCOMPARE(index.epochOffset(0), qint64(0));
    QCOMPARE(index.epochEnd(index.epochCount() - 1), qint64(bytes.size()));
    QVERIFY(index.epochQuality(5) != FixQuality::NoFix);
    QVERIFY(index.epochSatellitesUsed(5) > 4);
}

// The simulated corrections drop out from 200 s to 240 s of every four minutes.
void RecordingTest::qualityMarkersAtTheFloatSpells()
{
    SessionIndex index;
    QVERIFY(indexOf(rxsim(0, 500, {"--corrupt", "0.02"}), &index));
    const QVector<SessionMarker> quality = markersOf(index, SessionMarker::Kind::Quality);
    const QVector<std::pair<int, FixQuality>> expected = {
        {0, FixQuality::RtkFixed}, {200, FixQuality::RtkFloat}, {240, FixQuality::RtkFixed},
        {440, FixQuality::RtkFloat}, {480, FixQuality::RtkFixed}};
    QCOMPARE(quality.size(), expected.size());
    for (int i = 0; i < quality.size(); ++i) {
        QVERIFY2(qAbs(quality.at(i).epoch - expected.at(i).first) <= 1, qPrintable(QString::number(quality.at(i).epoch)));
        QCOMPARE(FixQuality(quality.at(i).value), expected.at(i).second);
        QCOMPARE(index.epochQuality(quality.at(i).epoch), expected.at(i).second);
        if (quality.at(i).epoch > 0)
            QVERIFY(index.epochQuality(quality.at(i).epoch - 1) != expected.at(i).second);
    }
}

// GST switched off for two minutes of a receiver, then on again, on a link that
// damages one line in seven: lost lines are no stop.
void RecordingTest::kindsThatStopAndComeBack()
{
    const QStringList damage = {"--corrupt", "0.15"};
    const QByteArray bytes = rxsim(0, 120, damage) + rxsim(0, 120, damage + QStringList{"--rate", "GST=0"}, kStartMs + 120000)
        + rxsim(0, 60, damage, kStartMs + 240000);
    SessionIndex index;
    QVERIFY(indexOf(bytes, &index));
    const int gst = index.messageKinds().indexOf("GNGST");
    QVERIFY(gst >= 0);
    const QVector<SessionMarker> stopped = markersOf(index, SessionMarker::Kind::KindStopped);
    const QVector<SessionMarker> appeared = markersOf(index, SessionMarker::Kind::KindAppeared);
    QCOMPARE(stopped.size(), 1);
    QCOMPARE(appeared.size(), 1);
    QCOMPARE(stopped.at(0).value, gst);
    QCOMPARE(appeared.at(0).value, gst);
    // The first epoch without it and the first with it again, a damaged line either side.
    QVERIFY2(qAbs(index.epochTimeMs(stopped.at(0).epoch) - (kStartMs + 120000)) <= 2000,
             qPrintable(QString::number(stopped.at(0).epoch)));
    QVERIFY2(qAbs(index.epochTimeMs(appeared.at(0).epoch) - (kStartMs + 240000)) <= 2000,
             qPrintable(QString::number(appeared.at(0).epoch)));
}

void RecordingTest::badInput_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray noise(1 << 20, '\0');
    QRandomGenerator generator(3);
    for (char &byte : noise)
        byte = char(generator.bounded(256));
    // Lines that look like sentences with valid checksums, of ever new kinds.
    QByteArray inventedKinds;
    for (int i = 0; i < 5000; ++i) {
        const QByteArray body = "K" + QByteArray::number(i) + ",1";
        char sum = 0;
        for (const char c : body)
            sum ^= c;
        inventedKinds += "$" + body + "*" + QByteArray::number(uchar(sum), 16).rightJustified(2, '0') + "\r\n";
    }
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("random bytes") << noise;
    QTest::newRow("one line longer than any page takes") << QByteArray(600 << 10, 'x') + "\r\n";
    QTest::newRow("invented kinds") << inventedKinds;
    QTest::newRow("sentences without line ends") << rxsim(0, 5).replace("\r\n", "");
}

// No receiver time to find: one epoch, the whole input; a seek replays all of it.
void RecordingTest::badInput()
{
    QFETCH(QByteArray, bytes);
    SessionIndex index;
    QVERIFY(indexOf(bytes, &index));
    QCOMPARE(index.epochCount(), 1);
    QVERIFY(!index.hasReceiverTime());
    QCOMPARE(index.epochEnd(0), qint64(bytes.size()));
    const SeekPlan plan = index.planSeek(0);
    QCOMPARE(plan.endOffset, qint64(bytes.size()));
    QCOMPARE(plan.pagesFrom, qint64(0));
    QVERIFY(index.messageKinds().size() <= 1024);
}

void RecordingTest::cancelledScan()
{
    QBuffer buffer;
    buffer.setData(rxsim(0, 30));
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    std::atomic_bool cancel{true};
    SessionIndex index;
    QString error = QStringLiteral("untouched");
    QVERIFY(!index.build(buffer, &cancel, {}, &error));
    QVERIFY(error.isEmpty());
    QCOMPARE(index.epochCount(), 0);
}

void RecordingTest::receiverTimes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<qint64>("ms");
    QTest::addColumn<bool>("timeOfDayOnly");
    QTest::newRow("time of day") << "14:32:05" << true << qint64(52325000) << true;
    QTest::newRow("tenths") << "14:32:05.2" << true << qint64(52325200) << true;
    QTest::newRow("thousandths") << " 00:00:00.001 " << true << qint64(1) << true;
    QTest::newRow("minutes only") << "23:59" << true << qint64(86340000) << true;
    QTest::newRow("hour 24") << "24:00:00" << false << qint64(0) << false;
    QTest::newRow("second 60") << "12:00:60" << false << qint64(0) << false;
    QTest::newRow("ISO, UTC implied") << "2024-05-20T02:00:01" << true << kStartMs + 1000 << false;
    QTest::newRow("ISO with Z") << "2024-05-20T02:00:00Z" << true << kStartMs << false;
    QTest::newRow("ISO with offset") << "2024-05-20T04:00:00+02:00" << true << kStartMs << false;
    QTest::newRow("date alone") << "2024-05-20" << false << qint64(0) << false;
    QTest::newRow("words") << "noon" << false << qint64(0) << false;
}

void RecordingTest::receiverTimes()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QFETCH(qint64, ms);
    QFETCH(bool, timeOfDayOnly);
    qint64 parsed = 0;
    bool parsedTimeOfDay = false;
    QCOMPARE(parseReceiverTime(text, &parsed, &parsedTimeOfDay), valid);
    if (valid) {
        QCOMPARE(parsed, ms);
        QCOMPARE(parsedTimeOfDay, timeOfDayOnly);
    }
}

void RecordingTest::spans_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("first"); // -1: refused
    QTest::addColumn<int>("last");
    // Epochs every second from 23:59:50 to 00:00:09 (20), across midnight.
    QTest::newRow("whole") << "" << "" << 0 << 19;
    QTest::newRow("from a time of day") << "23:59:55" << "" << 5 << 19;
    QTest::newRow("across midnight") << "23:59:58" << "00:00:02" << 8 << 12;
    QTest::newRow("between epochs: the next one") << "23:59:55.5" << "23:59:57.5" << 6 << 7;
    QTest::newRow("dated") << "2024-05-20T00:00:00" << "2024-05-20T00:00:00Z" << 10 << 10;
    QTest::newRow("before the start") << "23:00:00" << "" << -1 << 0;
    QTest::newRow("after the end") << "" << "00:00:30" << -1 << 0;
    QTest::newRow("another day") << "2024-05-21T00:00:00" << "" << -1 << 0;
    QTest::newRow("end before start") << "00:00:05" << "23:59:55" << -1 << 0;
    QTest::newRow("not a time") << "5pm" << "" << -1 << 0;
}

void RecordingTest::spans()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(int, first);
    QFETCH(int, last);
    SessionIndex index;
    const qint64 start = QDateTime(QDate(2024, 5, 19), QTime(23, 59, 50), Qt::UTC).toMSecsSinceEpoch();
    for (int epoch = 0; epoch < 20; ++epoch)
        index.appendEpoch(epoch * 100, start + epoch * 1000, FixQuality::Single, 8);
    index.setFileSize(2000);
    int gotFirst = 0, gotLast = 0;
    QString reason;
    QCOMPARE(epochSpan(index, from, to, &gotFirst, &gotLast, &reason), first >= 0);
    if (first < 0) {
        QVERIFY(!reason.isEmpty());
        return;
    }
    QCOMPARE(gotFirst, first);
    QCOMPARE(gotLast, last);
}

// The positions of a span are those a receiver state shows at each epoch's end when it
// plays the whole recording; the raw cut of the span is indexed into the same epochs
// and gives the same positions.
void RecordingTest::trackAndCutAgree()
{
    const QByteArray bytes = rxsim(2, 200, {"--corrupt", "0.02", "--truncate", "0.02", "--garbage", "0.02"});
    QBuffer recording;
    recording.setData(bytes);
    QVERIFY(recording.open(QIODevice::ReadOnly));
    SessionIndex index;
    QVERIFY(index.build(recording));
    const int first = 150, last = 180;
    QVector<TrackPoint> points;
    QString error;
    QVERIFY2(collectTrack(recording, index, first, last, &points, &error), qPrintable(error));
    QCOMPARE(points.size(), last - first + 1);

    ReceiverState played;
    played.feed(bytes.left(int(index.epochOffset(first))));
    for (int epoch = first; epoch <= last; ++epoch) {
        played.feed(bytes.mid(int(index.epochOffset(epoch)), int(index.epochEnd(epoch) - index.epochOffset(epoch))));
        const TrackPoint &point = points.at(epoch - first);
        QCOMPARE(point.timeMs, index.epochTimeMs(epoch));
        QCOMPARE(point.lat, played.fix().lat);
        QCOMPARE(point.lon, played.fix().lon);
        QCOMPARE(point.heightEllipsoid, played.fix().heightEllipsoid);
        QCOMPARE(point.quality, played.fix().quality);
        QCOMPARE(point.satellitesUsed, played.fix().satellitesUsed);
    }

    QBuffer cut;
    QVERIFY(cut.open(QIODevice::ReadWrite));
    QVERIFY(copyEpochs(recording, index, first, last, cut, &error));
    QCOMPARE(cut.data(), bytes.mid(int(index.epochOffset(first)), int(index.epochEnd(last) - index.epochOffset(first))));
    SessionIndex cutIndex;
    QVERIFY(cut.seek(0) && cutIndex.build(cut));
    QCOMPARE(cutIndex.epochCount(), last - first + 1);
    QVector<TrackPoint> cutPoints;
    QVERIFY(collectTrack(cut, cutIndex, 0, cutIndex.epochCount() - 1, &cutPoints, &error));
    QCOMPARE(cutPoints.size(), points.size());
    for (int i = 0; i < points.size(); ++i) {
        QCOMPARE(cutPoints.at(i).timeMs, points.at(i).timeMs);
        QCOMPARE(cutPoints.at(i).lat, points.at(i).lat);
        QCOMPARE(cutPoints.at(i).quality, points.at(i).quality);
    }
}

QTEST_APPLESS_MAIN(RecordingTest)
#include "tst_recording.moc"
