// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "kindindex.h"
#include "linering.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QRegularExpression>
#include <QSet>
#include <QTimer>

// Which lines the console table shows.
struct LineFilter
{
    static constexpr quint8 allOutcomes = 0x7f;
    static quint8 outcomeBit(LineOutcome outcome) { return quint8(1u << int(outcome)); }

    QSet<QByteArray> hiddenKinds; // KindIndex::otherKinds() hides every kind past the limit
    quint8 shownOutcomes = allOutcomes;
    // Looked for in the line without its line end; empty: every line.
    QString text;
    bool regularExpression = false;
    Qt::CaseSensitivity caseSensitivity = Qt::CaseInsensitive;
};

// The newest lines of the stream as table rows, oldest on top, filtered. Lines are
// appended one by one but become rows in batches (every flushIntervalMs, or flush()),
// so a table over the model redraws a few times a second however fast lines come.
// While paused the rows stay as they are and the lines appended meanwhile wait, the
// newest capacity() of them; resuming shows what would be there without the pause.
class PacketConsoleModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { TimeColumn, KindColumn, LengthColumn, OutcomeColumn, TextColumn, ColumnCount };
    static constexpr int flushIntervalMs = 200;
    // Of a line in the text column; copied and saved lines are whole.
    static constexpr int maxShownBytes = 1024;

    explicit PacketConsoleModel(QObject *parent = nullptr);

    void append(LineRecord record);
    void flush();
    void setPaused(bool paused);
    bool isPaused() const { return m_paused; }
    void setCapacity(int lines);
    int capacity() const { return m_shown.capacity(); }
    void clear();

    // Filters every line kept again; new lines are filtered as they come.
    void setFilter(const LineFilter &filter);
    const LineFilter &filter() const { return m_filter; }
    // Why the regular expression is not valid; empty when it is (an invalid one filters
    // nothing out).
    QString filterError() const;

    // The kinds seen since clear(), in the order they came.
    const KindIndex &kinds() const { return m_kinds; }
    // Kept as rows could show them, before the filter.
    int keptLines() const { return m_shown.size(); }
    const LineRecord &record(int row) const;
    // One line per row, TAB-separated columns, the line's text whole.
    QString rowsText(QVector<int> rows) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

signals:
    void kindsChanged();

private:
    bool matches(const LineRecord &record) const;
    quint64 firstNumber() const { return m_shown.appendedTotal() - quint64(m_shown.size()); }
    void refilter();

    LineRing m_shown;
    LineRing m_waiting;
    // The numbers (as LineRing::appendedTotal() counts) of the shown lines that pass
    // the filter, in order.
    QVector<quint64> m_rows;
    KindIndex m_kinds;
    LineFilter m_filter;
    QRegularExpression m_expression;
    QTimer m_flushTimer;
    bool m_paused = false;
    QFont m_fixedFont;
};
