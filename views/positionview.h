// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiverview.h"

#include <QPointF>
#include <QVector>

class QLabel;
class QPushButton;
class QwtPlot;
class QwtPlotCurve;
class QwtPlotRescaler;

struct QualityPoints
{
    FixQuality quality = FixQuality::NoFix;
    QVector<QPointF> horizontal; // east, north in m
    QVector<QPointF> height;     // receiver time in ms since the epoch, up in m
};

// The deviations of the statistics window from the reference point, by fix quality,
// with the window's CEP circles and its statistics as text.
class PositionModel
{
public:
    void update(const ReceiverSnapshot &snapshot);

    // The qualities present, in allFixQualities() order; a coordinate that is not a
    // number, or a time no axis can show, leaves the point out.
    const QVector<QualityPoints> &points() const { return m_points; }
    int pointCount(FixQuality quality) const;
    // Around the mean of the points; a radius that is unknown or not positive is NaN
    // and draws no circle.
    QPointF circleCentre() const { return m_centre; }
    double cep50() const { return m_cep50; }
    double cep95() const { return m_cep95; }
    // Half the side of the square that holds every point and both circles, in m.
    double horizontalExtent() const { return m_extent; }
    // Rich text: the window, each of its qualities and the statistics since the reset.
    const QString &statisticsText() const { return m_statisticsText; }
    const PositionStatistics &windowStatistics() const { return m_window; }
    // Where the deviations are measured from (lat, lon in degrees, height in m).
    QVector<double> referencePoint() const { return m_reference; }

private:
    QVector<QualityPoints> m_points;
    QPointF m_centre;
    double m_cep50 = kUnknown, m_cep95 = kUnknown;
    double m_extent = 0;
    QString m_statisticsText;
    PositionStatistics m_window;
    QVector<double> m_reference{kUnknown, kUnknown, kUnknown};
};

// The scatter of horizontal deviations with its CEP circles, the height deviation over
// time below it, the statistics beside them, and the controls of the reference point.
// The view only asks for changes; the console passes them to the receiver state.
class PositionView : public ReceiverView
{
    Q_OBJECT
public:
    explicit PositionView(QWidget *parent = nullptr);

    const PositionModel &model() const { return m_model; }

signals:
    void referencePointChosen(double lat, double lon, double height);
    void referencePointCleared();
    void statisticsResetRequested();

protected:
    void updateModel(const ReceiverSnapshot &snapshot) override;
    void redraw() override;

private:
    void chooseReferencePoint();
    void useCurrentMean();

    PositionModel m_model;
    QPushButton *m_useMean;
    QwtPlot *m_scatter;
    QwtPlot *m_heightPlot;
    QwtPlotRescaler *m_rescaler;
    QVector<QwtPlotCurve *> m_scatterCurves; // by allFixQualities()
    QVector<QwtPlotCurve *> m_heightCurves;
    QwtPlotCurve *m_cep50Circle, *m_cep95Circle;
    QLabel *m_statistics;
};
