// SPDX-License-Identifier: BSD-3-Clause
#include "messageviewmetaobjctx.h"
#include "moduleharness.h"
#include "msgbasewidget.h"
#include "receiverlines.h"
#include "routetable.h"

#include <QSignalSpy>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

using namespace ReceiverLines;

namespace {

QByteArray bestpos(const QByteArray &marker)
{
    return log(logBody("BESTPOSA", "SOL_COMPUTED,SINGLE," + marker + QByteArray(",x").repeated(18)));
}

QStringList categoryTexts(QTreeWidget *tree, bool visibleOnly)
{
    QStringList texts;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        if (!visibleOnly || !tree->topLevelItem(i)->isHidden())
            texts << tree->topLevelItem(i)->text(0);
    }
    return texts;
}

using SeenLines = QVector<MessageViewModules::SeenLine>;

// What the module reports for the bytes fed, one chunk at a time.
SeenLines seenWhileFeeding(ModuleHarness &h, const QList<QByteArray> &chunks)
{
    SeenLines seen;
    QObject::connect(&h.module(), &MessageViewModules::linesSeen, [&seen](const SeenLines &lines) { seen += lines; });
    for (const QByteArray &chunk : chunks)
        h.feed(chunk);
    return seen;
}

} // namespace

class ModuleTest : public QObject
{
    Q_OBJECT
private slots:
    void lineSplitAtEveryByteIsTakenOnce();
    void manyLinesInOneChunkAndStrayLineEnds();
    void overlongLinesAreDroppedWhole();
    void linesAtTheLengthLimit_data();
    void linesAtTheLengthLimit();
    void returnCodes_data();
    void returnCodes();
    void sameModeKeepsPagesAndBuffer();
    void modesBuildTheRoutedPagesInOrder_data();
    void modesBuildTheRoutedPagesInOrder();
    void shortIntroductionGivesNoTreeItem();
    void clicksBringPagesForwardAndRecolour();
    void setTreeForegroundClearsMarks();
    void statusVocabulariesMatchPrefixesInOrder_data();
    void statusVocabulariesMatchPrefixesInOrder();
    void everyLineHasAnOutcome_data();
    void everyLineHasAnOutcome();
    void everyByteIsReportedOnceInOrder();
};


void ModuleTest::lineSplitAtEveryByteIsTakenOnce()
{
    ModuleHarness h(2);
    h.show("Bestpos");
    auto marker = [](int cut) { return QByteArray::number(cut).rightJustified(3, '0'); };
    const int lineSize = bestpos(marker(0)).size();
    for (int cut = 1; cut < lineSize; ++cut) {
        // Every cut of lines of one length, the last one between '\r' and '\n'.
        const QByteArray line = bestpos(marker(cut));
        h.feed(line.left(cut));
        QCOMPARE(h.module().lineCount(), quint64(cut - 1));
        h.feed(line.mid(cut));
        QCOMPARE(h.module().lineCount(), quint64(cut));
        QCOMPARE(h.cell("Bestpos", 2, 1), QString(marker(cut)));
    }
}

void ModuleTest::manyLinesInOneChunkAndStrayLineEnds()
{
    ModuleHarness h(2);
    h.show("Bestpos");
    QByteArray chunk;
    for (int i = 0; i < 500; ++i)
        chunk += bestpos(QByteArray::number(i));
    // A lone '\r' or '\n' does not end a line; the following line is still cut right.
    chunk += "garbage\rmore\nstill one line\r\r\n" + bestpos("last");
    h.feed(chunk);
    QCOMPARE(h.module().lineCount(), quint64(502));
    QCOMPARE(h.cell("Bestpos", 2, 1), QString("last"));
    // Byte by byte, including a "\r" at a chunk end, cuts the same lines.
    for (char ch : bestpos("bytes"))
        h.feed(QByteArray(1, ch));
    QCOMPARE(h.module().lineCount(), quint64(503));
    QCOMPARE(h.cell("Bestpos", 2, 1), QString("bytes"));
}


void ModuleTest::overlongLinesAreDroppedWhole()
{
    ModuleHarness h(2);
    h.show("Bestpos");
    // A long but legal line (a wide field) is still cut and taken.
    const QByteArray wide(MessageViewModules::maxLineBytes - 1000, 'w');
    h.feed(bestpos(wide));
    QCOMPARE(h.cell("Bestpos", 2, 1).size(), wide.size());
    // The value column keeps its width; the cut value shows whole as its tooltip.
    QCOMPARE(h.table("Bestpos")->columnWidth(1), 110);
    QCOMPARE(h.table("Bestpos")->item(2, 1)->toolTip().size(), wide.size());
    QCOMPARE(h.table("Bestpos")->item(3, 1)->toolTip(), QString());

    // A receiver switched to binary output while a text mode is selected: the buffer
    // stays bounded, and the stream recovers at the next line end.
    const QByteArray binary(64 * 1024, '\x5a');
    for (int i = 0; i < 64; ++i) {
        h.feed(binary);
        QVERIFY(h.module().bufferedBytes() <= MessageViewModules::maxLineBytes + binary.size());
    }
    const quint64 linesBefore = h.module().lineCount();
    // The over-long line ends with what looks like a valid line: it is dropped whole.
    h.feed(bestpos("tail") + bestpos("next"));
    QCOMPARE(h.module().lineCount(), linesBefore + 1);
    QCOMPARE(h.cell("Bestpos", 2, 1), QString("next"));
    QCOMPARE(h.module().bufferedBytes(), 0);
}

