// SPDX-License-Identifier: BSD-3-Clause
#include "nmeaepoch.h"
#include "receiverlines.h"

#include "gnssmessagekinds.h"
#include "nmeadecoder.h"

#include <QtTest>
#include <vector>

using ReceiverLines::sentence;

namespace {

// Drives the built-in decoder as the decode page does, through the library's calls.
struct Decoder
{
    NmeaDecoder decoder;
    std::vector<quint64> record = std::vector<quint64>(KV_GNSS_MSG_RECORD_SIZE / 8);
    std::vector<char> text = std::vector<char>(KV_GNSS_MSG_TEXT_SIZE);

    int put(const QByteArray &bytes)
    {
        return decoder.putData(reinterpret_cast<const unsigned char *>(bytes.constData()), bytes.size());
    }
    QStringList kinds()
    {
        std::vector<KV_GNSS_MSGID_T> list(KV_GNSS_MSGID_MAX);
        const int count = decoder.getMsgs(list.data());
        QStringList names;
        for (int i = 0; i < count; ++i)
            names << QLatin1String(gnssMessageKindById(list[size_t(i)].msgId)->name);
        return names;
    }
    // The rendered latest record of a kind, or "-" when there is none.
    QString latest(const char *name)
    {
        if (decoder.getMsg(record.data(), gnssMessageKindByName(QString::fromLatin1(name))->id) != 0)
            return QStringLiteral("-");
        const int length = decoder.structDataToStr(record.data(), text.data(), 0);
        const QString rendered = QString::fromLatin1(text.data());
        return length == rendered.size() ? rendered : QStringLiteral("length mismatch");
    }
};

} // namespace

class BinaryDecoderTest : public QObject
{
    Q_OBJECT
private slots:
    void listsTheKindsSeenInTableOrder();
    void keepsTheLatestRecordOfEachKind();
    void countsCompleteMessagesOfTheOutputKind();
    void refusesBrokenSentences_data();
    void refusesBrokenSentences();
    void assemblesSatellitesInViewPerSystemCycle();
    void keepsSatellitesUsedPerSystem();
};

void BinaryDecoderTest::listsTheKindsSeenInTableOrder()
{
    Decoder d;
    QCOMPARE(d.kinds(), QStringList());
    d.put(sentence("GNZDA,081200.00,15,03,2024,00,00") + sentence("GPGBS,081200.00,1.2,0.9,2.1,,,,"));
    QCOMPARE(d.kinds(), QStringList({"GBS", "ZDA"}));
    d.put(nmeaEpoch(1));
    // TXT is framed but is not one of the decoder's kinds.
    QCOMPARE(d.kinds(), QStringList({"GGA", "RMC", "GSA", "GSV", "GBS", "VTG", "ZDA"}));
    // A kind's name is whole: one that begins a longer name does not stand for it.
    QCOMPARE(gnssMessageKindByName(u"Signal Information Structure")->id, 78u);
}

void BinaryDecoderTest::keepsTheLatestRecordOfEachKind()
{
    Decoder d;
    QCOMPARE(d.latest("GGA"), QString("-"));
    d.put(nmeaEpoch(7) + nmeaEpoch(8));
    QCOMPARE(d.latest("GGA"), QString("GP,081208.00,3110.4693,N,12123.2546,E,4,18,0.7,12.5,M,9.8,M,1.0,0001"));
    QCOMPARE(d.latest("RMC"), QString("GN,081208.00,A,3110.4693,N,12123.2546,E,0.02,251.3,150324,,,R,V"));
    QCOMPARE(d.latest("VTG"), QString("GN,251.3,T,,M,0.02,N,0.04,K,D"));
    QCOMPARE(d.latest("ZDA"), QString("GN,081208.00,15,03,2024,00,00"));
    QCOMPARE(d.latest("GLL"), QString("-"));
    // A later sentence of another talker replaces the record.
    d.put(sentence("BDGGA,081209.00,,,,,0,00,99.0,,,,,,"));
    QCOMPARE(d.latest("GGA"), QString("BD,081209.00,,,,,0,00,99.0,,,,,,"));
}

void BinaryDecoderTest::countsCompleteMessagesOfTheOutputKind()
{
    Decoder d;
    // Every kind: GGA, RMC, two GSA, one complete GSV view per system, VTG, ZDA.
    QCOMPARE(d.put(nmeaEpoch(1)), 8);
    d.decoder.setOutMsgId(gnssMessageKindByName(u"GSV")->id);
    QCOMPARE(d.put(nmeaEpoch(2)), 2);
    d.decoder.setOutMsgId(gnssMessageKindByName(u"GLL")->id);
    QCOMPARE(d.put(nmeaEpoch(3)), 0);
    QCOMPARE(d.latest("GGA").section(',', 1, 1), QString("081203.00"));
}

