// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "receiverview.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QTextStream>

class QDockWidget;
class QMainWindow;
class QMenu;
class ReceiverState;

// The pictures of the receiver (sky, signals, position, history) as dock panels of
// the console. Only visible views are handed the state's snapshots, one snapshot
// shared by all of them per change, so hidden views cost nothing.
class ReceiverDocks : public QObject
{
    Q_OBJECT
public:
    ReceiverDocks(ReceiverState &state, QMainWindow &window);
    ~ReceiverDocks() override;

    const QList<QDockWidget *> &docks() const { return m_docks; }
    const QList<ReceiverView *> &views() const { return m_views; }
    // One check action per dock.
    void addToggleActions(QMenu *menu) const;
    // The views' own options (threshold, trails, systems shown).
    void saveSettings() const;

    // Writes view-sky.png, view-signals.png, view-position.png and view-history.png of
    // the state as it is into directory; returns how many were written.
    static int savePictures(ReceiverState &state, const QString &directory, QTextStream &out);
    static int viewCount();

private:
    template <typename View>
    View *viewOf() const
    {
        for (ReceiverView *view : m_views) {
            if (auto *typed = qobject_cast<View *>(view))
                return typed;
        }
        return nullptr;
    }
    void refreshVisibleViews();
    void handOutNext();
    void refresh(ReceiverView *view);

    ReceiverState &m_state;
    QList<QDockWidget *> m_docks;
    QList<ReceiverView *> m_views;
    ReceiverSnapshot m_snapshot;
    QList<ReceiverView *> m_waiting; // for m_snapshot, in turn
};
