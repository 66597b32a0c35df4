// No loss under faults: the simulator sends minutes of a receiver through a noisy
// link (corrupted checksums, truncated lines, lost line ends, garbage bursts, bytes in
// small pieces) into the headless console. Every line sent intact must be taken by
// its page and every damaged line by none, page by page, with the exceptions the
// pages' rules make on purpose, which are named here.
#include <QHash>
#include <QProcess>
#include <QtTest>

namespace {

struct SimulatorRow
{
    quint64 intact = 0;
    quint64 taken = 0;
};

// "page  intact  taken" rows of rxsim's summary.
QHash<QString, SimulatorRow> simulatorSummary(const QString &text)
{
    QHash<QString, SimulatorRow> rows;
    for (const QString &line : text.split('\n')) {
        const QStringList parts = line.split(' ', Qt::SkipEmptyParts);
        if (parts.size() == 3 && parts.at(1).at(0).isDigit())
            rows.insert(parts.at(0), {parts.at(1).toULongLong(), parts.at(2).toULongLong()});
    }
    return rows;
}

// "page  lines" rows of the headless console.
QHash<QString, quint64> consoleCounts(const QString &text)
{
    QHash<QString, quint64> rows;
    for (const QString &line : text.split('\n')) {
        const QStringList parts = line.split(' ', Qt::SkipEmptyParts);
        if (parts.size() == 2 && parts.at(1).at(0).isDigit())
            rows.insert(parts.at(0), parts.at(1).toULongLong());
    }
    return rows;
}

} // namespace

class SoakTest : public QObject
{
    Q_OBJECT
private slots:
    void noValidLineLostUnderFaults_data();
    void noValidLineLostUnderFaults();
};

void SoakTest::noValidLineLostUnderFaults_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("seed");
    QTest::newRow("mode 2") << 2 << 11;
    QTest::newRow("mode 7") << 7 << 12;
    QTest::newRow("mode 0") << 0 << 13;
}

void SoakTest::noValidLineLostUnderFaults()
{
    QFETCH(int, mode);
    QFETCH(int, seed);
    QProcess simulator, console;
    simulator.setStandardOutputProcess(&console);
    simulator.start(RXSIM_BINARY, {"--mode", QString::number(mode), "--duration", "240", "--seed", QString::number(seed),
                                   "--corrupt", "0.05", "--truncate", "0.02", "--drop-crlf", "0.01", "--garbage",
                                   "0.01", "--split", "300", "--as-fast-as-possible", "--summary"});
    console.start(MSGVIEW_BINARY, {"--headless", "--mode", QString::number(mode), "--replay", "-"});
    QVERIFY(simulator.waitForFinished(120000));
    QCOMPARE(simulator.exitCode(), 0);
    QVERIFY(console.waitForFinished(120000));
    QCOMPARE(console.exitCode(), 0);

    const QHash<QString, SimulatorRow> sent = simulatorSummary(QString::fromUtf8(simulator.readAllStandardError()));
    const QHash<QString, quint64> taken = consoleCounts(QString::fromUtf8(console.readAllStandardOutput()));
    QVERIFY(!taken.isEmpty());
    quint64 intactLines = 0;
    for (auto it = taken.cbegin(); it != taken.cend(); ++it) {
        QVERIFY2(sent.contains(it.key()), qPrintable(it.key()));
        const SimulatorRow row = sent.value(it.key());
        // The console takes exactly what the simulator, knowing every fault it made,
        // says the pages' rules give each page.
        QCOMPARE(it.value(), row.taken);
        intactLines += row.intact;
        if (it.key() == QLatin1String("Satvis2")) {
            // Deliberate: only the group's first and last lines are checksum-tested,
            // so a damaged middle line of a group is still taken.
            QVERIFY(row.taken >= row.intact);
        } else {
            QVERIFY2(row.taken == row.intact, qPrintable(QStringLiteral("%1: %2 intact, %3 taken")
                                                              .arg(it.key()).arg(row.intact).arg(row.taken)));
        }
    }
    // Deliberate: pages whose header no line of a correct stream can match.
    if (mode == 2) {
        QCOMPARE(taken.value("Heading"), quint64(0));    // nine-character header compared over ten
        QCOMPARE(taken.value("KvnHeading2"), quint64(0)); // "KvnHeading", earlier, takes those logs
    }
    QVERIFY(intactLines > 1000);
}

QTEST_MAIN(SoakTest)
#include "tst_soak.moc"
