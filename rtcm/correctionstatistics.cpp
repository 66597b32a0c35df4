// SPDX-License-Identifier: BSD-3-Clause
#include "correctionstatistics.h"

#include "ratewindow.h"

#include <GeographicLib/Geocentric.hpp>

#include <QJsonValue>

#include <bitset>
#include <cmath>

struct CorrectionStatistics::TypeState
{
    qint64 count = 0;
    qint64 lastMs = 0;
    RateWindow rate;
};

CorrectionStatistics::CorrectionStatistics() = default;
CorrectionStatistics::~CorrectionStatistics() = default;

void CorrectionStatistics::feed(const char *data, int size, qint64 nowMs)
{
    if (size <= 0)
        return;
    m_bytes += size;
    m_framer.feed(data, size, [this, nowMs](const uchar *frame, int frameSize) { onFrame(frame, frameSize, nowMs); });
}

void CorrectionStatistics::onFrame(const uchar *frame, int frameSize, qint64 nowMs)
{
    m_lastFrameMs = nowMs;
    const int type = rtcm3MessageType(frame, frameSize);
    if (type == 0)
        return; // too short to name a message
    std::unique_ptr<TypeState> &state = m_types[type];
    if (!state)
        state = std::make_unique<TypeState>();
    ++state->count;
    state->lastMs = nowMs;
    state->rate.add(nowMs, 1);

    const uchar *payload = frame + Rtcm3Framer::kHeaderSize;
    const int payloadSize = frameSize - Rtcm3Framer::kHeaderSize - Rtcm3Framer::kCrcSize;
    if (const std::optional<int> station = rtcm3StationId(payload, payloadSize))
        m_stationId = *station;
    if (std::optional<Rtcm3ReferencePoint> point = decodeReferencePoint(payload, payloadSize))
        m_reference = point;
    else if (const std::optional<Rtcm3MsmHeader> msm = decodeMsmHeader(payload, payloadSize))
        onMsm(*msm, nowMs);
}

void CorrectionStatistics::onMsm(const Rtcm3MsmHeader &header, qint64 nowMs)
{
    SystemState &system = m_systems[size_t(header.system)];
    if (!system.epochContinues || system.epochTime != header.epochTime) {
        system.satelliteMask = 0;
        system.signalMask = 0;
    }
    system.satelliteMask |= header.satelliteMask;
    system.signalMask |= header.signalMask;
    system.epochTime = header.epochTime;
    system.epochContinues = header.multipleMessage;
    system.messageType = header.messageType;
    system.lastMs = nowMs;
}

CorrectionSnapshot CorrectionStatistics::snapshot(qint64 nowMs) const
{
    CorrectionSnapshot snapshot;
    snapshot.bytes = m_bytes;
    snapshot.frames = m_framer.frames();
    snapshot.crcFailures = m_framer.crcFailures();
    snapshot.skippedBytes = m_framer.skippedBytes();
    snapshot.messageTypes.reserve(int(m_types.size()));
    for (const auto &[type, state] : m_types)
        snapshot.messageTypes.append({type, rtcm3MessageInfo(type).name, state->count, state->rate.perSecond(nowMs), state->lastMs});
    snapshot.stationId = m_stationId;
    if (m_reference) {
        snapshot.referenceValid = true;
        snapshot.referenceMessageType = m_reference->messageType;
        snapshot.referenceX = m_reference->x;
        snapshot.referenceY = m_reference->y;
        snapshot.referenceZ = m_reference->z;
        GeographicLib::Geocentric::WGS84().Reverse(m_reference->x, m_reference->y, m_reference->z, snapshot.referenceLat,
                                                   snapshot.referenceLon, snapshot.referenceHeight);
        snapshot.antennaHeight = m_reference->antennaHeight.value_or(kRtcmUnknown);
    }
    for (size_t i = 0; i < m_systems.size(); ++i) {
        const SystemState &state = m_systems[i];
        CorrectionSystemFigures &figures = snapshot.systems[i];
        figures.system = Rtcm3System(i);
        figures.messageType = state.messageType;
        figures.satelliteCount = int(std::bitset<64>(state.satelliteMask).count());
        figures.signalCount = int(std::bitset<32>(state.signalMask).count());
        figures.lastMs = state.lastMs;
    }
    if (m_lastFrameMs >= 0)
        snapshot.lastFrameAgeMs = qMax<qint64>(0, nowMs - m_lastFrameMs);
    return snapshot;
}

void CorrectionStatistics::reset()
{
    m_framer.reset();
    m_bytes = 0;
    m_types.clear();
    m_stationId = -1;
    m_reference.reset();
    m_systems = {};
    m_lastFrameMs = -1;
}

double baselineMetres(const CorrectionSnapshot &snapshot, double latDeg, double lonDeg, double heightM)
{
    if (!snapshot.referenceValid || !std::isfinite(latDeg) || !std::isfinite(lonDeg) || !std::isfinite(heightM))
        return kRtcmUnknown;
    double x = 0, y = 0, z = 0;
    GeographicLib::Geocentric::WGS84().Forward(latDeg, lonDeg, heightM, x, y, z);
    return std::sqrt((x - snapshot.referenceX) * (x - snapshot.referenceX) + (y - snapshot.referenceY) * (y - snapshot.referenceY)
                     + (z - snapshot.referenceZ) * (z - snapshot.referenceZ));
}

QJsonObject correctionsReport(const CorrectionSnapshot &snapshot)
{
    QJsonObject types;
    for (const CorrectionTypeFigures &figures : snapshot.messageTypes)
        types.insert(QString::number(figures.messageType), double(figures.count));
    return {{QStringLiteral("bytes"), double(snapshot.bytes)},
            {QStringLiteral("frames"), double(snapshot.frames)},
            {QStringLiteral("crcFailures"), double(snapshot.crcFailures)},
            {QStringLiteral("messageTypes"), types},
            {QStringLiteral("stationId"), snapshot.stationId >= 0 ? QJsonValue(snapshot.stationId) : QJsonValue(QJsonValue::Null)}};
}