void ModuleTest::linesAtTheLengthLimit_data()
{
    QTest::addColumn<int>("length"); // without the "\r\n"
    QTest::addColumn<int>("heldBack"); // bytes of the line that come with the next chunk
    QTest::addColumn<bool>("taken");
    const int limit = MessageViewModules::maxLineBytes;
    for (int held : {0, 1, 2, 40}) {
        const QByteArray split = held ? " + " + QByteArray::number(held) + " bytes later" : "";
        QTest::newRow("the limit" + split) << limit << held << true;
        QTest::newRow("one over" + split) << limit + 1 << held << false;
    }
}

void ModuleTest::linesAtTheLengthLimit()
{
    QFETCH(int, length);
    QFETCH(int, heldBack);
    QFETCH(bool, taken);
    ModuleHarness h(2);
    const QByteArray line = bestpos(QByteArray(length + 2 - bestpos("").size(), 'w'));
    h.feed(line.left(line.size() - heldBack));
    h.feed(line.right(heldBack) + bestpos("next"));
    // A dropped line is dropped up to its own line end, and only that far.
    QCOMPARE(h.taken("Bestpos"), quint64(taken ? 2 : 1));
    QCOMPARE(h.module().lineCount(), h.taken("Bestpos"));
}

void ModuleTest::returnCodes_data()
{
    QTest::addColumn<QList<int>>("modes");
    QTest::addColumn<QList<int>>("codes");
    QTest::newRow("from nothing") << QList<int>{0, 2, 4} << QList<int>{0, 1, 2};
    QTest::newRow("into binary") << QList<int>{2, 5} << QList<int>{0, 2};
    QTest::newRow("binary to binary") << QList<int>{4, 5, 4} << QList<int>{2, 0, 0};
    QTest::newRow("binary to text") << QList<int>{5, 7} << QList<int>{2, 1};
    QTest::newRow("leaving mode 0 reports 1") << QList<int>{0, 1, 0, 7} << QList<int>{0, 1, 0, 1};
    QTest::newRow("text to text") << QList<int>{1, 2, 7, 3} << QList<int>{0, 0, 0, 0};
    QTest::newRow("unknown modes") << QList<int>{6, 4, 99} << QList<int>{0, 2, 1};
    QTest::newRow("same mode") << QList<int>{2, 2, 0, 0} << QList<int>{0, 0, 0, 0};
}

void ModuleTest::returnCodes()
{
    QFETCH(QList<int>, modes);
    QFETCH(QList<int>, codes);
    QStackedWidget stack;
    MessageViewModules module(&stack, "EN");
    QList<int> results;
    for (int mode : modes)
        results << module.addItemToTree(mode);
    QCOMPARE(results, codes);
}

void ModuleTest::sameModeKeepsPagesAndBuffer()
{
    ModuleHarness h(2);
    h.show("Bestpos");
    QWidget *page = h.page("Bestpos");
    const QByteArray line = bestpos("kept");
    h.feed(line.left(20));
    QCOMPARE(h.module().addItemToTree(2), 0);
    QCOMPARE(h.page("Bestpos"), page);
    h.feed(line.mid(20));
    QCOMPARE(h.cell("Bestpos", 2, 1), QString("kept"));

    // A real mode change clears the partial line, and where its end was looked for.
    h.feed(line.left(20) + QByteArray(400, 'x'));
    h.module().addItemToTree(1);
    h.module().addItemToTree(2);
    h.show("Bestpos");
    h.feed(line.mid(20));
    QCOMPARE(h.cell("Bestpos", 2, 1), QString());
    h.feed(bestpos("new"));
    QCOMPARE(h.cell("Bestpos", 2, 1), QString("new"));
}

void ModuleTest::modesBuildTheRoutedPagesInOrder_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("categories");
    QTest::newRow("0") << 0 << QStringList({"NMEA"});
    QTest::newRow("1") << 1 << QStringList({"NMEA", "Korvane"});
    QTest::newRow("2") << 2 << QStringList({"NMEA", "Korvane"});
    QTest::newRow("7") << 7 << QStringList({"NMEA", "Time"});
    QTest::newRow("3, without pages") << 3 << QStringList({"NMEA"});
    QTest::newRow("6, without pages") << 6 << QStringList({"NMEA"});
    QTest::newRow("-7, without pages") << -7 << QStringList({"NMEA"});
}

