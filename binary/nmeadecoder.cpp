// SPDX-License-Identifier: BSD-3-Clause
#include "nmeadecoder.h"

#include "gnssmessagekinds.h"

#include <cstring>

namespace {

constexpr unsigned int kNmeaKinds = 9; // ids 1 to 9
constexpr unsigned int kGsaId = 3;
constexpr unsigned int kGsvId = 4;
// Enough for every system and signal a receiver reports; more are ignored.
constexpr int kMaxListEntries = 12;
// A full GSV cycle has at most 9 sentences of 4 satellites.
constexpr int kMaxSatellitesPerView = 64;

// What GNSSGetMsg leaves in the caller's record buffer.
struct Record
{
    quint32 tag;
    qint32 length;
    char text[KV_GNSS_MSG_RECORD_SIZE - 8];
};
static_assert(sizeof(Record) == KV_GNSS_MSG_RECORD_SIZE, "the record fills the caller's buffer exactly");
constexpr quint32 kRecordTag = 0x4e4d4541; // "NMEA"

unsigned int nmeaKindId(const char *code)
{
    for (int i = 0; i < gnssMessageKindCount(); ++i) {
        const GnssMessageKind &kind = gnssMessageKinds()[i];
        if (kind.family == GnssMessageKind::Nmea && std::strncmp(kind.name, code, 3) == 0 && kind.name[3] == '\0')
            return kind.id;
    }
    return 0;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

// A short unsigned decimal field; -1 when it is empty or not a number.
int smallNumber(const char *text, int size)
{
    if (size < 1 || size > 4)
        return -1;
    int value = 0;
    for (int i = 0; i < size; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return -1;
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

// The system names of the page's combo box, by talker.
QByteArray systemOfTalker(const char *talker)
{
    static const struct { const char *talker; const char *system; } kTalkers[] = {
        {"GP", "GPS"}, {"GL", "GLO"}, {"GA", "GAL"}, {"GB", "BDS"}, {"BD", "BDS"},
        {"GQ", "QZSS"}, {"QZ", "QZSS"}, {"GI", "NAVIC"},
    };
    for (const auto &entry : kTalkers) {
        if (std::strncmp(entry.talker, talker, 2) == 0)
            return QByteArray::fromRawData(entry.system, int(std::strlen(entry.system)));
    }
    return QByteArray(talker, 2);
}

// The system ID field that newer GSA sentences carry (1 GPS ... 6 NavIC).
QByteArray systemOfId(int id)
{
    static const char *const kSystems[] = {"GPS", "GLO", "GAL", "BDS", "QZSS", "NAVIC"};
    return id >= 1 && id <= 6 ? QByteArray::fromRawData(kSystems[id - 1], int(std::strlen(kSystems[id - 1])))
                              : QByteArray();
}

void appendField(QByteArray &text, const char *field, int size)
{
    if (!text.isEmpty())
        text += ',';
    text.append(field, size);
}

} // namespace

NmeaDecoder::NmeaDecoder()
    : m_latest(kNmeaKinds)
    , m_seen(kNmeaKinds, false)
{
    // Reserved buffers keep their capacity through resize(0), so framing and
    // keeping records allocate nothing once the first sentences are in.
    m_frame.reserve(kMaxSentence + 1);
    for (QByteArray &record : m_latest)
        record.reserve(128);
}

int NmeaDecoder::putData(const unsigned char *data, int length)
{
    int available = 0;
    for (int i = 0; data && i < length; ++i) {
        const char c = char(data[i]);
        // A '$' always starts over, so a false start inside binary data cannot
        // swallow the sentence that follows it.
        if (c == '$') {
            m_frame.resize(0);
            m_frame += c;
            m_inFrame = true;
            continue;
        }
        if (!m_inFrame)
            continue;
        if (c == '\n') {
            m_inFrame = false;
            if (m_frame.endsWith('\r'))
                m_frame.chop(1);
            const unsigned int id = takeSentence();
            if (id != 0 && (m_outMsgId == 0 || m_outMsgId == id))
                ++available;
            continue;
        }
        if ((c < 0x20 && c != '\r') || c > 0x7e || m_frame.size() >= kMaxSentence + 1) {
            m_inFrame = false;
            continue;
        }
        m_frame += c;
    }
    return available;
}

unsigned int NmeaDecoder::takeSentence()
{
    // "$" + talker (2) + kind (3) + "," + fields + "*" + two hex digits.
    const int size = m_frame.size();
    if (size < 10)
        return 0;
    const char *text = m_frame.constData();
    const int star = size - 3;
    if (text[star] != '*' || text[6] != ',')
        return 0;
    const int high = hexDigit(text[star + 1]);
    const int low = hexDigit(text[star + 2]);
    quint8 sum = 0;
    for (int i = 1; i < star; ++i)
        sum ^= quint8(text[i]);
    if (high < 0 || low < 0 || sum != quint8(high * 16 + low))
        return 0;
    const unsigned int id = nmeaKindId(text + 3);
    if (id == 0)
        return 0;

    const char *body = text + 7;
    const int bodySize = star - 7;
    if (id == kGsvId) {
        splitBody(body, bodySize);
        if (!takeSatellitesInView(systemOfTalker(text + 1)))
            return 0;
    } else if (id == kGsaId) {
        splitBody(body, bodySize);
        if (m_fields.size() < 17)
            return 0;
        takeSatellitesUsed(systemOfTalker(text + 1));
    } else {
        // The talker leads, so the record says which system or combination it is.
        QByteArray &record = m_latest[int(id - 1)];
        record.resize(0);
        record.append(text + 1, 2);
        record += ',';
        record.append(body, bodySize);
    }
    m_seen[int(id - 1)] = true;
    return id;
}

void NmeaDecoder::splitBody(const char *body, int size)
{
    m_fields.clear();
    int start = 0;
    for (int i = 0; i <= size; ++i) {
        if (i == size || body[i] == ',') {
            m_fields.append(Field{body + start, i - start});
            start = i + 1;
        }
    }
}

bool NmeaDecoder::takeSatellitesInView(const QByteArray &system)
{
    // total, number, satellites in view, then four fields per satellite and, in
    // newer receivers, a signal ID.
    const int count = m_fields.size();
    if (count < 3)
        return false;
    const int total = smallNumber(m_fields[0].text, m_fields[0].size);
    const int number = smallNumber(m_fields[1].text, m_fields[1].size);
    if (total < 1 || number < 1 || number > total)
        return false;
    const bool hasSignal = (count - 3) % 4 == 1;
    const Field signal = hasSignal ? m_fields[count - 1] : Field{"", 0};
    const QByteArray key = system + ',' + QByteArray(signal.text, signal.size);

    SatelliteView *view = nullptr;
    for (SatelliteView &candidate : m_views) {
        if (candidate.key == key)
            view = &candidate;
    }
    if (!view) {
        if (m_views.size() >= kMaxListEntries)
            return false;
        m_views.append(SatelliteView{key, {}, {}, 0, 0});
        view = &m_views.last();
    }
    if (number == 1) {
        view->pending.clear();
        view->satellites = 0;
        view->nextSentence = 1;
    }
    if (number != view->nextSentence) {
        // A sentence of the cycle was lost: wait for the next cycle.
        view->nextSentence = 0;
        return false;
    }
    ++view->nextSentence;
    for (int first = 3; first + 4 <= count && view->satellites < kMaxSatellitesPerView; first += 4) {
        if (m_fields[first].size == 0)
            continue; // an empty slot in the last sentence of a cycle
        appendField(view->pending, system.constData(), system.size());
        for (int i = 0; i < 4; ++i)
            appendField(view->pending, m_fields[first + i].text, m_fields[first + i].size);
        appendField(view->pending, signal.text, signal.size);
        ++view->satellites;
    }
    if (number != total)
        return false;
    view->complete = view->pending;
    view->nextSentence = 0;

    QByteArray &record = m_latest[int(kGsvId - 1)];
    record.resize(0);
    for (const SatelliteView &each : qAsConst(m_views))
        appendField(record, each.complete.constData(), each.complete.size());
    return true;
}

void NmeaDecoder::takeSatellitesUsed(const QByteArray &talkerSystem)
{
    // mode, fix, twelve satellite slots, PDOP, HDOP, VDOP and, in newer receivers,
    // the system ID, which names the system better than a combined "GN" talker.
    QByteArray system = m_fields.size() > 17 ? systemOfId(smallNumber(m_fields[17].text, m_fields[17].size))
                                             : QByteArray();
    if (system.isEmpty())
        system = talkerSystem;

    QByteArray group = system;
    appendField(group, m_fields[0].text, m_fields[0].size);
    appendField(group, m_fields[1].text, m_fields[1].size);
    for (int i = 14; i < 17; ++i)
        appendField(group, m_fields[i].text, m_fields[i].size);
    group += ',';
    bool first = true;
    for (int i = 2; i < 14; ++i) {
        if (m_fields[i].size == 0)
            continue;
        if (!first)
            group += ' ';
        group.append(m_fields[i].text, m_fields[i].size);
        first = false;
    }

    SystemEntry *entry = nullptr;
    for (SystemEntry &candidate : m_used) {
        if (candidate.system == system)
            entry = &candidate;
    }
    if (!entry) {
        if (m_used.size() >= kMaxListEntries)
            return;
        m_used.append(SystemEntry{system, {}});
        entry = &m_used.last();
    }
    entry->group = group;

    QByteArray &record = m_latest[int(kGsaId - 1)];
    record.resize(0);
    for (const SystemEntry &each : qAsConst(m_used))
        appendField(record, each.group.constData(), each.group.size());
}

int NmeaDecoder::getMsgs(KV_GNSS_MSGID_T *list)
{
    int count = 0;
    for (unsigned int index = 0; index < kNmeaKinds; ++index) {
        if (m_seen[int(index)])
            list[count++].msgId = index + 1;
    }
    return count;
}

int NmeaDecoder::getMsg(void *record, unsigned int msgId)
{
    if (msgId < 1 || msgId > kNmeaKinds || !m_seen[int(msgId - 1)])
        return -1;
    const QByteArray &text = m_latest[int(msgId - 1)];
    auto *out = static_cast<Record *>(record);
    out->tag = kRecordTag;
    out->length = qMin(text.size(), int(sizeof(out->text)));
    std::memcpy(out->text, text.constData(), size_t(out->length));
    return 0;
}

int NmeaDecoder::structDataToStr(const void *record, char *text, int)
{
    const auto *in = static_cast<const Record *>(record);
    if (in->tag != kRecordTag || in->length < 0) {
        text[0] = '\0';
        return -1;
    }
    const int length = qMin(in->length, qMin(int(sizeof(in->text)), KV_GNSS_MSG_TEXT_SIZE - 1));
    std::memcpy(text, in->text, size_t(length));
    text[length] = '\0';
    return length;
}

int NmeaDecoder::setOutMsgId(unsigned int msgId)
{
    m_outMsgId = msgId;
    return 0;
}
