// SPDX-License-Identifier: BSD-3-Clause
#include "binarypage.h"
#include "moduleharness.h"
#include "nmeaepoch.h"

#include <QDir>
#include <QLibrary>
#include <QTemporaryDir>
#include <QtTest>

using namespace BinaryPage;

// The decode page driving a maker-style library loaded through the environment: the
// test library logs every call, so the order of the raw data entry shows.
class BinarySeamTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void rawDataEntryDrivesTheLibraryInOrder();
    void listLayoutsOfTheLibrarysKinds_data();
    void listLayoutsOfTheLibrarysKinds();
    void unusableLibraryFallsBackToTheBuiltInDecoder_data();
    void unusableLibraryFallsBackToTheBuiltInDecoder();

private:
    QString takeLog() { return QString::fromLatin1(m_takeLog()); }

    QLibrary m_library{QStringLiteral(TEST_GNSSDECODE_LIBRARY)};
    const char *(*m_takeLog)() = nullptr;
    void (*m_reset)() = nullptr;
    qint64 m_now = 1000;
};

void BinarySeamTest::initTestCase()
{
    qputenv("MESSAGEVIEW_GNSSDECODE", TEST_GNSSDECODE_LIBRARY);
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    m_takeLog = reinterpret_cast<const char *(*)()>(m_library.resolve("testDecoderTakeLog"));
    m_reset = reinterpret_cast<void (*)()>(m_library.resolve("testDecoderReset"));
    QVERIFY(m_takeLog && m_reset);
    QDir::setCurrent(QStringLiteral(MESSAGEVIEW_SOURCE_DIR));
}

void BinarySeamTest::init()
{
    m_reset();
    m_now = 1000;
}

void BinarySeamTest::rawDataEntryDrivesTheLibraryInOrder()
{
    ModuleHarness h(4);
    page(h)->setClock([this] { return m_now; });
    QVERIFY(decoderText(h).startsWith("Decoder: the maker's GNSSDecode library ("));
    QVERIFY(decoderText(h).contains(QFileInfo(TEST_GNSSDECODE_LIBRARY).fileName()));

    // Nothing chosen: fed, but nothing fetched; the first call only starts the clock.
    h.feed("1:a,b\n");
    QCOMPARE(takeLog(), QString("put(6)=1"));
    m_now += 3;
    h.feed("65:x\n");
    QCOMPARE(takeLog(), QString("put(5)=1"));
    m_now += 1;
    h.feed("1:c,d\n");
    QCOMPARE(takeLog(), QString("put(6)=1 msgs=2"));
    QVERIFY(h.isMarked("GGA"));
    QVERIFY(h.isMarked("NAVPOS"));
    QVERIFY(!h.isMarked("RMC"));

    // Choosing a kind tells the decoder what to output; each message it then counts
    // is fetched and rendered once.
    QVERIFY(h.show("GGA"));
    QCOMPARE(takeLog(), QString("out(1)"));
    h.feed("1:GP,e\n65:y\n1:GN,g,h\n");
    QCOMPARE(takeLog(), QString("put(21)=2 get(1) str(0) get(1) str(0)"));
    QCOMPARE(cell(h, 0, 1), QString("GN"));
    QCOMPARE(cell(h, 2, 1), QString("h"));
    QCOMPARE(cell(h, 2, 0), QString("Latitude"));

    m_now += 4;
    h.feed("2:z\n");
    QCOMPARE(takeLog(), QString("put(4)=0 msgs=3"));
    QVERIFY(h.isMarked("RMC"));
}

void BinarySeamTest::listLayoutsOfTheLibrarysKinds_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QStringList>("gpsColumn1");
    QTest::addColumn<QStringList>("bdsColumn1");
    // Signal lists follow the chosen system; group delay lists show every row. A
    // trailing group cut short is not shown.
    QTest::newRow("Signal Information")
        << "Signal Information" << QByteArray("79:GPS,01,L1CA,45,100,BDS,19,B1I,40,90,GPS,02,L5,38,12,GPS,03\n")
        << QStringList({"01", "02"}) << QStringList({"19"});
    QTest::newRow("TGD Information") << "TGD Information"
                                     << QByteArray("80:GPS,L1CA,-5.1,0.2,BDS,B1I,2.4,0.1\n")
                                     << QStringList({"L1CA", "B1I"}) << QStringList({"L1CA", "B1I"});
    QTest::newRow("TGD(BDS) Information") << "TGD(BDS) Information"
                                          << QByteArray("81:BDS,19,1.1,2.2,3.3,4.4,BDS,20,5.5,6.6,7.7,8.8\n")
                                          << QStringList({"19", "20"}) << QStringList({"19", "20"});
}

void BinarySeamTest::listLayoutsOfTheLibrarysKinds()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, record);
    QFETCH(QStringList, gpsColumn1);
    QFETCH(QStringList, bdsColumn1);
    QTemporaryDir dir;
    QDir(dir.path()).mkpath("MessageConfig");
    QFile description(dir.filePath("MessageConfig/" + kind + "_EN.txt"));
    QVERIFY(description.open(QIODevice::WriteOnly));
    description.write("c0\tc1\tc2\tc3\tc4\tc5\n");
    description.close();
    const QString previous = QDir::currentPath();
    QDir::setCurrent(dir.path());

    ModuleHarness h(5);
    QVERIFY(h.show(kind));
    QDir::setCurrent(previous);
    auto column1 = [&h] {
        QStringList texts;
        for (int row = 0; row < table(h)->rowCount(); ++row)
            texts << cell(h, row, 1);
        return texts;
    };
    h.feed(record);
    QCOMPARE(column1(), gpsColumn1);
    chooseSystem(h, "BDS");
    h.feed(record);
    QCOMPARE(column1(), bdsColumn1);
}

void BinarySeamTest::unusableLibraryFallsBackToTheBuiltInDecoder_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing file") << QDir::temp().filePath("no-such-dir/libGNSSDecode.so") << "";
    // Loads, but lacks GNSSSetOutMsgID.
    QTest::newRow("one function short") << TEST_GNSSDECODE_PARTIAL_LIBRARY << "it does not export all of";
}

void BinarySeamTest::unusableLibraryFallsBackToTheBuiltInDecoder()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    qputenv("MESSAGEVIEW_GNSSDECODE", file.toLocal8Bit());
    ModuleHarness h(4);
    qputenv("MESSAGEVIEW_GNSSDECODE", TEST_GNSSDECODE_LIBRARY);
    QVERIFY2(decoderText(h).startsWith("Decoder: built-in NMEA decoder (cannot use " + file + ": "),
             qPrintable(decoderText(h)));
    QVERIFY(decoderText(h).contains(reason));
    h.show("GGA");
    h.feed(nmeaEpoch(9));
    QCOMPARE(cell(h, 1, 1), QString("081209.00"));
    QCOMPARE(takeLog(), QString());
}

QTEST_MAIN(BinarySeamTest)
#include "tst_binaryseam.moc"
