// SPDX-License-Identifier: BSD-3-Clause
// Corrections end to end with real parts: rxsim as a base station streams RTCM 3 into
// RTKLIB's str2str acting as an NTRIP caster; the console takes the mountpoint and
// writes the corrections to a second rxsim, a rover that is RTK fixed only while they
// arrive.
#include "correctionsview.h"
#include "mainwindow.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr char kUser[] = "rover";
constexpr char kPassword[] = "s3cret-Pa55";
constexpr char kMountpoint[] = "BASE";

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}

bool waitForPort(quint16 port, int timeoutMs = 15000)
{
    return QTest::qWaitFor([port] {
        QTcpSocket probe;
        probe.connectToHost(QHostAddress::LocalHost, port);
        return probe.waitForConnected(200);
    }, timeoutMs);
}

QString ntripUrl(const QString &password, quint16 port, const QString &mountpoint)
{
    return QString("ntrip://%1:%2@127.0.0.1:%3/%4").arg(kUser, password).arg(port).arg(mountpoint);
}

} // namespace

class CorrectionsTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void roverIsFixedWhileTheCasterStreams();
    void headlessReportCountsTheCorrections();

private:
    void startCaster();

    QProcess m_base;
    QProcess m_caster;
    QProcess m_rover;
    quint16 m_basePort = 0;
    quint16 m_casterPort = 0;
    quint16 m_roverPort = 0;
};

void CorrectionsTest::initTestCase()
{
    if (QStandardPaths::findExecutable("str2str").isEmpty())
        QSKIP("RTKLIB's str2str is not installed (Debian: rtklib)");
    m_basePort = freePort();
    m_base.start(RXSIM_BINARY, {"--rtcm", "--listen", QString::number(m_basePort), "--duration", "600"});
    QVERIFY(waitForPort(m_basePort));
    m_casterPort = freePort();
    startCaster();
    m_roverPort = freePort();
    m_rover.start(RXSIM_BINARY, {"--mode", "2", "--needs-corrections", "--listen", QString::number(m_roverPort),
                                 "--duration", "600"});
    QVERIFY(waitForPort(m_roverPort));
}

void CorrectionsTest::startCaster()
{
    // str2str serves "STR;MOUNT;" and the text after the mountpoint as its sourcetable.
    m_caster.start("str2str", {"-in", QString("tcpcli://127.0.0.1:%1").arg(m_basePort), "-out",
                               QString("ntripc://%1:%2@:%3/%4:%5").arg(kUser, kPassword).arg(m_casterPort)
                                   .arg(kMountpoint, "Test;RTCM 3.2;1005(1),1074(1);2;GPS+GLO+GAL+BDS;SIM;CHN;"
                                                     "30.53;114.36;0;0;rxsim;none;B;N;4800;")});
    QVERIFY(waitForPort(m_casterPort));
}

void CorrectionsTest::cleanupTestCase()
{
    for (QProcess *process : {&m_rover, &m_caster, &m_base}) {
        process->terminate();
        process->waitForFinished(5000);
    }
}

void CorrectionsTest::roverIsFixedWhileTheCasterStreams()
{
    MainWindow window("EN", 2);
    window.show();
    QString error;
    window.connectTo(ReceiverConnection::fromAddress(QString("tcp:127.0.0.1:%1").arg(m_roverPort), &error));
    // Without corrections the rover is single.
    QTRY_COMPARE_WITH_TIMEOUT(window.receiverState()->fix().quality, FixQuality::Single, 10000);
    window.startCorrections(*NtripAddress::parse(ntripUrl(kPassword, m_casterPort, kMountpoint), &error), 1);
    QTRY_COMPARE_WITH_TIMEOUT(window.receiverState()->fix().quality, FixQuality::RtkFixed, 20000);
    NtripClient &ntrip = window.session()->ntrip();
    QCOMPARE(ntrip.state(), NtripClient::State::Streaming);
    QTRY_VERIFY_WITH_TIMEOUT(window.correctionsView()->model().rowCount() == 5, 5000);
    const CorrectionSnapshot corrections = window.session()->corrections();
    QCOMPARE(corrections.crcFailures, 0);
    QVERIFY(corrections.referenceValid);
    QCOMPARE(window.session()->correctionBytesNotForwarded(), 0);

    // The caster goes away: the console says so and the rover falls back to single.
    m_caster.terminate();
    QVERIFY(m_caster.waitForFinished(5000));
    QTRY_COMPARE_WITH_TIMEOUT(ntrip.state(), NtripClient::State::Retrying, 40000);
    QVERIFY(!ntrip.stateText().contains(kPassword));
    QTRY_COMPARE_WITH_TIMEOUT(window.receiverState()->fix().quality, FixQuality::Single, 15000);

    // Back again: the client reconnects by itself and the fix returns.
    startCaster();
    QTRY_COMPARE_WITH_TIMEOUT(ntrip.state(), NtripClient::State::Streaming, 40000);
    QTRY_COMPARE_WITH_TIMEOUT(window.receiverState()->fix().quality, FixQuality::RtkFixed, 20000);
    window.disconnectReceiver();
}

void CorrectionsTest::headlessReportCountsTheCorrections()
{
    QTemporaryDir pictures;
    QProcess msgview;
    msgview.start(MSGVIEW_BINARY, {"--snapshot", pictures.path(), "--mode", "0", "--connect",
                                   QString("tcp:127.0.0.1:%1").arg(m_roverPort), "--ntrip",
                                   ntripUrl(kPassword, m_casterPort, kMountpoint), "--ntrip-gga", "1", "--duration", "12",
                                   "--report", "-"});
    QVERIFY(msgview.waitForFinished(60000));
    QCOMPARE(msgview.exitCode(), 0);
    const QString errors = QString::fromUtf8(msgview.readAllStandardError());
    const QJsonObject report = QJsonDocument::fromJson(msgview.readAllStandardOutput()).object();
    QCOMPARE(report["fix"]["quality"].toString(), QString("RTK fixed"));
    const QJsonObject corrections = report["corrections"].toObject();
    QVERIFY2(corrections["frames"].toInt() >= 25, qPrintable(errors));
    QCOMPARE(corrections["crcFailures"].toInt(), 0);
    const QJsonObject types = corrections["messageTypes"].toObject();
    QCOMPARE(types.keys(), QStringList({"1005", "1074", "1084", "1094", "1124"}));
    // Every second one of each: the 1005s and the GPS MSMs come in step.
    QVERIFY(qAbs(types["1005"].toInt() - types["1074"].toInt()) <= 1);
    QVERIFY(corrections["bytes"].toInt() > corrections["frames"].toInt() * 6);
    QVERIFY(corrections["stationId"].isDouble());
    QVERIFY(!errors.contains(kPassword));
    QVERIFY(QFile::exists(pictures.filePath("dock-corrections.png")));
}

QTEST_MAIN(CorrectionsTest)
#include "tst_corrections.moc"
