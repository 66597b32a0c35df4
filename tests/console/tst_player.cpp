// SPDX-License-Identifier: BSD-3-Clause
#include "headlessreplay.h"
#include "mainwindow.h"
#include "messageviewmodules.h"
#include "playerbar.h"
#include "receiverstate.h"
#include "recordingplayer.h"
#include "sessionindex.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

namespace {

// Every fault the simulator knows, often enough that seeks land near damaged lines.
const QStringList kFaults = {"--corrupt", "0.02", "--truncate", "0.02", "--drop-crlf", "0.02", "--garbage", "0.02"};

QString record(const QString &path, int mode, int seconds, const QStringList &faults = kFaults)
{
    QProcess rxsim;
    rxsim.setStandardOutputFile(path);
    rxsim.start(RXSIM_BINARY, QStringList{"--mode", QString::number(mode), "--duration", QString::number(seconds),
                                          "--seed", "7", "--as-fast-as-possible", "--start", "2024-05-20T23:58:00Z"}
                                  + faults);
    if (!rxsim.waitForFinished(60000) || rxsim.exitCode() != 0)
        return QStringLiteral("rxsim failed: ") + rxsim.readAllStandardError();
    return QString();
}

// Every text a page shows: its tables, count boxes and labels.
QStringList pageTexts(const QWidget *page)
{
    QStringList texts;
    for (const QTableWidget *table : page->findChildren<QTableWidget *>()) {
        texts << QStringLiteral("rows %1").arg(table->rowCount());
        for (int row = 0; row < table->rowCount(); ++row) {
            for (int column = 0; column < table->columnCount(); ++column) {
                if (const QTableWidgetItem *item = table->item(row, column))
                    texts << QStringLiteral("%1,%2 %3").arg(row).arg(column).arg(item->text());
            }
        }
    }
    for (const QLineEdit *edit : page->findChildren<QLineEdit *>())
        texts << edit->text();
    for (const QLabel *label : page->findChildren<QLabel *>())
        texts << label->text();
    return texts;
}

QTreeWidgetItem *treeItem(MessageViewModules &module, const QString &label)
{
    for (QTreeWidgetItem *item : module.getTreeWidget()->findItems(label, Qt::MatchExactly | Qt::MatchRecursive)) {
        if (item->parent())
            return item;
    }
    return nullptr;
}

// The page with this label on screen, the recording played to `end` from its start.
QStringList shownAfterPlaying(const QString &path, int mode, const QString &label, qint64 end)
{
    QStackedWidget stack;
    MessageViewModules module(&stack, QStringLiteral("EN"));
    module.addItemToTree(mode);
    stack.show();
    emit module.getTreeWidget()->itemClicked(treeItem(module, label), 0);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    module.onUpdateBuffer(file.read(end));
    return pageTexts(stack.currentWidget());
}

QByteArray sentence(const QByteArray &body, bool intact = true)
{
    char sum = 0;
    for (const char c : body)
        sum ^= c;
    return "$" + body + "*" + QByteArray::number(uchar(intact ? sum : sum ^ 1), 16).rightJustified(2, '0') + "\r\n";
}

// A module whose every page is on screen (each its own offscreen window), so that each
// page shows what it takes, as the page the user looks at does.
struct ShownModule
{
    explicit ShownModule(int mode) : module(&stack, QStringLiteral("EN"))
    {
        module.addItemToTree(mode);
        while (stack.count() > 0) {
            QWidget *page = stack.widget(0);
            stack.removeWidget(page);
            page->setParent(nullptr);
            page->show();
            pages.emplace_back(page);
        }
    }
    ~ShownModule()
    {
        // The module deletes its pages itself.
        for (auto &page : pages)
            page.release();
    }

