// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiverview.h"

#include <QPointF>
#include <QVector>

class QComboBox;
class QwtPlot;
class GappedCurve;
class QualityBand;

enum class HistoryQuantity { SatellitesUsed, SatellitesInView, MeanCn0, Hdop, Pdop, CorrectionAge };

struct HistorySeries
{
    HistoryQuantity quantity = HistoryQuantity::SatellitesUsed;
    QString name;
    QVector<QPointF> points; // receiver time in ms since the epoch; y NaN where unknown
};

// A stretch of history with one fix quality, up to where the next one starts.
struct QualityRun
{
    FixQuality quality = FixQuality::NoFix;
    double fromMs = 0, toMs = 0;
};

// The last minutes of the receiver's history as time series; unknown values stay NaN
// so that the lines have gaps there rather than drops to zero.
class HistoryModel
{
public:
    static constexpr int defaultMinutes = 10;

    HistoryModel() { update(ReceiverSnapshot()); }

    // Clamped to a minute up to a day.
    void setMinutes(int minutes);
    int minutes() const { return m_minutes; }

    void update(const ReceiverSnapshot &snapshot);

    // One per HistoryQuantity, in its order.
    const QVector<HistorySeries> &series() const { return m_series; }
    const QVector<QualityRun> &qualityRuns() const { return m_runs; }
    // The shown stretch: the last minutes() up to the newest sample with a drawable time.
    double startMs() const { return m_startMs; }
    double endMs() const { return m_endMs; }

private:
    int m_minutes = defaultMinutes;
    QVector<HistorySeries> m_series;
    QVector<QualityRun> m_runs;
    double m_startMs = 0, m_endMs = 0;
};

// Satellites and mean C/N0 above, DOP and the age of corrections below, both tinted by
// the fix quality, over receiver UTC time.
class HistoryView : public ReceiverView
{
    Q_OBJECT
public:
    explicit HistoryView(QWidget *parent = nullptr);

    const HistoryModel &model() const { return m_model; }

    // The setting worth remembering: how many minutes are shown.
    void setMinutes(int minutes);
    int minutes() const { return m_model.minutes(); }

protected:
    void updateModel(const ReceiverSnapshot &snapshot) override;
    void redraw() override;

private:
    HistoryModel m_model;
    QComboBox *m_minutesBox;
    QwtPlot *m_upperPlot, *m_lowerPlot;
    QVector<GappedCurve *> m_curves; // by HistoryQuantity
    QualityBand *m_upperBand, *m_lowerBand;
};
