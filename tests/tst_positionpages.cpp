#include "moduleharness.h"
#include "receiverlines.h"

#include "msgbasewidget.h"

#include <QTableWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {
QByteArray bestposFields(int count)
{
    QByteArray fields = "SOL_COMPUTED,NARROW_INT";
    for (int i = 2; i < count; ++i)
        fields += ",v" + QByteArray::number(i);
    return fields;
}
} // namespace

class PositionPagesTest : public QObject
{
    Q_OBJECT
private slots:
    void bestposFillsValuesVerbatimAndMarksItsItem();
    void bestposRefusesWrongFieldCountsAndHeaders();
    void standardCrcIsRefused();
    void hiddenPageTakesLineWithoutUpdating();
    void statusDescriptionsOnSiblingPages_data();
    void statusDescriptionsOnSiblingPages();
    void matchedposhLogsReachOnlyTheirOwnPage();
    void crossedDescriptionsStay();
    void retranslationRestoresStaticStatusTexts();
};

void PositionPagesTest::bestposFillsValuesVerbatimAndMarksItsItem()
{
    ModuleHarness h(2);
    QVERIFY(h.show("Bestpos"));
    QVERIFY(!h.isMarked("Bestpos"));
    h.feed(log(logBody("BESTPOSA", "SOL_COMPUTED,NARROW_INT,31.12345678901,121.5,12.25,-3.1,WGS84,0.01,0.02,0.03,\"0\",1.0,0.0,24,20,,,0,1,2,3")));
    QCOMPARE(h.cell("Bestpos", 0, 1), QString("SOL_COMPUTED"));
    QCOMPARE(h.cell("Bestpos", 2, 1), QString("31.12345678901"));
    QCOMPARE(h.cell("Bestpos", 10, 1), QString("\"0\""));
    QCOMPARE(h.cell("Bestpos", 15, 1), QString());
    QCOMPARE(h.cell("Bestpos", 20, 1), QString("3"));
    // The value column keeps its specified width; a long value shows whole as its tooltip.
    QCOMPARE(h.table("Bestpos")->columnWidth(1), 110);
    QCOMPARE(h.table("Bestpos")->item(2, 1)->toolTip(), QString("31.12345678901"));
    QCOMPARE(h.table("Bestpos")->item(20, 1)->toolTip(), QString());
    // Bestpos never describes its status fields, unlike its siblings.
    QCOMPARE(h.cell("Bestpos", 0, 3), QString());
    QCOMPARE(h.cell("Bestpos", 1, 3), QString());
    QVERIFY(h.isMarked("Bestpos"));
}

void PositionPagesTest::bestposRefusesWrongFieldCountsAndHeaders()
{
    ModuleHarness h(2);
    h.show("Bestpos");
    const QByteArray rejected[] = {
        log(logBody("BESTPOSA", bestposFields(20))),
        log(logBody("BESTPOSA", bestposFields(22))),
        log(logBody("BESTPOSB", bestposFields(21))),
        log(logBody("bestposa", bestposFields(21))),
        log("BESTPOSA,COM1 without a header end " + bestposFields(21)),
    };
    for (const QByteArray &line : rejected)
        h.feed(line);
    QCOMPARE(h.cell("Bestpos", 0, 1), QString());
    QVERIFY(!h.isMarked("Bestpos"));
    QCOMPARE(h.module().acceptedLineCounts().at(h.pageLabels().indexOf("Bestpos")).second, quint64(0));
}

void PositionPagesTest::standardCrcIsRefused()
{
    ModuleHarness h(2);
    h.show("Bestpos");
    h.feed(logWithStandardCrc(logBody("BESTPOSA", bestposFields(21))));
    QCOMPARE(h.cell("Bestpos", 0, 1), QString());
    h.feed(log(logBody("BESTPOSA", bestposFields(21))));
    QCOMPARE(h.cell("Bestpos", 0, 1), QString("SOL_COMPUTED"));
}

