// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "messagestatistics.h"
#include "refreshingview.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include <functional>

class QLabel;
class QTableView;

// One row per kind of message as of the last update(); Qt::UserRole gives the values
// to sort by (numbers as numbers).
class MessageStatisticsModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column {
        KindColumn,
        LinesColumn,
        BadChecksumColumn,
        BytesColumn,
        RateColumn,
        MeanGapColumn,
        LargestGapColumn,
        SinceLastColumn,
        ColumnCount
    };

    explicit MessageStatisticsModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    // Kinds only ever come after those already there, so the rows are kept (and a
    // selection and a sort with them) unless the kinds start over.
    void update(const QVector<KindStatistics> &kinds, qint64 nowMs);
    const KindStatistics &kindAt(int row) const { return m_kinds.at(row); }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVariant value(const KindStatistics &kind, int column) const;

    QVector<KindStatistics> m_kinds;
    qint64 m_nowMs = 0;
};

// The statistics per kind as a sortable table with the totals above it. It reads the
// statistics when shown and then once a second, and not at all while hidden.
class MessageStatisticsView : public RefreshingView
{
    Q_OBJECT
public:
    explicit MessageStatisticsView(MessageStatistics &statistics, QWidget *parent = nullptr);

    // What "now" is for rates and "since last": the wall clock unless set (a replay
    // can pass the statistics' latestMs()).
    void setClock(std::function<qint64()> clock);
    void refresh() override;

    const MessageStatisticsModel &model() const { return m_model; }
    QTableView *table() const { return m_table; }
    QString totalsText() const;

signals:
    void kindSelected(const QByteArray &kind);

protected:

private:
    MessageStatistics &m_statistics;
    std::function<qint64()> m_clock;
    MessageStatisticsModel m_model;
    QSortFilterProxyModel m_sorted;
    QTableView *m_table;
    QLabel *m_totals;
};
