// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "linerecord.h"
#include "messagestatistics.h"
#include "messageviewmodules.h"

#include <QHash>
#include <array>
#include <QObject>
#include <functional>
#include <optional>

// The console's account of every line: what the module reports of each line and of
// each stretch of garbage becomes a record, counted per kind and handed to the packet
// console. A line too long comes from the module in stretches; it becomes one record.
class LineTraffic : public QObject
{
    Q_OBJECT
public:
    // clock: what a record is stamped with (ms since the epoch).
    explicit LineTraffic(std::function<qint64()> clock, QObject *parent = nullptr);

    // Reports of this module from now on (a module made anew must be attached again).
    void attach(MessageViewModules *module);
    // Every record, as it is made.
    void setSink(std::function<void(const LineRecord &)> sink) { m_sink = std::move(sink); }
    // Records a line too long whose end is still awaited (the input has ended).
    void finish();
    void reset();

    MessageStatistics &statistics() { return m_statistics; }
    const MessageStatistics &statistics() const { return m_statistics; }
    qint64 now() const { return m_clock(); }
    // The kinds no line of which a page took, with their line counts, in order of coming.
    QVector<QPair<QByteArray, quint64>> kindsWithoutPage() const;
    quint64 count(LineOutcome outcome) const { return m_outcomes.at(size_t(outcome)); }

private:
    void take(const QVector<MessageViewModules::SeenLine> &lines);
    void record(LineRecord record);

    std::function<qint64()> m_clock;
    std::function<void(const LineRecord &)> m_sink;
    MessageStatistics m_statistics;
    QHash<QByteArray, quint64> m_takenByKind;
    std::array<quint64, size_t(LineOutcome::Garbage) + 1> m_outcomes{};
    std::optional<LineRecord> m_tooLong;
    QMetaObject::Connection m_connection;
};
