// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receivertypes.h"

#include <QVector>
#include <QWidget>

class SessionIndex;

// Where epochs fall on a strip of pixel columns: x is proportional to the epoch
// number, so a gap in receiver time takes no room. The first and the last column hold
// the first and the last epoch, so that both ends can be reached with the mouse.
class TimelineScale
{
public:
    TimelineScale() = default;
    TimelineScale(int epochs, int width) : m_epochs(epochs), m_width(width) {}

    int epochs() const { return m_epochs; }
    int width() const { return m_width; }
    // Clamped to the strip; -1 when there is no epoch or no column.
    int epochAt(int x) const;
    int columnOf(int epoch) const;

private:
    int m_epochs = 0;
    int m_width = 0;
};

// What each column of the timeline shows, worked out once per index and width so
// that painting never walks the epochs.
class TimelineSummary
{
public:
    enum Mark : quint8 {
        SatellitesChanged = 1,
        KindAppeared = 2,
        KindStopped = 4,
    };

    // The worst fix quality wins a column: a short float spell in a day of fixed RTK
    // must stay visible when a column holds hundreds of epochs.
    static TimelineSummary build(const SessionIndex &index, int width);

    const TimelineScale &scale() const { return m_scale; }
    const QVector<FixQuality> &worstQuality() const { return m_worst; }
    const QVector<quint8> &marks() const { return m_marks; } // Mark bits per column
    // The time of the first epoch each column holds, for the time labels.
    const QVector<qint64> &columnTimeMs() const { return m_timeMs; }

private:
    TimelineScale m_scale;
    QVector<FixQuality> m_worst;
    QVector<quint8> m_marks;
    QVector<qint64> m_timeMs;
};

// A recording's epochs as a strip: fix quality, marks where the satellites used change
// and where message kinds come or go, UTC times below and the play position as a
// handle. Dragging the handle asks for a seek when the mouse is let go.
class TimelineWidget : public QWidget
{
    Q_OBJECT
public:
    explicit TimelineWidget(QWidget *parent = nullptr);

    // The index must live while it is set; null or empty leaves the strip disabled.
    void setIndex(const SessionIndex *index);
    const SessionIndex *index() const { return m_index; }
    // -1: before the first epoch, no handle.
    void setPosition(int epoch);
    int position() const { return m_position; }

    // The strip of epoch columns inside the widget.
    QRect bandRect() const;
    // What hovering over widget x shows: its time and the changes near it.
    QString hoverText(int x) const;

    // "14:32:05", "2024-05-20 14:32:05", or with tenths "14:32:05.2".
    static QString timeText(qint64 utcMs, bool withDate, bool withTenths = false);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void seekRequested(int epoch);
    void stepRequested(int epochs);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    const TimelineSummary &summary() const;
    int epochAtWidgetX(int x) const;
    bool spansDays() const;
    void dragTo(const QPoint &position, const QPoint &globalPosition);
    void paintBand(QPainter &painter, const TimelineSummary &summary) const;
    void paintMarks(QPainter &painter, const TimelineSummary &summary) const;
    void paintTimeLabels(QPainter &painter, const TimelineSummary &summary) const;
    void paintHandle(QPainter &painter, const TimelineSummary &summary) const;

    const SessionIndex *m_index = nullptr;
    int m_position = -1;
    int m_dragEpoch = -1; // while the mouse button is down
    mutable TimelineSummary m_summary;
    mutable bool m_summaryValid = false;
};
