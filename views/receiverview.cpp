// SPDX-License-Identifier: BSD-3-Clause
#include "receiverview.h"

#include <QBoxLayout>

QString satelliteLabel(GnssSystem system, int prn)
{
    return systemLetter(system) + QStringLiteral("%1").arg(prn, 2, 10, QLatin1Char('0'));
}

int systemOrder(GnssSystem system)
{
    const int index = knownSystems().indexOf(system);
    return index < 0 ? knownSystems().size() : index;
}

bool isDrawableTime(qint64 ms)
{
    constexpr qint64 year2200 = 7258118400000;
    return ms >= 0 && ms < year2200;
}

ReceiverView::ReceiverView(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_controlRow = new QHBoxLayout;
    m_controlRow->setContentsMargins(8, 4, 8, 4);
    layout->addLayout(m_controlRow);
    m_pictureColumn = new QVBoxLayout;
    layout->addLayout(m_pictureColumn, 1);
    m_redrawTimer.setSingleShot(true);
    connect(&m_redrawTimer, &QTimer::timeout, this, &ReceiverView::redrawNow);
}

void ReceiverView::showSnapshot(const ReceiverSnapshot &snapshot)
{
    if (!isVisible()) {
        m_missedSnapshots = true;
        return;
    }
    m_missedSnapshots = false;
    m_snapshot = snapshot;
    updateModel(m_snapshot);
    scheduleRedraw();
}

void ReceiverView::settingsChanged()
{
    updateModel(m_snapshot);
    scheduleRedraw();
}

void ReceiverView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_redrawPending)
        scheduleRedraw();
    if (m_missedSnapshots)
        emit refreshWanted();
}

// The first snapshot after a quiet spell is drawn at once (so that grab() right after
// showSnapshot() shows it); those that follow within the interval are drawn together.
void ReceiverView::scheduleRedraw()
{
    m_redrawPending = true;
    if (!isVisible() || m_redrawTimer.isActive())
        return;
    const qint64 wait = m_sinceRedraw.isValid() ? minRedrawIntervalMs - m_sinceRedraw.elapsed() : 0;
    if (wait > 0)
        m_redrawTimer.start(int(wait));
    else
        redrawNow();
}

void ReceiverView::redrawNow()
{
    if (!isVisible())
        return;
    m_redrawPending = false;
    m_sinceRedraw.start();
    redraw();
}