void BinaryDecoderTest::refusesBrokenSentences_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = sentence("GPGGA,081210.00,3110.4693,N,12123.2546,E,1,08,1.0,12.5,M,9.8,M,,");
    QByteArray badSum = good;
    badSum[badSum.size() - 3] = badSum[badSum.size() - 3] == '0' ? '1' : '0';
    QTest::newRow("wrong checksum") << badSum;
    QTest::newRow("no checksum") << QByteArray("$GPGGA,081210.00,3110.4693,N,12123.2546,E,1,08,1.0,12.5,M,9.8,M,,\r\n");
    QTest::newRow("cut before its end") << good.left(40) + sentence("GPTXT,01,01,02,X");
    QTest::newRow("a control byte inside") << good.left(20) + '\x01' + good.mid(20);
    QTest::newRow("a high byte inside") << good.left(20) + '\xb0' + good.mid(20);
    QTest::newRow("lower-case kind") << sentence("GPgga,081210.00,,,,,0,00,,,,,,,");
    QTest::newRow("long address") << sentence("GPGGAX,081210.00,,,,,0,00,,,,,,,");
    QTest::newRow("too long") << sentence("GPGGA," + QByteArray(NmeaDecoder::kMaxSentence, '1'));
    QTest::newRow("empty") << QByteArray("$\r\n$*00\r\n");
}

void BinaryDecoderTest::refusesBrokenSentences()
{
    QFETCH(QByteArray, bytes);
    Decoder d;
    QCOMPARE(d.put(bytes), 0);
    QCOMPARE(d.kinds(), QStringList());
    QCOMPARE(d.latest("GGA"), QString("-"));
}

void BinaryDecoderTest::assemblesSatellitesInViewPerSystemCycle()
{
    Decoder d;
    d.put(nmeaEpoch(1));
    QCOMPARE(d.latest("GSV"), QString("GPS,02,45,120,44,1,GPS,05,30,060,40,1,GPS,12,70,300,47,1,GPS,15,12,200,35,1,"
                                      "GPS,18,25,010,38,1,"
                                      "GLO,65,40,100,42,1,GLO,71,22,240,36,1,GLO,72,60,330,45,1"));
    // A Galileo cycle without signal ID, with a satellite not yet placed and an empty
    // slot, joins the list.
    d.put(sentence("GAGSV,1,1,03,11,,150,41,,,,,12,30,200,35"));
    QVERIFY(d.latest("GSV").endsWith(",GLO,72,60,330,45,1,GAL,11,,150,41,,GAL,12,30,200,35,"));
    // A GPS cycle that loses a sentence leaves the last complete one, and so does a
    // later sentence of a cycle whose start was not seen.
    d.put(sentence("GPGSV,3,1,09,07,10,010,30,08,11,011,31,09,12,012,32,10,13,013,33,1"));
    d.put(sentence("GPGSV,3,3,09,19,25,010,38,1"));
    d.put(sentence("GPGSV,3,2,09,20,25,010,38,21,25,010,38,22,25,010,38,23,25,010,38,1"));
    d.put(sentence("GPGSV,3,3,09,19,25,010,38,1"));
    QVERIFY(d.latest("GSV").startsWith("GPS,02,45,120,44,1,GPS,05,"));
    QVERIFY(!d.latest("GSV").contains("GPS,07"));
    // A complete cycle replaces the system's list.
    d.put(sentence("GPGSV,1,1,01,30,05,005,20,1"));
    QVERIFY(d.latest("GSV").startsWith("GPS,30,05,005,20,1,GLO,65,"));
    // A sentence numbered above its total is refused and leaves the cycle around it whole.
    d.put(sentence("GPGSV,2,1,05,02,45,120,44,05,30,060,40,12,70,300,47,15,12,200,35,1"));
    d.put(sentence("GPGSV,1,2,05,07,10,010,30,1"));
    d.put(sentence("GPGSV,2,2,05,18,25,010,38,1"));
    QVERIFY(d.latest("GSV").contains("GPS,15,12,200,35,1,GPS,18,25,010,38,1,GLO,65,"));
}

void BinaryDecoderTest::keepsSatellitesUsedPerSystem()
{
    Decoder d;
    d.put(nmeaEpoch(1));
    QCOMPARE(d.latest("GSA"), QString("GPS,A,3,1.2,0.7,1.0,02 05 12 15 18 25 29,GLO,A,3,1.2,0.7,1.0,65 71 72"));
    // Without a system ID the talker names the system; a short GSA is refused.
    d.put(sentence("GPGSA,M,2,02,05,,,,,,,,,,,2.5,1.9,1.6"));
    d.put(sentence("GAGSA,A,3,11,,,,,,,,,,,"));
    QCOMPARE(d.latest("GSA"), QString("GPS,M,2,2.5,1.9,1.6,02 05,GLO,A,3,1.2,0.7,1.0,65 71 72"));
}

QTEST_MAIN(BinaryDecoderTest)
#include "tst_binarydecoder.moc"
