// SPDX-License-Identifier: BSD-3-Clause
// The traffic layer and its views: kinds cut from the edges of lines, the ring across
// wrap-around, rates and gaps of a stream with known timing, the console's filters and
// batched rows, readable text of bad bytes, field names, and saving what copy gives.
#include "fieldview.h"
#include "linering.h"
#include "messagestatistics.h"
#include "messagestatisticsview.h"
#include "packetconsoleview.h"
#include "sentencefields.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr qint64 kStartMs = 1716170400000; // 2024-05-20T02:00:00Z, on a whole second

LineRecord line(qint64 ms, const QByteArray &bytes, LineOutcome outcome = LineOutcome::Taken)
{
    LineRecord record;
    record.receivedMs = ms;
    record.outcome = outcome;
    record.size = bytes.size();
    record.kind = messageKind(bytes.constData(), bytes.size());
    record.bytes = bytes;
    return record;
}

QByteArray numbered(int number)
{
    return "$GPTXT,01,01,02," + QByteArray::number(number) + "*00\r\n";
}

// A taken GGA, a damaged RMC, a proprietary line no page wants, garbage, a cut GSV.
QVector<LineRecord> mixedLines()
{
    return {line(kStartMs, "$GPGGA,020000.00,3031.71,N,11421.47,E,1,12,0.8,35.1,M,-13.2,M,,*4A\r\n"),
            line(kStartMs + 10, "$GPRMC,020000.00,A,3031.71,N*00\r\n", LineOutcome::BadChecksum),
            line(kStartMs + 20, "$PGRME,1.0,M,2.0,M,3.0,M*1C\r\n", LineOutcome::NoPage),
            line(kStartMs + 30, QByteArray("\x00\xff rmc", 6), LineOutcome::Garbage),
            line(kStartMs + 40, "$GPGSV,3,1,12\r\n", LineOutcome::CutShort)};
}

QStringList shownKinds(const PacketConsoleModel &model)
{
    QStringList kinds;
    for (int row = 0; row < model.rowCount(); ++row)
        kinds << model.index(row, PacketConsoleModel::KindColumn).data().toString();
    return kinds;
}

} // namespace

class TrafficTest : public QObject
{
    Q_OBJECT
private slots:
    void messageKindAtTheEdges_data();
    void messageKindAtTheEdges();
    void ringKeepsTheNewestInOrder_data();
    void ringKeepsTheNewestInOrder();
    void ringBoundsBytes();
    void ratesAndGapsOfAKnownStream_data();
    void ratesAndGapsOfAKnownStream();
    void totalsAndAFloodOfKinds();
    void consoleFilters_data();
    void consoleFilters();
    void consoleRowsComeInBatchesAndFollowTheRing();
    void readableText_data();
    void readableText();
    void fieldNames_data();
    void fieldNames();
    void statisticsTableSortsNumbers();
    void saveWritesWhatCopyGives();
};

void TrafficTest::messageKindAtTheEdges_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("kind");
    QTest::newRow("sentence") << QByteArray("$GNGGA,1,2*00") << -1 << QByteArray("GNGGA");
    QTest::newRow("log") << QByteArray("#BESTPOSA,COM1;x*1") << -1 << QByteArray("BESTPOSA");
    QTest::newRow("star first") << QByteArray("$GPHDT*3F") << -1 << QByteArray("GPHDT");
    QTest::newRow("line end") << QByteArray("$PGRME\r\n") << -1 << QByteArray("PGRME");
    QTest::newRow("only the marker") << QByteArray("$") << -1 << QByteArray();
    QTest::newRow("nothing") << QByteArray() << -1 << QByteArray();
    QTest::newRow("no marker") << QByteArray("GPGGA,1") << -1 << QByteArray();
    QTest::newRow("marker not first") << QByteArray(" $GPGGA,1") << -1 << QByteArray();
    QTest::newRow("length cuts it") << QByteArray("$GPGGA,1") << 3 << QByteArray("GP");
    QTest::newRow("32 characters at most") << QByteArray("$" + QByteArray(40, 'K') + ",1") << -1 << QByteArray(32, 'K');
    QTest::newRow("NUL is a character") << QByteArray("$A\0B,", 5) << -1 << QByteArray("A\0B", 3);
}

