// SPDX-License-Identifier: BSD-3-Clause
// The route table against the behaviour it stands for: which page takes the lines at
// the edges of the header tests. Every edge line also goes through a module with no
// page on screen, which holds the pages to the table.
#include "moduleharness.h"
#include "receiverlines.h"
#include "routetable.h"

#include <QtTest>

using namespace ReceiverLines;

namespace {

QByteArray logNamed(const QByteArray &name)
{
    return log(logBody(name, "1,2"));
}

QByteArray sentenceNamed(const QByteArray &address)
{
    return sentence(address + ",1,2");
}

QByteArray withBadChecksum(QByteArray line)
{
    line[line.size() - 3] = char(line.at(line.size() - 3) ^ 1);
    return line;
}

} // namespace

class RoutesTest : public QObject
{
    Q_OBJECT
private slots:
    void edgeLinesGoToTheirPage_data();
    void edgeLinesGoToTheirPage();
};

void RoutesTest::edgeLinesGoToTheirPage_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("page");
    QTest::newRow("any talker") << 0 << sentenceNamed("GNGSV") << "GSV";
    QTest::newRow("GGAH") << 0 << sentenceNamed("GPGGAH") << "GGAH";
    QTest::newRow("RMCH") << 7 << sentenceNamed("GNRMCH") << "RMCH";
    QTest::newRow("GSA has no page") << 1 << sentenceNamed("GNGSA") << "";
    QTest::newRow("NMEA framed as a log") << 0 << log("GPGGA,1,2") << "";
    QTest::newRow("formatter in lower case") << 0 << sentenceNamed("GPgga") << "";
    QTest::newRow("bad checksum") << 0 << withBadChecksum(sentenceNamed("GPGGA")) << "";
    QTest::newRow("HPR") << 1 << sentenceNamed("GNHPR") << "HPR";
    QTest::newRow("HPR framed as a log") << 2 << log("GNHPR,1,2") << "HPR";
    QTest::newRow("HPR with the logs only") << 0 << sentenceNamed("GNHPR") << "";
    QTest::newRow("HEADING on none") << 2 << logNamed("HEADINGA") << "";
    QTest::newRow("KVNHEADING") << 1 << logNamed("KVNHEADINGA") << "KvnHeading";
    QTest::newRow("KVNHEADING2 on KvnHeading") << 2 << logNamed("KVNHEADING2A") << "KvnHeading";
    QTest::newRow("HEADING2 in mode 2") << 2 << logNamed("HEADING2A") << "Heading2";
    QTest::newRow("HEADING2 not in mode 1") << 1 << logNamed("HEADING2A") << "";
    QTest::newRow("BESTNAVH") << 1 << logNamed("BESTNAVHA") << "BestnavH";
    QTest::newRow("BESTNAVH, any next character") << 1 << logNamed("BESTNAVHAX") << "BestnavH";
    QTest::newRow("BESTNAVHB") << 1 << logNamed("BESTNAVHB") << "";
    QTest::newRow("MATCHEDPOSH") << 1 << logNamed("MATCHEDPOSHA") << "Matchposh";
    QTest::newRow("RANGEH") << 2 << logNamed("RANGEHA") << "Rangeh";
    QTest::newRow("MATCHEDPOS, any next character") << 1 << logNamed("MATCHEDPOSAX") << "Matchpos";
    QTest::newRow("GPSION of another format") << 1 << logNamed("GPSIONB") << "Gpsion";
    QTest::newRow("GALUTC with a suffix") << 1 << logNamed("GALUTC_ANY") << "Galutc";
    QTest::newRow("BD3ION bare") << 2 << logNamed("BD3ION") << "Bd3ion";
    QTest::newRow("TIMEB") << 1 << logNamed("TIMEB") << "";
    QTest::newRow("TIMESYNCA") << 1 << logNamed("TIMESYNCA") << "";
    QTest::newRow("AGRICAX") << 1 << logNamed("AGRICAX") << "";
    QTest::newRow("log name in lower case") << 1 << logNamed("bestposa") << "";
    QTest::newRow("clock switch listed nowhere") << 2 << logNamed("ClockSwitchA") << "";
    QTest::newRow("SATVIS2 taken unchecked") << 2 << withBadChecksum(logNamed("SATVIS2A")) << "Satvis2";
    QTest::newRow("SATVIS2 not in mode 1") << 1 << logNamed("SATVIS2A") << "";
    QTest::newRow("SATVIS checked") << 2 << withBadChecksum(logNamed("SATVISA")) << "";
    QTest::newRow("logs not in mode 7") << 7 << logNamed("BESTPOSA") << "";
    QTest::newRow("GALTIME on GATTIME") << 7 << sentenceNamed("GALTIME") << "GATTIME";
    QTest::newRow("GATTIME on none") << 7 << sentenceNamed("GATTIME") << "";
    QTest::newRow("LSINFO run on") << 7 << sentenceNamed("LSINFOX") << "LSINFO";
    QTest::newRow("any JAM name") << 7 << sentenceNamed("JAMMING") << "JAM";
    QTest::newRow("PPSINFO run on") << 7 << sentenceNamed("PPSINFO2") << "PPSINFO";
    QTest::newRow("FINFO from index 3") << 7 << sentenceNamed("GNFINFO") << "TPFINFO";
    QTest::newRow("NUM from index 3") << 7 << sentenceNamed("GPNUM") << "SVNUM";
    QTest::newRow("TIMPOS comma compared") << 7 << sentenceNamed("TIMPOSX") << "";
    QTest::newRow("timing name after a talker") << 7 << sentenceNamed("GNBDSTIME") << "";
    QTest::newRow("timing framed as a log") << 7 << log("BDSTIME,1,2") << "";
    QTest::newRow("index-3 timing framed as a log") << 7 << log("TPFINFO,1,2") << "";
    QTest::newRow("timing with a bad checksum") << 7 << withBadChecksum(sentenceNamed("UTCTIME")) << "";
    QTest::newRow("timing not in mode 2") << 2 << sentenceNamed("BDSTIME") << "";
}

void RoutesTest::edgeLinesGoToTheirPage()
{
    QFETCH(int, mode);
    QFETCH(QByteArray, line);
    QFETCH(QString, page);
    const PageRoute *route = routeTakingLine(mode, QString::fromUtf8(line));
    QCOMPARE(route ? QString(route->label) : QString(), page);

    ModuleHarness h(mode);
    h.stack().hide();
    h.feed(line);
    QStringList takers;
    for (const auto &count : h.module().acceptedLineCounts()) {
        if (count.second)
            takers << count.first;
    }
    QCOMPARE(takers, page.isEmpty() ? QStringList() : QStringList(page));
}

QTEST_MAIN(RoutesTest)
#include "tst_routes.moc"
