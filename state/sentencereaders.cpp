// SPDX-License-Identifier: BSD-3-Clause
// The readers of the sentences and logs the receiver state takes. Which reader fills
// what, and why, is written down in receiverstate.cpp.
#include "receiverstatedata.h"

#include "linechecksum.h"
#include "signalnames.h"

#include <cstring>

namespace {

constexpr double kKnotsToMetresPerSecond = 1852.0 / 3600.0;
constexpr qint64 kGpsEpochMs = 315964800000LL; // 1980-01-06T00:00:00Z
constexpr qint64 kWeekMs = 7 * 86400000LL;
constexpr qint64 kLeapSecondsMs = 18000; // GPS time ahead of UTC since 2017

inline ushort code(char c)
{
    return uchar(c);
}
inline ushort code(QChar c)
{
    return c.unicode();
}
inline bool isCapital(ushort c)
{
    return c >= 'A' && c <= 'Z';
}

// RMC's mode letter of each quality. 'D' (differential) stands for DGNSS and SBAS,
// 'P' (precise) for PPS and PPP: the first row of a letter is what the letter means.
struct QualityLetter
{
    FixQuality quality;
    char letter;
};

constexpr QualityLetter kQualityLetters[] = {
    {FixQuality::NoFix, 'N'},
    {FixQuality::Single, 'A'},
    {FixQuality::Dgnss, 'D'},
    {FixQuality::Pps, 'P'},
    {FixQuality::RtkFixed, 'R'},
    {FixQuality::RtkFloat, 'F'},
    {FixQuality::DeadReckoning, 'E'},
    {FixQuality::Manual, 'M'},
    {FixQuality::Simulation, 'S'},
    {FixQuality::Sbas, 'D'},
    {FixQuality::Ppp, 'P'},
};

char letterOf(FixQuality quality)
{
    for (const QualityLetter &entry : kQualityLetters) {
        if (entry.quality == quality)
            return entry.letter;
    }
    return 0;
}

const QualityLetter *qualityOfLetter(ushort letter)
{
    for (const QualityLetter &entry : kQualityLetters) {
        if (uchar(entry.letter) == letter)
            return &entry;
    }
    return nullptr;
}

// GGA's values are FixQuality's own up to 9; anything else is no fix.
FixQuality ggaQuality(int value)
{
    return value >= 0 && value <= int(FixQuality::Sbas) ? FixQuality(value) : FixQuality::NoFix;
}

struct PositionType
{
    const char *word;
    FixQuality quality;
};

constexpr PositionType kPositionTypes[] = {
    {"NONE", FixQuality::NoFix},
    {"FIXEDPOS", FixQuality::Manual},
    {"FIXEDHEIGHT", FixQuality::Manual},
    {"SINGLE", FixQuality::Single},
    {"PSRDIFF", FixQuality::Dgnss},
    {"WAAS", FixQuality::Sbas},
    {"SBAS", FixQuality::Sbas},
    {"PROPAGATED", FixQuality::DeadReckoning},
    {"L1_FLOAT", FixQuality::RtkFloat},
    {"IONOFREE_FLOAT", FixQuality::RtkFloat},
    {"NARROW_FLOAT", FixQuality::RtkFloat},
    {"L1_INT", FixQuality::RtkFixed},
    {"WIDE_INT", FixQuality::RtkFixed},
    {"NARROW_INT", FixQuality::RtkFixed},
    {"PPP_CONVERGING", FixQuality::Ppp},
    {"PPP", FixQuality::Ppp},
    {"INS_PSRSP", FixQuality::Single},
    {"INS_PSRDIFF", FixQuality::Dgnss},
    {"INS_SBAS", FixQuality::Sbas},
    {"INS_RTKFLOAT", FixQuality::RtkFloat},
    {"INS_RTKFIXED", FixQuality::RtkFixed},
    {"INS_PPP", FixQuality::Ppp},
};

// A computed solution of a type the table lacks is still a position: single.
FixQuality qualityOfPositionType(QStringView word)
{
    for (const PositionType &entry : kPositionTypes) {
        if (word == QLatin1String(entry.word))
            return entry.quality;
    }
    return FixQuality::Single;
}

bool usesCorrections(FixQuality quality)
{
    return quality == FixQuality::Dgnss || quality == FixQuality::RtkFixed || quality == FixQuality::RtkFloat
        || quality == FixQuality::Sbas;
}

double within(double value, double limit)
{
    return std::abs(value) <= limit ? value : kUnknown;
}

constexpr qint64 kPacedReadIntervalMs = 100;

bool isComputed(const LineFields &f)
{
    return f.equals(0, "SOL_COMPUTED");
}

} // namespace

