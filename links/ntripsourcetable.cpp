// SPDX-License-Identifier: BSD-3-Clause
#include "ntripsourcetable.h"

#include <cmath>

namespace {
constexpr double kEarthRadiusKm = 6371.0088; // mean radius
constexpr double kDegree = M_PI / 180.0;

enum StrField {
    kMountpoint = 1, kIdentifier, kFormat, kFormatDetails, kCarrier, kNavigationSystem, kNetwork,
    kCountry, kLatitude, kLongitude, kNmea, kSolution, kGenerator, kCompression, kAuthentication,
    kFee, kBitrate, kMisc
};

double coordinate(const QString &text, double lowest, double highest)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && value >= lowest && value <= highest ? value : kUnknown;
}

int number(const QString &text)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? value : -1;
}

NtripMountpoint mountpointFromFields(const QStringList &fields)
{
    const auto field = [&fields](int index) { return index < fields.size() ? fields.at(index).trimmed() : QString(); };
    NtripMountpoint m;
    m.mountpoint = field(kMountpoint);
    m.identifier = field(kIdentifier);
    m.format = field(kFormat);
    m.formatDetails = field(kFormatDetails);
    m.carrier = number(field(kCarrier));
    m.navigationSystem = field(kNavigationSystem);
    m.network = field(kNetwork);
    m.country = field(kCountry);
    m.latitude = coordinate(field(kLatitude), -90.0, 90.0);
    // Some casters count longitude from 0 to 360 east.
    m.longitude = coordinate(field(kLongitude), -180.0, 360.0);
    if (m.longitude > 180.0)
        m.longitude -= 360.0;
    // Casters without a base position (virtual stations, tests) write 0.00;0.00.
    if (m.latitude == 0.0 && m.longitude == 0.0)
        m.latitude = m.longitude = kUnknown;
    m.nmeaNeeded = field(kNmea) == QLatin1String("1");
    m.networkSolution = field(kSolution) == QLatin1String("1");
    m.generator = field(kGenerator);
    m.compression = field(kCompression);
    m.authentication = field(kAuthentication);
    m.fee = field(kFee).compare(QLatin1String("Y"), Qt::CaseInsensitive) == 0;
    m.bitrate = number(field(kBitrate));
    m.misc = fields.mid(kMisc).join(QLatin1Char(';')).trimmed();
    return m;
}
} // namespace

bool NtripMountpoint::hasPosition() const
{
    return isKnown(latitude) && isKnown(longitude);
}

QList<NtripMountpoint> parseSourcetable(const QByteArray &table)
{
    QList<NtripMountpoint> mountpoints;
    for (const QByteArray &rawLine : table.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.startsWith("ENDSOURCETABLE"))
            break;
        if (line.size() < 4 || qstrnicmp(line.constData(), "STR;", 4) != 0)
            continue;
        NtripMountpoint mountpoint = mountpointFromFields(QString::fromUtf8(line).split(QLatin1Char(';')));
        if (!mountpoint.mountpoint.isEmpty())
            mountpoints.append(mountpoint);
    }
    return mountpoints;
}

double distanceKm(const NtripMountpoint &mountpoint, double lat, double lon)
{
    if (!mountpoint.hasPosition() || !isKnown(lat) || !isKnown(lon))
        return kUnknown;
    // Haversine: well conditioned for the short distances that matter here.
    const double dLat = (lat - mountpoint.latitude) * kDegree;
    const double dLon = (lon - mountpoint.longitude) * kDegree;
    const double a = std::pow(std::sin(dLat / 2), 2)
        + std::cos(lat * kDegree) * std::cos(mountpoint.latitude * kDegree) * std::pow(std::sin(dLon / 2), 2);
    return 2 * kEarthRadiusKm * std::asin(std::sqrt(qMin(1.0, a)));
}
