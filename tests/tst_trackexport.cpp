// SPDX-License-Identifier: BSD-3-Clause
#include "trackexport.h"

#include <QtTest>

#include <cerrno>
#include <cstring>

Q_DECLARE_METATYPE(QVector<TrackPoint>)

namespace {

constexpr qint64 kStartMs = 1716170400200; // 2024-05-20T02:00:00.200Z
const QVector<TrackFormat> kFormats = {TrackFormat::Csv, TrackFormat::Gpx, TrackFormat::Kml};

TrackPoint point(int second, double lat, double lon, FixQuality quality)
{
    return {kStartMs + second * 1000, lat, lon, 120.12345 + second, 168.5, quality, 12, 0.875, 0.01234, 0.02, 0.03456};
}

QJsonValue known(double value) { return std::isfinite(value) ? QJsonValue(value) : QJsonValue(); }

// What the reader compares the files with (see trackexport_read.py).
QByteArray pointsJson(const QVector<TrackPoint> &points, const QString &name)
{
    QJsonArray list;
    for (const TrackPoint &p : points)
        list.append(QJsonArray{double(p.timeMs), known(p.lat), known(p.lon), known(p.heightMsl), known(p.heightEllipsoid),
                               int(p.quality), fixQualityName(p.quality), p.satellitesUsed < 0 ? QJsonValue() : p.satellitesUsed,
                               known(p.hdop), known(p.sdLat), known(p.sdLon), known(p.sdHeight), double(fixQualityRgb(p.quality))});
    return QJsonDocument(QJsonObject{{"name", name}, {"points", list}}).toJson();
}

} // namespace

class TrackExportTest : public QObject
{
    Q_OBJECT
private slots:
    void readBack_data();
    void readBack();
    void failingDevice_data();
    void failingDevice();
};

void TrackExportTest::readBack_data()
{
    QTest::addColumn<QVector<TrackPoint>>("points");
    QTest::addColumn<QString>("name");

    const TrackPoint noPosition{kStartMs};
    // Runs of two points of each quality, with points that have no place on the globe among them.
    QVector<TrackPoint> runs = {noPosition, point(0, 95, 20, FixQuality::Single)};
    for (const FixQuality quality : allFixQualities())
        runs << point(runs.size(), 10 + runs.size(), 20, quality) << noPosition << point(runs.size(), 10 + runs.size(), 20, quality);

    QTest::newRow("no points") << QVector<TrackPoint>() << "empty";
    QTest::newRow("one point") << QVector<TrackPoint>{point(0, 47.123456789, 8.987654321, FixQuality::RtkFixed)} << "one";
    QTest::newRow("unknown values")
        << QVector<TrackPoint>{{kStartMs, 47.1, 8.5, kUnknown, 168.5, FixQuality::Single}, {kStartMs, 47.2, 8.5}} << "unknowns";
    QTest::newRow("south and west") << QVector<TrackPoint>{point(0, -33.912345678, -70.5, FixQuality::Dgnss),
                                                            point(1, -0.000000001, -179.999999999, FixQuality::Dgnss)}
                                    << "south west";
    QTest::newRow("name with markup") << QVector<TrackPoint>{point(0, 1, 2, FixQuality::Single)}
                                      << QString("a<b>&\"c\" \x01'd'");
    QTest::newRow("runs of every quality") << runs << "runs";
}

void TrackExportTest::readBack()
{
    QFETCH(QVector<TrackPoint>, points);
    QFETCH(QString, name);
    const QString python = QStandardPaths::findExecutable("python3");
    if (python.isEmpty())
        QSKIP("python3 is missing: the files are read back with its csv and xml modules");
    QStringList arguments = {TEST_SOURCE_DIR "/trackexport_read.py"};
    QTemporaryDir dir;
    for (const TrackFormat format : kFormats) {
        QFile file(dir.filePath(QString::number(int(format))));
        QString error;
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY2(writeTrack(file, format, points, name, &error), qPrintable(error));
        arguments << file.fileName();
    }
    QProcess reader;
    reader.start(python, arguments);
    reader.write(pointsJson(points, name));
    reader.closeWriteChannel();
    QVERIFY(reader.waitForFinished(60000));
    QVERIFY2(reader.exitStatus() == QProcess::NormalExit && reader.exitCode() == 0, reader.readAllStandardError().constData());
}

void TrackExportTest::failingDevice_data()
{
    QTest::addColumn<QString>("path"); // none: a read-only buffer
    QTest::addColumn<QString>("reason");

    QTest::newRow("read-only buffer") << QString() << "not open for writing";
    QTest::newRow("full disk") << "/dev/full" << QString::fromLocal8Bit(std::strerror(ENOSPC));
}

void TrackExportTest::failingDevice()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    for (const TrackFormat format : kFormats) {
        QBuffer buffer;
        QFile file(path);
        QIODevice &out = path.isEmpty() ? static_cast<QIODevice &>(buffer) : file;
        QVERIFY(out.open(path.isEmpty() ? QIODevice::ReadOnly : QIODevice::WriteOnly));
        QString error;
        QVERIFY(!writeTrack(out, format, {point(0, 1, 2, FixQuality::Single)}, "", &error));
        QVERIFY2(error.contains(reason), qPrintable(error));
    }
}

QTEST_GUILESS_MAIN(TrackExportTest)
#include "tst_trackexport.moc"
