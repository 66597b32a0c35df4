// SPDX-License-Identifier: BSD-3-Clause
#include "timelinewidget.h"

#include "sessionindex.h"
#include "viewpalette.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace {

// Worst first: no fix, then what is no measured fix at all, then the stand-alone fixes,
// the differential ones and RTK float, and RTK fixed best.
constexpr FixQuality kWorstFirst[] = {
    FixQuality::NoFix, FixQuality::Simulation, FixQuality::Manual, FixQuality::DeadReckoning,
    FixQuality::Single, FixQuality::Pps, FixQuality::Sbas, FixQuality::Dgnss,
    FixQuality::Ppp, FixQuality::RtkFloat, FixQuality::RtkFixed,
};
constexpr int kQualityCount = int(sizeof kWorstFirst / sizeof kWorstFirst[0]);

constexpr qint64 kDayMs = 86400000;
constexpr int kSideInset = 4; // room for half the handle at either end
constexpr int kMarkRowHeight = 6;
constexpr int kBandHeight = 14;
constexpr int kTickHeight = 5;
constexpr int kLabelGap = 12; // between two time labels
constexpr int kLabelSpacing = 110; // aimed-for distance between round-time labels
constexpr int kHoverReach = 3; // pixels either side of the cursor whose changes hover shows
constexpr int kHoverLines = 8;

// Steps between round-time labels, shortest first.
constexpr qint64 kRoundStepsMs[] = {
    1000, 2000, 5000, 10000, 15000, 30000,
    60000, 120000, 300000, 600000, 900000, 1800000,
    3600000, 7200000, 10800000, 21600000, 43200000, kDayMs,
};

qint64 floorDiv(qint64 value, qint64 divisor)
{
    const qint64 quotient = value / divisor;
    return (value % divisor != 0 && (value < 0) != (divisor < 0)) ? quotient - 1 : quotient;
}

qint64 roundStepFor(qint64 spanMs, int labels)
{
    const qint64 wanted = spanMs / std::max(1, labels);
    for (qint64 step : kRoundStepsMs) {
        if (step >= wanted)
            return step;
    }
    return (wanted + kDayMs - 1) / kDayMs * kDayMs;
}

QString markerText(const SessionIndex &index, const SessionMarker &marker)
{
    const bool hasBefore = marker.epoch > 0;
    switch (marker.kind) {
    case SessionMarker::Kind::Quality: {
        const QString now = fixQualityName(FixQuality(marker.value));
        return hasBefore ? TimelineWidget::tr("fix %1 -> %2").arg(fixQualityName(index.epochQuality(marker.epoch - 1)), now)
                         : TimelineWidget::tr("fix %1").arg(now);
    }
    case SessionMarker::Kind::SatellitesUsed: {
        const auto count = [](int used) { return used < 0 ? QStringLiteral("?") : QString::number(used); };
        return hasBefore ? TimelineWidget::tr("satellites used %1 -> %2")
                               .arg(count(index.epochSatellitesUsed(marker.epoch - 1)), count(marker.value))
                         : TimelineWidget::tr("satellites used %1").arg(count(marker.value));
    }
    case SessionMarker::Kind::KindAppeared:
    case SessionMarker::Kind::KindStopped: {
        const QByteArray name = index.messageKinds().value(marker.value);
        const QString kind = name.isEmpty() ? QStringLiteral("?") : QString::fromLatin1(name);
        return marker.kind == SessionMarker::Kind::KindAppeared ? TimelineWidget::tr("%1 appeared").arg(kind)
                                                                : TimelineWidget::tr("%1 stopped").arg(kind);
    }
    }
    return {};
}

} // namespace

int TimelineScale::epochAt(int x) const
{
    if (m_epochs <= 0 || m_width <= 0)
        return -1;
    if (m_width == 1)
        return 0;
    const qint64 column = std::clamp(x, 0, m_width - 1);
    return int((2 * column * (m_epochs - 1) + (m_width - 1)) / (2 * qint64(m_width - 1)));
}

int TimelineScale::columnOf(int epoch) const
{
    if (m_epochs <= 1 || m_width <= 0)
        return 0;
    const qint64 clamped = std::clamp(epoch, 0, m_epochs - 1);
    return int((2 * clamped * (m_width - 1) + (m_epochs - 1)) / (2 * qint64(m_epochs - 1)));
}

