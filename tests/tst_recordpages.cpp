// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"
#include "receiverlines.h"

#include "headingtable.h"

#include <QTableWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {

struct PageLog
{
    const char *label; // tree label of the page that owns the log
    const char *name;  // log name as the receiver writes it after '#'
    int fields;        // data fields of a well-formed record
};

// One well-formed log per page (KVNHEADING2 logs land on "KvnHeading").
const PageLog kLogs[] = {
    {"AGRIC", "AGRICA", 57},
    {"Bestpos", "BESTPOSA", 21},
    {"Bestnav", "BESTNAVA", 30},
    {"BestnavH", "BESTNAVHA", 30},
    {"Bestvel", "BESTVELA", 8},
    {"Bestxyz", "BESTXYZA", 28},
    {"KvnHeading", "KVNHEADINGA", 17},
    {"Heading2", "HEADING2A", 17},
    {"Psrpos", "PSRPOSA", 21},
    {"Psrvel", "PSRVELA", 8},
    {"Tdifvel", "TDIFVELA", 8},
    {"Gpsutc", "GPSUTCA", 10},
    {"Bdsutc", "BDSUTCA", 10},
    {"Galutc", "GALUTCA", 12},
    {"Gpsion", "GPSIONA", 12},
    {"Bdsion", "BDSIONA", 12},
    {"Bd3ion", "BD3IONA", 10},
    {"Galion", "GALIONA", 8},
    {"Fwinfo", "FWINFOA", 9},
    {"Time", "TIMEA", 11},
    {"Inspva", "INSPVAA", 12},
    {"Rawimux", "RAWIMUXA", 11},
    {"Antenna", "ANTENNAA", 4},
};

QByteArray record(const QByteArray &name, int fields)
{
    return log(logBody(name, numberedFields(fields)));
}

// Vocabulary words in fields 0 and 1, numbered fields after them.
QByteArray statusRecord(const QByteArray &name, int fields, const QByteArray &status, const QByteArray &type)
{
    return log(logBody(name, status + "," + type + "," + numberedFields(fields - 2, "v")));
}

} // namespace

class RecordPagesTest : public QObject
{
    Q_OBJECT
private slots:
    void takesItsOwnLogWithExactFieldCount_data();
    void takesItsOwnLogWithExactFieldCount();
    void headingVariants();
    void statusDescriptionsAndRetranslation_data();
    void statusDescriptionsAndRetranslation();
    void malformedLinesAreRefusedQuietly();
};

void RecordPagesTest::takesItsOwnLogWithExactFieldCount_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("fields");
    for (const PageLog &entry : kLogs)
        QTest::newRow(entry.label) << entry.label << QByteArray(entry.name) << entry.fields;
}

void RecordPagesTest::takesItsOwnLogWithExactFieldCount()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, name);
    QFETCH(int, fields);
    ModuleHarness h(2);
    QVERIFY(h.show(label));

    h.feed(record(name, fields - 1) + record(name, fields + 1));
    QVERIFY(!h.isMarked(label));
    QCOMPARE(h.cell(label, 0, 1), QString());

    h.feed(record(name, fields));
    QVERIFY(h.isMarked(label));
    QCOMPARE(h.cell(label, 0, 1), QString("f0"));
    QCOMPARE(h.cell(label, fields - 1, 1), "f" + QString::number(fields - 1));
}

void RecordPagesTest::headingVariants()
{
    ModuleHarness h(2);
    const QByteArray kvnHeading = statusRecord("KVNHEADINGA", 17, "SOL_COMPUTED", "L1_INT");
    const QByteArray kvnHeading2 = statusRecord("KVNHEADING2A", 17, "NO_CONVERGENCE", "NONE");

    // The "Heading" page takes neither its own HEADING records nor KVNHEADING ones.
    h.show("Heading");
    auto *heading = qobject_cast<HeadingTable *>(h.page("Heading"));
    QVERIFY(heading);
    QVERIFY(!heading->parse(QString::fromUtf8(statusRecord("HEADINGA", 17, "SOL_COMPUTED", "L1_INT"))));
    QVERIFY(!heading->parse(QString::fromUtf8(kvnHeading)));
    QCOMPARE(h.cell("Heading", 0, 1), QString());

    h.show("KvnHeading");
    h.feed(kvnHeading);
    QCOMPARE(h.cell("KvnHeading", 0, 1), QString("SOL_COMPUTED"));
    QCOMPARE(h.cell("KvnHeading", 16, 1), QString("v14"));
    QCOMPARE(h.cell("KvnHeading", 0, 3), QString("Solution computed"));
    QCOMPARE(h.cell("KvnHeading", 1, 3), QString("L1 fixed solution"));
    QVERIFY(!h.isMarked("Heading"));

    // Offered directly, the "KvnHeading2" page takes both maker heading logs.
    h.show("KvnHeading2");
    MsgBaseWidget *kvn2 = h.page("KvnHeading2");
    QVERIFY(kvn2->parse(QString::fromUtf8(kvnHeading)));
    QCOMPARE(h.cell("KvnHeading2", 1, 3), QString("L1 fixed solution"));
    QVERIFY(kvn2->parse(QString::fromUtf8(kvnHeading2)));
    QCOMPARE(h.cell("KvnHeading2", 0, 3), QString("No convergence, invalid solution"));
    QCOMPARE(h.cell("KvnHeading2", 1, 3), QString("No solution"));
    QVERIFY(!kvn2->parse(QString::fromUtf8(statusRecord("KVNHEADING2A", 16, "SOL_COMPUTED", "NONE"))));
}

