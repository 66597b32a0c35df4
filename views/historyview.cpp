// SPDX-License-Identifier: BSD-3-Clause
#include "historyview.h"

#include "plotstyle.h"
#include "viewpalette.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <qwt_graphic.h>
#include <qwt_legend_data.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <algorithm>

namespace {

constexpr int kLargestMinutes = 24 * 60;
constexpr int kAxisExtent = 36; // the same on every plot, so that the time axes line up

// Where each quantity is drawn, and the lowest top its axis has.
struct Trace
{
    HistoryQuantity quantity;
    const char *name;
    bool upperPlot;
    QwtPlot::Axis axis;
    Qt::PenStyle style;
    double lowestTop;
};

const Trace kTraces[] = {
    {HistoryQuantity::SatellitesUsed, QT_TRANSLATE_NOOP("HistoryView", "used"), true, QwtPlot::yLeft, Qt::SolidLine, 10},
    {HistoryQuantity::SatellitesInView, QT_TRANSLATE_NOOP("HistoryView", "in view"), true, QwtPlot::yLeft, Qt::DashLine, 10},
    {HistoryQuantity::MeanCn0, QT_TRANSLATE_NOOP("HistoryView", "mean C/N0"), true, QwtPlot::yRight, Qt::SolidLine, 50},
    {HistoryQuantity::Hdop, QT_TRANSLATE_NOOP("HistoryView", "HDOP"), false, QwtPlot::yLeft, Qt::SolidLine, 2},
    {HistoryQuantity::Pdop, QT_TRANSLATE_NOOP("HistoryView", "PDOP"), false, QwtPlot::yLeft, Qt::DashLine, 2},
    {HistoryQuantity::CorrectionAge, QT_TRANSLATE_NOOP("HistoryView", "correction age"), false, QwtPlot::yRight, Qt::SolidLine, 5},
};

double valueOf(HistoryQuantity quantity, const HistorySample &sample)
{
    switch (quantity) {
    case HistoryQuantity::SatellitesUsed: return sample.satellitesUsed < 0 ? kUnknown : sample.satellitesUsed;
    case HistoryQuantity::SatellitesInView: return sample.satellitesInView;
    case HistoryQuantity::MeanCn0: return sample.meanCn0;
    case HistoryQuantity::Hdop: return sample.hdop;
    case HistoryQuantity::Pdop: return sample.pdop;
    case HistoryQuantity::CorrectionAge: return sample.correctionAge;
    }
    return kUnknown;
}

} // namespace

// A line broken wherever a value is unknown.
class GappedCurve : public QwtPlotCurve
{
public:
    using QwtPlotCurve::QwtPlotCurve;
    void drawSeries(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect,
                    int from, int to) const override
    {
        if (to < 0)
            to = int(dataSize()) - 1;
        auto known = [this](int i) { return std::isfinite(sample(i).y()); };
        for (int first = from; first <= to; ++first) {
            if (!known(first))
                continue;
            int last = first;
            while (last < to && known(last + 1))
                ++last;
            QwtPlotCurve::drawSeries(painter, xMap, yMap, canvasRect, first, last);
            first = last;
        }
    }
};

// The canvas tinted by fix quality; one legend entry per quality present.
class QualityBand : public QwtPlotItem
{
public:
    QualityBand() { setZ(-1); }
    void setRuns(const QVector<QualityRun> &runs)
    {
        m_runs = runs;
        QVector<FixQuality> present;
        for (const QualityRun &run : runs) {
            if (!present.contains(run.quality))
                present << run.quality;
        }
        if (present != m_present) {
            m_present = present;
            legendChanged();
        }
    }
    void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &, const QRectF &canvasRect) const override
    {
        for (const QualityRun &run : m_runs) {
            const double left = xMap.transform(run.fromMs), right = xMap.transform(run.toMs);
            QColor colour = ViewPalette::fixQualityColour(run.quality);
            colour.setAlpha(40);
            painter->fillRect(QRectF(left, canvasRect.top(), std::max(1.0, right - left), canvasRect.height()), colour);
        }
    }
    QList<QwtLegendData> legendData() const override
    {
        QList<QwtLegendData> entries;
        for (FixQuality quality : m_present) {
            QwtGraphic icon;
            icon.setDefaultSize(QSizeF(12, 12));
            QPainter painter(&icon);
            QColor colour = ViewPalette::fixQualityColour(quality);
            colour.setAlpha(90);
            painter.fillRect(QRectF(0, 0, 12, 12), colour);
            painter.end();
            QwtLegendData entry;
            entry.setValue(QwtLegendData::TitleRole, QVariant::fromValue(QwtText(fixQualityName(quality))));
            entry.setValue(QwtLegendData::IconRole, QVariant::fromValue(icon));
            entries << entry;
        }
        return entries;
    }

private:
    QVector<QualityRun> m_runs;
    QVector<FixQuality> m_present;
};

void HistoryModel::setMinutes(int minutes) { m_minutes = std::clamp(minutes, 1, kLargestMinutes); }

