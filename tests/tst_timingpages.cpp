// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"
#include "receiverlines.h"

#include "msgbasewidget.h"

#include <QTableWidget>
#include <QTranslator>
#include <QtTest>

using namespace ReceiverLines;

namespace {

const int kTimingMode = 7;

// One real-shaped sentence per timing page, in catalogue order: the page's tree
// label, the sentence name and its value fields.
struct TimingSentence
{
    const char *label;
    const char *name;
    QByteArrayList values;
};

const QVector<TimingSentence> &timingSentences()
{
    static const QVector<TimingSentence> sentences = {
        {"LSINFO", "LSINFO", {"0", "1", "2320", "604800", "18", "19"}},
        {"TPFINFO", "TPFINFO", {"3", "86400", "1.52", "31.23045123", "121.47370456", "12.310"}},
        {"PPSINFO", "PPSINFO", {"2", "-12", "35", "4"}},
        {"BDSTIME", "BDSTIME", {"3", "963", "86418.000000000", "582474018", "2319", "86432.000000000", "4", "3"}},
        {"GPSTIME", "GPSTIME", {"3", "2319", "86432.000000000", "1402617650", "18", "3"}},
        {"GLOTIME", "GLOTIME", {"3", "1264", "10818.000000000", "880000018", "2319", "86432.000000000", "18", "2"}},
        {"GATTIME", "GALTIME", {"3", "1295", "86432.000000000", "782352032", "2319", "86433.000000000", "18", "1"}},
        {"UTCTIME", "UTCTIME", {"3", "2024", "06", "17", "00", "00", "14", "0"}},
        {"TIMPOS", "TIMPOS", {"3", "31.23045678", "121.47370123", "12.345", "31.23045000", "121.47370000", "12.300", "1.2"}},
        {"JAM", "JAM", {"2319", "86432.000", "0", "0", "11", "12", "13", "21", "22", "23", "31", "32", "33", "41",
                        "42", "43", "51", "52", "53", "61", "62", "63"}},
        {"SVNUM", "SVNUM", {"12", "10", "18", "15", "8", "7", "9", "8", "2", "2"}},
    };
    return sentences;
}

const TimingSentence &sentenceOf(const QString &label)
{
    for (const TimingSentence &s : timingSentences()) {
        if (label == QLatin1String(s.label))
            return s;
    }
    qFatal("no sentence for %s", qPrintable(label));
    return timingSentences().first();
}

QByteArray line(const QByteArray &name, const QByteArrayList &values)
{
    return sentence(name + ',' + values.join(','));
}

// Every value changed, so a row that kept its old text shows.
QByteArrayList renewed(QByteArrayList values)
{
    for (QByteArray &value : values)
        value += "7";
    return values;
}



QStringList valueColumn(const ModuleHarness &h, const QString &label)
{
    QStringList values;
    for (int row = 0; row < h.table(label)->rowCount(); ++row)
        values << h.cell(label, row, 1);
    return values;
}

QStringList asStrings(const QByteArrayList &values)
{
    QStringList strings;
    for (const QByteArray &value : values)
        strings << QString::fromLatin1(value);
    return strings;
}

void addSentenceRows(bool (*include)(const TimingSentence &))
{
    QTest::addColumn<QString>("label");
    for (const TimingSentence &s : timingSentences()) {
        if (include(s))
            QTest::newRow(s.label) << QString::fromLatin1(s.label);
    }
}

} // namespace

class TimingPagesTest : public QObject
{
    Q_OBJECT
private slots:
    void eachPageTakesOnlyItsOwnSentence_data();
    void eachPageTakesOnlyItsOwnSentence();
    void lastFieldMayBeMissing_data();
    void lastFieldMayBeMissing();
    void ppsinfoNeedsEveryField();
    void svnumShowsOddFieldsWithoutCountTest();
    void bdtFollowsLanguageChange();
};

void TimingPagesTest::eachPageTakesOnlyItsOwnSentence_data()
{
    addSentenceRows([](const TimingSentence &) { return true; });
}

void TimingPagesTest::eachPageTakesOnlyItsOwnSentence()
{
    QFETCH(QString, label);
    ModuleHarness h(kTimingMode);
    QVERIFY(h.show(label));
    for (const TimingSentence &s : timingSentences())
        h.feed(line(s.name, s.values));
    // The Galileo page's tree label is not a sentence name.
    h.feed(line("GATTIME", sentenceOf("GATTIME").values));

    QCOMPARE(h.module().lineCount(), quint64(timingSentences().size() + 1));
    for (const TimingSentence &s : timingSentences()) {
        QCOMPARE(h.taken(s.label), quint64(1));
        QVERIFY(h.isMarked(s.label));
        // Hidden pages own their lines without showing them.
        if (label != QLatin1String(s.label))
            QCOMPARE(h.cell(s.label, 0, 1), QString());
    }
    QCOMPARE(h.takenByAny(), quint64(timingSentences().size()));

    QStringList expected = asStrings(sentenceOf(label).values);
    if (label == "SVNUM") {
        // Each count is followed by a field the page does not show.
        QStringList odd;
        for (int i = 0; i < expected.size(); i += 2)
            odd << expected.at(i);
        expected = odd;
    }
    QCOMPARE(valueColumn(h, label), expected);
}

