// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "correctionstatistics.h"
#include "receivertypes.h"
#include "refreshingview.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include <functional>

class QLabel;
class QTableView;

// One row per RTCM 3 message number as of the last update(); Qt::UserRole gives the
// values to sort by.
class CorrectionTypesModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { TypeColumn, NameColumn, CountColumn, RateColumn, AgeColumn, ColumnCount };

    explicit CorrectionTypesModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    void update(const QVector<CorrectionTypeFigures> &types, qint64 nowMs);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVector<CorrectionTypeFigures> m_types;
    qint64 m_nowMs = 0;
};

// The correction stream at a glance: where it comes from and how it fares, the base
// station and its distance, the satellites and signals per system of the latest MSM
// epochs, and every message number with its count and rate. It reads the figures when
// shown and then once a second, and not at all while hidden.
class CorrectionsView : public RefreshingView
{
    Q_OBJECT
public:
    // corrections gives the figures as of now, timed by the wall clock (milliseconds
    // since the epoch); fix the receiver's position for the baseline to the base.
    CorrectionsView(std::function<CorrectionSnapshot()> corrections, std::function<FixInfo()> fix,
                    QWidget *parent = nullptr);

    // Where the corrections come from and how that link fares (never with a password).
    void setLinkText(const QString &text);
    void refresh() override;

    QString summaryText() const;
    const CorrectionTypesModel &model() const { return m_model; }

protected:

private:
    std::function<CorrectionSnapshot()> m_corrections;
    std::function<FixInfo()> m_fix;
    QString m_linkText;
    QLabel *m_summary;
    CorrectionTypesModel m_model;
    QSortFilterProxyModel m_sorted;
    QTableView *m_table;
};

// The lines above the table: link, totals, base station and baseline, one per system.
QString correctionsSummary(const QString &linkText, const CorrectionSnapshot &snapshot, const FixInfo &fix);