void TrafficTest::messageKindAtTheEdges()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, length);
    QFETCH(QByteArray, kind);
    QCOMPARE(messageKind(bytes.constData(), length < 0 ? bytes.size() : length), kind);
}

void TrafficTest::ringKeepsTheNewestInOrder_data()
{
    QTest::addColumn<int>("capacity");
    QTest::addColumn<int>("before");        // lines appended before the capacity changes
    QTest::addColumn<int>("changedCapacity"); // 0: unchanged
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("oldestKept");
    QTest::newRow("not full") << 5 << 3 << 0 << 0 << 0;
    QTest::newRow("wrapped twice") << 3 << 8 << 0 << 0 << 5;
    QTest::newRow("shrunk after wrapping") << 5 << 7 << 2 << 1 << 6;
    QTest::newRow("shrunk at the end") << 5 << 7 << 2 << 0 << 5;
    QTest::newRow("grown after wrapping, filled on") << 3 << 5 << 6 << 4 << 3;
    QTest::newRow("zero capacity keeps one") << 0 << 4 << 0 << 0 << 3;
}

void TrafficTest::ringKeepsTheNewestInOrder()
{
    QFETCH(int, capacity);
    QFETCH(int, before);
    QFETCH(int, changedCapacity);
    QFETCH(int, after);
    QFETCH(int, oldestKept);
    LineRing ring(capacity);
    const int total = before + after;
    for (int i = 0; i < before; ++i)
        ring.append(line(i, numbered(i)));
    if (changedCapacity > 0)
        ring.setCapacity(changedCapacity);
    for (int i = before; i < total; ++i)
        ring.append(line(i, numbered(i)));
    QCOMPARE(ring.size(), total - oldestKept);
    QCOMPARE(ring.appendedTotal(), quint64(total));
    for (int i = 0; i < ring.size(); ++i) {
        QCOMPARE(ring.at(i).receivedMs, qint64(oldestKept + i));
        QCOMPARE(ring.at(i).bytes, numbered(oldestKept + i));
    }
}

void TrafficTest::ringBoundsBytes()
{
    LineRing ring;
    const QByteArray huge(256 * 1024, '\0');
    const int fitting = int(LineRing::byteBudget / LineRing::maxRecordBytes);
    for (int i = 0; i < fitting + 10; ++i)
        ring.append(line(i, huge, LineOutcome::TooLong));
    QCOMPARE(ring.size(), fitting);
    QCOMPARE(ring.at(ring.size() - 1).receivedMs, qint64(fitting + 9));
    QCOMPARE(ring.at(0).bytes.size(), LineRing::maxRecordBytes);
    QCOMPARE(ring.at(0).size, qint64(huge.size()));
}

void TrafficTest::ratesAndGapsOfAKnownStream_data()
{
    QTest::addColumn<qint64>("ggaPauseFromMs"); // GGA is silent for 3 s from here; -1: never
    QTest::addColumn<double>("ggaRate");
    QTest::addColumn<double>("ggaMeanGap");
    QTest::addColumn<double>("ggaLargestGap");
    QTest::newRow("steady") << qint64(-1) << 5.0 << 0.2 << 0.2;
    // 15 lines fewer: 134 gaps over the same 29.8 s.
    QTest::newRow("paused early") << qint64(5000) << 5.0 << 29.8 / 134 << 3.2;
    QTest::newRow("paused within the window") << qint64(25000) << 3.5 << 29.8 / 134 << 3.2;
}

