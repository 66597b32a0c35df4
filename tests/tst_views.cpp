// SPDX-License-Identifier: BSD-3-Clause
// The receiver views through their models: what each turns a hand-built snapshot into,
// the edges of the sky plot, the threshold and the gaps, and that hidden views do no work.
#include "correctionsview.h"
#include "historyview.h"
#include "positionview.h"
#include "signalsview.h"
#include "skyview.h"
#include "rtcm3encoder.h"
#include "viewpalette.h"

#include <QtTest>
#include <functional>
#include <memory>

Q_DECLARE_METATYPE(GnssSystem)
Q_DECLARE_METATYPE(ReceiverSnapshot)

namespace {

SatelliteInfo satellite(GnssSystem system, int prn, double elevation, double azimuth, bool used,
                        const QVector<SignalInfo> &trackedSignals = {{QStringLiteral("L1 C/A"), -1, 40}})
{
    return SatelliteInfo{system, prn, elevation, azimuth, used, trackedSignals};
}

// Counts only this base's calls, to see what a view does and when.
class CountingView : public ReceiverView
{
public:
    CountingView() : ReceiverView(nullptr) {}
    int models = 0, redraws = 0;

protected:
    void updateModel(const ReceiverSnapshot &) override { ++models; }
    void redraw() override { ++redraws; }
};

struct ViewUnderTest
{
    std::unique_ptr<ReceiverView> view;
    std::function<int()> drawnItems; // what its model holds from the snapshot
};

template <class View, class Count>
ViewUnderTest viewWith(Count count)
{
    auto *view = new View;
    return {std::unique_ptr<ReceiverView>(view), [view, count] { return int(count(view->model())); }};
}

ViewUnderTest makeView(int kind)
{
    switch (kind) {
    case 0: return viewWith<SkyView>([](const SkyModel &m) { return m.markers().size(); });
    case 1: return viewWith<SignalsView>([](const SignalsModel &m) { return m.satellites().size(); });
    case 2: return viewWith<PositionView>([](const PositionModel &m) { return m.points().size(); });
    default: return viewWith<HistoryView>([](const HistoryModel &m) { return m.series().first().points.size(); });
    }
}

ReceiverSnapshot oneOfEach()
{
    ReceiverSnapshot snapshot;
    snapshot.satellites << satellite(GnssSystem::GPS, 3, 40, 100, true);
    snapshot.deviations << EnuSample{1000, 0.1, 0.2, 0.3, FixQuality::RtkFixed};
    snapshot.history << HistorySample{1000};
    return snapshot;
}

} // namespace

class ViewsTest : public QObject
{
    Q_OBJECT
private slots:
    void skyMarkerPlacement_data();
    void skyMarkerPlacement();
    void skyMarkerColourIsTheBestCn0_data();
    void skyMarkerColourIsTheBestCn0();
    void skySystemFilterAndTrails_data();
    void skySystemFilterAndTrails();
    void signalBarsBySystemNumberAndBand();
    void signalThresholdEdge_data();
    void signalThresholdEdge();
    void positionPointsAndCircles_data();
    void positionPointsAndCircles();
    void historyLeavesGapsForUnknownValues_data();
    void historyLeavesGapsForUnknownValues();
    void historyScrollsAndRunsByQuality();
    void hiddenViewDoesNoWork_data();
    void hiddenViewDoesNoWork();
    void redrawsAtMostTenTimesASecond();
    void badSnapshotsDrawQuietly_data();
    void badSnapshotsDrawQuietly();
    void correctionsSummaryOfTheBase_data();
    void correctionsSummaryOfTheBase();
};

