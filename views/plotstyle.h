// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

class QwtPlot;
class QwtPlotItem;
class QWidget;

// The look the receiver views' charts share: a white, framed canvas with a light grid.
QwtPlot *newReceiverPlot(QWidget *parent);
// Axis titles in the plain font, so that the data stand out.
void setPlotAxisTitle(QwtPlot *plot, int axis, const QString &title);
// A legend row above the canvas.
void addTopLegend(QwtPlot *plot);
// The x axis as receiver UTC time (values in ms since the epoch).
void useTimeAxis(QwtPlot *plot);
// Replots with the layout made again first, so that legend entries added since the
// last layout have their room even in a grab() taken straight after.
void replotNow(QwtPlot *plot);
// Adds or removes the item's legend entry; Qwt by itself only ever adds one.
void showInLegend(QwtPlotItem *item, bool shown);
