// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"
#include "receiverlines.h"

#include "msgbasewidget.h"

#include <QTableWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {

// `count` groups of `stride` fields "<tag><i>c<j>", comma-joined.
QByteArray groups(int count, int stride, const QByteArray &tag = "s")
{
    QByteArray fields;
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < stride; ++j)
            fields += (fields.isEmpty() ? "" : ",") + tag + QByteArray::number(i) + "c" + QByteArray::number(j);
    }
    return fields;
}

// One SATVIS2 line: the constellation, three more fields, then its satellites.
QByteArray satvis2(const QByteArray &system, int count, bool validCrc = true)
{
    QByteArray fields = system + ",1,0," + QByteArray::number(count);
    if (count)
        fields += "," + groups(count, 6, system.left(1));
    QByteArray line = log(logBody("SATVIS2A", fields));
    if (!validCrc)
        line.replace(line.size() - 4, 2, line.mid(line.size() - 4, 2) == "00" ? "11" : "00");
    return line;
}

QByteArray psrdop(const QByteArray &log, const QByteArray &prns)
{
    return ReceiverLines::log(logBody(log, "1.5,1.2,0.9,1.0,0.8,5.0,9" + (prns.isEmpty() ? "" : "," + prns)));
}


QString tableCell(const ModuleHarness &h, const QString &label, const char *table, int row, int column)
{
    return h.table(label, table)->item(row, column)->text();
}


} // namespace

class SatellitePagesTest : public QObject
{
    Q_OBJECT
private slots:
    void bestsatsShowsItsOwnCountField_data();
    void bestsatsShowsItsOwnCountField();
    void satvis2GathersOneTablePerGroup();
    void satvis2GroupWithoutClosingLine();
    void satvis2StaysInsideItsTable();
    void dopSortsPrnsIntoConstellations_data();
    void dopSortsPrnsIntoConstellations();
    void rtkListsTheOtherSatellites();
    void rtkShortLineLeavesUnreadRows();
};

void SatellitePagesTest::bestsatsShowsItsOwnCountField_data()
{
    QTest::addColumn<QByteArray>("countField");
    QTest::addColumn<int>("groups");
    QTest::newRow("disagreeing") << QByteArray("5") << 3;
    QTest::newRow("integer limit") << QByteArray("2147483648") << 2;
    QTest::newRow("negative") << QByteArray("-1") << 1;
    QTest::newRow("empty") << QByteArray("") << 0;
    QTest::newRow("seventy, every row filled") << QByteArray("70") << 70;
}

void SatellitePagesTest::bestsatsShowsItsOwnCountField()
{
    QFETCH(QByteArray, countField);
    QFETCH(int, groups);
    ModuleHarness h(1);
    h.show("Bestsats");
    h.feed(log(logBody("BESTSATSA", countField + (groups ? "," + ::groups(groups, 4) : ""))));
    QCOMPARE(h.countText("Bestsats"), QString(countField));
    for (int row = 0; row < groups; ++row)
        QCOMPARE(h.cell("Bestsats", row, 3), QString("s%1c3").arg(row));
    QCOMPARE(h.cell("Bestsats", groups, 0), QString());
}

void SatellitePagesTest::satvis2GathersOneTablePerGroup()
{
    ModuleHarness h(2);
    h.show("Satvis2");
    h.feed(satvis2("GPS", 2));
    // Lines between the opening and closing ones are taken unchecked.
    h.feed(satvis2("GLONASS", 3, false));
    h.feed(satvis2("BDS", 1));
    QCOMPARE(h.countText("Satvis2"), QString());
    h.feed(satvis2("SBAS", 1));
    QCOMPARE(h.countText("Satvis2"), QString("7"));
    QCOMPARE(h.taken("Satvis2"), quint64(4));
    const char *systems[] = {"GPS", "GPS", "GLONASS", "GLONASS", "GLONASS", "BDS", "SBAS"};
    for (int row = 0; row < 7; ++row)
        QCOMPARE(h.cell("Satvis2", row, 0), QString(systems[row]));
    QCOMPARE(h.cell("Satvis2", 0, 1), QString("G0c0"));
    QCOMPARE(h.cell("Satvis2", 4, 6), QString("G2c5"));
    QCOMPARE(h.cell("Satvis2", 7, 0), QString());
    // The opening and closing lines are checked.
    h.feed(satvis2("SBAS", 1, false));
    QCOMPARE(h.countText("Satvis2"), QString("7"));
    QCOMPARE(h.taken("Satvis2"), quint64(4));
}

void SatellitePagesTest::satvis2GroupWithoutClosingLine()
{
    ModuleHarness h(2);
    h.show("Satvis2");
    for (const QByteArray &system : {QByteArray("GPS"), QByteArray("GLONASS"), QByteArray("SBAS")})
        h.feed(satvis2(system, 2));
    QCOMPARE(h.countText("Satvis2"), QString("6"));
    h.feed(satvis2("GPS", 1));
    h.feed(satvis2("GALILEO", 1));
    QCOMPARE(h.countText("Satvis2"), QString("6"));
    QCOMPARE(h.cell("Satvis2", 1, 0), QString("GALILEO"));
    QCOMPARE(h.cell("Satvis2", 2, 0), QString());
    // The next group starts over at the top.
    h.feed(satvis2("GPS", 1));
    h.feed(satvis2("SBAS", 0));
    QCOMPARE(h.countText("Satvis2"), QString("1"));
    QCOMPARE(h.cell("Satvis2", 0, 0), QString("GPS"));
    QCOMPARE(h.cell("Satvis2", 1, 0), QString());
}