void ViewsTest::skyMarkerPlacement_data()
{
    QTest::addColumn<GnssSystem>("system");
    QTest::addColumn<int>("prn");
    QTest::addColumn<double>("elevation");
    QTest::addColumn<double>("azimuth");
    QTest::addColumn<QString>("label"); // empty: no marker
    QTest::addColumn<QPointF>("position");
    QTest::newRow("zenith in the centre") << GnssSystem::GPS << 12 << 90.0 << 123.0 << "G12" << QPointF(0, 0);
    QTest::newRow("horizon north on the rim") << GnssSystem::GLONASS << 5 << 0.0 << 0.0 << "R05" << QPointF(0, 1);
    QTest::newRow("azimuth 90 is east") << GnssSystem::Galileo << 11 << 0.0 << 90.0 << "E11" << QPointF(1, 0);
    QTest::newRow("30 degrees up, south") << GnssSystem::BDS << 2 << 30.0 << 180.0 << "C02" << QPointF(0, -2.0 / 3);
    QTest::newRow("azimuth past a turn") << GnssSystem::SBAS << 131 << 0.0 << 450.0 << "S131" << QPointF(1, 0);
    QTest::newRow("below the horizon: rim") << GnssSystem::NavIC << 3 << -4.0 << 0.0 << "I03" << QPointF(0, 1);
    QTest::newRow("elevation unknown") << GnssSystem::GPS << 1 << kUnknown << 10.0 << "" << QPointF();
    QTest::newRow("azimuth unknown") << GnssSystem::GPS << 1 << 10.0 << kUnknown << "" << QPointF();
    QTest::newRow("elevation beyond 90") << GnssSystem::GPS << 1 << 91.0 << 10.0 << "" << QPointF();
}

void ViewsTest::skyMarkerPlacement()
{
    QFETCH(GnssSystem, system);
    QFETCH(int, prn);
    QFETCH(double, elevation);
    QFETCH(double, azimuth);
    QFETCH(QString, label);
    QFETCH(QPointF, position);
    for (bool used : {true, false}) {
        ReceiverSnapshot snapshot;
        snapshot.satellites << satellite(system, prn, elevation, azimuth, used);
        SkyModel model;
        model.update(snapshot);
        QCOMPARE(model.markers().size(), label.isEmpty() ? 0 : 1);
        if (label.isEmpty())
            continue;
        const SkyMarker &marker = model.markers().first();
        QCOMPARE(marker.label, label);
        QCOMPARE(marker.filled, used);
        QVERIFY(QLineF(marker.position, position).length() < 1e-9);
    }
}

void ViewsTest::skyMarkerColourIsTheBestCn0_data()
{
    QTest::addColumn<QVector<double>>("cn0s");
    QTest::addColumn<QColor>("colour");
    const QVector<ViewPalette::Cn0Band> &bands = ViewPalette::cn0Bands();
    QTest::newRow("just below 25") << QVector<double>{24.99} << bands.at(0).colour;
    QTest::newRow("25 starts the next band") << QVector<double>{25} << bands.at(1).colour;
    QTest::newRow("the best signal counts") << QVector<double>{20, 45, 30} << bands.last().colour;
    QTest::newRow("unknown signals are passed over") << QVector<double>{kUnknown, 36} << bands.at(2).colour;
    QTest::newRow("nothing known: grey") << QVector<double>{kUnknown} << ViewPalette::unknownColour();
}

void ViewsTest::skyMarkerColourIsTheBestCn0()
{
    QFETCH(QVector<double>, cn0s);
    QFETCH(QColor, colour);
    QVector<SignalInfo> signalList;
    for (double cn0 : cn0s)
        signalList << SignalInfo{QStringLiteral("L1"), -1, cn0};
    ReceiverSnapshot snapshot;
    snapshot.satellites << satellite(GnssSystem::GPS, 7, 45, 45, true, signalList);
    SkyModel model;
    model.update(snapshot);
    QCOMPARE(model.markers().first().colour, colour);
}

void ViewsTest::skySystemFilterAndTrails_data()
{
    QTest::addColumn<QVector<GnssSystem>>("hidden");
    QTest::addColumn<bool>("trailsShown");
    QTest::addColumn<QStringList>("markers");
    QTest::addColumn<int>("trails");
    const QStringList all{"G01", "R02", "E03"};
    QTest::newRow("all shown, no trails") << QVector<GnssSystem>{} << false << all << 0;
    QTest::newRow("trails of drawable points only") << QVector<GnssSystem>{} << true << all << 2;
    QTest::newRow("GLONASS hidden") << QVector<GnssSystem>{GnssSystem::GLONASS} << true << QStringList{"G01", "E03"} << 1;
    QTest::newRow("everything hidden") << QVector<GnssSystem>{GnssSystem::GPS, GnssSystem::GLONASS, GnssSystem::Galileo}
                                       << true << QStringList{} << 0;
}

