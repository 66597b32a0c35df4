// SPDX-License-Identifier: BSD-3-Clause
#include "plotstyle.h"

#include <qwt_date_scale_draw.h>
#include <qwt_date_scale_engine.h>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <QLayout>

QwtPlot *newReceiverPlot(QWidget *parent)
{
    auto *plot = new QwtPlot(parent);
    // Qwt asks for more room than a small window has; the canvas shrinks instead.
    plot->setMinimumSize(160, 120);
    auto *canvas = new QwtPlotCanvas;
    canvas->setFrameStyle(QFrame::Box | QFrame::Plain);
    canvas->setLineWidth(1);
    QPalette colours = canvas->palette();
    colours.setColor(QPalette::Window, Qt::white);
    colours.setColor(QPalette::WindowText, QColor(0xb0, 0xb8, 0xc4));
    canvas->setPalette(colours);
    plot->setCanvas(canvas);
    plot->setCanvasBackground(Qt::white);
    plot->plotLayout()->setAlignCanvasToScales(true);
    auto *grid = new QwtPlotGrid;
    grid->setMajorPen(QColor(0xe3, 0xe6, 0xea), 0, Qt::SolidLine);
    grid->attach(plot);
    return plot;
}

void setPlotAxisTitle(QwtPlot *plot, int axis, const QString &title)
{
    QwtText text(title);
    QFont font = plot->font();
    font.setBold(false);
    text.setFont(font);
    plot->setAxisTitle(axis, text);
}

void addTopLegend(QwtPlot *plot)
{
    auto *legend = new QwtLegend;
    legend->setDefaultItemMode(QwtLegendData::ReadOnly);
    QFont font = legend->font();
    font.setPointSizeF(font.pointSizeF() * 0.9);
    legend->setFont(font);
    plot->insertLegend(legend, QwtPlot::TopLegend);
}

void showInLegend(QwtPlotItem *item, bool shown)
{
    item->setItemAttribute(QwtPlotItem::Legend, shown);
    if (item->plot())
        item->plot()->updateLegend(item);
}

void useTimeAxis(QwtPlot *plot)
{
    auto *draw = new QwtDateScaleDraw(Qt::UTC);
    draw->setDateFormat(QwtDate::Second, QStringLiteral("hh:mm:ss"));
    draw->setDateFormat(QwtDate::Minute, QStringLiteral("hh:mm"));
    draw->setDateFormat(QwtDate::Hour, QStringLiteral("hh:mm"));
    draw->setDateFormat(QwtDate::Day, QStringLiteral("yyyy-MM-dd"));
    plot->setAxisScaleDraw(QwtPlot::xBottom, draw);
    plot->setAxisScaleEngine(QwtPlot::xBottom, new QwtDateScaleEngine(Qt::UTC));
    // "hh:mm:ss" labels are wide: more than four crowd a narrow dock.
    plot->setAxisMaxMajor(QwtPlot::xBottom, 4);
}

void replotNow(QwtPlot *plot)
{
    if (auto *legend = qobject_cast<QwtLegend *>(plot->legend()))
        legend->contentsWidget()->layout()->activate();
    plot->updateLayout();
    plot->replot();
}
