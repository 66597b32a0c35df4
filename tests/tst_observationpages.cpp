// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"
#include "receiverlines.h"

#include "msgbasewidget.h"
#include "trackingstatus.h"

#include <QTableWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {

// The log's own count field, then `count` groups of `stride` fields "o<i>c<j>"; the
// last field of a group is the tracking status word.
QByteArray observations(int count, int stride, const QByteArray &status = "00000000")
{
    QByteArray fields = QByteArray::number(count);
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j + 1 < stride; ++j)
            fields += ",o" + QByteArray::number(i) + "c" + QByteArray::number(j);
        fields += "," + status;
    }
    return fields;
}



bool rowIsEmpty(const ModuleHarness &h, const QString &label, int row)
{
    QTableWidget *table = h.table(label);
    for (int column = 0; column < table->columnCount(); ++column) {
        if (!table->item(row, column)->text().isEmpty())
            return false;
    }
    return true;
}

int status(int system, int signal, int otherBits = 0)
{
    return (system << 16) | (signal << 21) | otherBits;
}

} // namespace

class ObservationPagesTest : public QObject
{
    Q_OBJECT
private slots:
    void longLogThenShortLeavesNoStaleRows_data();
    void longLogThenShortLeavesNoStaleRows();
    void rowsStopAtTheCapButTheCountDoesNot_data();
    void rowsStopAtTheCapButTheCountDoesNot();
    void lineWithoutBodyBlanksAndIsRefused();
    void truncatedGroupsNeverReadPastTheList();
    void obsvmScalesCNoAndNamesSignals();
    void signalNames_data();
    void signalNames();
};

void ObservationPagesTest::longLogThenShortLeavesNoStaleRows_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<int>("stride");
    QTest::newRow("Range") << "Range" << QByteArray("RANGEA") << 10;
    QTest::newRow("Rangeh") << "Rangeh" << QByteArray("RANGEHA") << 10;
    QTest::newRow("Obsvm") << "Obsvm" << QByteArray("OBSVMA") << 11;
}

void ObservationPagesTest::longLogThenShortLeavesNoStaleRows()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, log);
    QFETCH(int, stride);
    ModuleHarness h(2);
    QVERIFY(h.show(label));
    h.feed(ReceiverLines::log(logBody(log, observations(150, stride))));
    QCOMPARE(h.countText(label), QString("150"));
    QCOMPARE(h.cell(label, 149, 0), QString("o149c0"));
    QCOMPARE(h.cell(label, 149, stride - 2), QString("o149c%1").arg(stride - 2));
    // The tracking status word shows as the name of its signal.
    QCOMPARE(h.cell(label, 149, stride - 1), QString("GPS_L1 C/A"));

    h.feed(ReceiverLines::log(logBody(log, observations(3, stride).replace("o", "n"))));
    QCOMPARE(h.countText(label), QString("3"));
    QCOMPARE(h.cell(label, 2, 0), QString("n2c0"));
    for (int row = 3; row < 150; ++row)
        QVERIFY2(rowIsEmpty(h, label, row), qPrintable(QString("row %1").arg(row)));
}

void ObservationPagesTest::rowsStopAtTheCapButTheCountDoesNot_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<int>("stride");
    QTest::addColumn<int>("cap");
    QTest::newRow("Range") << "Range" << QByteArray("RANGEA") << 10 << 200;
    QTest::newRow("Obsvm") << "Obsvm" << QByteArray("OBSVMA") << 11 << 300;
}

void ObservationPagesTest::rowsStopAtTheCapButTheCountDoesNot()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, log);
    QFETCH(int, stride);
    QFETCH(int, cap);
    ModuleHarness h(2);
    h.show(label);
    h.feed(ReceiverLines::log(logBody(log, observations(cap + 7, stride))));
    QCOMPARE(h.countText(label), QString::number(cap + 7));
    QCOMPARE(h.table(label)->rowCount(), cap);
    QCOMPARE(h.cell(label, cap - 1, 0), QString("o%1c0").arg(cap - 1));
    // The next, shorter log wipes every row the long one could show.
    h.feed(ReceiverLines::log(logBody(log, observations(1, stride))));
    QVERIFY(rowIsEmpty(h, label, cap - 1));
    QVERIFY(!rowIsEmpty(h, label, 0));
}


void ObservationPagesTest::lineWithoutBodyBlanksAndIsRefused()
{
    ModuleHarness h(2);
    h.show("Range");
    h.feed(log(logBody("RANGEA", observations(5, 10))));
    h.feed(log("RANGEA,COM1,0,78.5,FINESTEERING,2310,345600.000 no header end," + observations(5, 10)));
    for (int row = 0; row < 5; ++row)
        QVERIFY(rowIsEmpty(h, "Range", row));
    QCOMPARE(h.countText("Range"), QString("5"));
    QCOMPARE(h.taken("Range"), quint64(1));
}

