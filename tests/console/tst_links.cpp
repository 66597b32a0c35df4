// SPDX-License-Identifier: BSD-3-Clause
// The console on shared links: a receiver owned by a real gpsd (gpsfake), and the
// receiver's bytes re-served to several clients at once.
#include "rawbyteserver.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

namespace {

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString sentenceKind(const QByteArray &line)
{
    return QString::fromLatin1(line.mid(1, line.indexOf(',') - 1));
}

// Collects a process's standard error as it comes, so a test can wait for a line.
struct ErrorLog
{
    explicit ErrorLog(QProcess &process)
    {
        QObject::connect(&process, &QProcess::readyReadStandardError, &process,
                         [this, &process] { text += QString::fromUtf8(process.readAllStandardError()); });
    }
    QString text;
};

} // namespace

class LinksTest : public QObject
{
    Q_OBJECT
private slots:
    void serveAddresses_data();
    void serveAddresses();
    void gpsdSentencesReachThePages();
    void servedClientsGetExactlyTheBytesRead();
};

void LinksTest::serveAddresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("address"); // empty: refused
    QTest::addColumn<int>("port");
    QTest::newRow("port only: loopback") << "5002" << "127.0.0.1" << 5002;
    QTest::newRow("every interface") << "0.0.0.0:5002" << "0.0.0.0" << 5002;
    QTest::newRow("star") << "*:1" << QHostAddress(QHostAddress::Any).toString() << 1;
    QTest::newRow("IPv6 in brackets") << "[::1]:65535" << "::1" << 65535;
    QTest::newRow("port too large") << "65536" << "" << 0;
    QTest::newRow("no number") << "localhost:http" << "" << 0;
    QTest::newRow("a name, not an address") << "localhost:5002" << "" << 0;
}

void LinksTest::serveAddresses()
{
    QFETCH(QString, text);
    QFETCH(QString, address);
    QFETCH(int, port);
    QHostAddress parsed;
    quint16 parsedPort = 0;
    QString error;
    QCOMPARE(RawByteServer::parseListenAddress(text, &parsed, &parsedPort, &error), !address.isEmpty());
    QCOMPARE(parsed.toString(), address);
    QCOMPARE(int(parsedPort), port);
    QCOMPARE(error.isEmpty(), !address.isEmpty());
}

// gpsfake plays a real capture again and again into a real gpsd; the console watches
// gpsd, re-serves what it gets, and reports what its pages took.
void LinksTest::gpsdSentencesReachThePages()
{
    if (QStandardPaths::findExecutable("gpsfake").isEmpty())
        QSKIP("gpsfake is not installed (Debian: gpsd, gpsd-clients)");
    const QString log = TEST_DATA_DIR "/ericsson-gru04-02-70sec.log";
    const quint16 gpsdPort = freePort();
    QProcess gpsfake;
    // -n: gpsd reads the fake device before any client watches, -q: no chatter.
    gpsfake.start("gpsfake", {"-q", "-n", "-P", QString::number(gpsdPort), log});
    QVERIFY(gpsfake.waitForStarted());
    QVERIFY(QTest::qWaitFor([&] {
        QTcpSocket probe;
        probe.connectToHost(QHostAddress::LocalHost, gpsdPort);
        return probe.waitForConnected(200);
    }, 15000));

    const quint16 servePort = freePort();
    QProcess msgview;
    ErrorLog errors(msgview);
    msgview.start(MSGVIEW_BINARY, {"--headless", "--mode", "0", "--connect", QString("gpsd:127.0.0.1:%1").arg(gpsdPort),
                                   "--serve", QString::number(servePort), "--duration", "5", "--report", "-"});
    QTcpSocket client;
    QVERIFY(QTest::qWaitFor([&] {
        client.connectToHost(QHostAddress::LocalHost, servePort);
        return client.waitForConnected(200);
    }, 10000));
    QByteArray served;
    connect(&client, &QTcpSocket::readyRead, this, [&] { served += client.readAll(); });
    QVERIFY(QTest::qWaitFor([&] { return msgview.state() == QProcess::NotRunning; }, 30000));
    gpsfake.terminate();
    gpsfake.waitForFinished(5000);
    QCOMPARE(msgview.exitCode(), 0);
    QVERIFY2(errors.text.contains("connected to gpsd at 127.0.0.1"), qPrintable(errors.text));

    // The log played over and over: each of its sentences comes through unchanged,
    // gpsd's own JSON reports never.
    QMap<QString, int> onePass;
    const QList<QByteArray> logLines = readFile(log).split('\n');
    QSet<QByteArray> servedLines;
    for (const QByteArray &line : served.split('\n'))
        servedLines.insert(line.trimmed());
    for (const QByteArray &line : logLines) {
        if (!line.startsWith('$'))
            continue;
        ++onePass[sentenceKind(line)];
        QVERIFY2(servedLines.contains(line.trimmed()), line.constData());
    }
    QVERIFY(!served.contains("\n{") && !served.startsWith('{'));

    // The pages saw at least one whole pass of every kind, intact, and nothing else.
    const QJsonObject report = QJsonDocument::fromJson(msgview.readAllStandardOutput()).object();
    QMap<QString, int> seen;
    for (const QJsonValue &message : report["messages"].toArray()) {
        seen[message["kind"].toString()] = message["lines"].toInt();
        QCOMPARE(message["badChecksum"].toInt(), 0);
    }
    QCOMPARE(seen.keys(), onePass.keys());
    for (auto kind = onePass.cbegin(); kind != onePass.cend(); ++kind)
        QVERIFY2(seen[kind.key()] >= kind.value(), qPrintable(kind.key()));
    QCOMPARE(report["garbageBytes"].toInt(), 0);
}