    // Every text a page shows (tables, count boxes, labels) and the marks of the tree.
    QStringList contents()
    {
        QStringList texts;
        for (const auto &page : pages) {
            texts << QStringLiteral("page %1").arg(page->metaObject()->className());
            texts << pageTexts(page.get());
        }
        QTreeWidget *tree = module.getTreeWidget();
        for (int top = 0; top < tree->topLevelItemCount(); ++top) {
            for (int child = 0; child < tree->topLevelItem(top)->childCount(); ++child) {
                const QTreeWidgetItem *item = tree->topLevelItem(top)->child(child);
                texts << item->text(0) + QLatin1Char(' ') + item->foreground(0).color().name();
            }
        }
        return texts;
    }

    QStackedWidget stack;
    MessageViewModules module;
    std::vector<std::unique_ptr<QWidget>> pages;
};

QString firstDifference(const QStringList &expected, const QStringList &actual)
{
    QString page;
    for (int i = 0; i < std::min(expected.size(), actual.size()); ++i) {
        if (expected.at(i).startsWith(QLatin1String("page ")))
            page = expected.at(i);
        if (expected.at(i) != actual.at(i))
            return QStringLiteral("%1: played \"%2\", sought \"%3\"").arg(page, expected.at(i), actual.at(i));
    }
    return expected.size() == actual.size() ? QString()
                                            : QStringLiteral("%1 against %2 texts").arg(expected.size()).arg(actual.size());
}

QString fixText(const FixInfo &fix)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
        .arg(fix.utc.toString(Qt::ISODateWithMs))
        .arg(fix.lat, 0, 'f', 9)
        .arg(fix.lon, 0, 'f', 9)
        .arg(fixQualityName(fix.quality))
        .arg(fix.satellitesUsed)
        .arg(fix.hdop)
        .arg(fix.sdHeight);
}

QStringList satelliteTexts(const ReceiverState &state)
{
    QStringList texts;
    for (const SatelliteInfo &satellite : state.satellites()) {
        QString text = QStringLiteral("%1%2 %3 %4 %5").arg(systemLetter(satellite.system)).arg(satellite.prn)
                           .arg(satellite.elevation).arg(satellite.azimuth).arg(satellite.used);
        // Without the C/N0: the state reads the long observation logs at a pace of wall
        // time, so which source gave the last value differs between any two plays.
        for (const SignalInfo &signal : satellite.trackedSignals)
            text += QLatin1Char(' ') + signal.name;
        texts << text;
    }
    return texts;
}

} // namespace

class PlayerTest : public QObject
{
    Q_OBJECT
private slots:
    void seekShowsWhatPlayingShows_data();
    void seekShowsWhatPlayingShows();
    void windowPlaysSeeksAndSteps();
    void exportFromTheCommandLine_data();
    void exportFromTheCommandLine();

private:
    QTemporaryDir m_dir;
};

void PlayerTest::seekShowsWhatPlayingShows_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("mode");
    QVERIFY(m_dir.isValid());
    // Each product mode's text stream, damaged, across midnight (the date changes).
    for (const auto &[mode, seconds] : {std::pair{0, 200}, {1, 150}, {2, 150}, {7, 200}}) {
        const QString path = m_dir.filePath(QStringLiteral("mode%1.log").arg(mode));
        const QString failure = record(path, mode, seconds);
        QVERIFY2(failure.isEmpty(), qPrintable(failure));
        QTest::addRow("rxsim mode %d", mode) << path << mode;
    }
    // Heading sent three times long before the seeks: a whole sentence, one a field short
    // (its page keeps the last row of the whole one), then a damaged one.
    const QString heading = m_dir.filePath(QStringLiteral("heading.log"));
    QVERIFY(record(heading, 0, 100, {"--rate", "HDT=0"}).isEmpty());
    QFile file(heading);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    const int at = bytes.indexOf("\r\n", bytes.indexOf("$GNGGA,235810.00")) + 2;
    bytes.insert(at, sentence("GNHDT,123.4,T") + sentence("GNHDT,200.0") + sentence("GNHDT,300.0", false));
    QVERIFY(file.resize(0) && file.write(bytes) == bytes.size());
    QTest::newRow("heading once, whole, short and damaged") << heading << 0;
    // A real receiver's NMEA 4.11 stream (several signals per satellite) and an old one.
    QTest::newRow("NMEA 4.11 receiver") << QStringLiteral(TEST_DATA_DIR "/ch-4711.log") << 0;
    QTest::newRow("NMEA 2 receiver") << QStringLiteral(TEST_DATA_DIR "/GPSmap-76S.log") << 0;
    QTest::newRow("multi-GNSS receiver, 70 s") << QStringLiteral(TEST_DATA_DIR "/ericsson-gru04-02-70sec.log") << 0;
}

