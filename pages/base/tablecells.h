#pragma once

#include "fieldtablepage.h"
#include "fieldtext.h"

#include <QVector>

class QTableWidget;

// Strips a "#" log through its first ';' (the log header) and splits the record
// body into fields, the checksum last. False when the line has no ';'.
bool splitRecordBody(const QString &line, FieldViews &fields);

// One item in every cell, made once by the constructor so that a line only sets
// texts, however many rows it fills.
void createCellItems(QTableWidget *table, Qt::Alignment alignment);
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
