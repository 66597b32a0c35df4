// SPDX-License-Identifier: BSD-3-Clause
#include "rtcm3messages.h"

#include "rtcm3bitreader.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <iterator>

namespace {

struct KnownMessage
{
    int type;
    const char *name;
    Rtcm3System system;
    bool carriesStationId;
};

// Everything but the MSMs, whose names and systems follow from their numbers.
constexpr KnownMessage kKnownMessages[] = {
    {1001, "GPS L1 observables", Rtcm3System::GPS, true},
    {1002, "GPS L1 extended observables", Rtcm3System::GPS, true},
    {1003, "GPS L1/L2 observables", Rtcm3System::GPS, true},
    {1004, "GPS L1/L2 extended observables", Rtcm3System::GPS, true},
    {1005, "Station ARP", Rtcm3System::None, true},
    {1006, "Station ARP with height", Rtcm3System::None, true},
    {1007, "Antenna descriptor", Rtcm3System::None, true},
    {1008, "Antenna descriptor and serial", Rtcm3System::None, true},
    {1009, "GLONASS L1 observables", Rtcm3System::GLONASS, true},
    {1010, "GLONASS L1 extended observables", Rtcm3System::GLONASS, true},
    {1011, "GLONASS L1/L2 observables", Rtcm3System::GLONASS, true},
    {1012, "GLONASS L1/L2 extended observables", Rtcm3System::GLONASS, true},
    {1013, "System parameters", Rtcm3System::None, true},
    {1019, "GPS ephemeris", Rtcm3System::GPS, false},
    {1020, "GLONASS ephemeris", Rtcm3System::GLONASS, false},
    {1029, "Text", Rtcm3System::None, true},
    {1033, "Receiver and antenna", Rtcm3System::None, true},
    {1042, "BDS ephemeris", Rtcm3System::BDS, false},
    {1044, "QZSS ephemeris", Rtcm3System::QZSS, false},
    {1045, "Galileo F/NAV ephemeris", Rtcm3System::Galileo, false},
    {1046, "Galileo I/NAV ephemeris", Rtcm3System::Galileo, false},
    {1230, "GLONASS code-phase biases", Rtcm3System::GLONASS, true},
};

constexpr int kFirstMsmType = 1071;
constexpr int kLastMsmType = 1137;

// Bits each satellite and each cell add behind the cell mask, by MSM number: what a
// frame must hold for its masks to be believed.
constexpr std::array<int, 8> kMsmSatelliteBits = {0, 10, 10, 10, 18, 36, 18, 36};
constexpr std::array<int, 8> kMsmCellBits = {0, 15, 27, 42, 48, 63, 65, 80};
constexpr int kMaxMsmCells = 64;

constexpr int msmNumberOf(int type)
{
    return type >= kFirstMsmType && type <= kLastMsmType && type % 10 >= 1 && type % 10 <= 7 ? type % 10 : 0;
}

} // namespace

QString rtcm3SystemName(Rtcm3System system)
{
    static const char *const names[] = {"GPS", "GLONASS", "Galileo", "SBAS", "QZSS", "BDS", "NavIC", ""};
    return QString::fromLatin1(names[int(system)]);
}

Rtcm3MessageInfo rtcm3MessageInfo(int messageType)
{
    Rtcm3MessageInfo info;
    if (const int msm = msmNumberOf(messageType)) {
        info.system = Rtcm3System((messageType - kFirstMsmType) / 10);
        info.msmNumber = msm;
        info.carriesStationId = true;
        info.name = QStringLiteral("%1 MSM%2").arg(rtcm3SystemName(info.system)).arg(msm);
        return info;
    }
    const auto known = std::find_if(std::begin(kKnownMessages), std::end(kKnownMessages),
                                    [messageType](const KnownMessage &m) { return m.type == messageType; });
    if (known == std::end(kKnownMessages)) {
        info.name = QStringLiteral("Message %1").arg(messageType);
        return info;
    }
    info.name = QString::fromLatin1(known->name);
    info.system = known->system;
    info.carriesStationId = known->carriesStationId;
    return info;
}

std::optional<int> rtcm3StationId(const uchar *payload, int size)
{
    Rtcm3BitReader reader(payload, size);
    const int type = int(reader.readUnsigned(12));
    const int station = int(reader.readUnsigned(12));
    if (reader.failed() || !rtcm3MessageInfo(type).carriesStationId)
        return std::nullopt;
    return station;
}

std::optional<Rtcm3ReferencePoint> decodeReferencePoint(const uchar *payload, int size)
{
    constexpr double kUnit = 0.0001; // metres per step of the coordinates and the height
    Rtcm3BitReader reader(payload, size);
    Rtcm3ReferencePoint point;
    point.messageType = int(reader.readUnsigned(12));
    if (point.messageType != 1005 && point.messageType != 1006)
        return std::nullopt;
    point.stationId = int(reader.readUnsigned(12));
    reader.skip(6 + 4); // realization year; GPS, GLONASS, Galileo, reference station bits
    point.x = double(reader.readSigned(38)) * kUnit;
    reader.skip(2); // oscillator bit, reserved
    point.y = double(reader.readSigned(38)) * kUnit;
    reader.skip(2); // quarter-cycle indicator
    point.z = double(reader.readSigned(38)) * kUnit;
    if (point.messageType == 1006)
        point.antennaHeight = double(reader.readUnsigned(16)) * kUnit;
    if (reader.failed())
        return std::nullopt;
    return point;
}

std::optional<Rtcm3MsmHeader> decodeMsmHeader(const uchar *payload, int size)
{
    Rtcm3BitReader reader(payload, size);
    Rtcm3MsmHeader header;
    header.messageType = int(reader.readUnsigned(12));
    header.msmNumber = msmNumberOf(header.messageType);
    if (header.msmNumber == 0)
        return std::nullopt;
    header.system = Rtcm3System((header.messageType - kFirstMsmType) / 10);
    header.stationId = int(reader.readUnsigned(12));
    header.epochTime = quint32(reader.readUnsigned(30));
    header.multipleMessage = reader.readUnsigned(1) != 0;
    reader.skip(3 + 7 + 2 + 2 + 1 + 3); // IODS, reserved, clock steering and external clock, smoothing
    header.satelliteMask = reader.readUnsigned(64);
    header.signalMask = quint32(reader.readUnsigned(32));
    header.satelliteCount = int(std::bitset<64>(header.satelliteMask).count());
    header.signalCount = int(std::bitset<32>(header.signalMask).count());
    const int maskBits = header.satelliteCount * header.signalCount;
    if (reader.failed() || maskBits > kMaxMsmCells)
        return std::nullopt;
    header.cellCount = int(std::bitset<64>(reader.readUnsigned(maskBits)).count());
    const qint64 dataBits = qint64(header.satelliteCount) * kMsmSatelliteBits[size_t(header.msmNumber)]
        + qint64(header.cellCount) * kMsmCellBits[size_t(header.msmNumber)];
    if (reader.failed() || dataBits > reader.remainingBits())
        return std::nullopt;
    return header;
}