void ViewsTest::skySystemFilterAndTrails()
{
    QFETCH(QVector<GnssSystem>, hidden);
    QFETCH(bool, trailsShown);
    QFETCH(QStringList, markers);
    QFETCH(int, trails);
    ReceiverSnapshot snapshot;
    snapshot.satellites << satellite(GnssSystem::GPS, 1, 10, 10, true) << satellite(GnssSystem::GLONASS, 2, 20, 20, true)
                        << satellite(GnssSystem::Galileo, 3, 30, 30, false);
    // The Galileo trail keeps a single drawable point: no line.
    snapshot.trails << SatelliteTrail{GnssSystem::GPS, 1, {{0, 5, 5}, {1, 10, 10}}}
                    << SatelliteTrail{GnssSystem::GLONASS, 2, {{0, 15, 15}, {1, kUnknown, 17}, {2, 20, 20}}}
                    << SatelliteTrail{GnssSystem::Galileo, 3, {{0, kUnknown, 1}, {1, 30, 30}}};
    SkyModel model;
    model.setTrailsShown(trailsShown);
    for (GnssSystem system : hidden)
        model.setSystemShown(system, false);
    model.update(snapshot);
    QStringList labels;
    for (const SkyMarker &marker : model.markers())
        labels << marker.label;
    QCOMPARE(labels, markers);
    QCOMPARE(model.trails().size(), trails);
    const QVector<GnssSystem> present{GnssSystem::GPS, GnssSystem::GLONASS, GnssSystem::Galileo};
    QCOMPARE(model.presentSystems(), present);
}

void ViewsTest::signalBarsBySystemNumberAndBand()
{
    ReceiverSnapshot snapshot;
    const SignalInfo l1{QStringLiteral("L1 C/A"), 1, 40}, l2{QStringLiteral("L2C"), 6, 30}, l5{QStringLiteral("L5"), 7, 45};
    // By band, not by name: B2a (L5) before B2I, e5A (any case) before E6.
    snapshot.satellites << satellite(GnssSystem::Galileo, 11, 10, 10, true, {{"E6", 1, 38}, {"e5A pilot", 1, 38}})
                        << satellite(GnssSystem::GPS, 12, 10, 10, false, {l5, l1, {QStringLiteral("L2C"), 6, kUnknown}})
                        << satellite(GnssSystem::GPS, 2, 10, 10, true, {l2, l1})
                        << satellite(GnssSystem::BDS, 23, 10, 10, true, {{"B2I", 1, 30}, {"B2a", 1, 30}})
                        << satellite(GnssSystem::BDS, 24, 10, 10, true, {{QStringLiteral("B1I"), 1, kUnknown}});
    SignalsModel model;
    model.update(snapshot);
    QStringList columns;
    for (const SatelliteSignals &column : model.satellites()) {
        QStringList bars;
        for (const SignalBar &bar : column.bars)
            bars << bar.signal;
        columns << column.label + QLatin1Char(':') + bars.join(QLatin1Char(','));
    }
    QCOMPARE(columns, (QStringList{"G02:L1 C/A,L2C", "G12:L1 C/A,L5", "E11:e5A pilot,E6", "C23:B2a,B2I"}));
    const QVector<SatelliteSignals> &bars = model.satellites();
    QVERIFY(bars.at(0).used && !bars.at(1).used);
    QCOMPARE(model.barWidth(), 0.84 / 2);
    QVERIFY(bars.at(1).x - bars.at(0).x < bars.at(2).x - bars.at(1).x); // a gap between systems
    QVERIFY(bars.at(1).bars.at(0).x < bars.at(1).x && bars.at(1).bars.at(1).x > bars.at(1).x);
}

void ViewsTest::signalThresholdEdge_data()
{
    QTest::addColumn<double>("threshold");
    QTest::addColumn<double>("cn0");
    QTest::addColumn<bool>("below");
    QTest::newRow("default, just below") << kUnknown << 34.9 << true;
    QTest::newRow("default, on it") << kUnknown << 35.0 << false;
    QTest::newRow("set, on it") << 40.0 << 40.0 << false;
    QTest::newRow("set, just below") << 40.0 << 39.99 << true;
}

