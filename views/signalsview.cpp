// SPDX-License-Identifier: BSD-3-Clause
#include "signalsview.h"

#include "plotstyle.h"
#include "viewpalette.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <qwt_column_symbol.h>
#include <qwt_plot.h>
#include <qwt_plot_barchart.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <algorithm>

namespace {

constexpr SignalBand kBands[] = {SignalBand::L1, SignalBand::L2, SignalBand::L5,
                                 SignalBand::E5b, SignalBand::E6, SignalBand::Other};
constexpr double kSystemGap = 0.75;
constexpr double kColumnFill = 0.84;
constexpr double kLowestTop = 60, kHighestTop = 100;

QColor bandColour(SignalBand band) { return ViewPalette::seriesColour(int(band)); }

QwtColumnSymbol *newBox(const QColor &colour)
{
    auto *symbol = new QwtColumnSymbol(QwtColumnSymbol::Box);
    symbol->setFrameStyle(QwtColumnSymbol::Plain);
    symbol->setLineWidth(1);
    QPalette colours;
    colours.setColor(QPalette::Window, colour);
    colours.setColor(QPalette::Dark, colour.darker(140));
    symbol->setPalette(colours);
    return symbol;
}

} // namespace

// One band's bars; each bar in its own colour (pale for satellites not used, the
// warning colour below the threshold).
class SignalBandChart : public QwtPlotBarChart
{
public:
    SignalBandChart(const QString &title, const QColor &colour) : QwtPlotBarChart(title)
    {
        setSymbol(newBox(colour));
        setLayoutPolicy(QwtPlotAbstractBarChart::ScaleSamplesToAxes);
        setLegendMode(QwtPlotBarChart::LegendChartTitle);
    }
    void setBars(const QVector<QPointF> &bars, const QVector<QColor> &colours)
    {
        m_colours = colours;
        setSamples(bars);
        showInLegend(this, !bars.isEmpty());
    }
    // The legend asks for index -1 and gets the band's own colour.
    QwtColumnSymbol *specialSymbol(int index, const QPointF &) const override
    {
        return index >= 0 && index < m_colours.size() ? newBox(m_colours.at(index)) : nullptr;
    }

private:
    QVector<QColor> m_colours;
};

// Satellite labels under their columns, bold when the satellite is used.
class SatelliteScaleDraw : public QwtScaleDraw
{
public:
    SatelliteScaleDraw()
    {
        setLabelRotation(-90);
        setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        enableComponent(QwtAbstractScaleDraw::Backbone, false);
    }
    void setSatellites(const QVector<SatelliteSignals> &satellites, const QFont &font)
    {
        m_satellites = satellites;
        m_boldFont = font;
        m_boldFont.setBold(true);
        invalidateCache();
    }
    QwtText label(double value) const override
    {
        const auto satellite = std::find_if(m_satellites.cbegin(), m_satellites.cend(),
                                            [value](const SatelliteSignals &s) { return std::abs(s.x - value) < 1e-6; });
        if (satellite == m_satellites.cend())
            return QwtText();
        QwtText text(satellite->label);
        if (satellite->used)
            text.setFont(m_boldFont);
        return text;
    }

private:
    QVector<SatelliteSignals> m_satellites;
    QFont m_boldFont;
};

SignalBand SignalsModel::bandOf(const QString &signalName)
{
    // The first match wins, so "E5a" comes before "E5" and "B2a" before "B2".
    static const struct { const char *prefix; SignalBand band; } prefixes[] = {
        {"E5A", SignalBand::L5}, {"B2A", SignalBand::L5}, {"L5", SignalBand::L5},
        {"E5", SignalBand::E5b}, {"B2", SignalBand::E5b}, {"G3", SignalBand::E5b},
        {"L1", SignalBand::L1},  {"E1", SignalBand::L1},  {"B1", SignalBand::L1}, {"G1", SignalBand::L1},
        {"L2", SignalBand::L2},  {"G2", SignalBand::L2},  {"E2", SignalBand::L2},
        {"E6", SignalBand::E6},  {"B3", SignalBand::E6},  {"L6", SignalBand::E6},
    };
    const QString name = signalName.trimmed().toUpper();
    for (const auto &entry : prefixes) {
        if (name.startsWith(QLatin1String(entry.prefix)))
            return entry.band;
    }
    return SignalBand::Other;
}

