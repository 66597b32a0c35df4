// SPDX-License-Identifier: BSD-3-Clause
#include "playerbar.h"

#include "sessionindex.h"
#include "timelinewidget.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

namespace {

// Replay speeds as factors of receiver time; 0 replays as fast as the pages keep up.
constexpr double kSpeeds[] = {0.1, 0.25, 0.5, 1, 2, 5, 10, 25, 50, 100, 0};
constexpr double kDefaultSpeed = 1;
constexpr int kProgressSteps = 1000;

QToolButton *toolButton(QWidget *parent, const QString &objectName, QStyle::StandardPixmap icon, const QString &tip)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(objectName);
    button->setIcon(parent->style()->standardIcon(icon));
    button->setToolTip(tip);
    button->setAutoRaise(true);
    return button;
}

} // namespace

PlayerBar::PlayerBar(QWidget *parent) : QWidget(parent)
{
    m_playButton = toolButton(this, QStringLiteral("playButton"), QStyle::SP_MediaPlay, tr("Play"));
    m_playButton->setCheckable(true);
    m_stepBackButton = toolButton(this, QStringLiteral("stepBackButton"), QStyle::SP_MediaSkipBackward, tr("Step back"));
    m_stepForwardButton =
        toolButton(this, QStringLiteral("stepForwardButton"), QStyle::SP_MediaSkipForward, tr("Step forward"));

    m_speedBox = new QComboBox(this);
    m_speedBox->setObjectName(QStringLiteral("speedBox"));
    m_speedBox->setToolTip(tr("Replay speed"));
    for (double factor : kSpeeds) {
        m_speedBox->addItem(factor == 0 ? tr("as fast as possible") : tr("%1x").arg(factor), factor);
        if (factor == kDefaultSpeed)
            m_speedBox->setCurrentIndex(m_speedBox->count() - 1);
    }

    m_timeline = new TimelineWidget(this);
    m_timeline->setObjectName(QStringLiteral("timeline"));
    m_indexingRow = new QWidget(this);
    m_indexingRow->setObjectName(QStringLiteral("indexingRow"));
    m_progress = new QProgressBar(m_indexingRow);
    m_progress->setObjectName(QStringLiteral("indexingProgress"));
    m_progress->setFormat(tr("Reading the recording… %p%"));
    auto *cancelButton = new QPushButton(tr("Cancel"), m_indexingRow);
    cancelButton->setObjectName(QStringLiteral("cancelIndexingButton"));
    auto *indexingLayout = new QHBoxLayout(m_indexingRow);
    indexingLayout->setContentsMargins(0, 0, 0, 0);
    indexingLayout->addWidget(m_progress, 1);
    indexingLayout->addWidget(cancelButton);
    m_middle = new QStackedWidget(this);
    m_middle->addWidget(m_timeline);
    m_middle->addWidget(m_indexingRow);
    m_middle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_middle->setMinimumWidth(m_timeline->minimumSizeHint().width() * 3);

    m_timeLabel = new QLabel(this);
    m_timeLabel->setObjectName(QStringLiteral("timeLabel"));
    m_timeLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Wide enough for a date, so that the row does not shift as the time ticks.
    m_timeLabel->setMinimumWidth(m_timeLabel->fontMetrics().horizontalAdvance(tr("%1 UTC").arg(QStringLiteral("2024-05-20 00:00:00.0"))));
    m_goToEdit = new QLineEdit(this);
    m_goToEdit->setObjectName(QStringLiteral("goToEdit"));
    m_goToEdit->setPlaceholderText(tr("HH:MM:SS or 2024-05-20T14:32:05"));
    m_goToEdit->setToolTip(tr("Go to a time of the recording (Enter)"));
    m_goToEdit->setClearButtonEnabled(true);
    // The timeline takes the room; the edit only what its hint needs.
    m_goToEdit->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_goToEdit->setMinimumWidth(m_goToEdit->fontMetrics().horizontalAdvance(m_goToEdit->placeholderText()) + 32);
    m_messageLabel = new QLabel(this);
    m_messageLabel->setObjectName(QStringLiteral("messageLabel"));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(m_playButton);
    layout->addWidget(m_stepBackButton);
    layout->addWidget(m_stepForwardButton);
    layout->addWidget(m_speedBox);
    layout->addWidget(m_middle, 1);
    layout->addWidget(m_timeLabel);
    layout->addWidget(new QLabel(tr("Go to"), this));
    layout->addWidget(m_goToEdit);
    layout->addWidget(m_messageLabel);

    connect(m_playButton, &QToolButton::toggled, this, [this](bool playing) {
        setPlaying(playing);
        emit playingToggled(playing);
    });
    connect(m_stepBackButton, &QToolButton::clicked, this, [this] { emit stepRequested(-1); });
    connect(m_stepForwardButton, &QToolButton::clicked, this, [this] { emit stepRequested(1); });
    connect(m_speedBox, QOverload<int>::of(&QComboBox::activated), this,
            [this](int row) { emit speedChosen(m_speedBox->itemData(row).toDouble()); });
    connect(m_timeline, &TimelineWidget::seekRequested, this, &PlayerBar::seekRequested);
    connect(m_timeline, &TimelineWidget::stepRequested, this, &PlayerBar::stepRequested);
    connect(cancelButton, &QPushButton::clicked, this, &PlayerBar::cancelIndexingRequested);
    connect(m_goToEdit, &QLineEdit::returnPressed, this, [this] {
        const QString text = m_goToEdit->text().trimmed();
        if (!text.isEmpty())
            emit jumpRequested(text);
    });
    connect(m_goToEdit, &QLineEdit::textEdited, m_messageLabel, &QLabel::clear);

    updateEnabled();
    updateTimeLabel();
}

