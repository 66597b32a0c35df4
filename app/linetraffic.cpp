// SPDX-License-Identifier: BSD-3-Clause
#include "linetraffic.h"

namespace {

LineOutcome outcomeOf(MessageViewModules::LineOutcome outcome)
{
    switch (outcome) {
    case MessageViewModules::LineTaken:
        return LineOutcome::Taken;
    case MessageViewModules::LineWithoutPage:
        return LineOutcome::NoPage;
    case MessageViewModules::LineRefused:
        return LineOutcome::Refused;
    case MessageViewModules::LineBadChecksum:
        return LineOutcome::BadChecksum;
    case MessageViewModules::LineCutShort:
        return LineOutcome::CutShort;
    case MessageViewModules::LineTooLong:
        return LineOutcome::TooLong;
    case MessageViewModules::LineGarbage:
        break;
    }
    return LineOutcome::Garbage;
}

// Of a line too long, enough to tell its kind and show how it began.
constexpr int kTooLongBytesKept = 256;

} // namespace

LineTraffic::LineTraffic(std::function<qint64()> clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
{
}

void LineTraffic::attach(MessageViewModules *module)
{
    disconnect(m_connection);
    m_connection = connect(module, &MessageViewModules::linesSeen, this, &LineTraffic::take);
}

void LineTraffic::take(const QVector<MessageViewModules::SeenLine> &lines)
{
    const qint64 receivedMs = m_clock();
    for (const MessageViewModules::SeenLine &line : lines) {
        if (line.continuesLine && m_tooLong) {
            m_tooLong->size += line.bytes.size();
            continue;
        }
        finish();
        LineRecord record;
        record.receivedMs = receivedMs;
        record.outcome = outcomeOf(line.outcome);
        record.page = line.page;
        record.size = line.bytes.size();
        record.kind = messageKind(line.bytes.constData(), line.bytes.size());
        if (record.outcome == LineOutcome::TooLong) {
            record.bytes = line.bytes.left(kTooLongBytesKept);
            m_tooLong = std::move(record);
            continue;
        }
        record.bytes = line.bytes;
        this->record(std::move(record));
    }
}

void LineTraffic::finish()
{
    if (!m_tooLong)
        return;
    LineRecord tooLong = std::move(*m_tooLong);
    m_tooLong.reset();
    record(std::move(tooLong));
}

void LineTraffic::record(LineRecord record)
{
    ++m_outcomes.at(size_t(record.outcome));
    if (record.outcome == LineOutcome::Taken)
        ++m_takenByKind[record.kind];
    m_statistics.add(record);
    if (m_sink)
        m_sink(record);
}

void LineTraffic::reset()
{
    m_tooLong.reset();
    m_statistics.reset();
    m_takenByKind.clear();
    m_outcomes.fill(0);
}

QVector<QPair<QByteArray, quint64>> LineTraffic::kindsWithoutPage() const
{
    QVector<QPair<QByteArray, quint64>> kinds;
    for (const KindStatistics &kind : m_statistics.kinds(m_statistics.latestMs())) {
        if (!m_takenByKind.contains(kind.kind))
            kinds.append({kind.kind, kind.lines});
    }
    return kinds;
}
