// SPDX-License-Identifier: BSD-3-Clause
#include "binarypage.h"
#include "loggedmessages.h"
#include "moduleharness.h"
#include "nmeaepoch.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace BinaryPage;

namespace {

const QStringList kNmeaKinds = {"GGA", "RMC", "GSA", "GSV", "GLL", "GST", "GBS", "VTG", "ZDA"};

// A clock the test moves by hand; the page reads it under its own mutex.
struct Clock
{
    qint64 now = 1700000000;
    void attach(ModuleHarness &h)
    {
        page(h)->setClock([this] { return now; });
    }
};

// Switches the current directory for one test: the page reads its description
// files from the current directory's "MessageConfig".
class CurrentDirectory
{
public:
    explicit CurrentDirectory(const QString &path)
        : m_previous(QDir::currentPath())
    {
        QDir::setCurrent(path);
    }
    ~CurrentDirectory() { QDir::setCurrent(m_previous); }

private:
    QString m_previous;
};

void writeDescription(const QTemporaryDir &dir, const QString &fileName, const QByteArray &content)
{
    QDir(dir.path()).mkpath(QStringLiteral("MessageConfig"));
    QFile file(dir.filePath(QStringLiteral("MessageConfig/") + fileName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QStringList repeated(int count, const QString &text)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts << text;
    return texts;
}

QStringList columnTexts(ModuleHarness &h, int column)
{
    QStringList texts;
    for (int row = 0; row < table(h)->rowCount(); ++row)
        texts << cell(h, row, column);
    return texts;
}

} // namespace

class BinaryPageTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void treeListsTheKindsOfEachMode_data();
    void treeListsTheKindsOfEachMode();
    void marksReceivedKindsEveryFourSeconds();
    void clickedKindShowsItsDescribedFieldsLive();
    void satelliteListsFollowTheChosenSystem();
    void descriptionFiles_data();
    void descriptionFiles();
    void missingDescriptionLeavesTheTable();
};

void BinaryPageTest::initTestCase()
{
    // The built-in decoder: no maker library named and none beside the test.
    qunsetenv("MESSAGEVIEW_GNSSDECODE");
}

void BinaryPageTest::treeListsTheKindsOfEachMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("binaryKinds");
    QTest::newRow("mode 4: navigation outputs")
        << 4 << QStringList({"NAVPOS", "NAVVEL", "NAVTIME", "NAVACC", "GYOACC", "IMURAW", "NAVATT", "INSPVA"});
    QTest::newRow("mode 5: every binary kind")
        << 5
        << QStringList({"NAVPOS", "NAVVEL", "NAVTIME", "NAVACC", "OSNMA", "CWOUT", "GYOACC", "SNRSTAT", "IMURAW",
                        "NAVATT", "INSPVA", "Receiver Information", "Ionosphere Information", "Signal Information",
                        "Signal Information Structure", "TGD Information", "TGD(GPS) Information",
                        "TGD(QZSS) Information", "TGD(BDS) Information"});
}

void BinaryPageTest::treeListsTheKindsOfEachMode()
{
    QFETCH(int, mode);
    QFETCH(QStringList, binaryKinds);
    ModuleHarness h(mode);
    QCOMPARE(h.pageCount(), 1);
    QCOMPARE(categoryChildren(h, 0), kNmeaKinds);
    QCOMPARE(categoryChildren(h, 3), binaryKinds);
    QVERIFY(!h.module().getTreeWidget()->topLevelItem(3)->isHidden());
    QVERIFY(h.module().getTreeWidget()->topLevelItem(1)->isHidden());
    // The page says in plain words which decoder works.
    QCOMPARE(decoderText(h), QString("Decoder: built-in NMEA decoder (the maker's GNSSDecode library was not found)"));
}

