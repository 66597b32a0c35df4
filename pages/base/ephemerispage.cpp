// SPDX-License-Identifier: BSD-3-Clause
#include "ephemerispage.h"

#include "linechecksum.h"
#include "routetable.h"
#include "tablecells.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QMetaObject>
#include <QTableWidget>

EphemerisSpec EphemerisSpec::log(const QMetaObject &page, QVector<const char *> columns)
{
    return EphemerisSpec(page, std::move(columns));
}

EphemerisSpec::EphemerisSpec(const QMetaObject &page, QVector<const char *> columns)
    : m_context(page.className())
    , m_columns(std::move(columns))
{
}

EphemerisPage::EphemerisPage(const EphemerisSpec &spec, QWidget *parent, const QString &introStr,
                             QTreeWidgetItem *treeParent)
    : MsgBaseWidget(parent, introStr, treeParent)
    , m_spec(spec)
    , m_route(routeOfPage(spec.m_context, introStr))
{
    auto *layout = new QHBoxLayout(this);
    layout->setObjectName(QStringLiteral("horizontalLayout"));
    m_table = new QTableWidget(this);
    m_table->setObjectName(QStringLiteral("tableWidget"));
    m_table->setColumnCount(spec.m_columns.size());
    m_table->setRowCount(spec.m_rows);
    createCellItems(m_table, Qt::AlignCenter);
    setListTableBehaviour(m_table);
    layout->addWidget(m_table);
    onRetranslateUI();
}

EphemerisPage::~EphemerisPage() = default;

void EphemerisPage::onRetranslateUI()
{
    setWindowTitle(QCoreApplication::translate(m_spec.m_context, "Form"));
    setColumnHeaders(m_table, m_spec.m_context, m_spec.m_columns);
    emit retranslate();
}

bool EphemerisPage::parse(QString line)
{
    const bool ownHeader = m_route.matchesHeader(line);
    if (m_spec.m_headerAnywhere ? !line.contains(m_route.header) : !ownHeader)
        m_burstOpen = false;
    if (!ownHeader)
        return false;

    // The first line of a burst wipes the previous burst before it is even checked,
    // so a corrupt first line still starts the new burst.
    if (!m_burstOpen) {
        blankRows(m_table, m_filled);
        m_filled = 0;
        m_burstOpen = true;
    }
    if (!checkLineChecksum(line))
        return false;
    if (!isVisible())
        return true;

    const int columns = m_spec.m_columns.size();
    if (!splitRecordBody(line, m_fields) || m_fields.size() != columns + 1)
        return false;
    // Satellites beyond the cap are taken but not shown.
    if (m_filled < m_spec.m_rowCap) {
        for (int column = 0; column < columns; ++column)
            m_table->item(m_filled, column)->setText(m_fields.at(column).toString());
        ++m_filled;
        if (!m_columnsFitted) {
            fitColumnsToLongValues(m_table);
            m_columnsFitted = true;
        }
    }
    return true;
}
