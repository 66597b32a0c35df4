// SPDX-License-Identifier: BSD-3-Clause
#include "trackexport.h"

#include <QDateTime>
#include <QFileDevice>
#include <QIODevice>
#include <QXmlStreamWriter>

#include <cmath>

namespace {

constexpr int kDegreeDecimals = 9; // 0.1 mm on the ground
constexpr int kHeightDecimals = 4;
constexpr int kHdopDecimals = 2;
constexpr int kSigmaDecimals = 4;
// CSV rows go to the device in pieces of about this size: a day at 20 Hz is too
// much text to hold at once.
constexpr int kCsvChunkChars = 64 * 1024;
constexpr int kKmlLineWidth = 3;

const QString kGpxNamespace = QStringLiteral("http://www.topografix.com/GPX/1/1");
const QString kKmlNamespace = QStringLiteral("http://www.opengis.net/kml/2.2");
const QString kCsvHeader = QStringLiteral("time_utc,lat_deg,lon_deg,height_msl_m,height_ellipsoid_m,quality,quality_name,"
                                          "satellites_used,hdop,sd_lat_m,sd_lon_m,sd_height_m\r\n");

// Also false for NaN and infinities: neither GPX nor KML can place such a point.
bool hasPosition(const TrackPoint &point) { return std::abs(point.lat) <= 90 && std::abs(point.lon) <= 180; }

// Empty for an unknown value (NaN, or an infinity from a broken source).
QString number(double value, int decimals)
{
    return std::isfinite(value) ? QString::number(value, 'f', decimals) : QString();
}

QString satellites(const TrackPoint &point)
{
    return point.satellitesUsed >= 0 ? QString::number(point.satellitesUsed) : QString();
}

QString isoTime(qint64 timeMs) { return QDateTime::fromMSecsSinceEpoch(timeMs, Qt::UTC).toString(Qt::ISODateWithMs); }

// Above sea level where the receiver gave it, as GPX and KML mean their heights.
double altitude(const TrackPoint &point)
{
    return std::isfinite(point.heightMsl) ? point.heightMsl : point.heightEllipsoid;
}

QString csvField(const QString &text)
{
    for (const QChar c : text) {
        if (c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\r') || c == QLatin1Char('\n'))
            return QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
    }
    return text;
}

bool writeChunk(QIODevice &out, QString *pending)
{
    const QByteArray bytes = pending->toUtf8();
    pending->resize(0);
    return out.write(bytes) == bytes.size();
}

bool writeCsv(QIODevice &out, const QVector<TrackPoint> &points)
{
    QString pending = kCsvHeader;
    for (const TrackPoint &point : points) {
        const QString fields[] = {
            isoTime(point.timeMs),
            number(point.lat, kDegreeDecimals),
            number(point.lon, kDegreeDecimals),
            number(point.heightMsl, kHeightDecimals),
            number(point.heightEllipsoid, kHeightDecimals),
            QString::number(int(point.quality)),
            csvField(fixQualityName(point.quality)),
            satellites(point),
            number(point.hdop, kHdopDecimals),
            number(point.sdLat, kSigmaDecimals),
            number(point.sdLon, kSigmaDecimals),
            number(point.sdHeight, kSigmaDecimals),
        };
        for (const QString &field : fields)
            pending += field + QLatin1Char(',');
        pending.chop(1);
        pending += QLatin1String("\r\n");
        if (pending.size() >= kCsvChunkChars && !writeChunk(out, &pending))
            return false;
    }
    return writeChunk(out, &pending);
}

// XML 1.0 cannot carry most control characters, not even escaped: a name loses them.
QString xmlText(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar c : text) {
        if (c.unicode() >= 0x20 || c == QLatin1Char('\t') || c == QLatin1Char('\n'))
            kept += c;
    }
    return kept;
}

void startDocument(QXmlStreamWriter &xml, const QString &root, const QString &nameSpace)
{
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(root);
    xml.writeDefaultNamespace(nameSpace);
}

// GPX knows only these words: what kept the position corrected counts as dgps.
QString gpxFix(FixQuality quality)
{
    switch (quality) {
    case FixQuality::NoFix: return QStringLiteral("none");
    case FixQuality::Pps: return QStringLiteral("pps");
    case FixQuality::Dgnss:
    case FixQuality::Sbas:
    case FixQuality::RtkFixed:
    case FixQuality::RtkFloat:
    case FixQuality::Ppp: return QStringLiteral("dgps");
    case FixQuality::Single:
    case FixQuality::DeadReckoning:
    case FixQuality::Manual:
    case FixQuality::Simulation: break;
    }
    return QStringLiteral("3d");
}

void writeTextIfKnown(QXmlStreamWriter &xml, const QString &element, const QString &text)
{
    if (!text.isEmpty())
        xml.writeTextElement(element, text);
}

bool writeGpx(QIODevice &out, const QVector<TrackPoint> &points, const QString &name)
{
    QXmlStreamWriter xml(&out);
    startDocument(xml, QStringLiteral("gpx"), kGpxNamespace);
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.1"));
    xml.writeAttribute(QStringLiteral("creator"), QStringLiteral("msgview"));
    xml.writeStartElement(QStringLiteral("metadata"));
    xml.writeTextElement(QStringLiteral("name"), name);
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("trk"));
    xml.writeTextElement(QStringLiteral("name"), name);
    xml.writeStartElement(QStringLiteral("trkseg"));
    for (const TrackPoint &point : points) {
        if (!hasPosition(point))
            continue;
        // The order of the children is the schema's.
        xml.writeStartElement(QStringLiteral("trkpt"));
        xml.writeAttribute(QStringLiteral("lat"), number(point.lat, kDegreeDecimals));
        xml.writeAttribute(QStringLiteral("lon"), number(point.lon, kDegreeDecimals));
        writeTextIfKnown(xml, QStringLiteral("ele"), number(altitude(point), kHeightDecimals));
        writeTextIfKnown(xml, QStringLiteral("time"), isoTime(point.timeMs));
        xml.writeTextElement(QStringLiteral("fix"), gpxFix(point.quality));
        writeTextIfKnown(xml, QStringLiteral("sat"), satellites(point));
        writeTextIfKnown(xml, QStringLiteral("hdop"), number(point.hdop, kHdopDecimals));
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return !xml.hasError();
}

QString kmlStyleId(FixQuality quality) { return QStringLiteral("quality-%1").arg(int(quality)); }

// KML writes colours as aabbggrr.
QString kmlColour(FixQuality quality)
{
    const quint32 rgb = fixQualityRgb(quality);
    return QStringLiteral("ff%1%2%3")
        .arg(rgb & 0xff, 2, 16, QLatin1Char('0'))
        .arg((rgb >> 8) & 0xff, 2, 16, QLatin1Char('0'))
        .arg((rgb >> 16) & 0xff, 2, 16, QLatin1Char('0'));
}

QString kmlCoordinate(const TrackPoint &point)
{
    QString tuple = number(point.lon, kDegreeDecimals) + QLatin1Char(',') + number(point.lat, kDegreeDecimals);
    const double height = altitude(point);
    if (std::isfinite(height))
        tuple += QLatin1Char(',') + number(height, kHeightDecimals);
    return tuple + QLatin1Char(' ');
}

void writeKmlStyles(QXmlStreamWriter &xml, const QVector<const TrackPoint *> &track)
{
    QVector<FixQuality> qualities;
    for (const TrackPoint *point : track) {
        if (!qualities.contains(point->quality))
            qualities << point->quality;
    }
    for (const FixQuality quality : qualities) {
        xml.writeStartElement(QStringLiteral("Style"));
        xml.writeAttribute(QStringLiteral("id"), kmlStyleId(quality));
        xml.writeStartElement(QStringLiteral("LineStyle"));
        xml.writeTextElement(QStringLiteral("color"), kmlColour(quality));
        xml.writeTextElement(QStringLiteral("width"), QString::number(kKmlLineWidth));
        xml.writeEndElement();
        xml.writeEndElement();
    }
}

// One placemark per run of points of one fix quality; each run after the first starts
// at the point the one before ended on, so the coloured line has no gaps.
void writeKmlRuns(QXmlStreamWriter &xml, const QVector<const TrackPoint *> &track)
{
    for (int begin = 0; begin < track.size();) {
        const TrackPoint &first = *track.at(begin);
        int end = begin + 1;
        while (end < track.size() && track.at(end)->quality == first.quality)
            ++end;
        xml.writeStartElement(QStringLiteral("Placemark"));
        xml.writeTextElement(QStringLiteral("name"),
                             QStringLiteral("%1 from %2").arg(fixQualityName(first.quality), isoTime(first.timeMs)));
        xml.writeTextElement(QStringLiteral("styleUrl"), QLatin1Char('#') + kmlStyleId(first.quality));
        xml.writeStartElement(QStringLiteral("LineString"));
        xml.writeTextElement(QStringLiteral("altitudeMode"), QStringLiteral("absolute"));
        xml.writeStartElement(QStringLiteral("coordinates"));
        const int from = begin > 0 ? begin - 1 : begin;
        for (int i = from; i < end; ++i)
            xml.writeCharacters(kmlCoordinate(*track.at(i)));
        // A line string needs two tuples: a lone point is a line of no length.
        if (end - from == 1)
            xml.writeCharacters(kmlCoordinate(first));
        xml.writeEndElement();
        xml.writeEndElement();
        xml.writeEndElement();
        begin = end;
    }
}

bool writeKml(QIODevice &out, const QVector<TrackPoint> &points, const QString &name)
{
    QVector<const TrackPoint *> track;
    for (const TrackPoint &point : points) {
        if (hasPosition(point))
            track << &point;
    }
    QXmlStreamWriter xml(&out);
    startDocument(xml, QStringLiteral("kml"), kKmlNamespace);
    xml.writeStartElement(QStringLiteral("Document"));
    xml.writeTextElement(QStringLiteral("name"), name);
    writeKmlStyles(xml, track);
    writeKmlRuns(xml, track);
    xml.writeEndDocument();
    return !xml.hasError();
}

bool writeFormat(QIODevice &out, TrackFormat format, const QVector<TrackPoint> &points, const QString &name)
{
    switch (format) {
    case TrackFormat::Csv: return writeCsv(out, points);
    case TrackFormat::Gpx: return writeGpx(out, points, xmlText(name));
    case TrackFormat::Kml: return writeKml(out, points, xmlText(name));
    }
    return false;
}

} // namespace

bool parseTrackFormat(const QString &name, TrackFormat *format)
{
    static const struct
    {
        const char *name;
        TrackFormat format;
    } kFormats[] = {{"csv", TrackFormat::Csv}, {"gpx", TrackFormat::Gpx}, {"kml", TrackFormat::Kml}};
    for (const auto &entry : kFormats) {
        if (name.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0) {
            *format = entry.format;
            return true;
        }
    }
    return false;
}

bool writeTrack(QIODevice &out, TrackFormat format, const QVector<TrackPoint> &points, const QString &name,
                QString *error)
{
    if (!out.isWritable()) {
        if (error)
            *error = QStringLiteral("cannot write the track: the device is not open for writing");
        return false;
    }
    bool written = writeFormat(out, format, points, name);
    // A file holds its last bytes back: a full disk shows only when they go.
    if (auto *file = qobject_cast<QFileDevice *>(&out); written && file)
        written = file->flush();
    if (!written && error)
        *error = QStringLiteral("cannot write the track: %1").arg(out.errorString());
    return written;
}
