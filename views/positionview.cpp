// SPDX-License-Identifier: BSD-3-Clause
#include "positionview.h"

#include "plotstyle.h"
#include "viewpalette.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QtMath>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_rescaler.h>
#include <qwt_symbol.h>
#include <algorithm>

namespace {

// Deviations larger than the Earth are junk; the scatter stops there.
constexpr double kLargestExtent = 1e7;
constexpr double kSmallestExtent = 0.05;
const QColor kCircleColour(0x37, 0x47, 0x4f);

QString number(double value, int decimals, const QString &unit = QString())
{
    return isKnown(value) ? QString::number(value, 'f', decimals) + unit : QStringLiteral("—");
}

// Plain text in a fixed-width font: laid out far faster than rich text, which matters
// at several redraws a second.
QString statisticsSection(const QString &title, const PositionStatistics &statistics)
{
    const auto row = [](const QString &name, const QString &value) {
        return QStringLiteral(" %1 %2\n").arg(name, -8).arg(value);
    };
    return title + QStringLiteral(" · ") + PositionView::tr("%n samples", nullptr, statistics.samples) + QLatin1Char('\n')
        + row(PositionView::tr("Lat"), number(statistics.meanLat, 8, QStringLiteral("°")))
        + row(PositionView::tr("Lon"), number(statistics.meanLon, 8, QStringLiteral("°")))
        + row(PositionView::tr("Height"), number(statistics.meanHeight, 3, QStringLiteral(" m")))
        + row(PositionView::tr("σ E/N/U"), number(statistics.sdEast, 3) + QStringLiteral(" / ")
                                               + number(statistics.sdNorth, 3) + QStringLiteral(" / ")
                                               + number(statistics.sdUp, 3, QStringLiteral(" m")))
        + row(PositionView::tr("CEP50/95"), number(statistics.cep50, 3) + QStringLiteral(" / ")
                                                + number(statistics.cep95, 3, QStringLiteral(" m")))
        + row(PositionView::tr("2DRMS"), number(statistics.drms2, 3, QStringLiteral(" m"))) + QLatin1Char('\n');
}

double circleRadius(double cep) { return std::isfinite(cep) && cep > 0 ? cep : kUnknown; }

QwtPlotCurve *newDotCurve(QwtPlot *plot, FixQuality quality, int size)
{
    auto *curve = new QwtPlotCurve(fixQualityName(quality));
    curve->setStyle(QwtPlotCurve::NoCurve);
    // A 20 Hz receiver fills the window with 12,000 points, most on pixels already drawn.
    curve->setPaintAttribute(QwtPlotCurve::FilterPoints, true);
    const QColor colour = ViewPalette::fixQualityColour(quality);
    curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, colour, colour.darker(120), QSize(size, size)));
    curve->setLegendAttribute(QwtPlotCurve::LegendShowSymbol);
    curve->setItemAttribute(QwtPlotItem::Legend, false);
    curve->attach(plot);
    return curve;
}

QwtPlotCurve *newCircle(QwtPlot *plot, Qt::PenStyle style)
{
    auto *circle = new QwtPlotCurve;
    circle->setPen(kCircleColour, 1.5, style);
    circle->setRenderHint(QwtPlotItem::RenderAntialiased);
    circle->setLegendAttribute(QwtPlotCurve::LegendShowLine);
    circle->setLegendIconSize(QSize(16, 8));
    circle->attach(plot);
    return circle;
}

// A circle with its name and radius in the legend; none when the radius is unknown.
void placeCircle(QwtPlotCurve *circle, QPointF centre, double radius, const QString &name)
{
    QVector<QPointF> outline;
    if (isKnown(radius)) {
        for (int degrees = 0; degrees <= 360; degrees += 5) {
            const double angle = qDegreesToRadians(double(degrees));
            outline << centre + radius * QPointF(std::cos(angle), std::sin(angle));
        }
    }
    circle->setSamples(outline);
    circle->setTitle(QStringLiteral("%1 %2 m").arg(name, number(radius, 3)));
    showInLegend(circle, isKnown(radius));
}

} // namespace

int PositionModel::pointCount(FixQuality quality) const
{
    for (const QualityPoints &points : m_points) {
        if (points.quality == quality)
            return points.horizontal.size();
    }
    return 0;
}

