// SPDX-License-Identifier: BSD-3-Clause
#include "packetconsolemodel.h"

#include "viewpalette.h"

#include <QDateTime>
#include <QFontDatabase>

#include <algorithm>

namespace {

QString cellText(const LineRecord &record, int column, int maxBytes)
{
    switch (column) {
    case PacketConsoleModel::TimeColumn:
        return QDateTime::fromMSecsSinceEpoch(record.receivedMs, Qt::UTC).toString(QStringLiteral("hh:mm:ss.zzz"));
    case PacketConsoleModel::KindColumn: return QString::fromLatin1(record.kind);
    case PacketConsoleModel::LengthColumn: return QString::number(record.size);
    case PacketConsoleModel::OutcomeColumn: return lineOutcomeName(record.outcome);
    default: break;
    }
    return lineText(record.bytes, record.outcome == LineOutcome::Garbage, maxBytes);
}

// An invalid colour as a brush would paint black.
QVariant colourOrNothing(const QColor &colour)
{
    return colour.isValid() ? QVariant(colour) : QVariant();
}

} // namespace

PacketConsoleModel::PacketConsoleModel(QObject *parent)
    : QAbstractTableModel(parent)
    , m_fixedFont(QFontDatabase::systemFont(QFontDatabase::FixedFont))
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(flushIntervalMs);
    connect(&m_flushTimer, &QTimer::timeout, this, &PacketConsoleModel::flush);
}

void PacketConsoleModel::append(LineRecord record)
{
    m_waiting.append(std::move(record));
    if (!m_paused && !m_flushTimer.isActive())
        m_flushTimer.start();
}

void PacketConsoleModel::flush()
{
    m_flushTimer.stop();
    if (m_waiting.size() == 0)
        return;
    const int kindsBefore = m_kinds.size();
    const quint64 firstNew = m_shown.appendedTotal();
    for (int i = 0; i < m_waiting.size(); ++i) {
        const LineRecord &record = m_waiting.at(i);
        if (!record.kind.isEmpty())
            m_kinds.add(record.kind);
        m_shown.append(record);
    }
    m_waiting.clear();

    const quint64 first = firstNumber();
    const int stale = int(std::lower_bound(m_rows.cbegin(), m_rows.cend(), first) - m_rows.cbegin());
    if (stale > 0) {
        beginRemoveRows(QModelIndex(), 0, stale - 1);
        m_rows.remove(0, stale);
        endRemoveRows();
    }
    QVector<quint64> added;
    // m_waiting is bounded as m_shown is, so every line of the batch is still there.
    for (quint64 number = firstNew; number < m_shown.appendedTotal(); ++number) {
        if (matches(m_shown.at(int(number - first))))
            added << number;
    }
    if (!added.isEmpty()) {
        beginInsertRows(QModelIndex(), m_rows.size(), m_rows.size() + added.size() - 1);
        m_rows += added;
        endInsertRows();
    }
    if (m_kinds.size() != kindsBefore)
        emit kindsChanged();
}

void PacketConsoleModel::setPaused(bool paused)
{
    m_paused = paused;
    if (paused)
        m_flushTimer.stop();
    else
        flush();
}

// Both rings keep their newest lines, so a flush after it still leaves the newest
// `lines` of all.
void PacketConsoleModel::setCapacity(int lines)
{
    m_waiting.setCapacity(lines);
    beginResetModel();
    m_shown.setCapacity(lines);
    refilter();
    endResetModel();
}

void PacketConsoleModel::clear()
{
    beginResetModel();
    m_shown.clear();
    m_waiting.clear();
    m_rows.clear();
    m_kinds.clear();
    endResetModel();
    emit kindsChanged();
}

void PacketConsoleModel::setFilter(const LineFilter &filter)
{
    beginResetModel();
    m_filter = filter;
    m_expression = QRegularExpression(filter.regularExpression ? filter.text : QString(),
                                      filter.caseSensitivity == Qt::CaseInsensitive
                                          ? QRegularExpression::CaseInsensitiveOption
                                          : QRegularExpression::NoPatternOption);
    refilter();
    endResetModel();
}

QString PacketConsoleModel::filterError() const
{
    return m_expression.isValid() ? QString() : m_expression.errorString();
}

bool PacketConsoleModel::matches(const LineRecord &record) const
{
    if (!(m_filter.shownOutcomes & LineFilter::outcomeBit(record.outcome)))
        return false;
    if (!record.kind.isEmpty() && !m_filter.hiddenKinds.isEmpty()) {
        const int number = m_kinds.find(record.kind);
        if (number >= 0 && m_filter.hiddenKinds.contains(m_kinds.kindAt(number)))
            return false;
    }
    if (m_filter.text.isEmpty() || !m_expression.isValid())
        return true;
    const int length = lengthWithoutLineEnd(record.bytes);
    if (m_filter.regularExpression)
        return m_expression.match(QString::fromLatin1(record.bytes.constData(), length)).hasMatch();
    return QLatin1String(record.bytes.constData(), length).contains(QStringView(m_filter.text), m_filter.caseSensitivity);
}

void PacketConsoleModel::refilter()
{
    m_rows.clear();
    const quint64 first = firstNumber();
    for (int i = 0; i < m_shown.size(); ++i) {
        if (matches(m_shown.at(i)))
            m_rows << first + quint64(i);
    }
}

const LineRecord &PacketConsoleModel::record(int row) const
{
    static const LineRecord none;
    if (row < 0 || row >= m_rows.size() || m_rows.at(row) < firstNumber())
        return none;
    return m_shown.at(int(m_rows.at(row) - firstNumber()));
}

QString PacketConsoleModel::rowsText(QVector<int> rows) const
{
    std::sort(rows.begin(), rows.end());
    QString text;
    for (int row : qAsConst(rows)) {
        if (row < 0 || row >= m_rows.size())
            continue;
        for (int column = 0; column < ColumnCount; ++column) {
            text += cellText(record(row), column, std::numeric_limits<int>::max());
            text += QLatin1Char(column + 1 < ColumnCount ? '\t' : '\n');
        }
    }
    return text;
}

int PacketConsoleModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int PacketConsoleModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PacketConsoleModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const LineRecord &line = record(index.row());
    switch (role) {
    case Qt::DisplayRole: return cellText(line, index.column(), maxShownBytes);
    case Qt::ForegroundRole: return colourOrNothing(ViewPalette::outcomeColours(line.outcome).foreground);
    case Qt::BackgroundRole: return colourOrNothing(ViewPalette::outcomeColours(line.outcome).background);
    case Qt::FontRole: return index.column() == TextColumn ? QVariant(m_fixedFont) : QVariant();
    case Qt::TextAlignmentRole: return headerData(index.column(), Qt::Horizontal, role);
    default: break;
    }
    return {};
}

QVariant PacketConsoleModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return section == LengthColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case TimeColumn: return tr("Time (UTC)");
    case KindColumn: return tr("Kind");
    case LengthColumn: return tr("Bytes");
    case OutcomeColumn: return tr("Outcome");
    default: break;
    }
    return tr("Line");
}