void BinaryPageTest::marksReceivedKindsEveryFourSeconds()
{
    ModuleHarness h(4);
    Clock clock;
    clock.attach(h);
    h.feed(nmeaEpoch(1));
    clock.now += 3;
    h.feed(nmeaEpoch(2));
    // Nothing chosen yet, and the first refresh is due only after four seconds.
    QVERIFY(!h.isMarked("GGA"));
    clock.now += 1;
    h.feed(nmeaEpoch(3));
    for (const char *kind : {"GGA", "RMC", "GSA", "GSV", "VTG", "ZDA"})
        QVERIFY2(h.isMarked(kind), kind);
    for (const char *kind : {"GLL", "GST", "GBS", "NAVPOS"})
        QVERIFY2(!h.isMarked(kind), kind);

    h.module().setTreeForeground();
    h.feed(ReceiverLines::sentence("GPGLL,3110.4693,N,12123.2546,E,081204.00,A,A"));
    QVERIFY(!h.isMarked("GLL"));
    clock.now += 4;
    h.feed(QByteArray());
    QVERIFY(h.isMarked("GLL"));
    QVERIFY(h.isMarked("GGA"));
}

void BinaryPageTest::clickedKindShowsItsDescribedFieldsLive()
{
    CurrentDirectory directory(QStringLiteral(MESSAGEVIEW_SOURCE_DIR));
    ModuleHarness h(4);
    QSignalSpy titles(&h.module(), &MessageViewModules::messageViewTitleShow);
    QVERIFY(h.show("GGA"));
    QCOMPARE(titles.takeFirst().at(0).toString(), QString("GGA"));
    QCOMPARE(table(h)->rowCount(), 15);
    QCOMPARE(header(h, 1), QString("Value"));
    QCOMPARE(cell(h, 1, 0), QString("UTC time"));
    QCOMPARE(cell(h, 1, 2), QString("hhmmss.ss"));
    QCOMPARE(cell(h, 9, 0), QString("Altitude"));

    h.feed(nmeaEpoch(5));
    QCOMPARE(cell(h, 0, 1), QString("GP"));
    QCOMPARE(cell(h, 1, 1), QString("081205.00"));
    QCOMPARE(cell(h, 14, 1), QString("0001"));
    h.feed(nmeaEpoch(6));
    QCOMPARE(cell(h, 1, 1), QString("081206.00"));

    // Another kind: its own rows, and only its own records.
    QVERIFY(h.show("ZDA"));
    QCOMPARE(table(h)->rowCount(), 7);
    QCOMPARE(cell(h, 1, 1), QString());
    h.feed(nmeaEpoch(7));
    QCOMPARE(cell(h, 4, 1), QString("2024"));
}

void BinaryPageTest::satelliteListsFollowTheChosenSystem()
{
    CurrentDirectory directory(QStringLiteral(MESSAGEVIEW_SOURCE_DIR));
    ModuleHarness h(4);
    h.show("GSV");
    QCOMPARE(table(h)->columnCount(), 6);
    QCOMPARE(header(h, 4), QString("SNR (dB-Hz)"));
    QCOMPARE(table(h)->rowCount(), 0);
    h.feed(nmeaEpoch(1));
    QCOMPARE(columnTexts(h, 1), QStringList({"02", "05", "12", "15", "18"}));
    QCOMPARE(cell(h, 2, 4), QString("47"));
    chooseSystem(h, "GLO");
    QCOMPARE(table(h)->rowCount(), 0);
    h.feed(nmeaEpoch(2));
    QCOMPARE(columnTexts(h, 1), QStringList({"65", "71", "72"}));
    QCOMPARE(columnTexts(h, 0), repeated(3, "GLO"));
    // A shorter list leaves no rows of the longer one.
    h.feed(ReceiverLines::sentence("GLGSV,1,1,01,65,40,100,42,1"));
    QCOMPARE(columnTexts(h, 1), QStringList({"65"}));

    // Satellites used: one row per system, whichever is chosen.
    h.show("GSA");
    QCOMPARE(table(h)->columnCount(), 7);
    h.feed(nmeaEpoch(3));
    QCOMPARE(columnTexts(h, 0), QStringList({"GPS", "GLO"}));
    QCOMPARE(cell(h, 1, 6), QString("65 71 72"));
}

