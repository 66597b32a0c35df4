// SPDX-License-Identifier: BSD-3-Clause
#include "correctionsview.h"

#include "tablestyle.h"

#include <QDateTime>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTableView>
#include <QVBoxLayout>

#include <cmath>

namespace {

QString secondsAgo(qint64 ms)
{
    return ms < 0 ? QStringLiteral("-") : QString::number(ms / 1000.0, 'f', 1);
}

QString degrees(double value, char positive, char negative)
{
    return QStringLiteral("%1°%2").arg(std::abs(value), 0, 'f', 7).arg(QLatin1Char(value < 0 ? negative : positive));
}

} // namespace

void CorrectionTypesModel::update(const QVector<CorrectionTypeFigures> &types, qint64 nowMs)
{
    m_nowMs = nowMs;
    // Message numbers only ever join: rows already shown keep their place.
    if (types.size() != m_types.size()) {
        beginResetModel();
        m_types = types;
        endResetModel();
        return;
    }
    m_types = types;
    if (!m_types.isEmpty())
        emit dataChanged(index(0, 0), index(m_types.size() - 1, ColumnCount - 1));
}

int CorrectionTypesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_types.size();
}

int CorrectionTypesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CorrectionTypesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_types.size())
        return {};
    const CorrectionTypeFigures &type = m_types.at(index.row());
    const qint64 ageMs = m_nowMs - type.lastMs;
    if (role == Qt::UserRole) {
        switch (index.column()) {
        case TypeColumn: return type.messageType;
        case NameColumn: return type.name;
        case CountColumn: return type.count;
        case RateColumn: return type.rateHz;
        default: return ageMs;
        }
    }
    if (role == Qt::TextAlignmentRole)
        return index.column() == NameColumn ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case TypeColumn: return type.messageType;
    case NameColumn: return type.name;
    case CountColumn: return QLocale().toString(type.count);
    case RateColumn: return QString::number(type.rateHz, 'f', 1);
    default: return secondsAgo(ageMs);
    }
}

QVariant CorrectionTypesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case TypeColumn: return tr("Message");
    case NameColumn: return tr("Name");
    case CountColumn: return tr("Count");
    case RateColumn: return tr("Rate Hz");
    default: return tr("Age s");
    }
}

QString correctionsSummary(const QString &linkText, const CorrectionSnapshot &snapshot, const FixInfo &fix)
{
    const QLocale locale;
    QStringList lines;
    lines << (linkText.isEmpty() ? QObject::tr("No correction stream") : linkText);
    lines << QObject::tr("%1 bytes · %2 frames · %3 CRC failures · last frame %4 s ago")
                 .arg(locale.toString(snapshot.bytes), locale.toString(snapshot.frames),
                      locale.toString(snapshot.crcFailures), secondsAgo(snapshot.lastFrameAgeMs));
    QString station = snapshot.stationId < 0 ? QObject::tr("Station -") : QObject::tr("Station %1").arg(snapshot.stationId);
    if (snapshot.referenceValid) {
        station += QObject::tr(" · %1 %2 %3 m (%4)")
                       .arg(degrees(snapshot.referenceLat, 'N', 'S'), degrees(snapshot.referenceLon, 'E', 'W'))
                       .arg(snapshot.referenceHeight, 0, 'f', 3)
                       .arg(snapshot.referenceMessageType);
        const double baseline = fix.hasPosition() && isKnown(fix.heightEllipsoid)
            ? baselineMetres(snapshot, fix.lat, fix.lon, fix.heightEllipsoid)
            : kRtcmUnknown;
        if (!std::isnan(baseline))
            station += QObject::tr(" · baseline %1 km").arg(baseline / 1000.0, 0, 'f', 3);
    }
    lines << station;
    for (const CorrectionSystemFigures &system : snapshot.systems) {
        if (system.messageType == 0)
            continue;
        lines << QObject::tr("%1 %2: %3 satellites, %4 signals")
                     .arg(rtcm3SystemName(system.system))
                     .arg(system.messageType)
                     .arg(system.satelliteCount)
                     .arg(system.signalCount);
    }
    return lines.join(QLatin1Char('\n'));
}

CorrectionsView::CorrectionsView(std::function<CorrectionSnapshot()> corrections, std::function<FixInfo()> fix,
                                 QWidget *parent)
    : RefreshingView(parent)
    , m_corrections(std::move(corrections))
    , m_fix(std::move(fix))
    , m_summary(new QLabel(this))
    , m_table(new QTableView(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_summary->setContentsMargins(8, 4, 8, 4);
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_summary->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    layout->addWidget(m_summary);

    m_sorted.setSourceModel(&m_model);
    m_sorted.setSortRole(Qt::UserRole);
    m_table->setModel(&m_sorted);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(CorrectionTypesModel::TypeColumn, Qt::AscendingOrder);
    setUpTrafficTable(m_table);
    m_table->setAlternatingRowColors(true);
    setColumnsWide(m_table, {QStringLiteral("00000"), QStringLiteral("GLONASS ephemeris"), QStringLiteral("000,000"),
                             QStringLiteral("00.0"), QString()});
    layout->addWidget(m_table, 1);
}

void CorrectionsView::setLinkText(const QString &text)
{
    m_linkText = text;
    if (isVisible())
        refresh();
}

void CorrectionsView::refresh()
{
    const CorrectionSnapshot snapshot = m_corrections();
    const qint64 nowMs = QDateTime::currentMSecsSinceEpoch();
    m_model.update(snapshot.messageTypes, nowMs);
    m_summary->setText(correctionsSummary(m_linkText, snapshot, m_fix()));
}

QString CorrectionsView::summaryText() const
{
    return m_summary->text();
}