// For epochs spread over the recording, and at its edges: every page's texts, the
// tree's marks and the receiver state after a seek equal those after playing the
// recording from its start to the same byte.
void PlayerTest::seekShowsWhatPlayingShows()
{
    QFETCH(QString, path);
    QFETCH(int, mode);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    SessionIndex index;
    QVERIFY(index.build(file));
    QVERIFY2(index.epochCount() > 10, qPrintable(QString::number(index.epochCount())));

    const int count = index.epochCount();
    QVector<int> epochs = {0, 1, 9, 10, 11, 29, 30, 31, count / 3, count / 2, count - 2, count - 1};
    for (int &epoch : epochs)
        epoch = std::min(epoch, count - 1);
    std::sort(epochs.begin(), epochs.end());
    epochs.erase(std::unique(epochs.begin(), epochs.end()), epochs.end());

    ShownModule played(mode);
    ReceiverState playedState;
    qint64 fed = 0;
    for (const int epoch : epochs) {
        const qint64 end = index.epochEnd(epoch);
        QVERIFY(file.seek(fed));
        const QByteArray bytes = file.read(end - fed);
        played.module.onUpdateBuffer(bytes);
        playedState.feed(bytes);
        fed = end;

        ShownModule sought(mode);
        ReceiverState soughtState;
        SeekRebuild rebuild;
        QString error;
        QVERIFY2(readSeekRebuild(file, index.planSeek(epoch), &rebuild, &error), qPrintable(error));
        QCOMPARE(rebuild.endOffset, end);
        replaySeek(sought.module, soughtState, rebuild);

        const QString difference = firstDifference(played.contents(), sought.contents());
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("epoch %1: %2").arg(epoch).arg(difference)));
        QCOMPARE(fixText(soughtState.fix()), fixText(playedState.fix()));
        QCOMPARE(satelliteTexts(soughtState), satelliteTexts(playedState));
    }
}

// The window with a recording: the bar's requests reach the player, and the page on
// screen stays on screen through seeks and steps, showing what playing to there shows.
void PlayerTest::windowPlaysSeeksAndSteps()
{
    const QString path = m_dir.filePath(QStringLiteral("window.log"));
    const QString failure = record(path, 2, 60);
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
    MainWindow window(QStringLiteral("EN"), 2);
    window.show();
    window.openRecording(path);
    RecordingPlayer *player = window.player();
    QVERIFY(player);
    QVERIFY(QTest::qWaitFor([&] { return player->index() != nullptr; }, 20000));
    const SessionIndex &index = *player->index();
    PlayerBar *bar = window.playerBar();
    QVERIFY(bar->isVisible());
    emit bar->playingToggled(false);
    QVERIFY(!player->isPlaying());

    const QString label = QStringLiteral("Bestpos");
    emit window.module()->getTreeWidget()->itemClicked(treeItem(*window.module(), label), 0);
    const auto expectShown = [&](int epoch) {
        QCOMPARE(player->position(), epoch);
        QCOMPARE(pageTexts(window.stack()->currentWidget()), shownAfterPlaying(path, 2, label, index.epochEnd(epoch)));
    };
    const QVector<std::pair<std::function<void()>, int>> requests = {
        {[&] { emit bar->seekRequested(40); }, 40},
        {[&] { emit bar->stepRequested(1); }, 41},
        {[&] { emit bar->stepRequested(-2); }, 39},
        {[&] { emit bar->jumpRequested(QStringLiteral("23:58:30")); }, 30},
    };
    for (const auto &[request, epoch] : requests) {
        request();
        expectShown(epoch);
        if (QTest::currentTestFailed())
            return;
    }
    QCOMPARE(window.receiverState()->fix().utc, QDateTime(QDate(2024, 5, 20), QTime(23, 58, 30), Qt::UTC));
    // Back in time, the views forget what came after.
    for (const HistorySample &second : window.receiverState()->snapshot().history)
        QVERIFY(second.timeMs < index.epochTimeMs(30));

    // A time the recording never reaches: said in the bar, nothing moves.
    emit bar->jumpRequested(QStringLiteral("12:00:00"));
    QCOMPARE(player->position(), 30);
    QVERIFY(bar->findChild<QLabel *>(QStringLiteral("messageLabel"))->text().contains(QLatin1String("not in the recording")));

    // As fast as possible to the end.
    emit bar->speedChosen(0);
    emit bar->playingToggled(true);
    QVERIFY(QTest::qWaitFor([&] { return player->state() == ReceiverConnection::State::Finished; }, 20000));
    expectShown(index.epochCount() - 1);
}

