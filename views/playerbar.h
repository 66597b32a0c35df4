// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QStackedWidget;
class QToolButton;
class SessionIndex;
class TimelineWidget;

// The row that drives a replay: play and pause, single steps, the speed, the timeline,
// the current time and a time to go to. It only asks: the player decides and answers
// through the slots.
class PlayerBar : public QWidget
{
    Q_OBJECT
public:
    explicit PlayerBar(QWidget *parent = nullptr);

    TimelineWidget *timeline() const { return m_timeline; }

signals:
    void playingToggled(bool playing);
    void stepRequested(int epochs);
    void speedChosen(double factor); // 0: as fast as possible
    void seekRequested(int epoch);
    void jumpRequested(const QString &text);
    void cancelIndexingRequested();

public slots:
    // The index must live while it is set.
    void setIndex(const SessionIndex *index);
    void setPosition(int epoch);
    void setPlaying(bool playing);
    // Shows the progress of building the index in place of the timeline.
    void setIndexingProgress(qint64 done, qint64 total);
    void setIndexingFinished();
    void showMessage(const QString &text);

private:
    void updateEnabled();
    void updateTimeLabel();

    const SessionIndex *m_index = nullptr;
    bool m_indexing = false;
    QToolButton *m_playButton;
    QToolButton *m_stepBackButton;
    QToolButton *m_stepForwardButton;
    QComboBox *m_speedBox;
    QStackedWidget *m_middle;
    TimelineWidget *m_timeline;
    QWidget *m_indexingRow;
    QProgressBar *m_progress;
    QLabel *m_timeLabel;
    QLineEdit *m_goToEdit;
    QLabel *m_messageLabel;
};
