// Hostile input, page by page: every page visible in turn gets lines that are too
// short, far too long, full of fields, non-UTF-8, NUL-laden or at the integer limits,
// framed with valid checksums so they reach each page's parse. Nothing may crash or
// read out of bounds (run under the address sanitizer build too), and the module must
// still take a good line afterwards.
#include "messagedescription.h"
#include "moduleharness.h"
#include "msgbasewidget.h"
#include "receiverlines.h"

#include <QDir>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace ReceiverLines;

namespace {

// The names every page recognises, as logs ("#NAME,...;") and sentences ("$NAME,...").
const char *const kLogNames[] = {
    "BESTPOSA", "PSRPOSA", "TDIFPOSA", "MATCHEDPOSA", "MATCHEDPOSHA", "BESTVELA", "PSRVELA", "TDIFVELA",
    "BESTXYZA", "BESTNAVA", "BESTNAVHA", "HEADINGA", "HEADING2A", "KVNHEADINGA", "KVNHEADING2A", "INSPVAA",
    "RAWIMUXA", "AGRICA", "RANGEA", "RANGEHA", "OBSVMA", "SATVISA", "SATVIS2A", "SATXYZ2A", "BESTSATSA",
    "PSRDOPA", "PSRDOP2A", "RTKDATAA", "GPSEPHEMERISA", "GLOEPHEMA", "BDSEPHEMA", "GALEPHEMA", "GPSIONA",
    "BDSIONA", "BD3IONA", "GALIONA", "GPSUTCA", "BDSUTCA", "GALUTCA", "TIMEA", "FWINFOA", "ANTENNAA",
    "ClockSwitchA", "GNHPR"};
const char *const kSentenceNames[] = {
    "GPGGA", "GNGGAH", "GPGLL", "GNRMC", "GPRMCH", "GPVTG", "GPZDA", "GPGST", "GNHDT", "GNHPR", "GNTRA",
    "GPGSV", "GLGSV", "GBGSV", "GAGSV", "GQGSV", "GIGSV", "GNGSV", "BDSTIME", "GPSTIME", "GALTIME",
    "GLOTIME", "UTCTIME", "LSINFO", "PPSINFO", "TIMPOS", "TPFINFO", "SVNUM", "JAM"};

QByteArray manyFields(int count, const QByteArray &value)
{
    QByteArray fields;
    fields.reserve(count * (value.size() + 1));
    for (int i = 0; i < count; ++i) {
        if (i)
            fields += ',';
        fields += value;
    }
    return fields;
}

QList<QByteArray> hostileLines()
{
    QList<QByteArray> lines = {
        "\r\n", "$\r\n", "#\r\n", "$*\r\n", "#*\r\n", "$G\r\n", "#B\r\n", "$GP\r\n", "$GPG*00\r\n",
        sentence(""), log(""), log(";"), sentence(","),
    };
    const QByteArray limits[] = {"2147483647", "-2147483648", "4294967295", "99999999999999999999", "-1", "0",
                                 "7fffffff", "ffffffff", "nan", ""};
    for (const char *name : kLogNames) {
        const QByteArray n(name);
        lines << log(n) << log(n + ",") << log(logBody(n, "")) << log(logBody(n, manyFields(20000, "1")));
        for (const QByteArray &limit : limits)
            lines << log(logBody(n, manyFields(40, limit)));
        lines << log(logBody(n, QByteArray("\xff\xfe\x80", 3) + manyFields(30, QByteArray("\0x", 2))));
        lines << log(logBody(n, "GPS,1+2,3,4,5,6,7,8,9,10,11,12,13,14,15,16"));
        lines << log(logBody(n, "SBAS," + manyFields(12, limits[0])));
    }
    for (const char *name : kSentenceNames) {
        const QByteArray n(name);
        lines << sentence(n) << sentence(n + ",") << sentence(n + "," + manyFields(20000, "7"));
        for (const QByteArray &limit : limits)
            lines << sentence(n + "," + manyFields(22, limit));
        lines << sentence(n + ",1,1," + manyFields(4, "4294967297,-91,999,ff"));
        lines << sentence(n + QByteArray("\xc3\x28,\0,\x80", 6));
    }
    return lines;
}

} // namespace

class HostileInputTest : public QObject
{
    Q_OBJECT
private slots:
    void everyPageSurvivesHostileLines_data();
    void everyPageSurvivesHostileLines();
    void hugeSingleLineIsDroppedWithBoundedBuffer();
    void descriptionFileOfManyLines();
};

void HostileInputTest::everyPageSurvivesHostileLines_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("mode 2") << 2;
    QTest::newRow("mode 7") << 7;
    QTest::newRow("mode 4") << 4;
}

void HostileInputTest::everyPageSurvivesHostileLines()
{
    QFETCH(int, mode);
    ModuleHarness h(mode);
    const QList<QByteArray> lines = hostileLines();
    QByteArray stream;
    for (const QByteArray &line : lines)
        stream += line;
    // The same bytes again in odd chunks, as a noisy link would cut them.
    const int pages = qMax(1, h.pageCount());
    for (int index = 0; index < pages; ++index) {
        if (h.pageCount() > 0)
            h.stack().setCurrentIndex(index);
        h.feed(stream);
        for (int offset = 0; offset < stream.size(); offset += 977)
            h.feed(stream.mid(offset, 977));
    }
    // In the text modes every line was cut and offered, none lost to the framing.
    if (mode != 4)
        QCOMPARE(h.module().lineCount(), quint64(2 * pages * lines.size()));
    if (mode == 2) {
        h.show("Bestpos");
        h.feed(log(logBody("BESTPOSA", "SOL_COMPUTED,SINGLE,good" + QByteArray(",x").repeated(18))));
        QCOMPARE(h.cell("Bestpos", 2, 1), QString("good"));
    }
}

void HostileInputTest::hugeSingleLineIsDroppedWithBoundedBuffer()
{
    ModuleHarness h(2);
    h.show("Bestpos");
    const QByteArray chunk(1 << 20, ',');
    h.feed("#BESTPOSA,COM1;");
    for (int i = 0; i < 50; ++i) {
        h.feed(chunk);
        QVERIFY(h.module().bufferedBytes() <= MessageViewModules::maxLineBytes + chunk.size());
    }
    h.feed("*00000000\r\n" + log(logBody("BESTPOSA", "SOL_COMPUTED,SINGLE,after" + QByteArray(",x").repeated(18))));
    QCOMPARE(h.cell("Bestpos", 2, 1), QString("after"));
}

void HostileInputTest::descriptionFileOfManyLines()
{
    QTemporaryDir dir;
    const QString path = dir.filePath("GGA_EN.txt");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Parameter\tValue\tUnit\tDescription\n");
    for (int i = 0; i < 100000; ++i)
        file.write("name\tunit\tdescription " + QByteArray::number(i) + "\n");
    file.close();
    QTableWidget table;
    QVERIFY(readMessageDescriptionHeader(&table, path));
    QVERIFY(readMessageDescriptionRows(&table, path));
    QCOMPARE(table.rowCount(), 100000);
    QCOMPARE(table.item(99999, 3)->text(), QString("description 99999"));
}

QTEST_MAIN(HostileInputTest)
#include "tst_hostile.moc"
