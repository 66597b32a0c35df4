// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "rtcm3framer.h"
#include "rtcm3messages.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

#include <array>
#include <limits>
#include <map>
#include <memory>
#include <optional>

// The same "not known" as the receiver state's figures (a NaN), without linking the state.
constexpr double kRtcmUnknown = std::numeric_limits<double>::quiet_NaN();

struct CorrectionTypeFigures
{
    int messageType = 0;
    QString name;
    qint64 count = 0;
    double rateHz = 0; // over the last 10 s
    qint64 lastMs = 0;
};

struct CorrectionSystemFigures
{
    Rtcm3System system = Rtcm3System::None;
    int messageType = 0; // 0 until an MSM of the system came
    int satelliteCount = 0;  // of the latest epoch; the parts of a multiple-message epoch united
    int signalCount = 0;
    qint64 lastMs = 0;
};

struct CorrectionSnapshot
{
    qint64 bytes = 0;
    qint64 frames = 0;
    qint64 crcFailures = 0;
    qint64 skippedBytes = 0;
    QVector<CorrectionTypeFigures> messageTypes; // ascending message number
    int stationId = -1;                          // -1 until a message carried one

    // The latest 1005 or 1006.
    bool referenceValid = false;
    int referenceMessageType = 0;
    double referenceX = kRtcmUnknown; // ECEF, metres
    double referenceY = kRtcmUnknown;
    double referenceZ = kRtcmUnknown;
    double referenceLat = kRtcmUnknown; // degrees, WGS84
    double referenceLon = kRtcmUnknown;
    double referenceHeight = kRtcmUnknown; // ellipsoidal, metres
    double antennaHeight = kRtcmUnknown;   // 1006 only

    std::array<CorrectionSystemFigures, kRtcm3MsmSystemCount> systems; // in Rtcm3System order
    qint64 lastFrameAgeMs = -1; // -1 until a valid frame came
};

// The figures of a correction stream, fed the bytes as they are forwarded. Holds at most
// one unfinished frame and one entry per message number (4096 at most), whatever comes.
class CorrectionStatistics
{
public:
    CorrectionStatistics();
    ~CorrectionStatistics();

    void feed(const char *data, int size, qint64 nowMs);
    CorrectionSnapshot snapshot(qint64 nowMs) const;
    void reset();

private:
    struct TypeState;
    struct SystemState
    {
        int messageType = 0;
        quint32 epochTime = 0;
        bool epochContinues = false;
        quint64 satelliteMask = 0;
        quint32 signalMask = 0;
        qint64 lastMs = 0;
    };

    void onFrame(const uchar *frame, int frameSize, qint64 nowMs);
    void onMsm(const Rtcm3MsmHeader &header, qint64 nowMs);

    Rtcm3Framer m_framer;
    qint64 m_bytes = 0;
    std::map<int, std::unique_ptr<TypeState>> m_types;
    int m_stationId = -1;
    std::optional<Rtcm3ReferencePoint> m_reference;
    std::array<SystemState, kRtcm3MsmSystemCount> m_systems{};
    qint64 m_lastFrameMs = -1;
};

// Straight-line distance in metres between the snapshot's reference point and a WGS84
// position; kRtcmUnknown when either is missing.
double baselineMetres(const CorrectionSnapshot &snapshot, double latDeg, double lonDeg, double heightM);

// {"bytes", "frames", "crcFailures", "messageTypes": {"1005": count, ...}, "stationId": N or null}.
QJsonObject correctionsReport(const CorrectionSnapshot &snapshot);