void ViewsTest::signalThresholdEdge()
{
    QFETCH(double, threshold);
    QFETCH(double, cn0);
    QFETCH(bool, below);
    ReceiverSnapshot snapshot;
    snapshot.satellites << satellite(GnssSystem::GPS, 1, 10, 10, true, {{QStringLiteral("L1"), 1, cn0}});
    SignalsModel model;
    model.setThreshold(threshold); // not a number: the default stays
    model.update(snapshot);
    QCOMPARE(model.satellites().first().bars.first().belowThreshold, below);
}

void ViewsTest::positionPointsAndCircles_data()
{
    QTest::addColumn<double>("cep50");
    QTest::addColumn<double>("cep95");
    QTest::addColumn<double>("radius50");
    QTest::addColumn<double>("radius95");
    QTest::newRow("both known") << 0.02 << 0.05 << 0.02 << 0.05;
    QTest::newRow("unknown: no circle") << kUnknown << 0.05 << kUnknown << 0.05;
    QTest::newRow("zero and negative: no circle") << 0.0 << -1.0 << kUnknown << kUnknown;
    QTest::newRow("large circle widens the plot") << 3.0 << 7.0 << 3.0 << 7.0;
}

void ViewsTest::positionPointsAndCircles()
{
    QFETCH(double, cep50);
    QFETCH(double, cep95);
    QFETCH(double, radius50);
    QFETCH(double, radius95);
    ReceiverSnapshot snapshot;
    snapshot.deviations << EnuSample{1, 1, 0, 0, FixQuality::RtkFixed} << EnuSample{2, -1, 0, 0, FixQuality::RtkFixed}
                        << EnuSample{3, 0, 2, 0, FixQuality::RtkFloat} << EnuSample{4, kUnknown, 0, 1, FixQuality::RtkFixed}
                        << EnuSample{5, 0, 0, kUnknown, FixQuality::Single};
    snapshot.window.all.cep50 = cep50;
    snapshot.window.all.cep95 = cep95;
    PositionModel model;
    model.update(snapshot);
    QCOMPARE(model.pointCount(FixQuality::RtkFixed), 2);
    QCOMPARE(model.pointCount(FixQuality::RtkFloat), 1);
    QCOMPARE(model.pointCount(FixQuality::Single), 1);
    QCOMPARE(model.points().at(1).height.size(), 3); // fixed, after single
    QCOMPARE(model.circleCentre(), QPointF(0, 0.5));
    QCOMPARE(isKnown(model.cep50()), isKnown(radius50));
    QCOMPARE(isKnown(model.cep95()), isKnown(radius95));
    if (isKnown(radius95))
        QCOMPARE(model.cep95(), radius95);
    QVERIFY(model.horizontalExtent() >= std::max(2.0, isKnown(radius95) ? 0.5 + radius95 : 0));
    QVERIFY(!model.statisticsText().contains(QLatin1String("nan"), Qt::CaseInsensitive));
}

void ViewsTest::historyLeavesGapsForUnknownValues_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<QString>("known"); // per sample
    QTest::newRow("satellites used") << int(HistoryQuantity::SatellitesUsed) << "101";
    QTest::newRow("HDOP") << int(HistoryQuantity::Hdop) << "011";
    QTest::newRow("mean C/N0") << int(HistoryQuantity::MeanCn0) << "110";
    QTest::newRow("correction age") << int(HistoryQuantity::CorrectionAge) << "100";
}

void ViewsTest::historyLeavesGapsForUnknownValues()
{
    QFETCH(int, quantity);
    QFETCH(QString, known);
    ReceiverSnapshot snapshot;
    const QVector<HistorySample> samples{
        {1000, 8, 12, kUnknown, 2.0, FixQuality::Single, 40, 1.5},
        {2000, -1, 12, 1.1, 2.0, FixQuality::Single, 41, qInf()},
        {3000, 0, 0, 1.2, 2.0, FixQuality::Single, kUnknown, kUnknown},
    };
    snapshot.history = samples;
    HistoryModel model;
    model.update(snapshot);
    const HistorySeries &series = model.series().at(quantity);
    QString seen;
    for (const QPointF &point : series.points)
        seen += std::isfinite(point.y()) ? QLatin1Char('1') : QLatin1Char('0');
    QCOMPARE(seen, known);
}

