// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"
#include "receiverlines.h"

#include "gsvtable.h"

#include <QTableWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {

struct Row
{
    QString system;
    QString prn;
    QString elevation;
    QString azimuth;
    QString cn0;
    QColor colour;
};

QList<Row> rows(const ModuleHarness &h)
{
    QList<Row> out;
    const QTableWidget *table = h.table("GSV");
    for (int row = 0; row < table->rowCount(); ++row) {
        out.append({table->item(row, 0)->text(), table->item(row, 1)->text(), table->item(row, 2)->text(),
                    table->item(row, 3)->text(), table->item(row, 4)->text(),
                    table->item(row, 4)->background().color()});
    }
    return out;
}

// "GPS 5" style keys of the listed satellites, in table order.
QStringList satellites(const ModuleHarness &h)
{
    QStringList keys;
    for (const Row &row : rows(h))
        keys << row.system + " " + row.prn;
    return keys;
}


Row rowOf(const ModuleHarness &h, const QString &system, const QString &prn)
{
    for (const Row &row : rows(h)) {
        if (row.system == system && row.prn == prn)
            return row;
    }
    return Row();
}

void feedAll(ModuleHarness &h, const QList<QByteArray> &bodies)
{
    for (const QByteArray &body : bodies)
        h.feed(sentence(body));
}

// One epoch of a multi-constellation NMEA 4.11 receiver: each system reports on
// two signals, the second signal listing only satellites tracked on it.
const QList<QByteArray> kDualFrequencyEpoch = {
    "GPGSV,2,1,06,02,16,045,34,05,55,287,45,12,27,118,41,13,62,054,47,1",
    "GPGSV,2,2,06,15,09,321,,29,40,210,39,1",
    "GPGSV,1,1,03,05,55,287,38,13,62,054,44,29,40,210,35,8",
    "GLGSV,1,1,03,65,33,041,40,66,71,310,43,75,12,150,30,1",
    "GLGSV,1,1,02,65,33,041,36,75,12,150,25,3",
    "GAGSV,1,1,03,03,47,102,42,05,20,258,37,13,66,300,44,7",
    "GAGSV,1,1,02,03,47,102,40,13,66,300,41,1",
    "GBGSV,1,1,04,08,66,012,39,11,42,178,36,19,59,288,44,26,23,095,32,1",
    "GBGSV,1,1,02,19,59,288,41,26,23,095,29,B",
};

} // namespace

class GsvTableTest : public QObject
{
    Q_OBJECT
private slots:
    void multiConstellationDualFrequency();
    void firstSentenceWithoutSignalIdWipesOnlyItsSystem();
    void acceptedFieldCounts_data();
    void acceptedFieldCounts();
    void groupCutOffMidway();
    void emptyFieldsAndPadding();
    void staleSignalsAndSatellitesAreSwept();
    void boundedStores();
};

void GsvTableTest::multiConstellationDualFrequency()
{
    ModuleHarness h(0);
    h.show("GSV");
    // Two epochs, the first led by BDS so that its rows are new ones: a satellite
    // reported again is updated, never listed twice.
    feedAll(h, kDualFrequencyEpoch.mid(7) + kDualFrequencyEpoch.mid(0, 7));
    feedAll(h, kDualFrequencyEpoch);

    const QStringList expected = {"BDS 8", "BDS 11", "BDS 19", "BDS 26", "GPS 2", "GPS 5", "GPS 12", "GPS 13",
                                  "GPS 15", "GPS 29", "GLO 65", "GLO 66", "GLO 75", "GAL 3", "GAL 5", "GAL 13"};
    QCOMPARE(satellites(h), expected);
    QCOMPARE(h.countText("GSV"), QString("16"));
    QVERIFY(h.isMarked("GSV"));

    const QColor colours[] = {{255, 222, 189}, {205, 255, 205}, {189, 222, 255}, {255, 255, 127}};
    const QString systems[] = {"BDS", "GPS", "GLO", "GAL"};
    for (const Row &row : rows(h)) {
        const int system = int(std::find(std::begin(systems), std::end(systems), row.system) - std::begin(systems));
        QCOMPARE(row.colour, colours[system]);
    }

    // Both signals merged, in the order the signals were first reported.
    QCOMPARE(rowOf(h, "GPS", "5").cn0, QString("45/38"));
    QCOMPARE(rowOf(h, "GPS", "2").cn0, QString("34"));
    QCOMPARE(rowOf(h, "GLO", "75").cn0, QString("30/25"));
    QCOMPARE(rowOf(h, "GAL", "13").cn0, QString("44/41"));
    // Signal id "B" is hexadecimal: a signal of its own, not a broken field.
    QCOMPARE(rowOf(h, "BDS", "19").cn0, QString("44/41"));
    // Tracked on L1 without a measurement, measured on L5.
    QCOMPARE(rowOf(h, "GPS", "15").cn0, QString());
    QCOMPARE(rowOf(h, "GPS", "29").cn0, QString("39/35"));
    QCOMPARE(rowOf(h, "GPS", "13").elevation, QString("62"));
    QCOMPARE(rowOf(h, "GPS", "13").azimuth, QString("54"));
}