QString SignalsModel::bandName(SignalBand band)
{
    switch (band) {
    case SignalBand::L1: return QStringLiteral("L1 E1 B1 G1");
    case SignalBand::L2: return QStringLiteral("L2 G2");
    case SignalBand::L5: return QStringLiteral("L5 E5a B2a");
    case SignalBand::E5b: return QStringLiteral("E5b B2 G3");
    case SignalBand::E6: return QStringLiteral("E6 B3 L6");
    case SignalBand::Other: break;
    }
    return QStringLiteral("other");
}

void SignalsModel::setThreshold(double dbHz)
{
    if (!std::isnan(dbHz))
        m_threshold = dbHz;
}

void SignalsModel::update(const ReceiverSnapshot &snapshot)
{
    m_satellites.clear();
    int mostBars = 1;
    for (const SatelliteInfo &satellite : snapshot.satellites) {
        SatelliteSignals column{satellite.system, satellite.prn, satelliteLabel(satellite.system, satellite.prn),
                                satellite.used, 0, {}};
        for (const SignalInfo &signal : satellite.trackedSignals) {
            if (std::isfinite(signal.cn0))
                column.bars << SignalBar{signal.name, bandOf(signal.name), signal.cn0, signal.cn0 < m_threshold, 0};
        }
        if (column.bars.isEmpty())
            continue;
        std::sort(column.bars.begin(), column.bars.end(), [](const SignalBar &a, const SignalBar &b) {
            return a.band != b.band ? a.band < b.band : a.signal < b.signal;
        });
        mostBars = std::max(mostBars, int(column.bars.size()));
        m_satellites << column;
    }
    std::sort(m_satellites.begin(), m_satellites.end(), [](const SatelliteSignals &a, const SatelliteSignals &b) {
        return systemOrder(a.system) != systemOrder(b.system) ? systemOrder(a.system) < systemOrder(b.system)
                                                              : a.prn < b.prn;
    });
    if (m_satellites.size() > maxSatellites)
        m_satellites.resize(maxSatellites);

    m_barWidth = kColumnFill / mostBars;
    double x = 0;
    for (int i = 0; i < m_satellites.size(); ++i) {
        SatelliteSignals &column = m_satellites[i];
        if (i > 0)
            x += column.system == m_satellites.at(i - 1).system ? 1 : 1 + kSystemGap;
        column.x = x;
        for (int bar = 0; bar < column.bars.size(); ++bar)
            column.bars[bar].x = x + (bar - (column.bars.size() - 1) / 2.0) * m_barWidth;
    }
}

SignalsView::SignalsView(QWidget *parent) : ReceiverView(parent)
{
    QHBoxLayout *controls = controlRow();
    controls->addWidget(new QLabel(tr("Threshold:"), this));
    m_thresholdBox = new QDoubleSpinBox(this);
    m_thresholdBox->setRange(0, kHighestTop);
    m_thresholdBox->setDecimals(0);
    m_thresholdBox->setSuffix(tr(" dB-Hz"));
    m_thresholdBox->setValue(m_model.threshold());
    controls->addWidget(m_thresholdBox);
    controls->addStretch();

    m_plot = newReceiverPlot(this);
    m_plot->setAutoReplot(false);
    setPlotAxisTitle(m_plot, QwtPlot::yLeft, tr("C/N0 (dB-Hz)"));
    setPlotAxisTitle(m_plot, QwtPlot::xBottom, tr("Satellite (bold: used in fix)"));
    m_scaleDraw = new SatelliteScaleDraw;
    m_plot->setAxisScaleDraw(QwtPlot::xBottom, m_scaleDraw);
    for (SignalBand band : kBands) {
        m_bandCharts << new SignalBandChart(SignalsModel::bandName(band), bandColour(band));
        m_bandCharts.last()->attach(m_plot);
    }
    m_warningKey = new SignalBandChart(tr("below threshold"), ViewPalette::warningColour());
    m_warningKey->attach(m_plot);
    m_thresholdLine = new QwtPlotMarker;
    m_thresholdLine->setLineStyle(QwtPlotMarker::HLine);
    m_thresholdLine->setLinePen(ViewPalette::warningColour(), 1.5, Qt::DashLine);
    m_thresholdLine->setItemAttribute(QwtPlotItem::Legend, true);
    m_thresholdLine->setLegendIconSize(QSize(16, 8));
    m_thresholdLine->attach(m_plot);
    addTopLegend(m_plot);
    pictureColumn()->addWidget(m_plot);

    connect(m_thresholdBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &SignalsView::setThreshold);
    redraw();
}

