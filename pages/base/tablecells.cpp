// SPDX-License-Identifier: BSD-3-Clause
#include "tablecells.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

bool splitRecordBody(const QString &line, FieldViews &fields)
{
    const int semicolon = line.indexOf(QLatin1Char(';'));
    if (semicolon < 0)
        return false;
    splitFields(QStringView(line).mid(semicolon + 1), fields);
    return true;
}

QVariant ValueCell::data(int role) const
{
    if (role != Qt::ToolTipRole)
        return QTableWidgetItem::data(role);
    const QTableWidget *table = tableWidget();
    const QTableWidgetItem *header = table ? table->horizontalHeaderItem(column()) : nullptr;
    const QString value = text();
    if (!header || table->fontMetrics().horizontalAdvance(value) <= table->fontMetrics().horizontalAdvance(header->text()))
        return QVariant();
    return value;
}

void createCellItems(QTableWidget *table, Qt::Alignment alignment)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            auto *item = new ValueCell;
            item->setTextAlignment(alignment);
            table->setItem(row, column, item);
        }
    }
}

void blankRows(QTableWidget *table, int rows)
{
    const int last = std::min(rows, table->rowCount());
    for (int row = 0; row < last; ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            table->item(row, column)->setText(QString());
    }
}

void fitColumnsToLongValues(QTableWidget *table)
{
    QHeaderView *header = table->horizontalHeader();
    for (int column = 0; column < table->columnCount(); ++column) {
        // The view sizes a column to the wider of its values and its header; a column
        // of short values that was wide enough for its header keeps its width.
        const int width = header->sectionSize(column);
        table->resizeColumnToContents(column);
        const int fitted = header->sectionSize(column);
        if (fitted <= header->sectionSizeHint(column) && fitted <= width)
            header->resizeSection(column, width);
    }
}

void setColumnHeaders(QTableWidget *table, const char *context, const QVector<const char *> &headers)
{
    for (int column = 0; column < headers.size() && column < table->columnCount(); ++column) {
        QTableWidgetItem *item = table->horizontalHeaderItem(column);
        if (!item) {
            item = new QTableWidgetItem;
            table->setHorizontalHeaderItem(column, item);
        }
        item->setText(QCoreApplication::translate(context, headers.at(column)));
    }
}

void setListTableBehaviour(QTableWidget *table)
{
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->horizontalHeader()->setStretchLastSection(true);
}

FieldBlock::FieldBlock(QTableWidget *table, const char *context, QVector<FieldRow> rows)
    : m_table(table)
    , m_context(context)
    , m_rows(std::move(rows))
{
    table->setColumnCount(4);
    table->setRowCount(m_rows.size());
    for (int row = 0; row < m_rows.size(); ++row) {
        for (int column = 0; column < 4; ++column)
            table->setItem(row, column, column == 1 ? new ValueCell : new QTableWidgetItem);
        table->item(row, 1)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    retranslate();
    table->resizeColumnsToContents();
    table->setColumnWidth(1, 110);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->horizontalHeader()->setStretchLastSection(true);
}

void FieldBlock::retranslate()
{
    setFieldTableHeaderTexts(m_table);
    for (int row = 0; row < m_rows.size(); ++row) {
        const FieldRow &texts = m_rows.at(row);
        m_table->item(row, 0)->setText(QCoreApplication::translate(m_context, texts.label));
        m_table->item(row, 2)->setText(QCoreApplication::translate(m_context, texts.unit));
        m_table->item(row, 3)->setText(QCoreApplication::translate(m_context, texts.description));
    }
}

void FieldBlock::write(const FieldViews &fields)
{
    const int rows = std::min(int(m_rows.size()), int(fields.size()));
    for (int row = 0; row < rows; ++row)
        m_table->item(row, 1)->setText(fields.at(row).toString());
}
