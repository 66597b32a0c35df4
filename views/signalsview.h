// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiverview.h"

#include <QVector>

class QDoubleSpinBox;
class QwtPlot;
class QwtPlotMarker;
class SatelliteScaleDraw;
class SignalBandChart;

// Signals of about the same carrier frequency, which share a colour.
enum class SignalBand { L1, L2, L5, E5b, E6, Other };

struct SignalBar
{
    QString signal;
    SignalBand band = SignalBand::Other;
    double cn0 = 0; // dB-Hz
    bool belowThreshold = false;
    double x = 0; // centre on the plot's x axis
};

struct SatelliteSignals
{
    GnssSystem system = GnssSystem::Unknown;
    int prn = 0;
    QString label;
    bool used = false;
    double x = 0;
    QVector<SignalBar> bars; // by band, then name
};

// The C/N0 bars: one per signal with a known C/N0, satellites grouped by system and
// ordered by number, a gap between systems.
class SignalsModel
{
public:
    static constexpr double defaultThreshold = 35;
    // More columns than this could not be told apart; the rest are left out.
    static constexpr int maxSatellites = 128;

    static SignalBand bandOf(const QString &signalName);
    static QString bandName(SignalBand band);

    // Ignores a threshold that is not a number.
    void setThreshold(double dbHz);
    double threshold() const { return m_threshold; }

    void update(const ReceiverSnapshot &snapshot);

    const QVector<SatelliteSignals> &satellites() const { return m_satellites; }
    // In x axis units, the same for every bar.
    double barWidth() const { return m_barWidth; }

private:
    double m_threshold = defaultThreshold;
    QVector<SatelliteSignals> m_satellites;
    double m_barWidth = 0.8;
};

class SignalsView : public ReceiverView
{
    Q_OBJECT
public:
    explicit SignalsView(QWidget *parent = nullptr);

    const SignalsModel &model() const { return m_model; }

    // The setting worth remembering, in dB-Hz.
    void setThreshold(double dbHz);
    double threshold() const { return m_model.threshold(); }

protected:
    void updateModel(const ReceiverSnapshot &snapshot) override;
    void redraw() override;

private:
    void updateSystemNames(double top);

    SignalsModel m_model;
    QDoubleSpinBox *m_thresholdBox;
    QwtPlot *m_plot;
    SatelliteScaleDraw *m_scaleDraw;
    QVector<SignalBandChart *> m_bandCharts; // by SignalBand
    SignalBandChart *m_warningKey;           // only the legend's "below threshold"
    QwtPlotMarker *m_thresholdLine;
    QVector<QwtPlotMarker *> m_systemNames;
};