TimelineSummary TimelineSummary::build(const SessionIndex &index, int width)
{
    TimelineSummary summary;
    const int epochs = index.epochCount();
    summary.m_scale = TimelineScale(epochs, std::max(0, width));
    if (epochs == 0 || width <= 0)
        return summary;

    int rankOf[kQualityCount];
    std::fill(std::begin(rankOf), std::end(rankOf), 0);
    for (int rank = 0; rank < kQualityCount; ++rank)
        rankOf[int(kWorstFirst[rank])] = rank;
    const auto rank = [&](FixQuality quality) {
        const int ordinal = int(quality);
        return ordinal >= 0 && ordinal < kQualityCount ? rankOf[ordinal] : 0;
    };

    // When there are fewer epochs than columns, a column no epoch falls on shows the
    // epoch under it.
    QVector<int> worstRank(width, -1);
    summary.m_timeMs.resize(width);
    for (int epoch = 0; epoch < epochs; ++epoch) {
        const int column = summary.m_scale.columnOf(epoch);
        const int epochRank = rank(index.epochQuality(epoch));
        if (worstRank[column] < 0) {
            worstRank[column] = epochRank;
            summary.m_timeMs[column] = index.epochTimeMs(epoch);
        } else {
            worstRank[column] = std::min(worstRank[column], epochRank);
        }
    }
    summary.m_worst.resize(width);
    for (int column = 0; column < width; ++column) {
        if (worstRank[column] < 0) {
            const int epoch = summary.m_scale.epochAt(column);
            worstRank[column] = rank(index.epochQuality(epoch));
            summary.m_timeMs[column] = index.epochTimeMs(epoch);
        }
        summary.m_worst[column] = kWorstFirst[worstRank[column]];
    }

    summary.m_marks.fill(0, width);
    for (const SessionMarker &marker : index.markers()) {
        if (marker.epoch < 0 || marker.epoch >= epochs)
            continue;
        quint8 &marks = summary.m_marks[summary.m_scale.columnOf(marker.epoch)];
        switch (marker.kind) {
        case SessionMarker::Kind::Quality: break; // the band shows it
        case SessionMarker::Kind::SatellitesUsed: marks |= SatellitesChanged; break;
        case SessionMarker::Kind::KindAppeared: marks |= KindAppeared; break;
        case SessionMarker::Kind::KindStopped: marks |= KindStopped; break;
        }
    }
    return summary;
}

TimelineWidget::TimelineWidget(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setEnabled(false);
}

void TimelineWidget::setIndex(const SessionIndex *index)
{
    m_index = index;
    m_summaryValid = false;
    m_dragEpoch = -1;
    const int epochs = index ? index->epochCount() : 0;
    setEnabled(epochs > 0);
    m_position = std::min(m_position, epochs - 1);
    update();
}

void TimelineWidget::setPosition(int epoch)
{
    const int epochs = m_index ? m_index->epochCount() : 0;
    const int clamped = std::clamp(epoch, -1, epochs - 1);
    if (clamped == m_position)
        return;
    m_position = clamped;
    update();
}

QRect TimelineWidget::bandRect() const
{
    return QRect(kSideInset, kMarkRowHeight, std::max(0, width() - 2 * kSideInset), kBandHeight);
}

QString TimelineWidget::timeText(qint64 utcMs, bool withDate, bool withTenths)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(utcMs, Qt::UTC);
    QString text = time.toString(withDate ? QStringLiteral("yyyy-MM-dd HH:mm:ss") : QStringLiteral("HH:mm:ss"));
    if (withTenths)
        text += QLatin1Char('.') + QString::number(time.time().msec() / 100);
    return text;
}

bool TimelineWidget::spansDays() const
{
    if (!m_index || m_index->epochCount() == 0 || !m_index->hasDates())
        return false;
    return floorDiv(m_index->epochTimeMs(0), kDayMs) != floorDiv(m_index->epochTimeMs(m_index->epochCount() - 1), kDayMs);
}

