// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"
#include "fieldtext.h"

#include <QTableWidgetItem>
#include <QVector>

class QTableWidget;

// A value cell. A value wider than its column's header (a pseudorange, a latitude)
// has its whole text as tooltip, for when the column is narrower than the value (a
// specified width, a later, longer value); the tooltip is worked out when asked for,
// so writing a value costs no more than with a plain item.
class ValueCell : public QTableWidgetItem
{
public:
    QVariant data(int role) const override;
    QTableWidgetItem *clone() const override { return new ValueCell(*this); }
};

// Strips a "#" log through its first ';' (the log header) and splits the record
// body into fields, the checksum last. False when the line has no ';'.
bool splitRecordBody(const QString &line, FieldViews &fields);

// A ValueCell in every cell, made once by the constructor so that a line only sets
// texts, however many rows it fills.
void createCellItems(QTableWidget *table, Qt::Alignment alignment);
// Sizes every column whose values are wider than its header to those values, and
// widens one too narrow for its header; the others keep their width. A page does it
// once, on its first values: later values are alike, and measuring every cell of
// every line would cost the hot path.
void fitColumnsToLongValues(QTableWidget *table);
// Empties every cell of rows 0 to rows - 1 (never past the table).
void blankRows(QTableWidget *table, int rows);
// Column headers translated in the page's context (most are English and stay so).
void setColumnHeaders(QTableWidget *table, const char *context, const QVector<const char *> &headers);
// Whole-row selection, read-only, last section stretched: every list table.
void setListTableBehaviour(QTableWidget *table);

// A four-column parameter table ("参数", "值", "单位", "描述") of fixed rows whose
// value column shows fields 0, 1, ... of a record, laid out as the position pages.
class FieldBlock
{
public:
    FieldBlock(QTableWidget *table, const char *context, QVector<FieldRow> rows);

    void retranslate();
    // Field i into row i; rows the list does not reach keep their text.
    void write(const FieldViews &fields);
    int rowCount() const { return m_rows.size(); }
    QTableWidget *table() const { return m_table; }

private:
    QTableWidget *m_table;
    const char *m_context;
    QVector<FieldRow> m_rows;
};