const ReceiverStateData::LineKind ReceiverStateData::s_lineKinds[] = {
    {"GGA", false, &ReceiverStateData::readGga, false},
    {"RMC", false, &ReceiverStateData::readRmc, false},
    {"GSA", false, &ReceiverStateData::readGsa, false},
    {"GSV", false, &ReceiverStateData::readGsv, false},
    {"GST", false, &ReceiverStateData::readGst, false},
    {"VTG", false, &ReceiverStateData::readVtg, false},
    {"ZDA", false, &ReceiverStateData::readZda, false},
    {"HDT", false, &ReceiverStateData::readHdt, false},
    {"BESTPOSA,", true, &ReceiverStateData::readBestpos, false},
    {"BESTVELA,", true, &ReceiverStateData::readBestvel, false},
    {"PSRDOPA,", true, &ReceiverStateData::readPsrdop, false},
    {"SATVIS2A,", true, &ReceiverStateData::readSatvis2, false},
    {"RANGEA,", true, &ReceiverStateData::readRange, true},
    {"HEADING2A,", true, &ReceiverStateData::readHeading, false},
    {"HEADINGA,", true, &ReceiverStateData::readHeading, false},
    {nullptr, false, nullptr, false},
};

// "$ttSSS," sentences by their type, "#NAMEA," logs by their name; everything else
// after a few bytes, before any conversion.
template <typename Char>
const ReceiverStateData::LineKind *ReceiverStateData::kindOf(const Char *text, int length)
{
    if (length < 8)
        return nullptr;
    const ushort frame = code(text[0]);
    const bool log = frame == '#';
    if (!log && (frame != '$' || !isCapital(code(text[1])) || !isCapital(code(text[2])) || code(text[6]) != ','))
        return nullptr;
    const int tagAt = log ? 1 : 3;
    for (const LineKind *kind = s_lineKinds; kind->tag; ++kind) {
        if (kind->log != log)
            continue;
        int i = 0;
        while (kind->tag[i] && tagAt + i < length && code(text[tagAt + i]) == uchar(kind->tag[i]))
            ++i;
        if (!kind->tag[i])
            return kind;
    }
    return nullptr;
}

// Receiver lines are ASCII; Latin-1 keeps any other byte as it came, so a damaged
// line fails its checksum on the bytes themselves.
bool ReceiverStateData::takeLine(const char *bytes, int length)
{
    const LineKind *kind = kindOf(bytes, length);
    return kind && !holdBack(*kind, bytes, length) && take(*kind, QString::fromLatin1(bytes, length));
}

// A paced log that comes less than kPacedReadIntervalMs after the last one read is
// kept, unread, in place of the one kept before.
bool ReceiverStateData::holdBack(const LineKind &kind, const char *bytes, int length)
{
    if (!kind.paced)
        return false;
    const qint64 wallMs = m_sinceStart.elapsed();
    if (wallMs - m_pacedReadMs >= kPacedReadIntervalMs) {
        m_pacedReadMs = wallMs;
        m_heldBack.clear();
        return false;
    }
    m_heldBack.resize(length);
    std::memcpy(m_heldBack.data(), bytes, size_t(length));
    m_heldBackKind = &kind;
    return true;
}

void ReceiverStateData::settle()
{
    m_startClockMs = m_sinceStart.elapsed();
    if (m_heldBack.isEmpty())
        return;
    m_pacedReadMs = m_sinceStart.elapsed();
    // Read now, it stands for the present: its own, older time does not turn the clock back.
    take(*m_heldBackKind, QString::fromLatin1(m_heldBack), false);
    m_heldBack.clear();
}

bool ReceiverStateData::takeLine(QStringView line)
{
    const LineKind *kind = kindOf(line.data(), int(line.size()));
    return kind && take(*kind, line.toString());
}

