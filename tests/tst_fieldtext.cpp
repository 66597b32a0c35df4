// SPDX-License-Identifier: BSD-3-Clause
// The hot-path text helpers against the toolkit operations they replace: splitting by
// the regular expression "[,*]" and comparing line.mid(offset, length) with a header.
#include "fieldtext.h"

#include <QRandomGenerator>
#include <QRegExp>
#include <QtTest>

namespace {

QString randomLine(QRandomGenerator &random, int maxLength)
{
    static const char alphabet[] = ",*,*$#ABGP01;\r\n";
    QString line;
    const int length = int(random.bounded(maxLength + 1));
    for (int i = 0; i < length; ++i)
        line += QLatin1Char(alphabet[random.bounded(int(sizeof alphabet) - 1)]);
    return line;
}

} // namespace

class FieldTextTest : public QObject
{
    Q_OBJECT
private slots:
    void splitMatchesRegularExpressionSplit();
    void headerComparisonMatchesMid_data();
    void headerComparisonMatchesMid();
};

void FieldTextTest::splitMatchesRegularExpressionSplit()
{
    QRandomGenerator random(3);
    FieldViews fields;
    const QRegExp separators(QStringLiteral("[,*]"));
    for (int round = 0; round < 3000; ++round) {
        const QString line = randomLine(random, 40);
        splitFields(line, fields);
        const QStringList expected = line.split(separators);
        QCOMPARE(fields.size(), expected.size());
        for (int i = 0; i < fields.size(); ++i)
            QCOMPARE(fields.at(i).toString(), expected.at(i));
    }
}

void FieldTextTest::headerComparisonMatchesMid_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("literal");
    QTest::newRow("header of the line") << "#BESTPOSA,x" << 0 << 10 << "#BESTPOSA,";
    // A nine-character header compared over ten characters matches only a line that
    // ends right after it (the "Heading" page's header).
    QTest::newRow("short header, longer line") << "#HEADINGA,1,2" << 0 << 10 << "#HEADINGA";
    QTest::newRow("short header, line of its length") << "#HEADINGA" << 0 << 10 << "#HEADINGA";
    QTest::newRow("line shorter than the header") << "$GPG" << 3 << 4 << "GGA,";
    QTest::newRow("offset at the end") << "$GP" << 3 << 4 << "GGA,";
    QTest::newRow("offset past the end, empty literal") << "$G" << 3 << 4 << "";
    QTest::newRow("offset past the end") << "$G" << 3 << 4 << "GGA,";
    QTest::newRow("index 3 talker-independent") << "$GNGGA,1" << 3 << 4 << "GGA,";
    QTest::newRow("case matters") << "#bestposa,1" << 0 << 10 << "#BESTPOSA,";
}

void FieldTextTest::headerComparisonMatchesMid()
{
    QFETCH(QString, line);
    QFETCH(int, offset);
    QFETCH(int, length);
    QFETCH(QString, literal);
    QCOMPARE(textAtEquals(line, offset, length, QLatin1String(literal.toLatin1())),
             line.mid(offset, length) == literal);
}

QTEST_APPLESS_MAIN(FieldTextTest)
#include "tst_fieldtext.moc"
