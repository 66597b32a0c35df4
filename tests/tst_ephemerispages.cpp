// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"
#include "receiverlines.h"

#include "msgbasewidget.h"

#include <QTableWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {

QByteArray ephemeris(const QByteArray &log, int fields, const QByteArray &tag)
{
    return ReceiverLines::log(logBody(log, numberedFields(fields, tag + "_")));
}


int filledRows(const ModuleHarness &h, const QString &label)
{
    QTableWidget *table = h.table(label);
    int rows = 0;
    while (rows < table->rowCount() && !table->item(rows, 0)->text().isEmpty())
        ++rows;
    return rows;
}

} // namespace

class EphemerisPagesTest : public QObject
{
    Q_OBJECT
private slots:
    void otherLinesEndTheBurst_data();
    void otherLinesEndTheBurst();
    void burstBeyondTheCapIsTakenButNotShown_data();
    void burstBeyondTheCapIsTakenButNotShown();
    void wrongFieldCountIsRefusedYetStartsABurst_data();
    void wrongFieldCountIsRefusedYetStartsABurst();

private:
    void addPages();
};

void EphemerisPagesTest::addPages()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cap");
    QTest::newRow("Gpsephemeris") << "Gpsephemeris" << QByteArray("GPSEPHEMERISA") << 32 << 32 << 20;
    QTest::newRow("Gloephem") << "Gloephem" << QByteArray("GLOEPHEMA") << 29 << 20 << 20;
    QTest::newRow("Bdsephem") << "Bdsephem" << QByteArray("BDSEPHEMA") << 33 << 63 << 63;
    QTest::newRow("Galephem") << "Galephem" << QByteArray("GALEPHEMA") << 38 << 20 << 20;
}

void EphemerisPagesTest::otherLinesEndTheBurst_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QByteArray>("between");
    QTest::addColumn<int>("rowsAfter");
    const QByteArray bestposBadCrc = log(logBody("BESTPOSA", numberedFields(21))).replace("FINESTEERING", "COARSESTEERING");
    const QByteArray unknown = log(logBody("SOMELOGA", "1,2,3"));
    const QByteArray gloLine = log(logBody("GLOEPHEMA", numberedFields(29)));
    const QByteArray headerInside = "xx#GPSEPHEMERISA,#GLOEPHEMA,#BDSEPHEMA,#GALEPHEMA,\r\n";
    QTest::newRow("GPS, corrupt BESTPOS") << "Gpsephemeris" << QByteArray("GPSEPHEMERISA") << 32 << bestposBadCrc << 1;
    QTest::newRow("GPS, GLONASS ephemeris") << "Gpsephemeris" << QByteArray("GPSEPHEMERISA") << 32 << gloLine << 1;
    // The GPS page ends its burst only at a line without its header anywhere.
    QTest::newRow("GPS, header inside") << "Gpsephemeris" << QByteArray("GPSEPHEMERISA") << 32 << headerInside << 3;
    QTest::newRow("GLO, header inside") << "Gloephem" << QByteArray("GLOEPHEMA") << 29 << headerInside << 1;
    QTest::newRow("BDS, corrupt BESTPOS") << "Bdsephem" << QByteArray("BDSEPHEMA") << 33 << bestposBadCrc << 1;
    QTest::newRow("GAL, unknown log") << "Galephem" << QByteArray("GALEPHEMA") << 38 << unknown << 1;
}

void EphemerisPagesTest::otherLinesEndTheBurst()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, log);
    QFETCH(int, columns);
    QFETCH(QByteArray, between);
    QFETCH(int, rowsAfter);
    ModuleHarness h(1);
    h.show(label);
    h.feed(ephemeris(log, columns, "a") + ephemeris(log, columns, "b"));
    QCOMPARE(filledRows(h, label), 2);
    h.feed(between);
    QCOMPARE(filledRows(h, label), 2);
    h.feed(ephemeris(log, columns, "c"));
    QCOMPARE(filledRows(h, label), rowsAfter);
    QCOMPARE(h.cell(label, rowsAfter - 1, 0), QString("c_0"));
    QCOMPARE(h.cell(label, rowsAfter - 1, columns - 1), QString("c_%1").arg(columns - 1));
}

void EphemerisPagesTest::burstBeyondTheCapIsTakenButNotShown_data()
{
    addPages();
}

void EphemerisPagesTest::burstBeyondTheCapIsTakenButNotShown()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, log);
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(int, cap);
    ModuleHarness h(1);
    h.show(label);
    QByteArray burst;
    for (int i = 0; i < cap + 5; ++i)
        burst += ephemeris(log, columns, "s" + QByteArray::number(i));
    h.feed(burst);
    QCOMPARE(h.taken(label), quint64(cap + 5));
    QCOMPARE(h.table(label)->rowCount(), rows);
    QCOMPARE(h.table(label)->columnCount(), columns);
    QCOMPARE(filledRows(h, label), cap);
    QCOMPARE(h.cell(label, cap - 1, 0), QString("s%1_0").arg(cap - 1));
}

void EphemerisPagesTest::wrongFieldCountIsRefusedYetStartsABurst_data()
{
    addPages();
}

void EphemerisPagesTest::wrongFieldCountIsRefusedYetStartsABurst()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, log);
    QFETCH(int, columns);
    ModuleHarness h(1);
    h.show(label);
    h.feed(ephemeris(log, columns, "a") + ephemeris(log, columns, "b"));
    h.feed(ReceiverLines::log(logBody("SOMELOGA", "1")));
    h.feed(ephemeris(log, columns + 1, "long") + ephemeris(log, columns - 1, "short"));
    QCOMPARE(h.taken(label), quint64(2));
    QCOMPARE(filledRows(h, label), 0);
    // The refused lines opened the burst, so the next line joins it at the top.
    h.feed(ephemeris(log, columns, "c"));
    QCOMPARE(filledRows(h, label), 1);
    QCOMPARE(h.cell(label, 0, 0), QString("c_0"));
}

QTEST_MAIN(EphemerisPagesTest)
#include "tst_ephemerispages.moc"