bool ReceiverStateData::take(const LineKind &kind, const QString &line, bool setsClock)
{
    if (!checkLineChecksum(line))
        return false;
    // Field 0 is the address without its '$', or the log's first field.
    QStringView body = QStringView(line).mid(1);
    if (kind.log) {
        const int semicolon = body.indexOf(QLatin1Char(';'));
        if (semicolon < 0)
            return false;
        splitFields(body.left(semicolon), m_fields);
        if (setsClock)
            readLogTime(LineFields(m_fields));
        body = body.mid(semicolon + 1);
    }
    if (m_basis == ClockBasis::SinceStart) {
        m_startClockMs = m_sinceStart.elapsed();
        closeSecond(now());
    }
    // Consecutive GSA lines are one report of used satellites; any other line ends it.
    if (kind.read != &ReceiverStateData::readGsa)
        ++m_usedReport;
    splitFields(body, m_fields);
    (this->*kind.read)(LineFields(m_fields));
    // An NTRIP caster choosing a base for us wants the receiver's own GGA. Written into
    // the buffer already held: no allocation per sentence unless a copy is out.
    if (kind.read == &ReceiverStateData::readGga) {
        m_latestGga.resize(int(line.size()));
        char *latin1 = m_latestGga.data();
        for (const QChar c : line)
            *latin1++ = char(c.unicode());
    }
    ++m_linesUsed;
    return true;
}

void ReceiverStateData::readLogTime(const LineFields &header)
{
    const int week = header.integer(5);
    const double seconds = header.number(6);
    if (week > 0 && isKnown(seconds) && seconds >= 0 && seconds < kWeekMs / 1000)
        setClock(kGpsEpochMs + week * kWeekMs + std::llround(seconds * 1000.0) - kLeapSecondsMs, ClockBasis::Dated);
}

void ReceiverStateData::readGga(const LineFields &f)
{
    takeTimeOfDay(f.nmeaTimeOfDayMs(1));
    m_fix.lat = f.nmeaDegrees(2, 90.0);
    m_fix.lon = f.nmeaDegrees(4, 180.0);
    m_fix.quality = ggaQuality(f.integer(6));
    m_fix.satellitesUsed = f.integer(7);
    m_fix.hdop = f.number(8);
    m_fix.heightMsl = f.number(9);
    m_fix.heightEllipsoid = m_fix.heightMsl + f.number(11);
    m_fix.correctionAge = f.number(13);
    samplePosition();
}

void ReceiverStateData::readRmc(const LineFields &f)
{
    takeDateTime(f.nmeaDate(9), f.nmeaTimeOfDayMs(1));
    m_fix.lat = f.nmeaDegrees(3, 90.0);
    m_fix.lon = f.nmeaDegrees(5, 180.0);
    m_fix.speed = f.number(7) * kKnotsToMetresPerSecond;
    m_fix.course = f.number(8);
    ushort letter = f[12].size() == 1 ? f[12].at(0).unicode() : 0;
    if (f.equals(2, "V"))
        letter = 'N';
    else if (!letter && m_fix.quality == FixQuality::NoFix)
        letter = 'A';
    const QualityLetter *stated = qualityOfLetter(letter);
    if (stated && letterOf(m_fix.quality) != stated->letter)
        m_fix.quality = stated->quality;
    samplePosition();
}

void ReceiverStateData::readGsa(const LineFields &f)
{
    std::optional<NmeaSource> source = talkerSource(f[0]);
    const int last = f.count() - 1;
    if (!source || last < 17)
        return;
    // Eighteen fields carry the system id last; the DOPs come just before it.
    const bool hasSystemId = last >= 18;
    if (hasSystemId) {
        if (const std::optional<NmeaSource> ofId = systemIdSource(f.integer(last)))
            source = ofId;
    }
    const int vdopAt = hasSystemId ? last - 1 : last;
    m_fix.pdop = f.number(vdopAt - 2);
    m_fix.hdop = f.number(vdopAt - 1);
    m_fix.vdop = f.number(vdopAt);
    if (source->system != GnssSystem::Unknown)
        startUsedReport(source->system);
    for (int i = 3; i < vdopAt - 2; ++i) {
        const SatelliteId id = nmeaSatellite(*source, f.integer(i));
        if (id.isValid())
            markUsed(id);
    }
}

