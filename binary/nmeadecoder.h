// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "gnssdecoder.h"

#include <QByteArray>
#include <QVector>

// The built-in decoder used when the maker's library is not available: it frames
// the NMEA sentences of the binary modes' kinds out of a byte stream that may mix
// them with binary messages, checks their checksums and keeps the latest record of
// each kind. Satellites in view (GSV) are assembled over each system's sentence
// cycle and satellites used (GSA) are kept per system, so those two records are
// whole lists. Memory stays bounded whatever the input.
class NmeaDecoder : public GnssDecoder
{
public:
    NmeaDecoder();

    int putData(const unsigned char *data, int length) override;
    int getMsgs(KV_GNSS_MSGID_T *list) override;
    int getMsg(void *record, unsigned int msgId) override;
    int structDataToStr(const void *record, char *text, int option) override;
    int setOutMsgId(unsigned int msgId) override;

    // Longest sentence framed, "$" to checksum; a longer run is garbage.
    static constexpr int kMaxSentence = 512;

private:
    struct Field
    {
        const char *text;
        int size;
    };
    // One system's (and signal's) satellites in view, filled sentence by sentence.
    struct SatelliteView
    {
        QByteArray key;
        QByteArray pending;
        QByteArray complete;
        int satellites = 0;
        int nextSentence = 0;
    };
    struct SystemEntry
    {
        QByteArray system;
        QByteArray group;
    };

    // Returns the id of the kind whose record the sentence updated, 0 for none.
    unsigned int takeSentence();
    bool takeSatellitesInView(const QByteArray &system);
    void takeSatellitesUsed(const QByteArray &system);
    void splitBody(const char *body, int size);

    QByteArray m_frame;
    bool m_inFrame = false;
    unsigned int m_outMsgId = 0;
    QVector<QByteArray> m_latest;  // by kind index, id - 1
    QVector<bool> m_seen;
    QVector<Field> m_fields;
    QVector<SatelliteView> m_views;
    QVector<SystemEntry> m_used;
};