// Exactly the pages the route table offers the mode's lines to, in that order, each
// under its category, and no tree item left over from the mode before.
void ModuleTest::modesBuildTheRoutedPagesInOrder()
{
    QFETCH(int, mode);
    QFETCH(QStringList, categories);
    ModuleHarness h(2);
    h.module().addItemToTree(mode);
    const char *const kCategoryTexts[] = {"NMEA", "Korvane", "Time"};
    QStringList routed, built;
    for (const PageRoute *route : offeredRoutes(mode))
        routed << QString(kCategoryTexts[int(route->category)]) + "/" + route->label;
    for (const QString &label : h.pageLabels())
        built << h.treeItem(label)->parent()->text(0) + "/" + label;
    QCOMPARE(built, routed);
    QTreeWidget *tree = h.module().getTreeWidget();
    int items = 0;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        items += tree->topLevelItem(i)->childCount();
    QCOMPARE(items, built.size());
    QCOMPARE(categoryTexts(tree, true), categories);
    // The first page is current and the tree is expanded.
    if (h.pageCount() > 0)
        QCOMPARE(h.stack().currentIndex(), 0);
    QVERIFY(tree->topLevelItem(0)->isExpanded());
}

void ModuleTest::shortIntroductionGivesNoTreeItem()
{
    QTreeWidgetItem category;
    for (const QString &intro : {QString(), QString("B")}) {
        QObject *object = korvaneAsciiCatalogue.entries[0].metaObject.newInstance(
            Q_ARG(QWidget *, nullptr), Q_ARG(QString, intro), Q_ARG(QTreeWidgetItem *, &category));
        auto *page = qobject_cast<MsgBaseWidget *>(object);
        QVERIFY(page);
        QCOMPARE(page->treeItem(), nullptr);
        delete page;
    }
    QCOMPARE(category.childCount(), 0);
}

void ModuleTest::clicksBringPagesForwardAndRecolour()
{
    ModuleHarness h(2);
    QSignalSpy titles(&h.module(), &MessageViewModules::messageViewTitleShow);
    QVERIFY(h.show("Tdifpos"));
    QCOMPARE(h.stack().currentWidget(), h.page("Tdifpos"));
    QCOMPARE(titles.takeFirst().at(0).toString(), QString("Tdifpos"));

    h.feed(log(logBody("TDIFPOSA", "SOL_COMPUTED,SINGLE" + QByteArray(",x").repeated(19))));
    QVERIFY(h.isMarked("Tdifpos"));
    // Leaving the page greys its item again; a category click changes nothing else.
    QTreeWidget *tree = h.module().getTreeWidget();
    QCOMPARE(tree->objectName(), QString("MsgTreeWidget"));
    emit tree->itemClicked(tree->topLevelItem(1), 0);
    QVERIFY(!h.isMarked("Tdifpos"));
    QCOMPARE(h.stack().currentWidget(), h.page("Tdifpos"));
    QVERIFY(titles.isEmpty());
    // A mode change after a category click leaves the category in place.
    h.module().addItemToTree(1);
    QCOMPARE(categoryTexts(tree, false), QStringList({"NMEA", "Korvane", "Time", "Korvane"}));
}

void ModuleTest::setTreeForegroundClearsMarks()
{
    ModuleHarness h(2);
    // The first item of a category too.
    h.feed(bestpos("x") + sentence("GNGGA,092725.00,4717.11399,N,00833.91590,E,1,08,1.01,499.6,M,48.0,M,,"));
    QVERIFY(h.isMarked("Bestpos") && h.isMarked("GGA"));
    h.module().setTreeForeground();
    QVERIFY(!h.isMarked("Bestpos") && !h.isMarked("GGA"));
}

void ModuleTest::statusVocabulariesMatchPrefixesInOrder_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("statusText");
    QTest::addColumn<QString>("typeText");
    QTest::newRow("exact") << "COV_TRACE" << "NARROW_FLOAT" << "Covariance matrix trace exceeds maximum"
                           << "Narrow-lane float solution";
    QTest::newRow("rtk float by prefix") << "NO_CONVERGENCE" << "INS_RTKFLOAT" << "No convergence, invalid solution"
                                         << "Integrated solution of INS and RTK float";
    QTest::newRow("bare INS last") << "SOL_COMPUTED_X" << "INS_SOMETHING" << "Solution computed"
                                   << "Inertial navigation solution";
    QTest::newRow("INS_PSRSP before INS") << "SOL_COMPUTED" << "INS_PSRSPX" << "Solution computed"
                                          << "Integrated solution of INS and single point positioning";
    QTest::newRow("SBAS prefix") << "INSUFFICIENT_OBS" << "SBASX" << "Insufficient observation" << "SBAS positioning";
    QTest::newRow("unknown keeps previous") << "SOL" << "NON" << "Solution computed" << "Single point positioning";
    QTest::newRow("empty keeps previous") << "" << "" << "Solution computed" << "Single point positioning";
}