void BinaryPageTest::descriptionFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("headers");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<QStringList>("units");
    // Told the directory, with none in the current one; else found in the current one.
    QTest::addColumn<bool>("told");

    QTest::newRow("three fields a row, CRLF")
        << QByteArray("Name\tValue\tUnit\tNote\r\nTalker\t\tWho\r\nTime\ts\tWhen\r\n")
        << QStringList({"Name", "Value", "Unit", "Note"}) << QStringList({"Talker", "Time"})
        << QStringList({"", "s"}) << false;
    QTest::newRow("two fields stop the filling")
        << QByteArray("P\tV\tU\tD\nA\ta\t1\nB\tb\nC\tc\t3\n") << QStringList({"P", "V", "U", "D"})
        << QStringList({"A", "", ""}) << QStringList({"a", "", ""}) << false;
    QTest::newRow("four fields stop the filling")
        << QByteArray("P\tV\tU\tD\nA\ta\t1\nB\tb\t2\t9\n") << QStringList({"P", "V", "U", "D"})
        << QStringList({"A", ""}) << QStringList({"a", ""}) << false;
    QTest::newRow("two header labels, four columns") << QByteArray("P\tV\nA\ta\tx\n") << QStringList({"P", "V"})
                                                     << QStringList({"A"}) << QStringList({"a"}) << false;
    QTest::newRow("header only") << QByteArray("P\tV\tU\tD\n") << QStringList({"P", "V", "U", "D"})
                                 << QStringList() << QStringList() << false;
    QTest::newRow("non-ASCII text")
        << QByteArray("\xef\xbb\xbf参数\t值\t单位\t描述\n航向\t°\t对地航向，以真北为参考 ü\n")
        << QStringList({"参数", "值", "单位", "描述"}) << QStringList({"航向"}) << QStringList({"°"}) << false;
    QTest::newRow("wide header, empty fields kept")
        << QByteArray("A\t\tC\tD\tE\n\t\t\n") << QStringList({"A", "", "C", "D", "E"}) << QStringList({""})
        << QStringList({""}) << false;
    QTest::newRow("told directory") << QByteArray("Name\tValue\tUnit\tNote\nTalker\t\tWho\n")
                                    << QStringList({"Name", "Value", "Unit", "Note"}) << QStringList({"Talker"})
                                    << QStringList({""}) << true;
}

void BinaryPageTest::descriptionFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, headers);
    QFETCH(QStringList, labels);
    QFETCH(QStringList, units);
    QFETCH(bool, told);
    QTemporaryDir dir, elsewhere;
    writeDescription(dir, "VTG_EN.txt", content);
    CurrentDirectory directory(told ? elsewhere.path() : dir.path());
    ModuleHarness h(4);
    if (told)
        h.module().setMessageConfigDirectory(dir.filePath("MessageConfig"));
    h.show("VTG");
    QCOMPARE(table(h)->columnCount(), headers.size() < 4 ? 4 : headers.size());
    for (int column = 0; column < headers.size(); ++column)
        QCOMPARE(header(h, column), headers.at(column));
    QCOMPARE(columnTexts(h, 0), labels);
    QCOMPARE(columnTexts(h, 2), units);
}

void BinaryPageTest::missingDescriptionLeavesTheTable()
{
    QTemporaryDir dir;
    writeDescription(dir, "ZDA_EN.txt", "P\tV\tU\tD\nTalker\t\t\nTime\ts\t\n");
    CurrentDirectory directory(dir.path());
    ModuleHarness h(4);
    h.show("ZDA");
    h.feed(nmeaEpoch(1));
    LoggedMessages log;
    h.show("GST");
    QCOMPARE(log.texts(QtWarningMsg), QStringList()); // quiet unless the host asks
    QLoggingCategory::setFilterRules("messageview.files.warning=true");
    h.show("GLL");
    h.show("ZDA");
    h.show("GLL");
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(log.texts(QtWarningMsg).filter("GLL_EN.txt").size(), 1);
    QCOMPARE(log.texts(QtWarningMsg).size(), 1);
    QCOMPARE(columnTexts(h, 0), QStringList({"Talker", "Time"}));
    QCOMPARE(header(h, 0), QString("P"));
    // Its values are blanked, and GLL records would fill the same rows.
    QCOMPARE(columnTexts(h, 1), QStringList({"", ""}));
    h.feed(ReceiverLines::sentence("GPGLL,3110.4693,N,12123.2546,E,081204.00,A,A"));
    QCOMPARE(columnTexts(h, 1), QStringList({"GP", "3110.4693"}));
}

QTEST_MAIN(BinaryPageTest)
#include "tst_binarypage.moc"
