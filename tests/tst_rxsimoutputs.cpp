// SPDX-License-Identifier: BSD-3-Clause
#include "simulator.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

// Generous guards against a hang; no test depends on timing.
constexpr int kGuardMs = 120000;

const QStringList kRunOptions = {QStringLiteral("--mode"), QStringLiteral("1"), QStringLiteral("--duration"),
                                 QStringLiteral("20"), QStringLiteral("--seed"), QStringLiteral("5"),
                                 QStringLiteral("--as-fast-as-possible")};

QByteArray expectedBytes()
{
    rxsim::SimulatorSettings settings;
    settings.mode = 1;
    settings.seed = 5;
    return rxsim::Simulator(settings).run(20000);
}

QByteArray runToStdout(const QStringList &extra = {})
{
    QProcess rxsim;
    rxsim.start(QStringLiteral(RXSIM_EXECUTABLE), kRunOptions + extra);
    if (!rxsim.waitForFinished(kGuardMs) || rxsim.exitCode() != 0)
        return QByteArray();
    return rxsim.readAllStandardOutput();
}

// Reads the port rxsim announces on stderr.
quint16 announcedPort(QProcess &rxsim)
{
    QByteArray err;
    QElapsedTimer guard;
    guard.start();
    while (!err.contains('\n') && guard.elapsed() < kGuardMs) {
        rxsim.waitForReadyRead(200);
        err += rxsim.readAllStandardError();
    }
    const int colon = err.lastIndexOf(':');
    return colon < 0 ? 0 : quint16(err.mid(colon + 1).trimmed().toUInt());
}

} // namespace

class RxsimOutputsTest : public QObject
{
    Q_OBJECT
private slots:
    void standardOutputIsTheSimulatorsStream();
    void everyTcpClientGetsTheSameBytes();
    void pseudoTerminalGetsTheSameBytes();
    void badOptionsAreRefused_data();
    void badOptionsAreRefused();
};

void RxsimOutputsTest::standardOutputIsTheSimulatorsStream()
{
    const QByteArray expected = expectedBytes();
    QVERIFY(expected.size() > 100000);
    QCOMPARE(runToStdout(), expected);
    // Delivering in small pieces changes the writes, not the bytes.
    QCOMPARE(runToStdout({QStringLiteral("--split"), QStringLiteral("13")}), expected);
}

void RxsimOutputsTest::everyTcpClientGetsTheSameBytes()
{
    QProcess rxsim;
    rxsim.start(QStringLiteral(RXSIM_EXECUTABLE), kRunOptions + QStringList{QStringLiteral("--listen"), QStringLiteral("0"),
                                                                           QStringLiteral("--wait-clients"), QStringLiteral("2")});
    const quint16 port = announcedPort(rxsim);
    QVERIFY(port != 0);

    QTcpSocket first, second;
    first.connectToHost(QHostAddress::LocalHost, port);
    second.connectToHost(QHostAddress::LocalHost, port);
    QVERIFY(first.waitForConnected(kGuardMs) && second.waitForConnected(kGuardMs));
    QByteArray received[2];
    QElapsedTimer guard;
    guard.start();
    while ((first.state() != QAbstractSocket::UnconnectedState || second.state() != QAbstractSocket::UnconnectedState)
           && guard.elapsed() < kGuardMs) {
        first.waitForReadyRead(50);
        second.waitForReadyRead(50);
        received[0] += first.readAll();
        received[1] += second.readAll();
    }
    received[0] += first.readAll();
    received[1] += second.readAll();
    QVERIFY(rxsim.waitForFinished(kGuardMs));
    QCOMPARE(rxsim.exitCode(), 0);
    const QByteArray expected = expectedBytes();
    QCOMPARE(received[0].size(), expected.size());
    QCOMPARE(received[0], expected);
    QCOMPARE(received[1], expected);
}

void RxsimOutputsTest::pseudoTerminalGetsTheSameBytes()
{
    const QString socat = QStandardPaths::findExecutable(QStringLiteral("socat"));
    if (socat.isEmpty())
        QSKIP("socat is not installed");
    QTemporaryDir dir;
    const QString writeEnd = dir.filePath(QStringLiteral("rx")), readEnd = dir.filePath(QStringLiteral("console"));
    QProcess link;
    link.start(socat, {QStringLiteral("pty,raw,echo=0,link=") + writeEnd, QStringLiteral("pty,raw,echo=0,link=") + readEnd});
    QElapsedTimer guard;
    guard.start();
    while (!(QFile::exists(writeEnd) && QFile::exists(readEnd)) && guard.elapsed() < kGuardMs)
        QTest::qWait(20);

    // Hold the writing end open too, so that socat keeps the pair when rxsim closes it.
    const int keep = ::open(writeEnd.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
    const int console = ::open(readEnd.toLocal8Bit().constData(), O_RDONLY | O_NOCTTY | O_NONBLOCK);
    QVERIFY(keep >= 0 && console >= 0);
    termios tio{};
    ::tcgetattr(console, &tio);
    ::cfmakeraw(&tio);
    ::tcsetattr(console, TCSANOW, &tio);

    QProcess rxsim;
    rxsim.start(QStringLiteral(RXSIM_EXECUTABLE),
                kRunOptions + QStringList{QStringLiteral("--serial"), writeEnd, QStringLiteral("--baud"), QStringLiteral("4000000")});
    const QByteArray expected = expectedBytes();
    QByteArray received;
    char buffer[65536];
    guard.restart();
    while (received.size() < expected.size() && guard.elapsed() < kGuardMs) {
        const ssize_t n = ::read(console, buffer, sizeof buffer);
        if (n > 0)
            received.append(buffer, int(n));
        else
            QTest::qWait(5);
    }
    QVERIFY(rxsim.waitForFinished(kGuardMs));
    QCOMPARE(rxsim.exitCode(), 0);
    ::close(console);
    ::close(keep);
    link.terminate();
    link.waitForFinished(kGuardMs);
    QCOMPARE(received.size(), expected.size());
    QCOMPARE(received, expected);
}

void RxsimOutputsTest::badOptionsAreRefused_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("mode without pages") << QStringList{QStringLiteral("--mode"), QStringLiteral("3")};
    QTest::newRow("unknown message") << QStringList{QStringLiteral("--rate"), QStringLiteral("NOSUCH=1")};
    QTest::newRow("rate without period") << QStringList{QStringLiteral("--rate"), QStringLiteral("GGA")};
    QTest::newRow("fault rate above one") << QStringList{QStringLiteral("--corrupt"), QStringLiteral("1.5")};
    QTest::newRow("odd baud rate") << QStringList{QStringLiteral("--serial"), QStringLiteral("/dev/null"),
                                                  QStringLiteral("--baud"), QStringLiteral("12345")};
}

void RxsimOutputsTest::badOptionsAreRefused()
{
    QFETCH(QStringList, options);
    QProcess rxsim;
    rxsim.start(QStringLiteral(RXSIM_EXECUTABLE), options + QStringList{QStringLiteral("--duration"), QStringLiteral("1")});
    QVERIFY(rxsim.waitForFinished(kGuardMs));
    QCOMPARE(rxsim.exitCode(), 2);
    QVERIFY(rxsim.readAllStandardOutput().isEmpty());
    QVERIFY(rxsim.readAllStandardError().startsWith("rxsim: "));
}

QTEST_GUILESS_MAIN(RxsimOutputsTest)
#include "tst_rxsimoutputs.moc"
