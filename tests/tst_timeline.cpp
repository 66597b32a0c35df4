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
const QString kQualityCodes = QStringLiteral("NSDFX");
const FixQuality kCodedQualities[] = {FixQuality::NoFix, FixQuality::Single, FixQuality::Dgnss,
                                      FixQuality::RtkFloat, FixQuality::RtkFixed};

// One epoch a second per letter of codes, N no fix, S single, D DGNSS, F float, X fixed.
void fillIndex(SessionIndex &index, const QString &codes)
{
    for (int epoch = 0; epoch < codes.size(); ++epoch)
        index.appendEpoch(epoch * 100, kStartMs + epoch * 1000, kCodedQualities[kQualityCodes.indexOf(codes[epoch])], 8);
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
    timeline.resize(200, timeline.sizeHint().height());
    timeline.resize(bandWidth + 200 - timeline.bandRect().width(), timeline.sizeHint().height());
}

} // namespace

class TimelineTest : public QObject
{
    Q_OBJECT
private slots:
    void worstQualityPerColumn_data();
    void worstQualityPerColumn();
    void mouseSeeksOnceOnRelease_data();
    void mouseSeeksOnceOnRelease();
    void keys_data();
    void keys();
    void hoverNamesNearbyChanges();
    void barControlsSignal_data();
    void barControlsSignal();
    void speeds_data();
    void speeds();
    void indexingState_data();
    void indexingState();
    void timeTexts_data();
    void timeTexts();
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
        summarised += kQualityCodes[int(std::find(std::begin(kCodedQualities), std::end(kCodedQualities), quality) -
                                        std::begin(kCodedQualities))];
    QCOMPARE(summarised, columns);

    TimelineWidget timeline;
    timeline.setIndex(&index);
    QCOMPARE(timeline.isEnabled(), !codes.isEmpty());
    resizeBand(timeline, bandWidth);
    const QImage image = timeline.grab().toImage();
    const QRect band = timeline.bandRect();
    for (int column = 0; column < columns.size(); ++column) {
        const QColor expected = ViewPalette::fixQualityColour(kCodedQualities[kQualityCodes.indexOf(columns[column])]);
        QCOMPARE(image.pixelColor(band.left() + column, band.center().y()), expected);
    }
}

void TimelineTest::mouseSeeksOnceOnRelease_data()
{
    QTest::addColumn<int>("epochs");
    QTest::addColumn<int>("pressColumn");
    QTest::addColumn<int>("releaseColumn");
    QTest::addColumn<int>("epoch");
    QTest::newRow("first pixel") << 1000 << 0 << 0 << 0;
    QTest::newRow("last pixel") << 1000 << 9 << 9 << 999;
    QTest::newRow("dragged to the last pixel") << 1000 << 0 << 9 << 999;
    QTest::newRow("let go left of the strip") << 1000 << 5 << -30 << 0;
    QTest::newRow("let go right of the strip") << 1000 << 5 << 40 << 999;
    QTest::newRow("fewer epochs, last pixel") << 3 << 0 << 9 << 2;
    QTest::newRow("fewer epochs, middle") << 3 << 0 << 4 << 1;
    QTest::newRow("one epoch") << 1 << 9 << 0 << 0;
}

void TimelineTest::mouseSeeksOnceOnRelease()
{
    QFETCH(int, epochs);
    QFETCH(int, pressColumn);
    QFETCH(int, releaseColumn);
    QFETCH(int, epoch);
    SessionIndex index;
    fillIndex(index, QString(epochs, QLatin1Char('X')));
    TimelineWidget timeline;
    timeline.setIndex(&index);
    resizeBand(timeline, 10);
    QSignalSpy seeks(&timeline, &TimelineWidget::seekRequested);
    const int left = timeline.bandRect().left();

    mouse(&timeline, QEvent::MouseButtonPress, left + pressColumn);
    mouse(&timeline, QEvent::MouseMove, left + (pressColumn + releaseColumn) / 2);
    mouse(&timeline, QEvent::MouseMove, left + releaseColumn);
    QCOMPARE(seeks.count(), 0);
    mouse(&timeline, QEvent::MouseButtonRelease, left + releaseColumn);
    QCOMPARE(seeks.count(), 1);
    QCOMPARE(seeks.first().first().toInt(), epoch);
    QCOMPARE(timeline.position(), epoch);
    mouse(&timeline, QEvent::MouseMove, left);
    QCOMPARE(seeks.count(), 1);
}