void ViewsTest::historyScrollsAndRunsByQuality()
{
    ReceiverSnapshot snapshot;
    const FixQuality qualities[] = {FixQuality::Single, FixQuality::Single, FixQuality::RtkFloat, FixQuality::RtkFixed,
                                    FixQuality::RtkFixed};
    for (int i = 0; i < 5; ++i)
        snapshot.history << HistorySample{i * 30000, 5, 9, 1, 2, qualities[i], 40, 1};
    HistoryModel model;
    model.setMinutes(1);
    model.update(snapshot);
    QCOMPARE(model.startMs(), 60000.0);
    QCOMPARE(model.endMs(), 120000.0);
    QCOMPARE(model.series().first().points.size(), 3);
    QCOMPARE(model.qualityRuns().size(), 2);
    QCOMPARE(model.qualityRuns().at(0).quality, FixQuality::RtkFloat);
    QCOMPARE(model.qualityRuns().at(0).toMs, 90000.0);
    QCOMPARE(model.qualityRuns().at(1).fromMs, 90000.0);
    QCOMPARE(model.qualityRuns().at(1).toMs, 120000.0);
}

void ViewsTest::hiddenViewDoesNoWork_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("sky") << 0;
    QTest::newRow("signals") << 1;
    QTest::newRow("position") << 2;
    QTest::newRow("history") << 3;
}

void ViewsTest::hiddenViewDoesNoWork()
{
    QFETCH(int, kind);
    ViewUnderTest tested = makeView(kind);
    ReceiverView &view = *tested.view;
    int refreshes = 0;
    connect(&view, &ReceiverView::refreshWanted, this, [&] {
        ++refreshes;
        view.showSnapshot(oneOfEach()); // as the console answers
    });
    view.show();
    view.hide();
    view.showSnapshot(oneOfEach());
    QCOMPARE(tested.drawnItems(), 0);
    QCOMPARE(refreshes, 0);
    view.show();
    QCOMPARE(refreshes, 1);
    QCOMPARE(tested.drawnItems(), 1);
    view.hide();
    view.show(); // nothing missed
    QCOMPARE(refreshes, 1);
}

void ViewsTest::redrawsAtMostTenTimesASecond()
{
    CountingView view;
    view.show();
    view.showSnapshot(ReceiverSnapshot());
    QCOMPARE(view.redraws, 1); // at once after a quiet spell
    for (int i = 0; i < 5; ++i)
        view.showSnapshot(ReceiverSnapshot());
    QCOMPARE(view.models, 6);
    QCOMPARE(view.redraws, 1);
    QTRY_COMPARE_WITH_TIMEOUT(view.redraws, 2, 1000);
    QTest::qWait(3 * ReceiverView::minRedrawIntervalMs);
    QCOMPARE(view.redraws, 2);
}

void ViewsTest::badSnapshotsDrawQuietly_data()
{
    QTest::addColumn<ReceiverSnapshot>("snapshot");
    QTest::addColumn<int>("signalColumns");
    QTest::newRow("empty") << ReceiverSnapshot() << 0;
    ReceiverSnapshot unknowns;
    unknowns.satellites << satellite(GnssSystem::Unknown, 0, kUnknown, kUnknown, true, {{QString(), -1, kUnknown}});
    unknowns.deviations << EnuSample{0, kUnknown, kUnknown, kUnknown, FixQuality::NoFix};
    unknowns.history << HistorySample{};
    QTest::newRow("unknowns") << unknowns << 0;
    ReceiverSnapshot absurd;
    absurd.timeMs = std::numeric_limits<qint64>::max();
    absurd.satellites << satellite(GnssSystem::GPS, -7, 1e300, -1e300, true, {{QStringLiteral("L1"), 1, 1e300}});
    absurd.satellites << satellite(GnssSystem::GPS, 99999, 45, 1e300, false, {{QStringLiteral("L1"), 1, -1e300}});
    absurd.deviations << EnuSample{std::numeric_limits<qint64>::min(), 1e300, -1e300, 1e300, FixQuality(99)};
    absurd.history << HistorySample{std::numeric_limits<qint64>::max(), 1 << 30, -5, 1e300, -1e300, FixQuality(99), 1e300, -1};
    absurd.window.all.cep95 = 1e300;
    QTest::newRow("absurd numbers") << absurd << 2;
    ReceiverSnapshot many;
    for (int i = 0; i < 3000; ++i) {
        many.satellites << satellite(GnssSystem(i % 8), i, i % 90, i, i % 2);
        many.deviations << EnuSample{i * 1000, std::sin(i), std::cos(i), 0.01 * i, FixQuality(i % 11)};
        many.history << HistorySample{i * 1000, i % 40, 40, 1, 2, FixQuality(i % 11), 40, 1};
    }
    many.trails << SatelliteTrail{GnssSystem::GPS, 1, QVector<SkyPoint>(5000, SkyPoint{0, 45, 45})};
    QTest::newRow("thousands") << many << SignalsModel::maxSatellites;
}