void SatellitePagesTest::satvis2StaysInsideItsTable()
{
    ModuleHarness h(2);
    h.show("Satvis2");
    h.feed(satvis2("GPS", 50));
    h.feed(satvis2("GLONASS", 50));
    h.feed(satvis2("SBAS", 0));
    QCOMPARE(h.countText("Satvis2"), QString("100"));
    QCOMPARE(h.table("Satvis2")->rowCount(), 70);
    QCOMPARE(h.cell("Satvis2", 69, 0), QString("GLONASS"));
    // Lines too short to hold a satellite, or even the leading fields.
    h.feed(log(logBody("SATVIS2A", "GPS")));
    h.feed(log(logBody("SATVIS2A", "GLONASS,1,0,5,R0c0")));
    h.feed(log(logBody("SATVIS2A", "SBAS,1")));
    QCOMPARE(h.countText("Satvis2"), QString("0"));
    QCOMPARE(h.cell("Satvis2", 0, 0), QString());
    QCOMPARE(h.cell("Satvis2", 69, 0), QString());
}

void SatellitePagesTest::dopSortsPrnsIntoConstellations_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("log");
    QTest::newRow("Psrdop") << "Psrdop" << QByteArray("PSRDOPA");
    QTest::newRow("Psrdop2") << "Psrdop2" << QByteArray("PSRDOP2A");
}

void SatellitePagesTest::dopSortsPrnsIntoConstellations()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, log);
    ModuleHarness h(1);
    h.show(label);
    // The GPS range's end, more GPS PRNs than rows, the other ranges' ends, then PRNs
    // of no constellation, unreadable and huge ones.
    QByteArray prns = "32,";
    for (int prn = 1; prn <= 25; ++prn)
        prns += QByteArray::number(prn) + ",";
    prns += "33,37,38,61,75,110,120,141,161,223,"
            "0,62,74,111,119,142,160,224,-5,x,4294967297,-2147483648";
    h.feed(psrdop(log, prns));
    QCOMPARE(tableCell(h, label, "tableWidget", 0, 1), QString("1.5"));
    QCOMPARE(tableCell(h, label, "tableWidget", 6, 1), QString("9"));
    QCOMPARE(tableCell(h, label, "tableWidget_Prn", 0, 0), QString("32"));
    QCOMPARE(tableCell(h, label, "tableWidget_Prn", 19, 0), QString("19"));
    const QStringList columns[] = {{}, {"33", "37"}, {"38", "61"}, {"75", "110"}, {"120", "141"}, {"161", "223"}};
    for (int column = 1; column < 6; ++column) {
        for (int row = 0; row < 3; ++row)
            QCOMPARE(tableCell(h, label, "tableWidget_Prn", row, column), columns[column].value(row));
    }
    // A later line replaces the whole PRN table.
    h.feed(psrdop(log, "7"));
    QCOMPARE(tableCell(h, label, "tableWidget_Prn", 0, 0), QString("7"));
    QCOMPARE(tableCell(h, label, "tableWidget_Prn", 1, 0), QString());
    QCOMPARE(tableCell(h, label, "tableWidget_Prn", 0, 5), QString());
}

void SatellitePagesTest::rtkListsTheOtherSatellites()
{
    ModuleHarness h(1);
    h.show("Rtkdata");
    const QByteArray solution = "SOL_COMPUTED,NARROW_INT," + groups(1, 27, "v") + ",99";
    h.feed(log(logBody("RTKDATAA", solution + "," + groups(5, 3))));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_1", 0, 1), QString("SOL_COMPUTED"));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_1", 29, 1), QString("99"));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_2", 4, 2), QString("s4c2"));
    // "# SV" claims 99 satellites; the fields that follow hold two.
    h.feed(log(logBody("RTKDATAA", solution + "," + groups(2, 3, "t"))));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_2", 1, 0), QString("t1c0"));
    for (int row = 2; row < 5; ++row)
        QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_2", row, 0), QString());
    h.feed(log(logBody("RTKDATAA", solution + "," + groups(45, 3))));
    QCOMPARE(h.table("Rtkdata", "tableWidget_2")->rowCount(), 40);
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_2", 39, 2), QString("s39c2"));
}

void SatellitePagesTest::rtkShortLineLeavesUnreadRows()
{
    ModuleHarness h(1);
    h.show("Rtkdata");
    h.feed(log(logBody("RTKDATAA", "SOL_COMPUTED,NARROW_INT," + groups(1, 28, "v") + "," + groups(2, 3))));
    h.feed(log(logBody("RTKDATAA", "INSUFFICIENT_OBS,NONE,x2,x3,x4")));
    QCOMPARE(h.taken("Rtkdata"), quint64(2));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_1", 0, 1), QString("INSUFFICIENT_OBS"));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_1", 4, 1), QString("x4"));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_1", 6, 1), QString("v0c4"));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_1", 29, 1), QString("v0c27"));
    QCOMPARE(tableCell(h, "Rtkdata", "tableWidget_2", 0, 0), QString());
}

QTEST_MAIN(SatellitePagesTest)
#include "tst_satellitepages.moc"