void TrafficTest::ratesAndGapsOfAKnownStream()
{
    QFETCH(qint64, ggaPauseFromMs);
    QFETCH(double, ggaRate);
    QFETCH(double, ggaMeanGap);
    QFETCH(double, ggaLargestGap);
    MessageStatistics statistics;
    for (qint64 ms = 0; ms < 30000; ms += 200) {
        if (ggaPauseFromMs < 0 || ms <= ggaPauseFromMs || ms > ggaPauseFromMs + 3000)
            statistics.add(line(kStartMs + ms, "$GPGGA,1*00\r\n"));
        // Between two GGA: the totals count in every 100 ms slot.
        if (ms % 1000 == 0)
            statistics.add(line(kStartMs + ms + 100, "$GPRMC,1*00\r\n", ms == 0 ? LineOutcome::CutShort : LineOutcome::Taken));
    }
    const QVector<KindStatistics> kinds = statistics.kinds(kStartMs + 29800);
    QCOMPARE(kinds.size(), 2);
    const KindStatistics &gga = kinds.at(0), &rmc = kinds.at(1);
    QCOMPARE(gga.kind, QByteArray("GPGGA"));
    QCOMPARE(gga.rateHz, ggaRate);
    QVERIFY(qAbs(gga.meanGapS - ggaMeanGap) < 1e-9);
    QVERIFY(qAbs(gga.largestGapS - ggaLargestGap) < 1e-9);
    QCOMPARE(rmc.rateHz, 1.0);
    QVERIFY(qAbs(rmc.meanGapS - 1.0) < 1e-9);
    QCOMPARE(rmc.badChecksum, quint64(1));
    QCOMPARE(rmc.lastMs, kStartMs + 29100);
    const TrafficTotals totals = statistics.totals(kStartMs + 29800);
    QCOMPARE(totals.linesPerSecond, ggaRate + 1.0);
    QCOMPARE(totals.bytesPerSecond, 13 * (ggaRate + 1.0));
    // A clock stepped back counts as the newest time: no negative gap.
    statistics.add(line(kStartMs + 1000, "$GPRMC,1*00\r\n"));
    QCOMPARE(statistics.kinds(kStartMs + 29800).at(1).lastMs, kStartMs + 29800);
    QVERIFY(qAbs(statistics.kinds(0).at(1).largestGapS - 1.0) < 1e-9);
    // Ten seconds after the last line, the window is empty.
    QCOMPARE(statistics.kinds(kStartMs + 39800).at(0).rateHz, 0.0);
}

void TrafficTest::totalsAndAFloodOfKinds()
{
    MessageStatistics statistics;
    for (const LineRecord &record : mixedLines())
        statistics.add(record);
    for (int i = 0; i < 100000; ++i)
        statistics.add(line(kStartMs + 50, "$K" + QByteArray::number(i) + ",\r\n"));
    const TrafficTotals totals = statistics.totals(kStartMs + 50);
    QCOMPARE(totals.lines, quint64(100005));
    QCOMPARE(totals.garbageBytes, quint64(6));
    QCOMPARE(totals.damagedLines, quint64(2));
    QCOMPARE(totals.linesPerSecond, 10000.5);
    const QVector<KindStatistics> kinds = statistics.kinds(kStartMs + 50);
    QCOMPARE(kinds.size(), KindIndex::maxKinds + 1);
    QCOMPARE(kinds.last().kind, KindIndex::otherKinds());
    QCOMPARE(kinds.last().lines, quint64(100000 - (KindIndex::maxKinds - 4)));
    QCOMPARE(statistics.toJson(kStartMs).size(), kinds.size());
    statistics.reset();
    QCOMPARE(statistics.kinds(kStartMs).size(), 0);
    QCOMPARE(statistics.totals(kStartMs).lines, quint64(0));
}

