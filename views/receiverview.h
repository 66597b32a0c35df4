// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

class QHBoxLayout;
class QVBoxLayout;

// "G12", "R05", "S131": the system letter and the number, with two digits at least.
QString satelliteLabel(GnssSystem system, int prn);
// Where a system comes when the views group by system: knownSystems() order, the
// unknown system last.
int systemOrder(GnssSystem system);
// Whether a time axis can show this time (ms since the epoch): 1970 up to 2200. The
// state's own clock starts at 0 when the receiver gives no time; later ones are junk
// that would make the time axes divide centuries into ticks.
bool isDrawableTime(qint64 ms);

// What the pictures of the receiver share. The console hands every view each snapshot;
// a view's model turns it into what is drawn, and the view redraws at most ten times a
// second however often snapshots come. A hidden view only notes that it missed one, so
// hidden views cost nothing, and asks for a fresh snapshot when it is shown again.
class ReceiverView : public QWidget
{
    Q_OBJECT
public:
    static constexpr int minRedrawIntervalMs = 100;

    void showSnapshot(const ReceiverSnapshot &snapshot);

signals:
    // Shown again after missing snapshots: the console answers with showSnapshot().
    void refreshWanted();

protected:
    explicit ReceiverView(QWidget *parent);

    virtual void updateModel(const ReceiverSnapshot &snapshot) = 0;
    // Brings the drawing up to date with the model.
    virtual void redraw() = 0;
    // A setting of the model changed: the last snapshot is taken again.
    void settingsChanged();
    // Every view has its controls in a row on top and its picture below.
    QHBoxLayout *controlRow() const { return m_controlRow; }
    QVBoxLayout *pictureColumn() const { return m_pictureColumn; }

    void showEvent(QShowEvent *event) override;

private:
    void scheduleRedraw();
    void redrawNow();

    QHBoxLayout *m_controlRow;
    QVBoxLayout *m_pictureColumn;
    ReceiverSnapshot m_snapshot;
    QTimer m_redrawTimer;
    QElapsedTimer m_sinceRedraw;
    bool m_missedSnapshots = false;
    bool m_redrawPending = false;
};