void PositionModel::update(const ReceiverSnapshot &snapshot)
{
    QVector<QualityPoints> byQuality(allFixQualities().size());
    QPointF sum;
    int horizontalCount = 0;
    double extent = 0;
    for (const EnuSample &sample : snapshot.deviations) {
        QualityPoints &points = byQuality[std::max(0, int(allFixQualities().indexOf(sample.quality)))];
        points.quality = sample.quality;
        if (std::isfinite(sample.east) && std::isfinite(sample.north)) {
            points.horizontal << QPointF(sample.east, sample.north);
            sum += points.horizontal.last();
            ++horizontalCount;
            extent = std::max({extent, std::abs(sample.east), std::abs(sample.north)});
        }
        if (std::isfinite(sample.up) && isDrawableTime(sample.timeMs))
            points.height << QPointF(sample.timeMs, sample.up);
    }
    m_points.clear();
    for (const QualityPoints &points : byQuality) {
        if (!points.horizontal.isEmpty() || !points.height.isEmpty())
            m_points << points;
    }

    m_window = snapshot.window.all;
    m_reference = {snapshot.referenceLat, snapshot.referenceLon, snapshot.referenceHeight};
    m_centre = horizontalCount > 0 ? sum / horizontalCount : QPointF();
    m_cep50 = circleRadius(m_window.cep50);
    m_cep95 = circleRadius(m_window.cep95);
    for (double radius : {m_cep50, m_cep95}) {
        if (isKnown(radius))
            extent = std::max(extent, std::max(std::abs(m_centre.x()), std::abs(m_centre.y())) + radius);
    }
    m_extent = std::clamp(extent * 1.1, kSmallestExtent, kLargestExtent);

    m_statisticsText = statisticsSection(PositionView::tr("Window"), m_window);
    for (auto entry = snapshot.window.byQuality.cbegin(); entry != snapshot.window.byQuality.cend(); ++entry) {
        if (entry.value().samples > 0)
            m_statisticsText += statisticsSection(fixQualityName(entry.key()), entry.value());
    }
    m_statisticsText += statisticsSection(PositionView::tr("Since reset"), snapshot.sinceReset.all);
}

PositionView::PositionView(QWidget *parent) : ReceiverView(parent)
{
    QHBoxLayout *controls = controlRow();
    auto *choose = new QPushButton(tr("Set reference…"), this);
    m_useMean = new QPushButton(tr("Use mean"), this);
    m_useMean->setToolTip(tr("Measure from the mean of the window"));
    auto *clear = new QPushButton(tr("Clear"), this);
    clear->setToolTip(tr("Measure from the window's own mean again"));
    auto *reset = new QPushButton(tr("Reset statistics"), this);
    for (QPushButton *button : {choose, m_useMean, clear})
        controls->addWidget(button);
    controls->addStretch();
    controls->addWidget(reset);
    connect(choose, &QPushButton::clicked, this, &PositionView::chooseReferencePoint);
    connect(m_useMean, &QPushButton::clicked, this, &PositionView::useCurrentMean);
    connect(clear, &QPushButton::clicked, this, &PositionView::referencePointCleared);
    connect(reset, &QPushButton::clicked, this, &PositionView::statisticsResetRequested);

    m_scatter = newReceiverPlot(this);
    setPlotAxisTitle(m_scatter, QwtPlot::xBottom, tr("East (m)"));
    setPlotAxisTitle(m_scatter, QwtPlot::yLeft, tr("North (m)"));
    addTopLegend(m_scatter);
    m_heightPlot = newReceiverPlot(this);
    setPlotAxisTitle(m_heightPlot, QwtPlot::xBottom, tr("Receiver time (UTC)"));
    setPlotAxisTitle(m_heightPlot, QwtPlot::yLeft, tr("Up (m)"));
    useTimeAxis(m_heightPlot);
    for (QwtPlot *plot : {m_scatter, m_heightPlot})
        plot->setAutoReplot(false);
    for (FixQuality quality : allFixQualities()) {
        m_scatterCurves << newDotCurve(m_scatter, quality, 5);
        m_heightCurves << newDotCurve(m_heightPlot, quality, 3);
    }
    m_cep50Circle = newCircle(m_scatter, Qt::DashLine);
    m_cep95Circle = newCircle(m_scatter, Qt::SolidLine);
    m_rescaler = new QwtPlotRescaler(m_scatter->canvas(), QwtPlot::xBottom, QwtPlotRescaler::Fitting);
    m_rescaler->setExpandingDirection(QwtPlotRescaler::ExpandBoth);
    m_rescaler->setAspectRatio(QwtPlot::yLeft, 1.0);
    m_rescaler->setAspectRatio(QwtPlot::yRight, 0.0);
    m_rescaler->setAspectRatio(QwtPlot::xTop, 0.0);

    m_statistics = new QLabel;
    m_statistics->setTextFormat(Qt::PlainText);
    m_statistics->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_statistics->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_statistics->setMargin(4);
    QFont small(QStringLiteral("monospace"));
    small.setStyleHint(QFont::TypeWriter);
    small.setPointSizeF(font().pointSizeF() * 0.8);
    m_statistics->setFont(small);
    auto *statistics = new QScrollArea(this);
    statistics->setWidget(m_statistics);
    statistics->setWidgetResizable(true);
    statistics->setFixedWidth(QFontMetrics(small).horizontalAdvance(QLatin1Char('0')) * 39);
    statistics->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto *plots = new QVBoxLayout;
    plots->addWidget(m_scatter, 3);
    plots->addWidget(m_heightPlot, 2);
    auto *body = new QHBoxLayout;
    body->setContentsMargins(4, 0, 4, 4);
    body->addLayout(plots, 1);
    body->addWidget(statistics);
    pictureColumn()->addLayout(body);
    redraw();
}