void SignalsView::setThreshold(double dbHz)
{
    {
        const QSignalBlocker quiet(m_thresholdBox);
        m_thresholdBox->setValue(dbHz);
    }
    m_model.setThreshold(m_thresholdBox->value());
    settingsChanged();
}

void SignalsView::updateModel(const ReceiverSnapshot &snapshot) { m_model.update(snapshot); }

void SignalsView::redraw()
{
    QVector<QVector<QPointF>> bars(m_bandCharts.size());
    QVector<QVector<QColor>> colours(m_bandCharts.size());
    double strongest = 0;
    bool anyBelow = false;
    for (const SatelliteSignals &satellite : m_model.satellites()) {
        for (const SignalBar &bar : satellite.bars) {
            QColor colour = bar.belowThreshold ? ViewPalette::warningColour() : bandColour(bar.band);
            if (!satellite.used)
                colour = colour.lighter(135);
            bars[int(bar.band)] << QPointF(bar.x, bar.cn0);
            colours[int(bar.band)] << colour;
            strongest = std::max(strongest, bar.cn0);
            anyBelow = anyBelow || bar.belowThreshold;
        }
    }
    for (int band = 0; band < m_bandCharts.size(); ++band) {
        m_bandCharts[band]->setLayoutHint(m_model.barWidth());
        m_bandCharts[band]->setBars(bars.at(band), colours.at(band));
    }
    showInLegend(m_warningKey, anyBelow);

    const double top = std::clamp(std::ceil(strongest / 10) * 10, kLowestTop, kHighestTop);
    m_plot->setAxisScale(QwtPlot::yLeft, 0, top);
    const QVector<SatelliteSignals> &satellites = m_model.satellites();
    const double last = satellites.isEmpty() ? 0 : satellites.last().x;
    QList<double> ticks;
    for (const SatelliteSignals &satellite : satellites)
        ticks << satellite.x;
    m_scaleDraw->setSatellites(satellites, m_plot->axisWidget(QwtPlot::xBottom)->font());
    m_plot->setAxisScaleDiv(QwtPlot::xBottom, QwtScaleDiv(-0.6, last + 0.6, QList<double>(), QList<double>(), ticks));

    m_thresholdLine->setYValue(m_model.threshold());
    m_thresholdLine->setTitle(tr("threshold %1 dB-Hz").arg(m_model.threshold()));
    updateSystemNames(top);
    replotNow(m_plot);
}

// The system's name above each group of columns; a lone satellite's label says enough,
// and there would be no room for the name.
void SignalsView::updateSystemNames(double top)
{
    qDeleteAll(m_systemNames);
    m_systemNames.clear();
    const QVector<SatelliteSignals> &satellites = m_model.satellites();
    for (int first = 0; first < satellites.size();) {
        int last = first;
        while (last + 1 < satellites.size() && satellites.at(last + 1).system == satellites.at(first).system)
            ++last;
        if (last == first) {
            ++first;
            continue;
        }
        auto *name = new QwtPlotMarker;
        QwtText text(systemName(satellites.at(first).system));
        text.setColor(QColor(0x55, 0x5b, 0x66));
        name->setLabel(text);
        name->setLabelAlignment(Qt::AlignBottom | Qt::AlignHCenter);
        name->setValue((satellites.at(first).x + satellites.at(last).x) / 2, top);
        name->attach(m_plot);
        m_systemNames << name;
        first = last + 1;
    }
}