void TimingPagesTest::lastFieldMayBeMissing_data()
{
    addSentenceRows([](const TimingSentence &s) {
        return qstrcmp(s.label, "PPSINFO") != 0 && qstrcmp(s.label, "SVNUM") != 0;
    });
}

void TimingPagesTest::lastFieldMayBeMissing()
{
    QFETCH(QString, label);
    const TimingSentence &s = sentenceOf(label);
    const int rows = s.values.size();
    ModuleHarness h(kTimingMode);
    h.show(label);
    h.feed(line(s.name, s.values));

    const QByteArrayList next = renewed(s.values);
    h.feed(line(s.name, next.mid(0, rows - 1)));
    QStringList expected = asStrings(next.mid(0, rows - 1)) << QString::fromLatin1(s.values.last());
    QCOMPARE(valueColumn(h, label), expected);
    QCOMPARE(h.taken(label), quint64(2));

    // Two fields short, or one too many: refused and passed on to nobody.
    h.feed(line(s.name, renewed(next).mid(0, rows - 2)));
    h.feed(line(s.name, renewed(next) << "1"));
    QCOMPARE(valueColumn(h, label), expected);
    QCOMPARE(h.takenByAny(), quint64(2));
}

void TimingPagesTest::ppsinfoNeedsEveryField()
{
    const QByteArrayList values = sentenceOf("PPSINFO").values;
    ModuleHarness h(kTimingMode);
    h.show("PPSINFO");
    h.feed(line("PPSINFO", renewed(values).mid(0, values.size() - 1)));
    h.feed(line("PPSINFO", renewed(values) << "5"));
    QCOMPARE(h.takenByAny(), quint64(0));
    QCOMPARE(valueColumn(h, "PPSINFO"), QStringList({"", "", "", ""}));
    h.feed(line("PPSINFO", values));
    QCOMPARE(valueColumn(h, "PPSINFO"), asStrings(values));
}

void TimingPagesTest::svnumShowsOddFieldsWithoutCountTest()
{
    ModuleHarness h(kTimingMode);
    h.show("SVNUM");
    // A line long enough to live in memory of its own, gone once it is parsed.
    QByteArrayList values = sentenceOf("SVNUM").values;
    values[3] = QByteArray(100000, '1');
    h.feed(line("SVNUM", values));
    // Too few fields: the rows that have one are shown, the others keep their text.
    h.feed(line("SVNUM", {"5", "4", "6"}));
    QCOMPARE(valueColumn(h, "SVNUM"), QStringList({"5", "6", "8", "9", "2"}));
    // More fields than rows are no reason to refuse.
    h.feed(line("SVNUM", {"1", "0", "2", "0", "3", "0", "4", "0", "5", "0", "6", "0", "7"}));
    QCOMPARE(valueColumn(h, "SVNUM"), QStringList({"1", "2", "3", "4", "5"}));
    QCOMPARE(h.taken("SVNUM"), quint64(3));
}


void TimingPagesTest::bdtFollowsLanguageChange()
{
    ModuleHarness h(kTimingMode, "CH");
    h.show("BDSTIME");
    h.feed(line("BDSTIME", sentenceOf("BDSTIME").values));
    const QString chinese = h.cell("BDSTIME", 6, 3);
    const QString gpsChinese = h.cell("GPSTIME", 4, 3);
    QCOMPARE(chinese, QString::fromUtf8("闰秒"));

    QTranslator english;
    QVERIFY(english.load(":/language_Message_EN.qm"));
    QVERIFY(QCoreApplication::installTranslator(&english));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(h.cell("BDSTIME", 6, 3), QString("Leap second"));
    QCOMPARE(h.table("BDSTIME")->horizontalHeaderItem(3)->text(), QString("Description"));
    QCOMPARE(h.cell("BDSTIME", 6, 1), QString("4"));
    // The other pages wait for an explicit retranslation.
    QCOMPARE(h.cell("GPSTIME", 4, 3), gpsChinese);
    h.page("GPSTIME")->onRetranslateUI();
    QCOMPARE(h.cell("GPSTIME", 4, 3), QString("Leap second"));

    QVERIFY(QCoreApplication::removeTranslator(&english));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(h.cell("BDSTIME", 6, 3), chinese);
}

QTEST_MAIN(TimingPagesTest)
#include "tst_timingpages.moc"