void ReceiverStateData::readGsv(const LineFields &f)
{
    const std::optional<NmeaSource> source = talkerSource(f[0]);
    const int values = f.count() - 4; // after the address and the three counts
    if (!source || values < 0)
        return;
    // NMEA 4.10 and later end with a one-digit signal id; 0 names no signal.
    quint32 signalId = 0;
    const int signalAt = f.count() - 1;
    const bool hasSignalId = values % 4 == 1 && f[signalAt].size() == 1 && f.hex(signalAt, signalId) && signalId > 0;
    for (int at = 4; at + 3 < f.count(); at += 4) {
        const SatelliteId id = nmeaSatellite(*source, f.integer(at));
        if (!id.isValid())
            continue;
        SatelliteEntry &entry = satellite(id);
        setSkyPosition(id, entry, f.number(at + 1), f.number(at + 2));
        if (hasSignalId)
            setSignal(entry, nmeaSignal(id.system, int(signalId)), int(signalId), f.number(at + 3));
        else
            setSignal(entry, primarySignal(id.system), -1, f.number(at + 3));
    }
}

void ReceiverStateData::readGst(const LineFields &f)
{
    m_fix.sdLat = f.number(6);
    m_fix.sdLon = f.number(7);
    m_fix.sdHeight = f.number(8);
}

void ReceiverStateData::readVtg(const LineFields &f)
{
    m_fix.course = f.number(1);
    const double kilometresPerHour = f.number(7);
    m_fix.speed = isKnown(kilometresPerHour) ? kilometresPerHour / 3.6 : f.number(5) * kKnotsToMetresPerSecond;
}

void ReceiverStateData::readZda(const LineFields &f)
{
    takeDateTime(QDate(f.integer(4), f.integer(3), f.integer(2)), f.nmeaTimeOfDayMs(1));
}

void ReceiverStateData::readHdt(const LineFields &f)
{
    m_fix.heading = f.number(1);
}

void ReceiverStateData::readBestpos(const LineFields &f)
{
    if (!isComputed(f)) {
        m_fix.quality = FixQuality::NoFix;
        m_fix.lat = m_fix.lon = kUnknown;
        return;
    }
    m_fix.quality = qualityOfPositionType(f[1]);
    m_fix.lat = within(f.number(2), 90.0);
    m_fix.lon = within(f.number(3), 180.0);
    m_fix.heightMsl = f.number(4);
    m_fix.heightEllipsoid = m_fix.heightMsl + f.number(5);
    m_fix.sdLat = f.number(7);
    m_fix.sdLon = f.number(8);
    m_fix.sdHeight = f.number(9);
    m_fix.correctionAge = usesCorrections(m_fix.quality) ? f.number(11) : kUnknown;
    m_fix.satellitesUsed = f.integer(14);
    samplePosition();
}

void ReceiverStateData::readBestvel(const LineFields &f)
{
    if (!isComputed(f))
        return;
    m_fix.speed = f.number(4);
    m_fix.course = f.number(5);
}

void ReceiverStateData::readPsrdop(const LineFields &f)
{
    m_fix.pdop = f.number(1);
    m_fix.hdop = f.number(2);
    // PDOP² = HDOP² + VDOP².
    const double verticalSquared = m_fix.pdop * m_fix.pdop - m_fix.hdop * m_fix.hdop;
    m_fix.vdop = verticalSquared >= 0 ? std::sqrt(verticalSquared) : kUnknown;
    for (GnssSystem system : knownSystems())
        startUsedReport(system);
    for (int i = 7; i < f.count(); ++i) {
        const SatelliteId id = receiverSatellite(GnssSystem::Unknown, f.integer(i));
        if (id.isValid())
            markUsed(id);
    }
}

void ReceiverStateData::readSatvis2(const LineFields &f)
{
    const GnssSystem system = systemOfWord(f[0]);
    if (system == GnssSystem::Unknown)
        return;
    for (int at = 4; at + 5 < f.count(); at += 6) {
        const SatelliteId id = receiverSatellite(system, f.integer(at));
        if (id.isValid())
            setSkyPosition(id, satellite(id), f.number(at + 3), f.number(at + 4));
    }
}

void ReceiverStateData::readRange(const LineFields &f)
{
    for (int at = 1; at + 9 < f.count(); at += 10) {
        quint32 status = 0;
        if (!f.hex(at + 9, status))
            continue;
        const GnssSystem system = trackingStatusSystem(int(status >> 16 & 7u));
        const SatelliteId id = receiverSatellite(system, f.integer(at));
        if (id.isValid())
            setSignal(
                satellite(id), trackedSignal(system, int(status >> 21 & 31u), status >> 26 & 1u), -1, f.number(at + 7));
    }
}

void ReceiverStateData::readHeading(const LineFields &f)
{
    if (isComputed(f))
        m_fix.heading = f.number(3);
}