const TimelineSummary &TimelineWidget::summary() const
{
    if (!m_summaryValid) {
        m_summary = m_index ? TimelineSummary::build(*m_index, bandRect().width()) : TimelineSummary();
        m_summaryValid = true;
    }
    return m_summary;
}

int TimelineWidget::epochAtWidgetX(int x) const
{
    return TimelineScale(m_index ? m_index->epochCount() : 0, bandRect().width()).epochAt(x - bandRect().left());
}

QString TimelineWidget::hoverText(int x) const
{
    const int epoch = epochAtWidgetX(x);
    if (epoch < 0)
        return {};
    const bool withDate = spansDays();
    QStringList lines{timeText(m_index->epochTimeMs(epoch), withDate)};
    const int from = epochAtWidgetX(x - kHoverReach);
    const int to = epochAtWidgetX(x + kHoverReach);
    // The scan appends markers in file order, so they are sorted by epoch.
    const QVector<SessionMarker> &markers = m_index->markers();
    auto marker = std::lower_bound(markers.cbegin(), markers.cend(), from,
                                   [](const SessionMarker &m, int epoch) { return m.epoch < epoch; });
    int shown = 0, more = 0;
    for (; marker != markers.cend() && marker->epoch <= to; ++marker) {
        if (shown == kHoverLines) {
            ++more;
            continue;
        }
        lines << timeText(m_index->epochTimeMs(marker->epoch), withDate) + QLatin1Char(' ') + markerText(*m_index, *marker);
        ++shown;
    }
    if (more > 0)
        lines << tr("and %n more", nullptr, more);
    return lines.join(QLatin1Char('\n'));
}

QSize TimelineWidget::sizeHint() const
{
    return QSize(400, kMarkRowHeight + kBandHeight + kTickHeight + fontMetrics().height() + 2);
}

QSize TimelineWidget::minimumSizeHint() const
{
    return QSize(100, sizeHint().height());
}

void TimelineWidget::resizeEvent(QResizeEvent *event)
{
    m_summaryValid = false;
    QWidget::resizeEvent(event);
}

void TimelineWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect band = bandRect();
    const TimelineSummary &columns = summary();
    if (columns.worstQuality().isEmpty()) {
        painter.fillRect(band, palette().color(QPalette::Disabled, QPalette::Window).darker(110));
        return;
    }
    paintBand(painter, columns);
    paintMarks(painter, columns);
    paintTimeLabels(painter, columns);
    paintHandle(painter, columns);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(band.adjusted(-1, -1, 0, 0));
    }
}

void TimelineWidget::paintBand(QPainter &painter, const TimelineSummary &summary) const
{
    const QRect band = bandRect();
    const QVector<FixQuality> &worst = summary.worstQuality();
    for (int from = 0; from < worst.size();) {
        int to = from + 1;
        while (to < worst.size() && worst[to] == worst[from])
            ++to;
        painter.fillRect(QRect(band.left() + from, band.top(), to - from, band.height()),
                         ViewPalette::fixQualityColour(worst[from]));
        from = to;
    }
}