void TrafficTest::consoleFilters_data()
{
    QTest::addColumn<QSet<QByteArray>>("hiddenKinds");
    QTest::addColumn<quint8>("outcomes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("regularExpression");
    QTest::addColumn<bool>("caseSensitive");
    QTest::addColumn<QStringList>("kinds");
    QTest::addColumn<bool>("valid");
    const QSet<QByteArray> none;
    const quint8 all = LineFilter::allOutcomes;
    QTest::newRow("everything") << none << all << "" << false << false
                                << QStringList{"GPGGA", "GPRMC", "PGRME", "", "GPGSV"} << true;
    QTest::newRow("kinds hidden") << QSet<QByteArray>{"GPGGA", "PGRME"} << all << "" << false << false
                                  << QStringList{"GPRMC", "", "GPGSV"} << true;
    QTest::newRow("damaged only")
        << none << quint8(LineFilter::outcomeBit(LineOutcome::BadChecksum) | LineFilter::outcomeBit(LineOutcome::CutShort))
        << "" << false << false << QStringList{"GPRMC", "GPGSV"} << true;
    QTest::newRow("text, any case") << none << all << "rmc" << false << false << QStringList{"GPRMC", ""} << true;
    QTest::newRow("text, case kept") << none << all << "rmc" << false << true << QStringList{""} << true;
    QTest::newRow("line end not searched") << none << all << "\r" << false << false << QStringList{} << true;
    QTest::newRow("expression") << none << all << "^\\$gp(gga|gsv)," << true << false << QStringList{"GPGGA", "GPGSV"} << true;
    QTest::newRow("invalid expression filters nothing")
        << none << all << "GP(" << true << false << QStringList{"GPGGA", "GPRMC", "PGRME", "", "GPGSV"} << false;
}

void TrafficTest::consoleFilters()
{
    QFETCH(QSet<QByteArray>, hiddenKinds);
    QFETCH(quint8, outcomes);
    QFETCH(QString, text);
    QFETCH(bool, regularExpression);
    QFETCH(bool, caseSensitive);
    QFETCH(QStringList, kinds);
    QFETCH(bool, valid);
    const LineFilter filter{hiddenKinds, outcomes, text, regularExpression,
                            caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive};
    // Filtered again when set, and filtered as new lines come.
    for (bool filterFirst : {false, true}) {
        PacketConsoleModel model;
        if (filterFirst)
            model.setFilter(filter);
        for (const LineRecord &record : mixedLines())
            model.append(record);
        model.flush();
        model.setFilter(filter);
        QCOMPARE(shownKinds(model), kinds);
        QCOMPARE(model.filterError().isEmpty(), valid);
    }
}

void TrafficTest::consoleRowsComeInBatchesAndFollowTheRing()
{
    PacketConsoleView view;
    PacketConsoleModel &model = view.model();
    model.setCapacity(50);
    LineFilter oddOnly;
    oddOnly.text = QStringLiteral("[13579]\\*");
    oddOnly.regularExpression = true;
    model.setFilter(oddOnly);
    QSignalSpy inserted(&model, &PacketConsoleModel::rowsInserted);
    view.show();
    int appended = 0;
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 40; ++i, ++appended)
            view.append(line(appended, numbered(appended)));
        QCOMPARE(model.rowCount(), qMin(round * 40, 50) / 2);
        QTRY_COMPARE(inserted.count(), round + 1);
        QCOMPARE(model.rowCount(), qMin(appended, 50) / 2);
        QCOMPARE(model.record(model.rowCount() - 1).receivedMs, qint64(appended - 1));
    }
    // Hidden: the ring and its rows keep still until shown again.
    view.hide();
    for (int i = 0; i < 10; ++i, ++appended)
        view.append(line(appended, numbered(appended)));
    QTest::qWait(2 * PacketConsoleModel::flushIntervalMs);
    QCOMPARE(model.record(model.rowCount() - 1).receivedMs, qint64(appended - 11));
    view.show();
    QCOMPARE(model.rowCount(), 25);
    QCOMPARE(model.record(0).receivedMs, qint64(appended - 49));
    QCOMPARE(model.record(24).receivedMs, qint64(appended - 1));
    // One odd line in, one odd line off the front.
    for (int i = 0; i < 2; ++i, ++appended)
        view.append(line(appended, numbered(appended)));
    model.flush();
    QCOMPARE(model.rowCount(), 25);
    QCOMPARE(model.record(0).receivedMs, qint64(appended - 49));
}

void TrafficTest::readableText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("garbage");
    QTest::addColumn<int>("maxBytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("line end dropped") << QByteArray("$GPHDT,1.0,T*1B\r\n") << false << 100 << "$GPHDT,1.0,T*1B";
    QTest::newRow("garbage in hex, line end too") << QByteArray("$GP\r\n") << true << 100 << "24 47 50 0d 0a";
    QTest::newRow("a NUL makes it hex") << QByteArray("$G\0", 3) << false << 100 << "24 47 00";
    QTest::newRow("beyond ASCII is hex") << QByteArray("\xe4\xb8\xad") << false << 100 << "e4 b8 ad";
    QTest::newRow("cut text") << QByteArray("$GPGGA,1") << false << 3 << "$GP…";
    QTest::newRow("cut hex") << QByteArray("\x01\x02\x03") << true << 2 << "01 02…";
    QTest::newRow("only a line end") << QByteArray("\r\n") << false << 100 << "";
}

void TrafficTest::readableText()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, garbage);
    QFETCH(int, maxBytes);
    QFETCH(QString, text);
    QCOMPARE(lineText(bytes, garbage, maxBytes), text);
}

