// SPDX-License-Identifier: BSD-3-Clause
#include "linechecksum.h"
#include "receiverlines.h"

#include <QtTest>

using namespace ReceiverLines;

class LineChecksumTest : public QObject
{
    Q_OBJECT
private slots:
    void lines_data();
    void lines();
};

void LineChecksumTest::lines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("accepted");

    const QByteArray gga = "GPGGA,083559.00,3723.2475,N,12158.3416,W,1,07,1.0,9.0,M,,M,,";
    const QByteArray xorHex = QByteArray::number(xorChecksum(gga), 16);
    const QByteArray log = logBody("BESTPOSA", "SOL_COMPUTED,SINGLE,1,2");
    const QByteArray crcHex = QByteArray::number(bitwiseCrc32(log, 0, false), 16);

    QTest::newRow("nmea xor") << QString(sentence(gga)) << true;
    QTest::newRow("nmea lower-case hex") << QString("$" + gga + "*" + xorHex.toLower() + "\r\n") << true;
    QTest::newRow("nmea leading zero digits") << QString("$" + gga + "*00" + xorHex + "\r\n") << true;
    QTest::newRow("nmea blanks around digits") << QString("$" + gga + "* " + xorHex + " \r\n") << true;
    QTest::newRow("nmea without line end") << QString("$" + gga + "*" + xorHex) << true;
    QTest::newRow("nmea wrong value") << QString("$" + gga + "*" + QByteArray::number(xorChecksum(gga) ^ 1, 16) + "\r\n") << false;
    QTest::newRow("nmea non-hex digit") << QString("$" + gga + "*" + xorHex.left(1) + "G\r\n") << false;
    QTest::newRow("nmea text after digits") << QString("$" + gga + "*" + xorHex + "x\r\n") << false;
    QTest::newRow("nmea no star") << QString("$" + gga + "\r\n") << false;
    QTest::newRow("nmea empty checksum") << QString("$" + gga + "*\r\n") << false;
    QTest::newRow("second star ends the body") << QString("$" + gga + "*" + xorHex + "*" + xorHex + "\r\n") << false;
    QTest::newRow("log zero-initial crc") << QString(ReceiverLines::log(log)) << true;
    QTest::newRow("log upper-case crc") << QString("#" + log + "*" + crcHex.toUpper() + "\r\n") << true;
    QTest::newRow("log standard crc") << QString(logWithStandardCrc(log)) << false;
    QTest::newRow("log crc as xor") << QString("#" + log + "*" + QByteArray::number(xorChecksum(log), 16) + "\r\n") << false;
    QTest::newRow("no frame character") << QString("BDSTIME,1,2*00\r\n") << false;
    QTest::newRow("empty line") << QString() << false;
    QTest::newRow("empty body") << QString("$*0\r\n") << true;
    QTest::newRow("checksum wider than 32 bits") << QString("#" + log + "*1" + crcHex.rightJustified(8, '0') + "\r\n") << false;
    // The run stops at a zero byte: only "AB" counts.
    QTest::newRow("zero byte ends the run") << QString::fromLatin1("$AB\0CD*03\r\n", 11) << true;
    // The same rules inside the longer runs of a log: a zero byte or a character
    // outside Latin-1 in the middle of the body.
    const QByteArray prefix = "ABCDEFGHIJ";
    const QByteArray zeroInBody = "#" + prefix + QByteArray(1, '\0') + "KLMNOPQRSTUV*"
        + QByteArray::number(bitwiseCrc32(prefix, 0, false), 16) + "\r\n";
    QTest::newRow("log zero byte mid-body") << QString::fromLatin1(zeroInBody.constData(), zeroInBody.size()) << true;
    QTest::newRow("log non latin-1 mid-body")
        << (QString("#ABCDEF") + QChar(0x4e2d) + "GHIJKLMN*"
            + QString::number(bitwiseCrc32("ABCDEF?GHIJKLMN", 0, false), 16) + "\r\n")
        << true;
    // Characters outside Latin-1 count as '?'.
    // A no-break space (two bytes in UTF-8) is a blank to the digit reading.
    QTest::newRow("no-break space after digits") << (QString(sentence(gga)).chopped(2) + QChar(0xa0) + "\r\n") << true;
    QTest::newRow("non latin-1 character") << (QString("$A") + QChar(0x4e2d) + "*" + QString::number(quint8('A') ^ quint8('?'), 16) + "\r\n") << true;
}

void LineChecksumTest::lines()
{
    QFETCH(QString, line);
    QFETCH(bool, accepted);
    QCOMPARE(checkLineChecksum(line), accepted);
    // The bytes as they arrive give the same answer (UTF-8, as the message view reads them).
    const QByteArray bytes = line.toUtf8();
    QCOMPARE(checkLineChecksumBytes(bytes.constData(), bytes.size()), accepted);
}


QTEST_APPLESS_MAIN(LineChecksumTest)
#include "tst_linechecksum.moc"
