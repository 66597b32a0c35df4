// SPDX-License-Identifier: BSD-3-Clause
#include "mainwindow.h"
#include "messageviewmodules.h"
#include "signalsview.h"

#include <QDockWidget>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QSettings>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

QByteArray demoBytes()
{
    QFile file(DEMO_SAMPLE);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QTreeWidgetItem *findItem(MainWindow &window, const QString &label)
{
    const auto items = window.module()->getTreeWidget()->findItems(label, Qt::MatchExactly | Qt::MatchRecursive);
    for (QTreeWidgetItem *item : items) {
        if (item->parent())
            return item;
    }
    return nullptr;
}

QString valueOnCurrentPage(MainWindow &window, int row)
{
    auto *table = window.stack()->currentWidget()->findChild<QTableWidget *>();
    return table && table->item(row, 1) ? table->item(row, 1)->text() : QString();
}

void click(MainWindow &window, const QString &label)
{
    QTreeWidgetItem *item = findItem(window, label);
    QVERIFY2(item, qPrintable(label));
    emit window.module()->getTreeWidget()->itemClicked(item, 0);
}

bool waitForState(ReceiverConnection *connection, ReceiverConnection::State state, int timeoutMs = 10000)
{
    return QTest::qWaitFor([&] { return connection && connection->state() == state; }, timeoutMs);
}

} // namespace

class ConsoleTest : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void modeAndLanguageAreRemembered();
    void tcpReceivesReconnectsAndSendsCommands();
    void serialThroughPseudoTerminalSurvivesDeviceLoss();
    void recordingReplaysToTheSamePages();
    void badAddressesAndMissingFilesFailClearly();
    void snapshotWritesOnePngPerPage();
    void reportsARealReceiverAsJson();
    void aLineTooLongIsOneDamagedLine();
    void messageCountsMatchAnIndependentCount_data();
    void messageCountsMatchAnIndependentCount();
    void binaryModeFindsItsFilesBesideTheProgram();
    void retriesBackOffToHalfAMinute();
    void commandLineWithoutDisplay_data();
    void commandLineWithoutDisplay();
};

void ConsoleTest::init()
{
    QSettings().clear();
}

void ConsoleTest::modeAndLanguageAreRemembered()
{
    {
        MainWindow window("EN", 2);
        window.show();
        window.setMode(7);
        window.setLanguage("CH");
        QCOMPARE(window.stack()->count(), 22); // the NMEA and the timing pages, built anew
        QVERIFY(window.module()->getTreeWidget()->parent());
        window.findChild<QDockWidget *>("dock-history")->hide();
        window.findChild<SignalsView *>()->setThreshold(40);
        window.close();
    }
    QSettings settings;
    QCOMPARE(settings.value("mode").toInt(), 7);
    QCOMPARE(settings.value("language").toString(), QString("CH"));
    // And where the user left the docks, and the views' own settings.
    MainWindow window("EN", 2);
    window.show();
    QVERIFY(!window.findChild<QDockWidget *>("dock-history")->isVisible());
    QVERIFY(window.findChild<QDockWidget *>("dock-sky")->isVisible());
    QCOMPARE(window.findChild<SignalsView *>()->threshold(), 40.0);
}