void TimelineTest::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("seek");
    QTest::newRow("left") << int(Qt::Key_Left) << -1 << -1;
    QTest::newRow("right") << int(Qt::Key_Right) << 1 << -1;
    QTest::newRow("home") << int(Qt::Key_Home) << 0 << 0;
    QTest::newRow("end") << int(Qt::Key_End) << 0 << 41;
}

void TimelineTest::keys()
{
    QFETCH(int, key);
    QFETCH(int, step);
    QFETCH(int, seek);
    SessionIndex index;
    fillIndex(index, QString(42, QLatin1Char('X')));
    TimelineWidget timeline;
    timeline.setIndex(&index);
    QSignalSpy steps(&timeline, &TimelineWidget::stepRequested);
    QSignalSpy seeks(&timeline, &TimelineWidget::seekRequested);
    QTest::keyClick(&timeline, Qt::Key(key));
    QCOMPARE(steps.isEmpty() ? 0 : steps.takeFirst().first().toInt(), step);
    QCOMPARE(seeks.isEmpty() ? -1 : seeks.takeFirst().first().toInt(), seek);
    QVERIFY(steps.isEmpty() && seeks.isEmpty());
}

void TimelineTest::hoverNamesNearbyChanges()
{
    SessionIndex index;
    fillIndex(index, manyFixed(100, {{50, 'F'}}));
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
    } else {
        auto *edit = bar.findChild<QLineEdit *>(control);
        QTest::keyClicks(edit, typed);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    QVariantList emitted;
    for (const QList<QVariant> &call : spy)
        emitted << call.first();
    QCOMPARE(emitted, arguments);
}

void TimelineTest::speeds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("factor");
    QTest::newRow("slowest") << "0.1x" << 0.1;
    QTest::newRow("quarter") << "0.25x" << 0.25;
    QTest::newRow("fastest factor") << "100x" << 100.0;
    QTest::newRow("as fast as possible") << "as fast as possible" << 0.0;
}

void TimelineTest::speeds()
{
    QFETCH(QString, text);
    QFETCH(double, factor);
    PlayerBar bar;
    auto *box = bar.findChild<QComboBox *>(QStringLiteral("speedBox"));
    QCOMPARE(box->currentText(), QStringLiteral("1x"));
    QSignalSpy chosen(&bar, &PlayerBar::speedChosen);
    const int row = box->findText(text);
    QVERIFY(row >= 0);
    emit box->activated(row);
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.first().first().toDouble(), factor);
}

void TimelineTest::indexingState_data()
{
    QTest::addColumn<int>("epochs");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<bool>("usable");
    QTest::newRow("indexing") << 3 << false << false;
    QTest::newRow("finished") << 3 << true << true;
    QTest::newRow("finished empty") << 0 << true << false;
}

void TimelineTest::indexingState()
{
    QFETCH(int, epochs);
    QFETCH(bool, finished);
    QFETCH(bool, usable);
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
}

void TimelineTest::timeTexts_data()
{
    QTest::addColumn<bool>("withDate");
    QTest::addColumn<bool>("withTenths");
    QTest::addColumn<QString>("text");
    QTest::newRow("time") << false << false << "14:32:05";
    QTest::newRow("date") << true << false << "2024-05-20 14:32:05";
    QTest::newRow("date and tenths") << true << true << "2024-05-20 14:32:05.2";
}

void TimelineTest::timeTexts()
{
    QFETCH(bool, withDate);
    QFETCH(bool, withTenths);
    QFETCH(QString, text);
    QCOMPARE(TimelineWidget::timeText(kStartMs, withDate, withTenths), text);
    if (withDate)
        return;
    // A hand-built index has no dates: the bar shows the time of day.
    SessionIndex index;
    fillIndex(index, QStringLiteral("XX"));
    PlayerBar bar;
    bar.setIndex(&index);
    bar.setPosition(1);
    QCOMPARE(bar.findChild<QLabel *>(QStringLiteral("timeLabel"))->text(), QStringLiteral("14:32:06.2 UTC"));
}

QTEST_MAIN(TimelineTest)
#include "tst_timeline.moc"
