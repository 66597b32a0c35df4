// SPDX-License-Identifier: BSD-3-Clause
// The player bar and its timeline on hand-built indexes: what each pixel column shows,
// how the mouse and the keys map to epochs, and what the bar's controls ask for.
#include "playerbar.h"
#include "sessionindex.h"
#include "timelinewidget.h"
#include "viewpalette.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QToolButton>
#include <QtTest>

namespace {

constexpr qint64 kStartMs = 1716215525250; // 2024-05-20 14:32:05.250 UTC
const QString kCodes = QStringLiteral("NSDFX"); // no fix, single, DGNSS, RTK float, RTK fixed

FixQuality coded(QChar code)
{
    static const FixQuality qualities[] = {FixQuality::NoFix, FixQuality::Single, FixQuality::Dgnss,
                                           FixQuality::RtkFloat, FixQuality::RtkFixed};
    return qualities[kCodes.indexOf(code)];
}

// One epoch a second per letter of codes.
void fillIndex(SessionIndex &index, const QString &codes)
{
    for (int epoch = 0; epoch < codes.size(); ++epoch)
        index.appendEpoch(epoch * 100, kStartMs + epoch * 1000, coded(codes[epoch]), 8);
    index.setFileSize(codes.size() * 100);
}

QString manyFixed(int count, const QVector<QPair<int, QChar>> &changes)
{
    QString codes(count, QLatin1Char('X'));
    for (const auto &change : changes)
        codes[change.first] = change.second;
    return codes;
}

void mouse(QWidget *widget, QEvent::Type type, int x)
{
    QMouseEvent event(type, QPointF(x, 10), widget->mapToGlobal(QPoint(x, 10)), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

// A timeline whose band is bandWidth columns wide.
void resizeBand(TimelineWidget &timeline, int bandWidth)
{
    timeline.resize(bandWidth + timeline.width() - timeline.bandRect().width(), timeline.sizeHint().height());
}

} // namespace

class TimelineTest : public QObject
{
    Q_OBJECT
private slots:
    void worstQualityPerColumn_data();
    void worstQualityPerColumn();
    void mouseAndKeys_data();
    void mouseAndKeys();
    void hoverNamesNearbyChanges();
    void barControlsSignal_data();
    void barControlsSignal();
    void indexingState_data();
    void indexingState();
};

void TimelineTest::worstQualityPerColumn_data()
{
    QTest::addColumn<QString>("codes");
    QTest::addColumn<int>("bandWidth");
    QTest::addColumn<QString>("columns");
    QTest::newRow("one float epoch in a thousand") << manyFixed(1000, {{500, 'F'}}) << 10 << "XXXXXFXXXX";
    QTest::newRow("first and last epoch") << manyFixed(1000, {{0, 'N'}, {999, 'S'}}) << 10 << "NXXXXXXXXS";
    QTest::newRow("float under fixed") << "XFFX" << 2 << "FF";
    QTest::newRow("DGNSS under float, single under fixed") << "FDXS" << 2 << "DS";
    QTest::newRow("fewer epochs than columns") << "NFX" << 9 << "NNFFFFXXX";
    QTest::newRow("one epoch") << "F" << 5 << "FFFFF";
    QTest::newRow("one column") << "XFXS" << 1 << "S";
    QTest::newRow("empty index") << "" << 10 << "";
}

void TimelineTest::worstQualityPerColumn()
{
    QFETCH(QString, codes);
    QFETCH(int, bandWidth);
    QFETCH(QString, columns);
    SessionIndex index;
    fillIndex(index, codes);

    QString summarised;
    const TimelineSummary summary = TimelineSummary::build(index, bandWidth);
    for (FixQuality quality : summary.worstQuality())
        summarised += *std::find_if(kCodes.begin(), kCodes.end(), [&](QChar code) { return coded(code) == quality; });
    QCOMPARE(summarised, columns);

    TimelineWidget timeline;
    timeline.setIndex(&index);
    QCOMPARE(timeline.isEnabled(), !codes.isEmpty());
    resizeBand(timeline, bandWidth);
    const QImage image = timeline.grab().toImage();
    const QRect band = timeline.bandRect();
    for (int column = 0; column < columns.size(); ++column) {
        QCOMPARE(image.pixelColor(band.left() + column, band.center().y()),
                 ViewPalette::fixQualityColour(coded(columns[column])));
    }
}

void TimelineTest::mouseAndKeys_data()
{
    QTest::addColumn<int>("epochs");
    QTest::addColumn<int>("key"); // 0: press at pressColumn, drag, let go at releaseColumn
    QTest::addColumn<int>("pressColumn");
    QTest::addColumn<int>("releaseColumn");
    QTest::addColumn<QStringList>("requests");
    QTest::newRow("first pixel") << 1000 << 0 << 0 << 0 << QStringList{"seek 0"};
    QTest::newRow("last pixel") << 1000 << 0 << 9 << 9 << QStringList{"seek 999"};
    QTest::newRow("dragged to the last pixel") << 1000 << 0 << 0 << 9 << QStringList{"seek 999"};
    QTest::newRow("let go left of the strip") << 1000 << 0 << 5 << -30 << QStringList{"seek 0"};
    QTest::newRow("let go right of the strip") << 1000 << 0 << 5 << 40 << QStringList{"seek 999"};
    QTest::newRow("fewer epochs, last pixel") << 3 << 0 << 0 << 9 << QStringList{"seek 2"};
    QTest::newRow("fewer epochs, middle") << 3 << 0 << 0 << 4 << QStringList{"seek 1"};
    QTest::newRow("one epoch") << 1 << 0 << 9 << 0 << QStringList{"seek 0"};
    QTest::newRow("left key") << 42 << int(Qt::Key_Left) << 0 << 0 << QStringList{"step -1"};
    QTest::newRow("right key") << 42 << int(Qt::Key_Right) << 0 << 0 << QStringList{"step 1"};
    QTest::newRow("home key") << 42 << int(Qt::Key_Home) << 0 << 0 << QStringList{"seek 0"};
    QTest::newRow("end key") << 42 << int(Qt::Key_End) << 0 << 0 << QStringList{"seek 41"};
}

void TimelineTest::mouseAndKeys()
{
    QFETCH(int, epochs);
    QFETCH(int, key);
    QFETCH(int, pressColumn);
    QFETCH(int, releaseColumn);
    QFETCH(QStringList, requests);
    SessionIndex index;
    fillIndex(index, QString(epochs, QLatin1Char('X')));
    TimelineWidget timeline;
    timeline.setIndex(&index);
    resizeBand(timeline, 10);
    QStringList requested;
    connect(&timeline, &TimelineWidget::seekRequested, [&](int epoch) { requested << QStringLiteral("seek %1").arg(epoch); });
    connect(&timeline, &TimelineWidget::stepRequested, [&](int step) { requested << QStringLiteral("step %1").arg(step); });
    if (key != 0) {
        QTest::keyClick(&timeline, Qt::Key(key));
        QCOMPARE(requested, requests);
        return;
    }
    const int left = timeline.bandRect().left();
    mouse(&timeline, QEvent::MouseButtonPress, left + pressColumn);
    mouse(&timeline, QEvent::MouseMove, left + (pressColumn + releaseColumn) / 2);
    mouse(&timeline, QEvent::MouseMove, left + releaseColumn);
    QVERIFY(requested.isEmpty());
    mouse(&timeline, QEvent::MouseButtonRelease, left + releaseColumn);
    mouse(&timeline, QEvent::MouseMove, left);
    QCOMPARE(requested, requests);
    QCOMPARE(QStringLiteral("seek %1").arg(timeline.position()), requests.first());
}

void TimelineTest::hoverNamesNearbyChanges()
{
    SessionIndex index;
    fillIndex(index, QString(100, QLatin1Char('X')));
    index.appendMarker({50, SessionMarker::Kind::Quality, int(FixQuality::RtkFloat)});
    TimelineWidget timeline;
    timeline.setIndex(&index);
    resizeBand(timeline, 100);
    const int left = timeline.bandRect().left();
    QCOMPARE(timeline.hoverText(left + 51), QStringLiteral("14:32:56\n14:32:55 fix RTK fixed -> RTK float"));
    QCOMPARE(timeline.hoverText(left + 10), QStringLiteral("14:32:15"));
}

void TimelineTest::barControlsSignal_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariantList>("arguments");
    QTest::newRow("play, pause") << "playButton" << QByteArray(SIGNAL(playingToggled(bool))) << "" << QVariantList{true, false};
    QTest::newRow("step back") << "stepBackButton" << QByteArray(SIGNAL(stepRequested(int))) << "" << QVariantList{-1};
    QTest::newRow("step forward") << "stepForwardButton" << QByteArray(SIGNAL(stepRequested(int))) << "" << QVariantList{1};
    QTest::newRow("go to") << "goToEdit" << QByteArray(SIGNAL(jumpRequested(QString))) << " 14:40:00"
                           << QVariantList{QStringLiteral("14:40:00")};
    QTest::newRow("go to nothing") << "goToEdit" << QByteArray(SIGNAL(jumpRequested(QString))) << "  " << QVariantList{};
    const QByteArray speed(SIGNAL(speedChosen(double)));
    QTest::newRow("slowest") << "speedBox" << speed << "0.1x" << QVariantList{0.1};
    QTest::newRow("quarter") << "speedBox" << speed << "0.25x" << QVariantList{0.25};
    QTest::newRow("fastest factor") << "speedBox" << speed << "100x" << QVariantList{100.0};
    QTest::newRow("as fast as possible") << "speedBox" << speed << "as fast as possible" << QVariantList{0.0};
}

void TimelineTest::barControlsSignal()
{
    QFETCH(QString, control);
    QFETCH(QByteArray, signal);
    QFETCH(QString, typed);
    QFETCH(QVariantList, arguments);
    SessionIndex index;
    fillIndex(index, QStringLiteral("XXX"));
    PlayerBar bar;
    bar.setIndex(&index);
    QSignalSpy spy(&bar, signal.constData());
    if (auto *button = bar.findChild<QToolButton *>(control)) {
        for (int click = 0; click < arguments.size(); ++click)
            button->click();
    } else if (auto *box = bar.findChild<QComboBox *>(control)) {
        QCOMPARE(box->currentText(), QStringLiteral("1x"));
        emit box->activated(box->findText(typed));
    } else {
        auto *edit = bar.findChild<QLineEdit *>(control);
        QTest::keyClicks(edit, typed);
        QTest::keyClick(edit, Qt::Key_Return);
        // The clear button fades in: its animation must end (and go) before the edit does.
        QTest::qWait(300);
    }
    QVariantList emitted;
    for (const QList<QVariant> &call : spy)
        emitted << call.first();
    QCOMPARE(emitted, arguments);
}

void TimelineTest::indexingState_data()
{
    QTest::addColumn<int>("epochs");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<bool>("usable");
    QTest::addColumn<QString>("lastTime"); // a hand-built index has no dates
    QTest::newRow("indexing") << 3 << false << false << "14:32:07.2 UTC";
    QTest::newRow("finished") << 3 << true << true << "14:32:07.2 UTC";
    QTest::newRow("finished empty") << 0 << true << false << "";
}

void TimelineTest::indexingState()
{
    QFETCH(int, epochs);
    QFETCH(bool, finished);
    QFETCH(bool, usable);
    QFETCH(QString, lastTime);
    SessionIndex index;
    fillIndex(index, QString(epochs, QLatin1Char('X')));
    PlayerBar bar;
    bar.setIndex(&index);
    bar.show();
    QSignalSpy cancels(&bar, &PlayerBar::cancelIndexingRequested);
    bar.setIndexingProgress(50, 200);
    auto *progress = bar.findChild<QProgressBar *>(QStringLiteral("indexingProgress"));
    QCOMPARE(progress->value() * 4, progress->maximum());
    bar.findChild<QAbstractButton *>(QStringLiteral("cancelIndexingButton"))->click();
    QCOMPARE(cancels.count(), 1);
    if (finished)
        bar.setIndexingFinished();

    QCOMPARE(bar.timeline()->isVisible(), finished);
    QCOMPARE(progress->isVisible(), !finished);
    for (const char *name : {"playButton", "stepBackButton", "stepForwardButton", "goToEdit"})
        QVERIFY2(bar.findChild<QWidget *>(QLatin1String(name))->isEnabled() == usable, name);
    QVERIFY(bar.findChild<QWidget *>(QStringLiteral("speedBox"))->isEnabled());
    bar.setPosition(epochs - 1);
    QCOMPARE(bar.findChild<QLabel *>(QStringLiteral("timeLabel"))->text(), lastTime);
}

QTEST_MAIN(TimelineTest)
#include "tst_timeline.moc"
