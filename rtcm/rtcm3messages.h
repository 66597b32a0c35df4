// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

// What the console knows about the RTCM 3 messages a correction stream carries: their
// names and systems, and the typed fields it shows (station, reference point, MSM header).
// The decoders take the payload (behind the 3-byte header, without the CRC) and refuse
// quietly, with an empty optional, whatever does not fit.

// In the order of the MSM numbers: 1071-1077 GPS, 1081-1087 GLONASS, ... 1131-1137 NavIC.
enum class Rtcm3System { GPS, GLONASS, Galileo, SBAS, QZSS, BDS, NavIC, None };
constexpr int kRtcm3MsmSystemCount = 7;

// "GPS", "GLONASS", "Galileo", "SBAS", "QZSS", "BDS", "NavIC" ("" for None).
QString rtcm3SystemName(Rtcm3System system);

struct Rtcm3MessageInfo
{
    QString name; // "Station ARP", "GPS MSM7", ...; "Message N" for one not known here
    Rtcm3System system = Rtcm3System::None;
    int msmNumber = 0; // 1 to 7 for an MSM, else 0
    bool carriesStationId = false;
};

Rtcm3MessageInfo rtcm3MessageInfo(int messageType);

// The reference station id (0-4095) of a message that carries one.
std::optional<int> rtcm3StationId(const uchar *payload, int size);

// 1005 and 1006: the antenna reference point, ECEF in metres.
struct Rtcm3ReferencePoint
{
    int messageType = 0;
    int stationId = 0;
    double x = 0;
    double y = 0;
    double z = 0;
    std::optional<double> antennaHeight; // metres; 1006 only
};

std::optional<Rtcm3ReferencePoint> decodeReferencePoint(const uchar *payload, int size);

struct Rtcm3MsmHeader
{
    int messageType = 0;
    Rtcm3System system = Rtcm3System::None;
    int msmNumber = 0;
    int stationId = 0;
    quint32 epochTime = 0; // ms of the week; GLONASS: day of week in the top 3 bits, ms of the day
    bool multipleMessage = false; // more MSMs of this epoch follow
    quint64 satelliteMask = 0;    // bit 63 is satellite 1
    quint32 signalMask = 0;       // bit 31 is signal 1
    int satelliteCount = 0;
    int signalCount = 0;
    int cellCount = 0; // signals actually observed, from the cell mask
};

// Refuses a frame whose masks claim more than 64 cells or more data than its payload holds.
std::optional<Rtcm3MsmHeader> decodeMsmHeader(const uchar *payload, int size);