void ConsoleTest::tcpReceivesReconnectsAndSendsCommands()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    MainWindow window("EN", 2);
    window.show();
    click(window, "Bestpos");
    QString error;
    window.connectTo(ReceiverConnection::fromAddress(QString("tcp:127.0.0.1:%1").arg(server.serverPort()), &error));
    QTRY_VERIFY_WITH_TIMEOUT(server.hasPendingConnections(), 5000);
    QTcpSocket *peer = server.nextPendingConnection();
    QVERIFY(waitForState(window.connection(), ReceiverConnection::State::Open));

    const QByteArray demo = demoBytes();
    const int firstLineEnd = demo.indexOf("\r\n") + 2;
    peer->write(demo.left(firstLineEnd));
    peer->flush();
    QTRY_COMPARE(valueOnCurrentPage(window, 0), QString("SOL_COMPUTED"));

    // Commands typed in the console reach the receiver with "\r\n".
    QVERIFY(window.sendCommandText("  LOG BESTPOSA ONTIME 1 "));
    QTRY_VERIFY(peer->bytesAvailable() > 0 || peer->waitForReadyRead(100));
    QCOMPARE(peer->readAll(), QByteArray("LOG BESTPOSA ONTIME 1\r\n"));
    // Up and Down walk the commands sent, Down past the last one to an empty line.
    QVERIFY(window.sendCommandText("LOG VERSION"));
    auto *commandLine = window.findChild<QLineEdit *>("commandLine");
    QStringList walked;
    for (Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}) {
        QTest::keyClick(commandLine, key);
        walked << commandLine->text();
    }
    QCOMPARE(walked, QStringList({"LOG VERSION", "LOG BESTPOSA ONTIME 1", "LOG VERSION", ""}));

    // The peer goes away with half a line sent; the console retries and, once back,
    // still completes nothing stale but takes the next full line.
    peer->write(demo.mid(firstLineEnd, 10));
    peer->flush();
    peer->disconnectFromHost();
    QVERIFY(waitForState(window.connection(), ReceiverConnection::State::Retrying));
    QVERIFY(window.connection()->stateText().contains("peer closed"));
    // The title says so, next to the page on screen, until the receiver is back.
    QCOMPARE(window.windowTitle(), QString("Receiver messages - Bestpos (receiver lost)"));
    QTRY_VERIFY_WITH_TIMEOUT(server.hasPendingConnections(), 10000);
    QTcpSocket *again = server.nextPendingConnection();
    QVERIFY(waitForState(window.connection(), ReceiverConnection::State::Open));
    QCOMPARE(window.windowTitle(), QString("Receiver messages - Bestpos"));
    again->write(demo.mid(firstLineEnd + 10));
    again->flush();
    QTRY_VERIFY(window.module()->lineCount() >= quint64(demo.count("\r\n")));
    // A good connection starts the back-off over.
    again->disconnectFromHost();
    QVERIFY(waitForState(window.connection(), ReceiverConnection::State::Retrying));
    QVERIFY2(window.connection()->stateText().endsWith("retrying in 1 s"), qPrintable(window.connection()->stateText()));

    window.disconnectReceiver();
    QVERIFY(!window.sendCommandText("LOG VERSION"));
}