void ModuleTest::statusVocabulariesMatchPrefixesInOrder()
{
    QFETCH(QString, status);
    QFETCH(QString, type);
    QFETCH(QString, statusText);
    QFETCH(QString, typeText);
    ModuleHarness h(2);
    h.show("Psrpos");
    h.feed(log(logBody("PSRPOSA", "SOL_COMPUTED,SINGLE" + QByteArray(",x").repeated(19))));
    h.feed(log(logBody("PSRPOSA", status.toLatin1() + "," + type.toLatin1() + QByteArray(",x").repeated(19))));
    QCOMPARE(h.cell("Psrpos", 0, 3), statusText);
    QCOMPARE(h.cell("Psrpos", 1, 3), typeText);
}

QTEST_MAIN(ModuleTest)
#include "tst_module.moc"

void ModuleTest::everyLineHasAnOutcome_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<QString>("page");
    const QByteArray gga = sentence("GPGGA,020000.00,3031.7,N,11421.4,E,1,12,0.8,24.0,M,-13.6,M,,");
    QByteArray badGga = gga;
    badGga[badGga.size() - 3] = badGga.at(badGga.size() - 3) == '0' ? '1' : '0';
    QTest::newRow("taken") << gga << int(MessageViewModules::LineTaken) << "GGA";
    QTest::newRow("bad checksum, for its page") << badGga << int(MessageViewModules::LineBadChecksum) << "GGA";
    QTest::newRow("cut short, for its page") << gga.left(40) + "\r\n" << int(MessageViewModules::LineCutShort) << "GGA";
    QTest::newRow("no page in the mode") << sentence("GNGSA,A,3,05,,,,,,,,,,,,1.2,0.8,0.9,1")
                                         << int(MessageViewModules::LineWithoutPage) << "";
    QTest::newRow("refused by its page") << log(logBody("BESTPOSA", "SOL_COMPUTED,SINGLE,1,2"))
                                         << int(MessageViewModules::LineRefused) << "Bestpos";
    QTest::newRow("garbage") << QByteArray("\x01\x02ab$GPGGA\r\n") << int(MessageViewModules::LineGarbage) << "";
    QTest::newRow("empty line") << QByteArray("\r\n") << int(MessageViewModules::LineGarbage) << "";
}

void ModuleTest::everyLineHasAnOutcome()
{
    QFETCH(QByteArray, line);
    QFETCH(int, outcome);
    QFETCH(QString, page);
    ModuleHarness h(2);
    h.show("Bestpos"); // a hidden page takes every line with its header and checksum
    const SeenLines seen = seenWhileFeeding(h, {line});
    QCOMPARE(seen.size(), 1);
    QCOMPARE(int(seen.first().outcome), outcome);
    QCOMPARE(seen.first().page >= 0 ? h.module().acceptedLineCounts().at(seen.first().page).first : QString(), page);
    QCOMPARE(seen.first().bytes, line);
}

// However the stream is chunked and damaged, the reports hold every byte cut from it
// once, in order; a line too long comes as its first stretch and the rest of it.
void ModuleTest::everyByteIsReportedOnceInOrder()
{
    ModuleHarness h(2);
    QByteArray stream;
    for (int i = 0; i < 50; ++i)
        stream += bestpos(QByteArray::number(i)) + "junk " + QByteArray::number(i) + "\r\n";
    stream += QByteArray(MessageViewModules::maxLineBytes + 70000, 'b') + "\r\n" + bestpos("after");
    QList<QByteArray> chunks;
    for (int at = 0, size = 1; at < stream.size(); at += size, size = size * 7 % 65521 + 1)
        chunks << stream.mid(at, size);
    const SeenLines seen = seenWhileFeeding(h, chunks);
    QByteArray reported;
    QList<int> outcomes;
    for (const MessageViewModules::SeenLine &line : seen) {
        reported += line.bytes;
        if (!line.continuesLine)
            outcomes << line.outcome;
    }
    QCOMPARE(reported.size(), stream.size());
    QVERIFY(reported == stream);
    QCOMPARE(outcomes.count(MessageViewModules::LineTaken), 51);
    QCOMPARE(outcomes.count(MessageViewModules::LineGarbage), 50);
    QCOMPARE(outcomes.count(MessageViewModules::LineTooLong), 1);
    QCOMPARE(outcomes.size(), 102);
}