void TimelineWidget::paintMarks(QPainter &painter, const TimelineSummary &summary) const
{
    const QRect band = bandRect();
    const QColor ink = palette().color(QPalette::WindowText);
    const QVector<quint8> &marks = summary.marks();
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (int column = 0; column < marks.size(); ++column) {
        if (marks[column] == 0)
            continue;
        const int x = band.left() + column;
        if (marks[column] & TimelineSummary::SatellitesChanged)
            painter.fillRect(QRect(x, band.bottom() + 1, 1, kTickHeight), ink);
        // Appearing kinds point down into the band, stopping ones up out of it.
        const qreal y0 = 0.5, y1 = kMarkRowHeight - 1.5;
        if (marks[column] & TimelineSummary::KindAppeared) {
            const QPointF down[] = {{x - 2.5, y0}, {x + 3.5, y0}, {x + 0.5, y1}};
            painter.setPen(Qt::NoPen);
            painter.setBrush(ink);
            painter.drawPolygon(down, 3);
        }
        if (marks[column] & TimelineSummary::KindStopped) {
            const QPointF up[] = {{x - 2.5, y1}, {x + 3.5, y1}, {x + 0.5, y0}};
            painter.setPen(QPen(ink, 1));
            painter.setBrush(Qt::NoBrush);
            painter.drawPolygon(up, 3);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void TimelineWidget::paintTimeLabels(QPainter &painter, const TimelineSummary &summary) const
{
    const QRect band = bandRect();
    const int epochs = m_index->epochCount();
    const bool withDate = spansDays();
    const QFontMetrics metrics = fontMetrics();
    const int top = band.bottom() + 1 + kTickHeight;
    const int height = metrics.height();
    painter.setPen(palette().color(QPalette::WindowText));

    const QString firstText = timeText(m_index->epochTimeMs(0), withDate);
    const QString lastText = timeText(m_index->epochTimeMs(epochs - 1), withDate);
    const QRect firstRect(0, top, metrics.horizontalAdvance(firstText), height);
    const int lastWidth = metrics.horizontalAdvance(lastText);
    const QRect lastRect(width() - lastWidth, top, lastWidth, height);
    painter.drawText(firstRect, Qt::AlignLeft, firstText);
    if (!lastRect.intersects(firstRect.adjusted(0, 0, kLabelGap, 0)))
        painter.drawText(lastRect, Qt::AlignLeft, lastText);

    const QVector<qint64> &times = summary.columnTimeMs();
    const qint64 span = std::abs(m_index->epochTimeMs(epochs - 1) - m_index->epochTimeMs(0));
    const qint64 step = roundStepFor(span, band.width() / kLabelSpacing);
    int freeFrom = firstRect.right() + kLabelGap;
    for (int column = 1; column < times.size(); ++column) {
        const qint64 bucket = floorDiv(times[column], step);
        if (bucket == floorDiv(times[column - 1], step))
            continue;
        const qint64 roundMs = bucket * step;
        const QString text = timeText(roundMs, withDate && floorDiv(roundMs, kDayMs) * kDayMs == roundMs);
        const int textWidth = metrics.horizontalAdvance(text);
        const QRect rect(band.left() + column - textWidth / 2, top, textWidth, height);
        if (rect.left() < freeFrom || rect.right() + kLabelGap > lastRect.left())
            continue;
        painter.fillRect(QRect(band.left() + column, band.bottom() + 1, 1, 2), palette().color(QPalette::Mid));
        painter.drawText(rect, Qt::AlignLeft, text);
        freeFrom = rect.right() + kLabelGap;
    }
}

void TimelineWidget::paintHandle(QPainter &painter, const TimelineSummary &summary) const
{
    const int epoch = m_dragEpoch >= 0 ? m_dragEpoch : m_position;
    if (epoch < 0)
        return;
    const QRect band = bandRect();
    const int x = band.left() + summary.scale().columnOf(epoch);
    const QColor colour = palette().color(QPalette::Highlight);
    painter.fillRect(QRect(x - 1, 0, 3, band.bottom() + 1 + kTickHeight), colour);
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawLine(x, band.top(), x, band.bottom());
}

void TimelineWidget::dragTo(const QPoint &position, const QPoint &globalPosition)
{
    m_dragEpoch = epochAtWidgetX(position.x());
    QToolTip::showText(globalPosition, timeText(m_index->epochTimeMs(m_dragEpoch), spansDays()), this);
    update();
}

void TimelineWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_index || m_index->epochCount() == 0) {
        QWidget::mousePressEvent(event);
        return;
    }
    dragTo(event->pos(), event->globalPos());
}

void TimelineWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragEpoch >= 0) {
        dragTo(event->pos(), event->globalPos());
        return;
    }
    const QString text = hoverText(event->pos().x());
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), text, this);
}

void TimelineWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_dragEpoch < 0) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const int epoch = epochAtWidgetX(event->pos().x());
    m_dragEpoch = -1;
    m_position = epoch;
    update();
    emit seekRequested(epoch);
}

void TimelineWidget::keyPressEvent(QKeyEvent *event)
{
    const int epochs = m_index ? m_index->epochCount() : 0;
    if (epochs == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left: emit stepRequested(-1); break;
    case Qt::Key_Right: emit stepRequested(1); break;
    case Qt::Key_Home: emit seekRequested(0); break;
    case Qt::Key_End: emit seekRequested(epochs - 1); break;
    default: QWidget::keyPressEvent(event); break;
    }
}