void ViewsTest::badSnapshotsDrawQuietly()
{
    QFETCH(ReceiverSnapshot, snapshot);
    QFETCH(int, signalColumns);
    for (int kind = 0; kind < 4; ++kind) {
        ViewUnderTest tested = makeView(kind);
        if (auto *sky = qobject_cast<SkyView *>(tested.view.get()))
            sky->setTrailsShown(true);
        tested.view->resize(640, 480);
        tested.view->show();
        tested.view->showSnapshot(snapshot);
        QVERIFY(!tested.view->grab().isNull());
        if (kind == 1)
            QCOMPARE(tested.drawnItems(), signalColumns);
    }
}

// A base station on the WGS84 ellipsoid's axes, so its place is known exactly, and a GPS
// epoch of two satellites on one signal.
void ViewsTest::correctionsSummaryOfTheBase_data()
{
    constexpr double a = 6378137.0, b = 6356752.314245;
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    QTest::addColumn<double>("fixLat"); // NaN: no fix
    QTest::addColumn<double>("fixHeight");
    QTest::addColumn<QString>("station");
    QTest::newRow("equator, east, rover 100 m up")
        << a << 0.0 << 0.0 << 0.0 << 100.0 << "Station 7 · 0.0000000°N 0.0000000°E 0.000 m (1005) · baseline 0.100 km";
    QTest::newRow("equator, west, no fix")
        << 0.0 << -a << 0.0 << qQNaN() << 0.0 << "Station 7 · 0.0000000°N 90.0000000°W 0.000 m (1005)";
    QTest::newRow("10 m above the south pole, rover on the equator")
        << 0.0 << 0.0 << -(b + 10) << 0.0 << 0.0 << "Station 7 · 90.0000000°S 0.0000000°E 10.000 m (1005) · baseline 9004.946 km";
}

void ViewsTest::correctionsSummaryOfTheBase()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    QFETCH(double, fixLat);
    QFETCH(double, fixHeight);
    QFETCH(QString, station);
    CorrectionStatistics statistics;
    QCOMPARE(correctionsSummary(QString(), statistics.snapshot(0), FixInfo()).split('\n').mid(0, 3),
             QStringList({"No correction stream", "0 bytes · 0 frames · 0 CRC failures · last frame - s ago",
                          "Station -"}));
    Rtcm3StationPosition base;
    base.stationId = 7;
    base.ecefX = x;
    base.ecefY = y;
    base.ecefZ = z;
    QByteArray stream = Rtcm3Encoder::stationPosition(base);
    Rtcm3MsmEpoch epoch;
    epoch.stationId = 7;
    for (int prn : {5, 12})
        epoch.satellites << Rtcm3SatelliteObservation{prn, {Rtcm3SignalObservation{2, 2.2e7, kRtcm3NoRange, 10.0, false, 45.0}}};
    stream += Rtcm3Encoder::msm4(epoch).value(0);
    statistics.feed(stream.constData(), stream.size(), 1000);
    FixInfo fix;
    if (!qIsNaN(fixLat)) {
        fix.lat = fixLat;
        fix.lon = 0.0;
        fix.heightEllipsoid = fixHeight;
    }
    const QStringList lines = correctionsSummary("streaming", statistics.snapshot(1500), fix).split('\n');
    QCOMPARE(lines.value(0), QString("streaming"));
    QCOMPARE(lines.value(1), QString("%1 bytes · 2 frames · 0 CRC failures · last frame 0.5 s ago").arg(stream.size()));
    QCOMPARE(lines.value(2), station);
    QCOMPARE(lines.mid(3), QStringList({"GPS 1074: 2 satellites, 1 signals"}));
}

QTEST_MAIN(ViewsTest)
#include "tst_views.moc"