void ObservationPagesTest::truncatedGroupsNeverReadPastTheList()
{
    ModuleHarness h(2);
    h.show("Range");
    // Ten list elements: one group by count, whose last field would lie past the list.
    h.feed(log(logBody("RANGEA", "1,a,b,c,d,e,f,g,h")));
    QCOMPARE(h.countText("Range"), QString("1"));
    QCOMPARE(h.cell("Range", 0, 0), QString("a"));
    QCOMPARE(h.cell("Range", 0, 9), QString());
    // A count field at the integer limit is never read; only the body is counted.
    h.feed(log(logBody("RANGEA", "2147483648")));
    QCOMPARE(h.countText("Range"), QString("0"));
    QVERIFY(rowIsEmpty(h, "Range", 0));
    h.feed(log(logBody("RANGEA", "")));
    QCOMPARE(h.countText("Range"), QString("0"));
}

void ObservationPagesTest::obsvmScalesCNoAndNamesSignals()
{
    ModuleHarness h(2);
    h.show("Obsvm");
    h.feed(log(logBody("OBSVMA", "3,"
                                 "0,12,2.1e7,1.1e8,0.1,0.01,-12.5,4512,0,100.5,02240000,"
                                 "1,40,2.2e7,1.2e8,0.2,0.02,3.5,abc,0,20.0,zz,"
                                 "1,41,2.3e7,1.3e8,0.3,0.03,1.5,-7,0,30.0,00010000")));
    QCOMPARE(h.cell("Obsvm", 0, 7), QString("45.12"));
    QCOMPARE(h.cell("Obsvm", 0, 10), QString("BDS_B2I"));
    QCOMPARE(h.cell("Obsvm", 0, 9), QString("100.5"));
    // Unreadable numbers read as zero.
    QCOMPARE(h.cell("Obsvm", 1, 7), QString("0.00"));
    QCOMPARE(h.cell("Obsvm", 1, 10), QString("GPS_L1 C/A"));
    QCOMPARE(h.cell("Obsvm", 2, 7), QString("-0.07"));
    QCOMPARE(h.cell("Obsvm", 2, 10), QString("GLO_L1C"));
}

void ObservationPagesTest::signalNames_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("name");
    const struct
    {
        int system;
        int signal;
        const char *name;
    } listed[] = {
        // One or two signals of each system, those that share a name among them.
        {0, 0, "GPS_L1 C/A"}, {0, 9, "GPS_L2P(Y)"}, {0, 17, "GPS_L2C"}, {1, 7, "GLO_G3Q"}, {2, 6, "SBAS_L5I"},
        {3, 18, "GAL_E5A pilot"}, {3, 22, "GAL_E5B pilot"}, {4, 23, "BDS_B1C"}, {4, 28, "BDS_B2a"}, {4, 21, "BDS_B3I"},
        {5, 27, "QZSS_L2C"}, {6, 14, "NAVIC_L5"}, {6, 31, "NAVIC_L1"},
        // Unlisted combinations name nothing.
        {0, 1, ""}, {3, 0, ""}, {4, 31, ""}, {7, 0, ""},
    };
    for (const auto &entry : listed) {
        QTest::addRow("sys%d sig%d", entry.system, entry.signal)
            << status(entry.system, entry.signal) << QString::fromUtf8(entry.name);
    }
    const int bit26 = 1 << 26;
    QTest::newRow("GPS L2 with bit 26") << status(0, 9, bit26) << "GPS_L2C";
    QTest::newRow("QZSS L2 with bit 26") << status(5, 9, bit26) << "QZSS_L2C";
    QTest::newRow("plain L2C ignores bit 26") << status(0, 17, bit26) << "GPS_L2C";
    QTest::newRow("bit 26 names no other signal") << status(1, 0, bit26) << "GLO_L1C";
    QTest::newRow("channel bits and sign ignored") << int(0x80000000u | quint32(status(3, 1, 0xFFFF | (1 << 19))))
                                                   << "GAL_E1B";
    QTest::newRow("bit 26 on SBAS") << status(2, 9, bit26) << "";
}

void ObservationPagesTest::signalNames()
{
    QFETCH(int, status);
    QFETCH(QString, name);
    QCOMPARE(trackingStatusSignalName(status), name);
}

QTEST_MAIN(ObservationPagesTest)
#include "tst_observationpages.moc"