void ConsoleTest::serialThroughPseudoTerminalSurvivesDeviceLoss()
{
    if (QStandardPaths::findExecutable("socat").isEmpty())
        QSKIP("socat is not installed");
    QTemporaryDir dir;
    const QString receiverEnd = dir.filePath("receiver"), consoleEnd = dir.filePath("console");
    auto startLink = [&](QProcess &socat) {
        socat.start("socat", {QString("pty,raw,echo=0,link=%1").arg(receiverEnd),
                              QString("pty,raw,echo=0,link=%1").arg(consoleEnd)});
        return QTest::qWaitFor([&] { return QFile::exists(receiverEnd) && QFile::exists(consoleEnd); }, 5000);
    };
    QProcess socat;
    QVERIFY(startLink(socat));

    MainWindow window("EN", 2);
    window.show();
    click(window, "Bestpos");
    QString error;
    window.connectTo(ReceiverConnection::fromAddress("serial:" + consoleEnd + "@115200", &error));
    QVERIFY2(waitForState(window.connection(), ReceiverConnection::State::Open), qPrintable(window.connection()->stateText()));

    QFile receiver(receiverEnd);
    QVERIFY(receiver.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray demo = demoBytes();
    receiver.write(demo.left(demo.indexOf("\r\n") + 2));
    QTRY_COMPARE(valueOnCurrentPage(window, 0), QString("SOL_COMPUTED"));
    receiver.close();

    // The device disappears and comes back: the console notices and reconnects.
    socat.terminate();
    socat.waitForFinished();
    QVERIFY2(waitForState(window.connection(), ReceiverConnection::State::Retrying),
             qPrintable(window.connection()->stateText()));
    QProcess socatAgain;
    QVERIFY(startLink(socatAgain));
    QVERIFY2(waitForState(window.connection(), ReceiverConnection::State::Open, 20000),
             qPrintable(window.connection()->stateText()));
    QFile receiverAgain(receiverEnd);
    QVERIFY(receiverAgain.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const quint64 before = window.module()->lineCount();
    receiverAgain.write(demo.left(demo.indexOf("\r\n") + 2));
    QTRY_COMPARE(window.module()->lineCount(), before + 1);
    window.disconnectReceiver();
    socatAgain.terminate();
    socatAgain.waitForFinished();
}

void ConsoleTest::recordingReplaysToTheSamePages()
{
    QTemporaryDir dir;
    const QString capture = dir.filePath("capture.log");
    QStringList live;
    {
        MainWindow window("EN", 2);
        window.show();
        click(window, "Tdifpos");
        QVERIFY(window.startRecording(capture));
        QTemporaryFile source;
        QVERIFY(source.open());
        source.write(demoBytes());
        source.close();
        window.connectTo(std::make_unique<FileReplayConnection>(source.fileName(), 0));
        QVERIFY(waitForState(window.connection(), ReceiverConnection::State::Finished));
        window.stopRecording();
        for (int row = 0; row < 21; ++row)
            live << valueOnCurrentPage(window, row);
    }
    QCOMPARE(QFileInfo(capture).size(), qint64(demoBytes().size()));
    MainWindow replay("EN", 2);
    replay.show();
    click(replay, "Tdifpos");
    replay.connectTo(std::make_unique<FileReplayConnection>(capture, 0));
    QVERIFY(waitForState(replay.connection(), ReceiverConnection::State::Finished));
    QStringList replayed;
    for (int row = 0; row < 21; ++row)
        replayed << valueOnCurrentPage(replay, row);
    QCOMPARE(replayed, live);
    QVERIFY(!live.first().isEmpty());
}

void ConsoleTest::badAddressesAndMissingFilesFailClearly()
{
    QString error;
    for (const char *address : {"serial:", "tcp:nohost", "tcp:host:99999", "file:", "bogus:1"}) {
        QVERIFY2(!ReceiverConnection::fromAddress(address, &error), address);
        QVERIFY(!error.isEmpty());
    }
    MainWindow window("EN", 0);
    window.connectTo(ReceiverConnection::fromAddress("file:/nonexistent/capture.log", &error));
    QCOMPARE(window.connection()->state(), ReceiverConnection::State::Failed);
    QVERIFY(window.connection()->stateText().contains("cannot open"));
    window.connectTo(ReceiverConnection::fromAddress("serial:/dev/does-not-exist", &error));
    QCOMPARE(window.connection()->state(), ReceiverConnection::State::Retrying);
    QVERIFY(!window.connection()->stateText().isEmpty());
    window.connectTo(ReceiverConnection::fromAddress("tcp:127.0.0.1:1", &error));
    QVERIFY(waitForState(window.connection(), ReceiverConnection::State::Retrying));
    QVERIFY(window.connection()->stateText().contains("refused", Qt::CaseInsensitive));
}

void ConsoleTest::snapshotWritesOnePngPerPage()
{
    QTemporaryDir dir;
    QProcess msgview;
    msgview.start(MSGVIEW_BINARY, {"--snapshot", dir.path(), "--lang", "EN", "--mode", "2", "--replay", DEMO_SAMPLE});
    QVERIFY(msgview.waitForFinished(60000));
    QCOMPARE(msgview.exitCode(), 0);
    QProcess headless;
    headless.start(MSGVIEW_BINARY, {"--headless", "--mode", "2", "--replay", DEMO_SAMPLE});
    QVERIFY(headless.waitForFinished(60000));
    const QString summary = QString::fromUtf8(headless.readAllStandardOutput());
    QVERIFY2(summary.contains("total lines: 600 (taken 600, refused 0)"), qPrintable(summary));
    // The page table: the lines between its heading and the totals.
    const int pages = summary.left(summary.indexOf("total lines:")).count('\n') - 1;
    // A picture of every page, of the four receiver views, of two docks of the stream,
    // and of the window playing the recording with its player bar.
    const QFileInfoList pngs = QDir(dir.path()).entryInfoList({"*.png"});
    QCOMPARE(pngs.size(), pages + 8);
    QVERIFY(QFile::exists(dir.filePath("window-player.png")));
    for (const QFileInfo &png : pngs) {
        QImage image(png.filePath());
        QVERIFY2(!image.isNull() && image.width() > 100, qPrintable(png.fileName()));
    }
    QVERIFY(QFile::exists(dir.filePath("Bestpos.png")));
    QVERIFY(QFile::exists(dir.filePath("view-position.png")));
    // The language is not case-sensitive: "en" shows what "EN" shows.
    QTemporaryDir lowerCase;
    msgview.start(MSGVIEW_BINARY, {"--snapshot", lowerCase.path(), "--lang", "en", "--mode", "2", "--replay", DEMO_SAMPLE});
    QVERIFY(msgview.waitForFinished(60000));
    QCOMPARE(QImage(lowerCase.filePath("Bestpos.png")), QImage(dir.filePath("Bestpos.png")));
}

// Two epochs of a real multi-GNSS receiver (RTK float, NMEA 4.11), counted by hand:
// 10 GPS, 8 GLONASS, 10 Galileo and 10 BDS satellites in view, 4 + 1 + 4 + 5 used.
void ConsoleTest::reportsARealReceiverAsJson()
{
    QProcess msgview;
    msgview.start(MSGVIEW_BINARY, {"--mode", "0", "--report", "-", "--replay", TEST_DATA_DIR "/skytraq-px1172rh-excerpt.log"});
    QVERIFY(msgview.waitForFinished(60000));
    QCOMPARE(msgview.exitCode(), 0);
    QJsonParseError error;
    const QJsonObject report = QJsonDocument::fromJson(msgview.readAllStandardOutput(), &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QVERIFY(QString::fromUtf8(msgview.readAllStandardError()).contains("total lines: 46"));
    const QJsonObject fix = report["fix"].toObject();
    QCOMPARE(fix["quality"].toString(), QString("RTK float"));
    QCOMPARE(fix["heading"].toDouble(), 244.65);
    QCOMPARE(fix["utc"].toString(), QString("2022-03-29T00:38:33.000Z"));
    QMap<QString, int> inView, used;
    for (const QJsonValue &satellite : report["satellites"].toArray()) {
        const QString system = satellite["system"].toString();
        ++inView[system];
        used[system] += satellite["used"].toBool();
        if (system == "GPS" && satellite["prn"].toInt() == 25)
            QCOMPARE(satellite["signals"].toArray().last()["nmeaSignalId"].toInt(), 6);
    }
    QCOMPARE(inView, (QMap<QString, int>{{"BDS", 10}, {"GLONASS", 8}, {"GPS", 10}, {"Galileo", 10}}));
    QCOMPARE(used, (QMap<QString, int>{{"BDS", 5}, {"GLONASS", 1}, {"GPS", 4}, {"Galileo", 4}}));
}

// Read in 64 KB pieces, a 600 KB line is dropped in many stretches, and counted once;
// the short line after it carries a wrong checksum.
void ConsoleTest::aLineTooLongIsOneDamagedLine()
{
    QTemporaryFile recording;
    QVERIFY(recording.open());
    recording.write("$GPTXT," + QByteArray(600 * 1024, 'x') + "\r\n");
    recording.write("$GPTXT,01,01,02,short*2A\r\n");
    recording.close();
    QProcess msgview;
    msgview.start(MSGVIEW_BINARY, {"--headless", "--mode", "0", "--replay", recording.fileName()});
    QVERIFY(msgview.waitForFinished(60000));
    const QString summary = QString::fromUtf8(msgview.readAllStandardOutput());
    QVERIFY2(summary.contains("damaged lines: 2 (bad checksum 1, cut short 0, too long 1), garbage: 0"), qPrintable(summary));
    QVERIFY2(summary.contains("  GPTXT  2\n"), qPrintable(summary));
}

void ConsoleTest::messageCountsMatchAnIndependentCount_data()
{
    QTest::addColumn<QString>("capture");
    for (const char *capture : {"GPSmap-76S.log", "ch-4711.log", "beidou-bd.log", "gp-320fw-2019-04-07-coldboot.log",
                                "ericsson-gru04-02-70sec.log", "skytraq-px1172rh-excerpt.log"})
        QTest::newRow(capture) << QString(capture);
}

// Lines and damaged lines per kind, as the report gives them, against a count made
// here with nothing of the console's: cut at "\r\n" (a lone '\n' ends no line), the
// kind up to the first ',' or '*', and the XOR of the bytes between '$' and the first
// '*' against the hex number that is all the rest of the line.
void ConsoleTest::messageCountsMatchAnIndependentCount()
{
    QFETCH(QString, capture);
    QFile file(TEST_DATA_DIR "/" + capture);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QMap<QString, QPair<int, int>> expected; // kind: lines, damaged
    QList<QByteArray> lines;
    for (int at = 0, end; (end = bytes.indexOf("\r\n", at)) >= 0; at = end + 2)
        lines << bytes.mid(at, end - at);
    for (const QByteArray &line : lines) {
        if (!line.startsWith('$'))
            continue; // garbage
        const int star = line.indexOf('*');
        const int comma = line.indexOf(',');
        const int kindEnd = star < 0 ? (comma < 0 ? line.size() : comma) : (comma < 0 ? star : qMin(comma, star));
        quint8 sum = 0;
        for (int i = 1; i < star; ++i)
            sum ^= quint8(line.at(i));
        bool isHex = false;
        const int written = star > 0 ? line.mid(star + 1).toInt(&isHex, 16) : -1;
        const bool valid = isHex && written == sum;
        auto &count = expected[QString::fromLatin1(line.mid(1, qMin(kindEnd - 1, 32)))];
        ++count.first;
        count.second += valid ? 0 : 1;
    }
    QProcess msgview;
    msgview.start(MSGVIEW_BINARY, {"--mode", "0", "--report", "-", "--replay", file.fileName()});
    QVERIFY(msgview.waitForFinished(60000));
    QMap<QString, QPair<int, int>> reported;
    for (const QJsonValue &kind : QJsonDocument::fromJson(msgview.readAllStandardOutput())["messages"].toArray())
        reported[kind["kind"].toString()] = {kind["lines"].toInt(), kind["badChecksum"].toInt()};
    QVERIFY(!expected.isEmpty());
    QCOMPARE(reported, expected);
}

// Installed as users install it: the descriptions found from any working directory,
// and the maker's decode library beside the program (the test decoder, copied there).
void ConsoleTest::binaryModeFindsItsFilesBesideTheProgram()
{
    QTemporaryDir elsewhere;
    const QString previous = QDir::currentPath();
    QDir::setCurrent(elsewhere.path());
    MainWindow window("EN", 4);
    window.show();
    click(window, "GGA");
    QDir::setCurrent(previous);
    auto *table = window.stack()->currentWidget()->findChild<QTableWidget *>();
    QCOMPARE(table->rowCount(), 15);
    QCOMPARE(table->item(1, 0)->text(), QString("UTC time"));
    const QString decoder = window.stack()->currentWidget()->findChild<QLabel *>("label_decoder")->text();
    QVERIFY2(decoder.startsWith("Decoder: the maker's GNSSDecode library (" + QCoreApplication::applicationDirPath()),
             qPrintable(decoder));
}

void ConsoleTest::retriesBackOffToHalfAMinute()
{
    Backoff backoff;
    QList<int> delays;
    for (int i = 0; i < 7; ++i)
        delays << backoff.nextDelayMs();
    QCOMPARE(delays, (QList<int>{1000, 2000, 4000, 8000, 16000, 30000, 30000}));
    backoff.reset();
    QCOMPARE(backoff.nextDelayMs(), 1000);
}

void ConsoleTest::commandLineWithoutDisplay_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("expected");
    QTest::newRow("help") << QStringList{"--help"} << 0 << "--connect <ADDRESS>";
    QTest::newRow("version") << QStringList{"--version"} << 0 << "msgview " MSGVIEW_VERSION "\n";
    QTest::newRow("window") << QStringList{"--mode", "0"} << 1 << "no display";
    QTest::newRow("unknown option") << QStringList{"--mdoe", "2"} << 1 << "Unknown option 'mdoe'";
    QTest::newRow("a file alone plays") << QStringList{"--headless", DEMO_SAMPLE} << 0 << "total lines: 600 (taken 600";
    QTest::newRow("two files") << QStringList{"a.log", "b.log"} << 1 << "unexpected argument b.log";
    QTest::newRow("a file and --replay") << QStringList{"--replay", "a.log", "b.log"} << 1 << "unexpected argument b.log";
    QTest::newRow("a file and --connect") << QStringList{"--connect", "stdin", "a.log"} << 1 << "unexpected argument a.log";
    QTest::newRow("headless reads standard input") << QStringList{"--headless"} << 0 << "total lines: 0 (";
    QTest::newRow("report of nothing") << QStringList{"--report", "-"} << 0 << "\"quality\": \"no fix\"";
    QTest::newRow("report nowhere") << QStringList{"--report", "/no/such/dir/state.json"} << 1
                                    << "cannot write /no/such/dir/state.json";
}

void ConsoleTest::commandLineWithoutDisplay()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, expected);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(name);
    QProcess msgview;
    msgview.setProcessEnvironment(environment);
    msgview.setProcessChannelMode(QProcess::MergedChannels);
    msgview.start(MSGVIEW_BINARY, arguments);
    msgview.closeWriteChannel();
    QVERIFY(msgview.waitForFinished(10000));
    QCOMPARE(msgview.exitStatus(), QProcess::NormalExit);
    QCOMPARE(msgview.exitCode(), exitCode);
    const QString output = QString::fromUtf8(msgview.readAll());
    QVERIFY2(output.contains(expected), qPrintable(output));
}

QTEST_MAIN(ConsoleTest)
#include "tst_console.moc"
