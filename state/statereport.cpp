// SPDX-License-Identifier: BSD-3-Clause
#include "statereport.h"

#include <QJsonArray>

namespace {

QJsonValue value(double number)
{
    return isKnown(number) ? QJsonValue(number) : QJsonValue(QJsonValue::Null);
}

QJsonObject fixObject(const FixInfo &fix)
{
    return {
        {"utc", fix.utc.isValid() ? QJsonValue(fix.utc.toString(Qt::ISODateWithMs)) : QJsonValue()},
        {"lat", value(fix.lat)},
        {"lon", value(fix.lon)},
        {"heightEllipsoid", value(fix.heightEllipsoid)},
        {"heightMsl", value(fix.heightMsl)},
        {"quality", fixQualityName(fix.quality)},
        {"satellitesUsed", fix.satellitesUsed >= 0 ? QJsonValue(fix.satellitesUsed) : QJsonValue()},
        {"hdop", value(fix.hdop)},
        {"vdop", value(fix.vdop)},
        {"pdop", value(fix.pdop)},
        {"speed", value(fix.speed)},
        {"course", value(fix.course)},
        {"heading", value(fix.heading)},
        {"correctionAge", value(fix.correctionAge)},
        {"sdLat", value(fix.sdLat)},
        {"sdLon", value(fix.sdLon)},
        {"sdHeight", value(fix.sdHeight)},
    };
}

QJsonArray satelliteArray(const QVector<SatelliteInfo> &satellites)
{
    QJsonArray array;
    for (const SatelliteInfo &satellite : satellites) {
        QJsonArray signalArray;
        for (const SignalInfo &signal : satellite.trackedSignals) {
            QJsonObject entry{{"name", signal.name}, {"cn0", value(signal.cn0)}};
            if (signal.nmeaSignalId >= 0)
                entry.insert("nmeaSignalId", signal.nmeaSignalId);
            signalArray.append(entry);
        }
        array.append(QJsonObject{
            {"system", systemName(satellite.system)},
            {"prn", satellite.prn},
            {"elevation", value(satellite.elevation)},
            {"azimuth", value(satellite.azimuth)},
            {"used", satellite.used},
            {"signals", signalArray},
        });
    }
    return array;
}

QJsonObject statisticsObject(const PositionStatistics &s)
{
    return {
        {"samples", s.samples},
        {"meanLat", value(s.meanLat)},
        {"meanLon", value(s.meanLon)},
        {"meanHeight", value(s.meanHeight)},
        {"sdEast", value(s.sdEast)},
        {"sdNorth", value(s.sdNorth)},
        {"sdUp", value(s.sdUp)},
        {"cep50", value(s.cep50)},
        {"cep95", value(s.cep95)},
        {"drms2", value(s.drms2)},
    };
}

QJsonObject statisticsSetObject(const StatisticsSet &set)
{
    QJsonObject object = statisticsObject(set.all);
    QJsonObject byQuality;
    for (auto it = set.byQuality.cbegin(); it != set.byQuality.cend(); ++it)
        byQuality.insert(fixQualityName(it.key()), statisticsObject(it.value()));
    object.insert("byQuality", byQuality);
    return object;
}

} // namespace

QJsonObject receiverReport(const ReceiverSnapshot &snapshot)
{
    QJsonObject statistics = statisticsSetObject(snapshot.sinceReset);
    statistics.insert("window", statisticsSetObject(snapshot.window));
    return {
        {"fix", fixObject(snapshot.fix)},
        {"satellites", satelliteArray(snapshot.satellites)},
        {"statistics", statistics},
    };
}