void PlayerBar::setIndex(const SessionIndex *index)
{
    m_index = index;
    m_timeline->setIndex(index);
    updateEnabled();
    updateTimeLabel();
}

void PlayerBar::setPosition(int epoch)
{
    m_timeline->setPosition(epoch);
    updateTimeLabel();
}

void PlayerBar::setPlaying(bool playing)
{
    {
        const QSignalBlocker blocker(m_playButton);
        m_playButton->setChecked(playing);
    }
    m_playButton->setIcon(style()->standardIcon(playing ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
    m_playButton->setToolTip(playing ? tr("Pause") : tr("Play"));
}

void PlayerBar::setIndexingProgress(qint64 done, qint64 total)
{
    m_indexing = true;
    m_middle->setCurrentWidget(m_indexingRow);
    if (total > 0) {
        m_progress->setRange(0, kProgressSteps);
        m_progress->setValue(int(std::clamp<qint64>(done, 0, total) * kProgressSteps / total));
    } else {
        m_progress->setRange(0, 0); // size unknown: a busy bar
    }
    updateEnabled();
}

void PlayerBar::setIndexingFinished()
{
    m_indexing = false;
    m_middle->setCurrentWidget(m_timeline);
    updateEnabled();
}

void PlayerBar::showMessage(const QString &text)
{
    m_messageLabel->setText(text);
}

void PlayerBar::updateEnabled()
{
    const bool usable = !m_indexing && m_index && m_index->epochCount() > 0;
    for (QWidget *control : {static_cast<QWidget *>(m_playButton), static_cast<QWidget *>(m_stepBackButton),
                             static_cast<QWidget *>(m_stepForwardButton), static_cast<QWidget *>(m_goToEdit)})
        control->setEnabled(usable);
}

void PlayerBar::updateTimeLabel()
{
    const int epoch = m_timeline->position();
    if (!m_index || epoch < 0) {
        m_timeLabel->setText(m_index && m_index->epochCount() > 0 ? tr("start") : QString());
        return;
    }
    m_timeLabel->setText(
        tr("%1 UTC").arg(TimelineWidget::timeText(m_index->epochTimeMs(epoch), m_index->hasDates(), true)));
}