void PositionPagesTest::hiddenPageTakesLineWithoutUpdating()
{
    ModuleHarness h(2);
    h.show("Psrpos");
    h.feed(log(logBody("BESTPOSA", bestposFields(21))));
    QVERIFY(h.isMarked("Bestpos"));
    QCOMPARE(h.cell("Bestpos", 0, 1), QString());
    // Taken by the hidden page, so no later page sees it.
    QCOMPARE(h.module().lineCount(), quint64(1));
}

void PositionPagesTest::statusDescriptionsOnSiblingPages_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("log");
    QTest::newRow("Psrpos") << "Psrpos" << QByteArray("PSRPOSA");
    QTest::newRow("Tdifpos") << "Tdifpos" << QByteArray("TDIFPOSA");
    QTest::newRow("Matchpos") << "Matchpos" << QByteArray("MATCHEDPOSA");
    QTest::newRow("Matchposh") << "Matchposh" << QByteArray("MATCHEDPOSHA");
}

void PositionPagesTest::statusDescriptionsOnSiblingPages()
{
    QFETCH(QString, label);
    QFETCH(QByteArray, log);
    ModuleHarness h(2);
    h.show(label);
    h.feed(ReceiverLines::log(logBody(log, "INSUFFICIENT_OBS,INS_RTKFLOAT" + QByteArray(",x").repeated(19))));
    QCOMPARE(h.cell(label, 0, 3), QString("Insufficient observation"));
    QCOMPARE(h.cell(label, 1, 3), QString("Integrated solution of INS and RTK float"));
    // An unknown word leaves the previous description in place.
    h.feed(ReceiverLines::log(logBody(log, "SOL_COMPUTED,WHATEVER" + QByteArray(",x").repeated(19))));
    QCOMPARE(h.cell(label, 0, 3), QString("Solution computed"));
    QCOMPARE(h.cell(label, 1, 3), QString("Integrated solution of INS and RTK float"));
}

void PositionPagesTest::matchedposhLogsReachOnlyTheirOwnPage()
{
    ModuleHarness h(2);
    h.show("Matchposh");
    // "#MATCHEDPOSA" (12 characters) is not a prefix of "#MATCHEDPOSHA", so the
    // MATCHEDPOS page, offered the line first, passes it on.
    h.feed(log(logBody("MATCHEDPOSHA", "SOL_COMPUTED,NARROW_INT" + QByteArray(",h").repeated(19))));
    QCOMPARE(h.cell("Matchposh", 2, 1), QString("h"));
    QVERIFY(h.isMarked("Matchposh"));
    QVERIFY(!h.isMarked("Matchpos"));
}

void PositionPagesTest::crossedDescriptionsStay()
{
    ModuleHarness h(2, "CH");
    for (const char *label : {"Bestpos", "Psrpos", "Tdifpos"}) {
        QCOMPARE(h.cell(label, 2, 0), QString("lat"));
        QCOMPARE(h.cell(label, 2, 3), QString("经度"));
    }
    QCOMPARE(h.cell("Matchpos", 2, 3), QString("纬度"));
}

void PositionPagesTest::retranslationRestoresStaticStatusTexts()
{
    ModuleHarness h(2);
    h.show("Matchpos");
    h.feed(log(logBody("MATCHEDPOSA", "SOL_COMPUTED,NARROW_INT" + QByteArray(",x").repeated(19))));
    QCOMPARE(h.cell("Matchpos", 1, 3), QString("Narrow-lane fixed solution"));
    h.page("Matchpos")->onRetranslateUI();
    QCOMPARE(h.cell("Matchpos", 1, 3), QString("Position type"));
    QCOMPARE(h.cell("Matchpos", 1, 1), QString("NARROW_INT"));
}

QTEST_MAIN(PositionPagesTest)
#include "tst_positionpages.moc"