// The test is the receiver. Two clients that read and one that never does are served
// before the first byte; the two get every byte, the third is dropped, the console
// reads on and prints its summary when terminated.
void LinksTest::servedClientsGetExactlyTheBytesRead()
{
    QTcpServer receiver;
    QVERIFY(receiver.listen(QHostAddress::LocalHost, 0));
    const quint16 servePort = freePort();
    QProcess msgview;
    ErrorLog errors(msgview);
    msgview.start(MSGVIEW_BINARY, {"--headless", "--mode", "0", "--connect", QString("tcp:127.0.0.1:%1").arg(receiver.serverPort()),
                                   "--serve", QString("127.0.0.1:%1").arg(servePort)});
    QVERIFY(receiver.waitForNewConnection(10000));
    QTcpSocket *link = receiver.nextPendingConnection();

    QTcpSocket readers[2];
    QByteArray received[2];
    QTcpSocket stalled;
    stalled.setReadBufferSize(1); // takes nothing off the kernel's queue once it holds a byte
    for (int i = 0; i < 2; ++i) {
        readers[i].connectToHost(QHostAddress::LocalHost, servePort);
        connect(&readers[i], &QTcpSocket::readyRead, this, [&, i] { received[i] += readers[i].readAll(); });
    }
    stalled.connectToHost(QHostAddress::LocalHost, servePort);
    QTRY_COMPARE_WITH_TIMEOUT(errors.text.count("serving 127.0.0.1:"), 3, 10000);

    // More than the backlog a client may fall behind plus what the kernel buffers.
    const QByteArray capture = readFile(TEST_DATA_DIR "/ericsson-gru04-02-70sec.log");
    QByteArray stream;
    while (stream.size() < 40 * 1024 * 1024)
        stream += capture;
    // Paced by the readers, so that only the stalled client falls behind, however busy
    // the machine is.
    constexpr int kPiece = 256 * 1024;
    for (int at = 0; at < stream.size(); at += kPiece) {
        link->write(stream.mid(at, kPiece));
        QTRY_VERIFY_WITH_TIMEOUT(link->bytesToWrite() < kPiece && received[0].size() > at - 4 * kPiece
                                     && received[1].size() > at - 4 * kPiece,
                                 20000);
    }
    QTRY_VERIFY2_WITH_TIMEOUT(received[0].size() >= stream.size() && received[1].size() >= stream.size(),
                              qPrintable(QString("%1 %2 of %3; %4").arg(received[0].size()).arg(received[1].size()).arg(stream.size()).arg(errors.text)), 60000);
    QVERIFY(received[0] == stream);
    QVERIFY(received[1] == stream);
    QVERIFY2(errors.text.contains("dropped: it fell"), qPrintable(errors.text));

    msgview.terminate(); // SIGTERM: the summary still comes
    QVERIFY(msgview.waitForFinished(20000));
    QCOMPARE(msgview.exitStatus(), QProcess::NormalExit);
    QCOMPARE(msgview.exitCode(), 0);
    QVERIFY2(QString::fromUtf8(msgview.readAllStandardOutput()).contains(QString("bytes: %1 ").arg(stream.size())),
             qPrintable(errors.text));
}

QTEST_GUILESS_MAIN(LinksTest)
#include "tst_links.moc"