void TrafficTest::fieldNames_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QStringList>("names"); // of the fields, address and checksum included
    QTest::newRow("GGA of any talker")
        << QByteArray("$BDGGA,020000.00,3031.7,N*00\r\n") << QStringList{"Address", "UTC time", "Latitude", "N/S", "Checksum"};
    QTest::newRow("GSV with two satellites names its signal id")
        << QByteArray("$GAGSV,2,2,06,11,40,100,45,12,30,200,40,7*00")
        << QStringList{"Address", "Sentences", "Sentence", "Satellites in view", "PRN 1", "Elevation 1", "Azimuth 1",
                       "SNR 1", "PRN 2", "Elevation 2", "Azimuth 2", "SNR 2", "Signal ID", "Checksum"};
    QTest::newRow("fields past the list have no name")
        << QByteArray("$GPHDT,1.0,T,9") << QStringList{"Address", "Heading", "T", ""};
    QTest::newRow("proprietary: indices only") << QByteArray("$PGRME,1.0,M*1C") << QStringList{"Address", "", "", "Checksum"};
    QTest::newRow("unknown type") << QByteArray("$GPXYZ,1") << QStringList{"Address", ""};
    QTest::newRow("garbage: nothing named") << QByteArray("ab,c*d") << QStringList{"", "", ""};
}

void TrafficTest::fieldNames()
{
    QFETCH(QByteArray, line);
    QFETCH(QStringList, names);
    FieldView view;
    view.showLine(messageKind(line.constData(), line.size()), line);
    QStringList shown;
    for (const NamedField &field : view.model().fields())
        shown << field.name;
    QCOMPARE(shown, names);
    QCOMPARE(sentenceFieldNames("GNGSA").value(14), QStringLiteral("PDOP"));
}

void TrafficTest::statisticsTableSortsNumbers()
{
    MessageStatistics statistics;
    for (int i = 0; i < 9; ++i)
        statistics.add(line(kStartMs + i, "$GPGGA,1\r\n"));
    for (int i = 0; i < 10; ++i)
        statistics.add(line(kStartMs + i, "$GPRMC,1\r\n"));
    statistics.add(line(kStartMs, "$GPZDA,1\r\n"));
    MessageStatisticsView view(statistics);
    view.setClock([] { return kStartMs + 10; });
    view.refresh();
    QSignalSpy selected(&view, &MessageStatisticsView::kindSelected);
    // As text "10" would come before "9"; the sorted row is not the source's row.
    view.table()->sortByColumn(MessageStatisticsModel::LinesColumn, Qt::AscendingOrder);
    QAbstractItemModel *sorted = view.table()->model();
    QCOMPARE(sorted->index(2, MessageStatisticsModel::LinesColumn).data().toString(), QStringLiteral("10"));
    view.table()->selectRow(1);
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.at(0).at(0).toByteArray(), QByteArray("GPGGA"));
    QVERIFY(view.totalsText().contains(QStringLiteral("20 lines")));
    view.findChild<QPushButton *>()->click();
    statistics.add(line(kStartMs, "$GPGST,1\r\n"));
    view.refresh();
    QCOMPARE(view.model().rowCount(), 1);
    QCOMPARE(view.model().kindAt(0).kind, QByteArray("GPGST"));
}

void TrafficTest::saveWritesWhatCopyGives()
{
    PacketConsoleView view;
    for (const LineRecord &record : mixedLines())
        view.append(record);
    view.model().flush();
    view.table()->selectRow(3);
    view.table()->selectionModel()->select(view.model().index(0, 0),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const QString copied = view.selectedRowsText();
    QCOMPARE(copied.count(QLatin1Char('\n')), 2);
    QVERIFY(copied.startsWith(QStringLiteral("02:00:00.000\tGPGGA\t")));
    QVERIFY(copied.endsWith(QStringLiteral("\t6\tgarbage\t00 ff 20 72 6d 63\n")));
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("lines.txt"));
    QVERIFY(view.saveSelection(path));
    QFile saved(path);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(saved.readAll()), copied);
    QString error;
    QVERIFY(!view.saveSelection(directory.filePath(QStringLiteral("no/such/dir/x.txt")), &error));
    QVERIFY(!error.isEmpty());
}

QTEST_MAIN(TrafficTest)
#include "tst_traffic.moc"
