// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiverview.h"

#include <QColor>
#include <QPointF>

class QCheckBox;
class QHBoxLayout;
class QToolButton;

struct SkyMarker
{
    GnssSystem system = GnssSystem::Unknown;
    int prn = 0;
    QString label;
    QPointF position; // in the unit disc
    QColor colour;    // by the best C/N0
    bool filled = false; // used in the fix; hollow when only tracked
};

struct SkyTrack
{
    GnssSystem system = GnssSystem::Unknown;
    int prn = 0;
    QVector<QPointF> points; // in the unit disc, oldest first
};

// The sky as drawn: directions as points of the unit disc, x east and y north, the
// zenith in the centre and the horizon on the rim.
class SkyModel
{
public:
    // False when the direction cannot be placed: unknown, or an elevation beyond
    // ±90°. A satellite below the horizon sits on the rim.
    static bool toDisc(double elevation, double azimuth, QPointF *point);

    void update(const ReceiverSnapshot &snapshot);

    void setTrailsShown(bool shown) { m_trailsShown = shown; }
    bool trailsShown() const { return m_trailsShown; }
    void setSystemShown(GnssSystem system, bool shown);
    bool isSystemShown(GnssSystem system) const { return !m_hiddenSystems.contains(system); }

    const QVector<SkyMarker> &markers() const { return m_markers; }
    const QVector<SkyTrack> &trails() const { return m_trails; }
    // The systems of the snapshot, shown or not, in the usual order.
    const QVector<GnssSystem> &presentSystems() const { return m_presentSystems; }

private:
    bool m_trailsShown = false;
    QVector<GnssSystem> m_hiddenSystems;
    QVector<SkyMarker> m_markers;
    QVector<SkyTrack> m_trails;
    QVector<GnssSystem> m_presentSystems;
};

// The polar sky plot: north up, azimuth clockwise, a marker per satellite coloured by
// its C/N0, optional trails and a filter per system.
class SkyView : public ReceiverView
{
    Q_OBJECT
public:
    explicit SkyView(QWidget *parent = nullptr);

    const SkyModel &model() const { return m_model; }

    // Settings worth remembering.
    void setTrailsShown(bool shown);
    bool trailsShown() const { return m_model.trailsShown(); }
    // Names as systemName() gives them; unknown names are ignored.
    void setHiddenSystems(const QStringList &names);
    QStringList hiddenSystems() const;

protected:
    void updateModel(const ReceiverSnapshot &snapshot) override;
    void redraw() override;

private:
    void updateFilterButtons();

    SkyModel m_model;
    QWidget *m_canvas;
    QCheckBox *m_trailsBox;
    QHBoxLayout *m_filterRow;
    QVector<QToolButton *> m_filterButtons;
    QVector<GnssSystem> m_filterSystems; // of the buttons, in their order
};
