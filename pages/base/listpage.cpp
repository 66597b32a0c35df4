// SPDX-License-Identifier: BSD-3-Clause
#include "listpage.h"

#include "linechecksum.h"
#include "routetable.h"
#include "trackingstatus.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMetaObject>
#include <QTableWidget>

#include <algorithm>

ListPageSpec ListPageSpec::log(const QMetaObject &page, QVector<ListColumn> columns)
{
    return ListPageSpec(page, std::move(columns));
}

ListPageSpec::ListPageSpec(const QMetaObject &page, QVector<ListColumn> columns)
    : m_context(page.className())
    , m_columns(std::move(columns))
    , m_stride(m_columns.size())
{
}

namespace {

QString cellText(ListColumn::Format format, QStringView field)
{
    switch (format) {
    case ListColumn::Text:
        return field.toString();
    case ListColumn::SignalName:
        // A word that does not parse reads as 0, which names GPS L1 C/A.
        return trackingStatusSignalName(field.toInt(nullptr, 16));
    case ListColumn::Hundredths:
        return QString::number(field.toInt() / 100.0, 'f', 2);
    }
    return QString();
}

} // namespace

ListPage::ListPage(const ListPageSpec &spec, QWidget *parent, const QString &introStr, QTreeWidgetItem *treeParent)
    : MsgBaseWidget(parent, introStr, treeParent)
    , m_spec(spec)
    , m_route(routeOfPage(spec.m_context, introStr))
{
    Q_ASSERT(m_route.checksumBeforeTaking == !spec.m_openWord);
    resize(spec.m_windowSize);
    auto *layout = new QVBoxLayout(this);
    layout->setObjectName(QStringLiteral("verticalLayout"));

    if (spec.m_countEditName) {
        auto *countLayout = new QHBoxLayout;
        countLayout->setObjectName(QStringLiteral("horizontalLayout"));
        for (int i = 0; i < spec.m_countLabels.size(); ++i) {
            auto *label = new QLabel(this);
            label->setObjectName(i == 0 ? QStringLiteral("label") : QStringLiteral("label_%1").arg(i + 1));
            countLayout->addWidget(label);
            m_countLabels.append(label);
        }
        m_countEdit = new QLineEdit(this);
        m_countEdit->setObjectName(QLatin1String(spec.m_countEditName));
        m_countEdit->setReadOnly(true);
        countLayout->addWidget(m_countEdit);
        layout->addLayout(countLayout);
    }

    m_table = new QTableWidget(this);
    m_table->setObjectName(QLatin1String(spec.m_listName));
    m_table->setColumnCount(spec.m_columns.size());
    m_table->setRowCount(spec.m_rows);
    createCellItems(m_table, Qt::AlignCenter);
    setListTableBehaviour(m_table);

    if (spec.m_leadingName) {
        auto *tables = new QHBoxLayout;
        tables->setObjectName(QStringLiteral("tableLayout"));
        auto *leadingTable = new QTableWidget(this);
        leadingTable->setObjectName(QLatin1String(spec.m_leadingName));
        m_leading.reset(new FieldBlock(leadingTable, spec.m_context, spec.m_leadingRows));
        tables->addWidget(leadingTable);
        tables->addWidget(m_table);
        layout->addLayout(tables);
    } else {
        layout->addWidget(m_table);
    }
    onRetranslateUI();
}

ListPage::~ListPage() = default;

void ListPage::onRetranslateUI()
{
    const char *context = m_spec.m_context;
    setWindowTitle(QCoreApplication::translate(context, "Form"));
    for (int i = 0; i < m_countLabels.size(); ++i) {
        const char *text = m_spec.m_countLabels.at(i);
        m_countLabels.at(i)->setText(*text ? QCoreApplication::translate(context, text) : QString());
    }
    QVector<const char *> headers;
    headers.reserve(m_spec.m_columns.size());
    for (const ListColumn &column : m_spec.m_columns)
        headers.append(column.header);
    setColumnHeaders(m_table, context, headers);
    if (m_leading)
        m_leading->retranslate();
    emit retranslate();
}

bool ListPage::parse(QString line)
{
    if (!m_route.matchesHeader(line))
        return false;
    return m_route.checksumBeforeTaking ? parseLog(line) : parseGroupLine(line);
}

bool ListPage::parseLog(const QString &line)
{
    if (!checkLineChecksum(line))
        return false;
    // A hidden page still owns its line (the tree marks it) but spends nothing on it.
    if (!isVisible())
        return true;
    // The old rows go as soon as the line is known to be this page's, so a line
    // whose body then proves unreadable leaves an empty table rather than a stale one.
    if (!m_spec.m_blankOnAccept)
        blankPreviousRows();
    if (!splitRecordBody(line, m_fields))
        return false;
    if (m_spec.m_blankOnAccept)
        blankPreviousRows();
    if (m_leading)
        m_leading->write(m_fields);

    const int rows = rowsInLine();
    fillRows(0, rows);
    m_previousRows = qint16(std::min(rows, m_spec.m_rows));
    if (m_countEdit) {
        // The full count, also when the table shows only its first rows.
        m_countEdit->setText(m_spec.m_countFromFirstField ? m_fields.at(0).toString() : QString::number(rows));
    }
    return true;
}

bool ListPage::parseGroupLine(const QString &line)
{
    if (!isVisible())
        return true;
    // Only the lines that open and close a group are checksummed; the lines of the
    // constellations between them are taken unchecked, as the receiver's tools do.
    if (line.contains(QLatin1String(m_spec.m_openWord))) {
        m_groupRows = 0;
        m_groupOpen = true;
        blankPreviousRows();
        if (!checkLineChecksum(line))
            return false;
    } else if (line.contains(QLatin1String(m_spec.m_closeWord))) {
        m_groupOpen = false;
        if (!checkLineChecksum(line))
            return false;
    }
    if (!splitRecordBody(line, m_fields))
        return false;

    const int rows = rowsInLine();
    fillRows(m_groupRows, rows);
    m_groupRows += rows;
    // A group whose closing line never comes never shows a total.
    if (!m_groupOpen && m_countEdit)
        m_countEdit->setText(QString::number(m_groupRows));
    m_previousRows = qint16(std::min<qint64>(m_groupRows, m_spec.m_rows));
    return true;
}

int ListPage::rowsInLine() const
{
    // Whole groups only; a list shorter than its leading fields holds none.
    return std::max(0, (int(m_fields.size()) - m_spec.m_uncounted) / m_spec.m_stride);
}

void ListPage::fillRows(qint64 firstRow, int rows)
{
    const int fieldCount = m_fields.size();
    const int rowLimit = m_table->rowCount();
    for (int r = 0; r < rows && firstRow + r < rowLimit; ++r) {
        const int row = int(firstRow + r);
        int field = m_spec.m_firstField + m_spec.m_stride * r;
        for (int column = 0; column < m_spec.m_columns.size(); ++column) {
            const ListColumn &spec = m_spec.m_columns.at(column);
            const int index = spec.lineField >= 0 ? spec.lineField : field++;
            // A group cut short by the end of the list shows its missing fields empty.
            m_table->item(row, column)->setText(index < fieldCount ? cellText(spec.format, m_fields.at(index))
                                                                   : QString());
        }
    }
    if (!m_columnsFitted && rows > 0 && firstRow < rowLimit) {
        fitColumnsToLongValues(m_table);
        m_columnsFitted = true;
    }
}

void ListPage::blankPreviousRows()
{
    blankRows(m_table, m_previousRows);
}