void GsvTableTest::firstSentenceWithoutSignalIdWipesOnlyItsSystem()
{
    ModuleHarness h(0);
    h.show("GSV");
    // NMEA 2.x: no signal-id field.
    feedAll(h, {"GPGSV,2,1,07,02,16,045,34,05,55,287,45,12,27,118,41,13,62,054,47",
                "GPGSV,2,2,07,15,09,321,22,29,40,210,39,30,05,012,",
                "GLGSV,1,1,02,65,33,041,40,66,71,310,43"});
    QCOMPARE(h.countText("GSV"), QString("9"));

    // The next GPS report starts over: satellites that set are gone, GLONASS stays.
    feedAll(h, {"GPGSV,1,1,03,05,56,288,46,12,28,119,40,24,02,200,18"});
    QCOMPARE(satellites(h), (QStringList{"GPS 5", "GPS 12", "GPS 24", "GLO 65", "GLO 66"}));
    QCOMPARE(rowOf(h, "GPS", "5").elevation, QString("56"));
    QCOMPARE(rowOf(h, "GPS", "5").cn0, QString("46"));

    // Sentence 2 of a report, or sentence 1 of a signal, adds without wiping.
    feedAll(h, {"GPGSV,2,2,05,07,10,010,20", "GLGSV,1,1,01,67,20,020,31,3"});
    QCOMPARE(satellites(h), (QStringList{"GPS 5", "GPS 12", "GPS 24", "GPS 7", "GLO 65", "GLO 66", "GLO 67"}));
}

void GsvTableTest::acceptedFieldCounts_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("satellites");
    QTest::newRow("1 sat") << QByteArray("GPGSV,1,1,01,05,55,287,45") << 1;
    QTest::newRow("1 sat + signal") << QByteArray("GPGSV,1,1,01,05,55,287,45,1") << 1;
    QTest::newRow("4 sats") << QByteArray("GPGSV,1,1,04,05,55,287,45,07,10,010,20,09,11,011,21,11,12,012,22") << 4;
    QTest::newRow("4 sats + signal") << QByteArray("GPGSV,1,1,04,05,55,287,45,07,10,010,20,09,11,011,21,11,12,012,22,1") << 4;
    QTest::newRow("partial group (11)") << QByteArray("GPGSV,1,1,02,05,55,287,45,07,10") << -1;
    QTest::newRow("partial group (12)") << QByteArray("GPGSV,1,1,02,05,55,287,45,07,10,010") << -1;
    QTest::newRow("nothing in view") << QByteArray("GPGSV,1,1,00") << -1;
    QTest::newRow("nothing in view + signal") << QByteArray("GPGSV,1,1,00,1") << -1;
    QTest::newRow("five sats") << QByteArray("GPGSV,1,1,05,05,55,287,45,07,10,010,20,09,11,011,21,11,12,012,22,13,13,013,23") << -1;
    QTest::newRow("lower case") << QByteArray("GPgsv,1,1,01,05,55,287,45") << -1;
}

void GsvTableTest::acceptedFieldCounts()
{
    QFETCH(QByteArray, body);
    QFETCH(int, satellites);
    ModuleHarness h(0);
    h.show("GSV");
    h.feed(sentence(body));
    QCOMPARE(h.isMarked("GSV"), satellites >= 0);
    QCOMPARE(h.table("GSV")->rowCount(), qMax(satellites, 0));
}