void RecordPagesTest::statusDescriptionsAndRetranslation_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("fields");
    QTest::addColumn<QString>("statusText");
    QTest::addColumn<QString>("typeText");
    QTest::newRow("Bestvel") << "Bestvel" << QByteArray("BESTVELA") << 8 << "Solution Status" << "Velocity type";
    QTest::newRow("Psrvel") << "Psrvel" << QByteArray("PSRVELA") << 8 << "Solution status" << "Velocity type";
    QTest::newRow("Tdifvel") << "Tdifvel" << QByteArray("TDIFVELA") << 8 << "Solution status" << "Velocity type";
    QTest::newRow("Bestxyz") << "Bestxyz" << QByteArray("BESTXYZA") << 28 << "Solution Status" << "Position type";
    QTest::newRow("KvnHeading") << "KvnHeading" << QByteArray("KVNHEADINGA") << 17 << "Solution Status"
                                << "Position type";
    QTest::newRow("Heading2") << "Heading2" << QByteArray("HEADING2A") << 17 << "Solution status"
                              << "Position type";
}

void RecordPagesTest::statusDescriptionsAndRetranslation()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, name);
    QFETCH(int, fields);
    QFETCH(QString, statusText);
    QFETCH(QString, typeText);
    ModuleHarness h(2);
    h.show(label);
    QCOMPARE(h.cell(label, 0, 3), statusText);
    QCOMPARE(h.cell(label, 1, 3), typeText);

    h.feed(statusRecord(name, fields, "COV_TRACE", "DOPPLER_VELOCITY"));
    QCOMPARE(h.cell(label, 0, 3), QString("Covariance matrix trace exceeds maximum"));
    QCOMPARE(h.cell(label, 1, 3), QString("Velocity computed using instantaneous Doppler"));

    // An unknown word keeps the previous description; a refused record changes nothing.
    h.feed(statusRecord(name, fields, "UNKNOWN_STATUS", "SINGLE") + statusRecord(name, fields + 1, "SOL_COMPUTED", "NONE"));
    QCOMPARE(h.cell(label, 0, 3), QString("Covariance matrix trace exceeds maximum"));
    QCOMPARE(h.cell(label, 1, 3), QString("Single point positioning"));

    h.page(label)->onRetranslateUI();
    QCOMPARE(h.cell(label, 0, 3), statusText);
    QCOMPARE(h.cell(label, 1, 3), typeText);
    QCOMPARE(h.cell(label, 0, 1), QString("UNKNOWN_STATUS"));
}

void RecordPagesTest::malformedLinesAreRefusedQuietly()
{
    ModuleHarness h(2);
    h.show("Gpsion");
    const QByteArray lines[] = {
        log("GPSIONA,COM1,0 no header end " + numberedFields(12)),
        log(logBody("GPSIONA", QByteArray(100000, ','))),
        log(logBody("GPSIONA", "")),
        log("GPSION"),
        "#GPSIONA,COM1;" + numberedFields(12) + "*zzzzzzzz\r\n",
        "#GPSION\r\n",
    };
    for (const QByteArray &line : lines)
        h.feed(line);
    QVERIFY(!h.isMarked("Gpsion"));
    QCOMPARE(h.cell("Gpsion", 0, 1), QString());
    h.feed(record("GPSIONA", 12));
    QCOMPARE(h.cell("Gpsion", 11, 1), QString("f11"));
}

QTEST_MAIN(RecordPagesTest)
#include "tst_recordpages.moc"