// A small form, filled with the current reference point.
void PositionView::chooseReferencePoint()
{
    QDialog dialog(this);
    dialog.setWindowTitle(tr("Reference point"));
    auto *form = new QFormLayout(&dialog);
    const QVector<double> current = m_model.referencePoint();
    const struct { QString label; double limit; int decimals; QString suffix; } fields[] = {
        {tr("Latitude"), 90, 9, QStringLiteral("°")},
        {tr("Longitude"), 180, 9, QStringLiteral("°")},
        {tr("Ellipsoidal height"), 1e5, 4, QStringLiteral(" m")},
    };
    QVector<QDoubleSpinBox *> boxes;
    for (int i = 0; i < 3; ++i) {
        auto *box = new QDoubleSpinBox(&dialog);
        box->setRange(-fields[i].limit, fields[i].limit);
        box->setDecimals(fields[i].decimals);
        box->setSuffix(fields[i].suffix);
        box->setValue(isKnown(current.at(i)) ? current.at(i) : 0);
        form->addRow(fields[i].label, box);
        boxes << box;
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() == QDialog::Accepted)
        emit referencePointChosen(boxes.at(0)->value(), boxes.at(1)->value(), boxes.at(2)->value());
}

void PositionView::useCurrentMean()
{
    const PositionStatistics &mean = m_model.windowStatistics();
    emit referencePointChosen(mean.meanLat, mean.meanLon, mean.meanHeight);
}

void PositionView::updateModel(const ReceiverSnapshot &snapshot) { m_model.update(snapshot); }

void PositionView::redraw()
{
    for (int i = 0; i < allFixQualities().size(); ++i) {
        const auto points = std::find_if(m_model.points().cbegin(), m_model.points().cend(),
                                         [i](const QualityPoints &p) { return p.quality == allFixQualities().at(i); });
        const bool present = points != m_model.points().cend();
        m_scatterCurves[i]->setSamples(present ? points->horizontal : QVector<QPointF>());
        m_heightCurves[i]->setSamples(present ? points->height : QVector<QPointF>());
        showInLegend(m_scatterCurves[i], present && !points->horizontal.isEmpty());
    }
    placeCircle(m_cep50Circle, m_model.circleCentre(), m_model.cep50(), QStringLiteral("CEP50"));
    placeCircle(m_cep95Circle, m_model.circleCentre(), m_model.cep95(), QStringLiteral("CEP95"));
    const double extent = m_model.horizontalExtent();
    m_rescaler->setIntervalHint(QwtPlot::xBottom, QwtInterval(-extent, extent));
    m_rescaler->setIntervalHint(QwtPlot::yLeft, QwtInterval(-extent, extent));
    m_rescaler->rescale();
    m_statistics->setText(m_model.statisticsText());
    const PositionStatistics &mean = m_model.windowStatistics();
    m_useMean->setEnabled(isKnown(mean.meanLat) && isKnown(mean.meanLon) && isKnown(mean.meanHeight));
    replotNow(m_scatter);
    replotNow(m_heightPlot);
}