void HistoryModel::update(const ReceiverSnapshot &snapshot)
{
    m_series.clear();
    m_runs.clear();
    m_endMs = isDrawableTime(snapshot.timeMs) ? snapshot.timeMs : 0;
    for (auto sample = snapshot.history.crbegin(); sample != snapshot.history.crend(); ++sample) {
        if (isDrawableTime(sample->timeMs)) {
            m_endMs = sample->timeMs;
            break;
        }
    }
    m_startMs = m_endMs - m_minutes * 60000.0;
    for (const Trace &trace : kTraces)
        m_series << HistorySeries{trace.quantity, HistoryView::tr(trace.name), {}};
    for (const HistorySample &sample : snapshot.history) {
        if (sample.timeMs < m_startMs || sample.timeMs > m_endMs || !isDrawableTime(sample.timeMs))
            continue;
        for (HistorySeries &series : m_series) {
            const double value = valueOf(series.quantity, sample);
            series.points << QPointF(sample.timeMs, std::isfinite(value) ? value : kUnknown);
        }
        if (!m_runs.isEmpty())
            m_runs.last().toMs = sample.timeMs;
        if (m_runs.isEmpty() || m_runs.last().quality != sample.quality)
            m_runs << QualityRun{sample.quality, double(sample.timeMs), double(sample.timeMs)};
    }
}

HistoryView::HistoryView(QWidget *parent) : ReceiverView(parent)
{
    QHBoxLayout *controls = controlRow();
    controls->addWidget(new QLabel(tr("Last"), this));
    m_minutesBox = new QComboBox(this);
    for (int minutes : {1, 5, 10, 30, 60})
        m_minutesBox->addItem(tr("%n min", nullptr, minutes), minutes);
    controls->addWidget(m_minutesBox);
    controls->addStretch();

    m_upperPlot = newReceiverPlot(this);
    m_lowerPlot = newReceiverPlot(this);
    setPlotAxisTitle(m_upperPlot, QwtPlot::yLeft, tr("Satellites"));
    setPlotAxisTitle(m_upperPlot, QwtPlot::yRight, tr("C/N0 (dB-Hz)"));
    setPlotAxisTitle(m_lowerPlot, QwtPlot::yLeft, tr("DOP"));
    setPlotAxisTitle(m_lowerPlot, QwtPlot::yRight, tr("Age (s)"));
    setPlotAxisTitle(m_lowerPlot, QwtPlot::xBottom, tr("Receiver time (UTC)"));
    m_upperPlot->enableAxis(QwtPlot::xBottom, false);
    for (QwtPlot *plot : {m_upperPlot, m_lowerPlot}) {
        plot->setAutoReplot(false);
        plot->enableAxis(QwtPlot::yRight);
        useTimeAxis(plot);
        for (QwtPlot::Axis axis : {QwtPlot::yLeft, QwtPlot::yRight})
            plot->axisScaleDraw(axis)->setMinimumExtent(kAxisExtent);
        addTopLegend(plot);
        pictureColumn()->addWidget(plot);
    }
    m_upperBand = new QualityBand;
    m_upperBand->setItemAttribute(QwtPlotItem::Legend, true);
    m_upperBand->attach(m_upperPlot);
    m_lowerBand = new QualityBand;
    m_lowerBand->attach(m_lowerPlot);
    for (const Trace &trace : kTraces) {
        auto *curve = new GappedCurve(tr(trace.name));
        curve->setPen(ViewPalette::seriesColour(int(trace.quantity)), 1.5, trace.style);
        curve->setRenderHint(QwtPlotItem::RenderAntialiased);
        curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
        curve->setYAxis(trace.axis);
        curve->attach(trace.upperPlot ? m_upperPlot : m_lowerPlot);
        m_curves << curve;
    }

    m_minutesBox->setCurrentIndex(m_minutesBox->findData(m_model.minutes()));
    connect(m_minutesBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { setMinutes(m_minutesBox->currentData().toInt()); });
    redraw();
}

void HistoryView::setMinutes(int minutes)
{
    m_model.setMinutes(minutes);
    {
        const QSignalBlocker quiet(m_minutesBox);
        if (m_minutesBox->findData(m_model.minutes()) < 0)
            m_minutesBox->addItem(tr("%n min", nullptr, m_model.minutes()), m_model.minutes());
        m_minutesBox->setCurrentIndex(m_minutesBox->findData(m_model.minutes()));
    }
    settingsChanged();
}

void HistoryView::updateModel(const ReceiverSnapshot &snapshot) { m_model.update(snapshot); }

void HistoryView::redraw()
{
    QMap<QPair<QwtPlot *, int>, double> tops;
    for (int i = 0; i < m_curves.size(); ++i) {
        const Trace &trace = kTraces[i];
        double &top = tops[qMakePair(m_curves[i]->plot(), int(trace.axis))];
        top = std::max(top, trace.lowestTop);
        for (const QPointF &point : m_model.series().at(i).points) {
            if (std::isfinite(point.y()))
                top = std::max(top, point.y() * 1.1);
        }
        m_curves[i]->setSamples(m_model.series().at(i).points);
    }
    for (auto top = tops.cbegin(); top != tops.cend(); ++top)
        top.key().first->setAxisScale(top.key().second, 0, top.value());
    m_upperBand->setRuns(m_model.qualityRuns());
    m_lowerBand->setRuns(m_model.qualityRuns());
    for (QwtPlot *plot : {m_upperPlot, m_lowerPlot}) {
        plot->setAxisScale(QwtPlot::xBottom, m_model.startMs(), m_model.endMs());
        replotNow(plot);
    }
}
