// SPDX-License-Identifier: BSD-3-Clause
#include "messagestatisticsview.h"

#include "tablestyle.h"
#include "viewpalette.h"

#include <QBoxLayout>
#include <QDateTime>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

namespace {

QString byteRate(double bytesPerSecond)
{
    static const char *const units[] = {"B/s", "kB/s", "MB/s", "GB/s"};
    int unit = 0;
    while (bytesPerSecond >= 1000 && unit < 3) {
        bytesPerSecond /= 1000;
        ++unit;
    }
    return QStringLiteral("%1 %2").arg(bytesPerSecond, 0, 'f', unit == 0 ? 0 : 1).arg(QLatin1String(units[unit]));
}

} // namespace

void MessageStatisticsModel::update(const QVector<KindStatistics> &kinds, qint64 nowMs)
{
    const int kept = m_kinds.size();
    const bool sameKinds = kinds.size() >= kept && std::equal(m_kinds.cbegin(), m_kinds.cend(), kinds.cbegin(),
        [](const KindStatistics &a, const KindStatistics &b) { return a.kind == b.kind; });
    m_nowMs = nowMs;
    if (!sameKinds) {
        beginResetModel();
        m_kinds = kinds;
        endResetModel();
        return;
    }
    std::copy(kinds.cbegin(), kinds.cbegin() + kept, m_kinds.begin());
    if (kept > 0)
        emit dataChanged(index(0, 0), index(kept - 1, ColumnCount - 1));
    if (kinds.size() > kept) {
        beginInsertRows(QModelIndex(), kept, kinds.size() - 1);
        m_kinds += kinds.mid(kept);
        endInsertRows();
    }
}

int MessageStatisticsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_kinds.size();
}

int MessageStatisticsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MessageStatisticsModel::value(const KindStatistics &kind, int column) const
{
    switch (column) {
    case KindColumn: return QString::fromLatin1(kind.kind);
    case LinesColumn: return kind.lines;
    case BadChecksumColumn: return kind.badChecksum;
    case BytesColumn: return kind.bytes;
    case RateColumn: return kind.rateHz;
    case MeanGapColumn: return kind.meanGapS;
    case LargestGapColumn: return kind.largestGapS;
    default: break;
    }
    return std::max(0.0, (double(m_nowMs) - double(kind.lastMs)) / 1000.0);
}

QVariant MessageStatisticsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_kinds.size())
        return {};
    const KindStatistics &kind = m_kinds.at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::UserRole: return value(kind, column);
    case Qt::DisplayRole:
        switch (column) {
        case KindColumn: return value(kind, column);
        case LinesColumn: case BadChecksumColumn: case BytesColumn: return QLocale().toString(value(kind, column).toULongLong());
        case RateColumn: return QString::number(kind.rateHz, 'f', 2);
        case SinceLastColumn: return QString::number(value(kind, column).toDouble(), 'f', 1);
        default: break;
        }
        return QString::number(value(kind, column).toDouble(), 'f', 3);
    case Qt::TextAlignmentRole: return headerData(column, Qt::Horizontal, role);
    case Qt::ForegroundRole:
        if (column == BadChecksumColumn && kind.badChecksum > 0)
            return ViewPalette::outcomeColours(LineOutcome::BadChecksum).foreground;
        return {};
    default: break;
    }
    return {};
}

QVariant MessageStatisticsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return section == KindColumn ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case KindColumn: return tr("Kind");
    case LinesColumn: return tr("Lines");
    case BadChecksumColumn: return tr("Bad checksum");
    case BytesColumn: return tr("Bytes");
    case RateColumn: return tr("Rate Hz");
    case MeanGapColumn: return tr("Mean gap s");
    case LargestGapColumn: return tr("Largest gap s");
    default: break;
    }
    return tr("Since last s");
}

MessageStatisticsView::MessageStatisticsView(MessageStatistics &statistics, QWidget *parent)
    : RefreshingView(parent)
    , m_statistics(statistics)
    , m_clock(&QDateTime::currentMSecsSinceEpoch)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *controlRow = new QHBoxLayout;
    controlRow->setContentsMargins(8, 4, 8, 4);
    m_totals = new QLabel(this);
    m_totals->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *reset = new QPushButton(tr("Reset"), this);
    reset->setToolTip(tr("Start counting afresh"));
    controlRow->addWidget(m_totals, 1);
    controlRow->addWidget(reset);
    layout->addLayout(controlRow);

    m_sorted.setSourceModel(&m_model);
    m_sorted.setSortRole(Qt::UserRole);
    m_table = new QTableView(this);
    m_table->setModel(&m_sorted);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(MessageStatisticsModel::KindColumn, Qt::AscendingOrder);
    setUpTrafficTable(m_table);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    setColumnsWide(m_table, {QStringLiteral("PQTMVERNO"), QStringLiteral("000,000"), QString(),
                             QStringLiteral("00,000,000"), QString(), QString(), QString()});
    layout->addWidget(m_table, 1);

    connect(reset, &QPushButton::clicked, this, [this] {
        m_statistics.reset();
        refresh();
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex &current) {
        if (current.isValid())
            emit kindSelected(m_model.kindAt(m_sorted.mapToSource(current).row()).kind);
    });
}

void MessageStatisticsView::setClock(std::function<qint64()> clock)
{
    m_clock = std::move(clock);
}

void MessageStatisticsView::refresh()
{
    const qint64 nowMs = m_clock();
    m_model.update(m_statistics.kinds(nowMs), nowMs);
    const TrafficTotals totals = m_statistics.totals(nowMs);
    const QLocale locale;
    m_totals->setText(tr("%1 · %2 lines/s · %3 lines · %4 garbage bytes · %5 damaged lines")
                          .arg(byteRate(totals.bytesPerSecond))
                          .arg(totals.linesPerSecond, 0, 'f', 1)
                          .arg(locale.toString(totals.lines), locale.toString(totals.garbageBytes),
                               locale.toString(totals.damagedLines)));
}

QString MessageStatisticsView::totalsText() const
{
    return m_totals->text();
}
