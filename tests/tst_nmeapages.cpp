// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"
#include "receiverlines.h"

#include "msgbasewidget.h"

#include <QTableWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {
// The address field followed by count numbered fields.
QByteArray numberedSentence(const QByteArray &address, int count, const QByteArray &prefix)
{
    return sentence(count > 0 ? address + "," + numberedFields(count, prefix) : address);
}

} // namespace

class NmeaPagesTest : public QObject
{
    Q_OBJECT
private slots:
    void everyTalkerAndTheHighRateVariants();
    void fieldCountRules_data();
    void fieldCountRules();
    void corruptAndOversizedLinesAreRefusedQuietly();
};

void NmeaPagesTest::everyTalkerAndTheHighRateVariants()
{
    ModuleHarness h(0);
    const QByteArray gga = ",092725.00,4717.11399,N,00833.91590,E,1,08,1.01,499.6,M,48.0,M,,";
    h.show("GGA");
    h.feed(sentence("GNGGA" + gga));
    QCOMPARE(h.cell("GGA", 0, 1), QString("092725.00"));
    h.feed(sentence("GPGGA,092726.00" + gga.mid(10)));
    QCOMPARE(h.cell("GGA", 0, 1), QString("092726.00"));
    h.feed(sentence("BDGGA,092727.00" + gga.mid(10)));
    QCOMPARE(h.cell("GGA", 0, 1), QString("092727.00"));

    // The variant goes to the GGAH page only, even while the GGA page is in front.
    h.feed(sentence("GPGGAH,092728.00" + gga.mid(10)));
    QCOMPARE(h.cell("GGA", 0, 1), QString("092727.00"));
    QVERIFY(h.isMarked("GGAH"));
    h.show("GGAH");
    h.feed(sentence("GPGGAH,092729.00" + gga.mid(10)));
    QCOMPARE(h.cell("GGAH", 0, 1), QString("092729.00"));
    h.feed(sentence("GPGGA,092730.00" + gga.mid(10)));
    QCOMPARE(h.cell("GGAH", 0, 1), QString("092729.00"));

    h.show("RMCH");
    h.feed(sentence("GNRMCH,083559.00,A,4717.11437,N,00833.91522,E,0.004,77.52,091202,,,A,V"));
    QCOMPARE(h.cell("RMCH", 0, 1), QString("083559.00"));
    QVERIFY(!h.isMarked("RMC"));
    QCOMPARE(h.taken("GGA"), quint64(4));
    QCOMPARE(h.taken("GGAH"), quint64(2));
}

void NmeaPagesTest::fieldCountRules_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("lastOptional");
    struct Page
    {
        const char *label;
        const char *address;
        int rows;
        bool lastOptional;
    };
    const Page pages[] = {
        {"GGA", "GNGGA", 14, true},  {"GGAH", "GNGGAH", 14, true}, {"GLL", "GNGLL", 7, false},
        {"RMC", "GNRMC", 13, true},  {"RMCH", "GPRMCH", 13, true}, {"VTG", "GPVTG", 9, false},
        {"ZDA", "GNZDA", 6, false},  {"GST", "GPGST", 8, true},    {"HDT", "GNHDT", 2, true},
        {"HPR", "GNHPR", 8, true},   {"TRA", "GPTRA", 8, true},
    };
    for (const Page &page : pages)
        QTest::newRow(page.label) << page.label << QByteArray(page.address) << page.rows << page.lastOptional;
}

// Every row is first filled from a complete sentence, then sentences one field
// short, one and two fields long or two short arrive.
void NmeaPagesTest::fieldCountRules()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, address);
    QFETCH(int, rows);
    QFETCH(bool, lastOptional);
    ModuleHarness h(1);
    QVERIFY(h.show(label));
    h.feed(numberedSentence(address, rows, "a"));
    QCOMPARE(h.cell(label, 0, 1), QString("a0"));
    QCOMPARE(h.cell(label, rows - 1, 1), QString("a%1").arg(rows - 1));

    for (int delta : {1, 2, -2})
        h.feed(numberedSentence(address, rows + delta, "x"));
    QCOMPARE(h.cell(label, 0, 1), QString("a0"));
    QCOMPARE(h.taken(label), quint64(1));

    h.feed(numberedSentence(address, rows - 1, "b"));
    QCOMPARE(h.taken(label), quint64(lastOptional ? 2 : 1));
    QCOMPARE(h.cell(label, 0, 1), QString(lastOptional ? "b0" : "a0"));
    QCOMPARE(h.cell(label, rows - 2, 1), QString(lastOptional ? "b%1" : "a%1").arg(rows - 2));
    // The row without a field keeps what it showed.
    QCOMPARE(h.cell(label, rows - 1, 1), QString("a%1").arg(rows - 1));
}


void NmeaPagesTest::corruptAndOversizedLinesAreRefusedQuietly()
{
    ModuleHarness h(1);
    h.show("GGA");
    QByteArray badChecksum = sentence("GPGGA,1,2,3,4,5,6,7,8,9,10,11,12,13,14");
    badChecksum[badChecksum.size() - 3] = badChecksum.at(badChecksum.size() - 3) == '0' ? '1' : '0';
    const QByteArray lines[] = {
        "\r\n", "$\r\n", "$GP\r\n", "$GPGGA\r\n", "$GPGGA*\r\n", "GPGGA,1*00\r\n",
        badChecksum,
        "$gpgga,1,2,3,4,5,6,7,8,9,10,11,12,13,14*00\r\n",
        sentence("GPGGA," + QByteArray(",").repeated(200000)),
        QByteArray(5000, '*') + "\r\n",
        QByteArray("$GPGGA,\xff\xfe,2*1F\r\n"),
    };
    for (const QByteArray &line : lines)
        h.feed(line);
    for (const QString &label : h.pageLabels())
        QVERIFY2(!h.isMarked(label), qPrintable(label));
    QCOMPARE(h.cell("GGA", 0, 1), QString());
}

QTEST_MAIN(NmeaPagesTest)
#include "tst_nmeapages.moc"