void GsvTableTest::groupCutOffMidway()
{
    ModuleHarness h(0);
    h.show("GSV");
    const QList<QByteArray> report = {
        "GPGSV,3,1,09,02,16,045,34,05,55,287,45,12,27,118,41,13,62,054,47",
        "GPGSV,3,2,09,15,09,321,22,18,30,100,33,20,44,150,40,25,12,260,28",
        "GPGSV,3,3,09,29,40,210,39",
    };
    feedAll(h, report);
    QCOMPARE(h.countText("GSV"), QString("9"));

    // The link drops in the middle of sentence 2: its head and the whole of
    // sentence 3 become one line with a wrong checksum.
    h.feed(sentence(report.at(0)));
    h.feed(sentence(report.at(1)).left(30));
    h.feed(sentence(report.at(2)));
    QCOMPARE(satellites(h), (QStringList{"GPS 2", "GPS 5", "GPS 12", "GPS 13"}));
    QCOMPARE(h.countText("GSV"), QString("4"));

    feedAll(h, report);
    QCOMPARE(h.countText("GSV"), QString("9"));
}

void GsvTableTest::emptyFieldsAndPadding()
{
    ModuleHarness h(0);
    h.show("GSV");
    feedAll(h, {
        // Not yet placed: no elevation, azimuth or C/N0.
        "GPGSV,1,1,04,05,55,287,45,32,,,,07,,123,20,09,31,,",
        // A receiver that pads its last sentence with empty groups.
        "GLGSV,1,1,02,65,33,041,40,66,71,310,43,,,,,,,,",
        // Fractional angles and C/N0 as some receivers send them.
        "GAGSV,1,1,01,03,47.5,102.25,42.3,7",
    });
    QCOMPARE(satellites(h), (QStringList{"GPS 5", "GPS 32", "GPS 7", "GPS 9", "GLO 65", "GLO 66", "GAL 3"}));
    const Row unplaced = rowOf(h, "GPS", "32");
    QCOMPARE(unplaced.elevation + unplaced.azimuth + unplaced.cn0, QString());
    // An empty elevation leaves the satellite unplaced, whatever the azimuth says.
    QCOMPARE(rowOf(h, "GPS", "7").azimuth, QString());
    QCOMPARE(rowOf(h, "GPS", "7").cn0, QString("20"));
    QCOMPARE(rowOf(h, "GPS", "9").elevation, QString("31"));
    QCOMPARE(rowOf(h, "GPS", "9").azimuth, QString());
    const Row fractional = rowOf(h, "GAL", "3");
    QCOMPARE(fractional.elevation + " " + fractional.azimuth + " " + fractional.cn0, QString("47.5 102.25 42.3"));
}

void GsvTableTest::staleSignalsAndSatellitesAreSwept()
{
    ModuleHarness h(0);
    h.show("GSV");
    auto *page = qobject_cast<GSVTable *>(h.page("GSV"));
    QVERIFY(page);
    feedAll(h, kDualFrequencyEpoch);
    page->clearTimeOut();
    QCOMPARE(h.countText("GSV"), QString("16"));

    // GPS L5 and every GLONASS sentence stop; the rest keeps coming.
    for (const QByteArray &body : kDualFrequencyEpoch) {
        if (!body.startsWith("GL") && !body.endsWith(",8"))
            feedAll(h, {body});
    }
    page->clearTimeOut();
    QCOMPARE(satellites(h).filter("GLO").size(), 0);
    QCOMPARE(rowOf(h, "GPS", "5").cn0, QString("45"));
    QCOMPARE(h.countText("GSV"), QString("13"));

    // Nothing more arrives: the list empties itself.
    page->clearTimeOut();
    QCOMPARE(h.table("GSV")->rowCount(), 0);
    QCOMPARE(h.countText("GSV"), QString("0"));
}

void GsvTableTest::boundedStores()
{
    ModuleHarness h(0);
    h.show("GSV");
    // 64 GPS satellites and one satellite on seven signals: the store keeps 50
    // satellites and five signals per satellite.
    for (int sentence = 0; sentence < 16; ++sentence) {
        QByteArray body = "GPGSV,16," + QByteArray::number(sentence + 1) + ",64";
        for (int i = 1; i <= 4; ++i)
            body += "," + QByteArray::number(sentence * 4 + i) + ",10,100,30";
        feedAll(h, {body});
    }
    QCOMPARE(h.countText("GSV"), QString("50"));
    QCOMPARE(satellites(h).last(), QString("GPS 50"));
    for (int signal = 1; signal <= 7; ++signal)
        feedAll(h, {"GAGSV,1,1,01,03,47,102," + QByteArray::number(40 + signal) + "," + QByteArray::number(signal)});
    QCOMPARE(rowOf(h, "GAL", "3").cn0, QString("41/42/43/44/45"));
}

QTEST_MAIN(GsvTableTest)
#include "tst_gsvtable.moc"