void PlayerTest::exportFromTheCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("rows");    // CSV rows expected; -1: refused
    QTest::addColumn<QString>("said"); // on standard error when refused
    // 150 s from 23:58:00, one position a second.
    QTest::newRow("whole recording") << QStringList{"--export", "csv"} << 150 << "";
    QTest::newRow("across midnight") << QStringList{"--export", "CSV", "--from", "23:58:50", "--to", "00:00:05"} << 76 << "";
    QTest::newRow("dated span") << QStringList{"--export", "csv", "--from", "2024-05-20T23:58:10Z", "--to", "2024-05-20T23:58:19Z"} << 10 << "";
    QTest::newRow("unknown format") << QStringList{"--export", "shp"} << -1 << "unknown export format";
    QTest::newRow("time not recorded") << QStringList{"--export", "gpx", "--from", "05:00:00"} << -1 << "not in the recording";
    QTest::newRow("end before start") << QStringList{"--export", "kml", "--from", "23:59:00", "--to", "23:58:30"} << -1 << "comes before";
}

// Every export is a CSV of the span's epochs, or a clear refusal that leaves no file;
// the raw cut of the span exports the same positions as the span itself.
void PlayerTest::exportFromTheCommandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, rows);
    QFETCH(QString, said);
    const QString path = m_dir.filePath(QStringLiteral("export.log"));
    if (!QFile::exists(path))
        QVERIFY(record(path, 0, 150, {}).isEmpty());
    const auto run = [](const QStringList &arguments, QByteArray *errors) {
        QProcess msgview;
        msgview.start(MSGVIEW_BINARY, arguments);
        msgview.waitForFinished(60000);
        *errors = msgview.readAllStandardError();
        return msgview.exitCode();
    };
    const QString out = m_dir.filePath(QStringLiteral("export.out"));
    QFile::remove(out);
    QByteArray errors;
    const int status = run(arguments + QStringList{"--replay", path, "-o", out}, &errors);
    if (rows < 0) {
        QCOMPARE(status, 1);
        QVERIFY2(errors.contains(said.toUtf8()), errors.constData());
        QVERIFY(!QFile::exists(out));
        return;
    }
    QCOMPARE(status, 0);
    QFile csv(out);
    QVERIFY(csv.open(QIODevice::ReadOnly));
    const QByteArray table = csv.readAll();
    QCOMPARE(table.count("\r\n"), rows + 1);

    const QString cut = m_dir.filePath(QStringLiteral("export-cut.log"));
    QStringList rawArguments = arguments;
    rawArguments[1] = QStringLiteral("raw");
    QCOMPARE(run(rawArguments + QStringList{"--replay", path, "-o", cut}, &errors), 0);
    const QString again = m_dir.filePath(QStringLiteral("export-again.csv"));
    QCOMPARE(run({"--export", "csv", "--replay", cut, "-o", again}, &errors), 0);
    QFile cutCsv(again);
    QVERIFY(cutCsv.open(QIODevice::ReadOnly));
    QCOMPARE(cutCsv.readAll(), table);
}

QTEST_MAIN(PlayerTest)
#include "tst_player.moc"
