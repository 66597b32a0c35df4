// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "msgbasewidget.h"
#include "tablecells.h"

#include <QSize>
#include <QVector>
#include <memory>

class QLabel;
class QLineEdit;
class QMetaObject;
class QTableWidget;
struct PageRoute;

// One column of a list table: its header and how its field is shown.
struct ListColumn
{
    enum Format {
        Text,       // as received
        SignalName, // a hexadecimal channel tracking status, shown as the signal's name
        Hundredths, // a decimal integer in hundredths, shown with two decimals (4512: 45.12)
    };

    const char *header;
    Format format = Text;
    // When set, every row shows this field of the line rather than one of its own
    // (the constellation a satellite-visibility line is about).
    int lineField = -1;
};

// What a list page is: a log whose record body is a run of equal field groups, one
// table row per group. A page file is one of these plus its column table.
class ListPageSpec
{
public:
    // Row r takes its columns from fields 1 + r, 2 + r, ... unless rowFields() says
    // otherwise.
    static ListPageSpec log(const QMetaObject &page, QVector<ListColumn> columns);

    // The table's rows, made once by the constructor; a line fills no more.
    ListPageSpec &rows(int count) { m_rows = count; return *this; }
    // Row r takes `stride` fields from firstField + stride * r. A line holds
    // (fields - uncounted) / stride rows, whatever its own count field claims.
    ListPageSpec &rowFields(int stride, int firstField, int uncounted = 0)
    {
        m_stride = stride;
        m_firstField = firstField;
        m_uncounted = uncounted;
        return *this;
    }
    // A line edit shows the number of rows, labelled by these texts (object names
    // "label", "label_2", ...; an empty text stays empty).
    ListPageSpec &countLine(QVector<const char *> labels, const char *editName = "lineEdit")
    {
        m_countLabels = std::move(labels);
        m_countEditName = editName;
        return *this;
    }
    // The count line shows field 0, the log's own count, instead of the rows found.
    ListPageSpec &countFromFirstField() { m_countFromFirstField = true; return *this; }
    // A fixed parameter table beside the list, taking fields 0, 1, ... in its value
    // column; the two tables get these object names.
    ListPageSpec &leadingFields(QVector<FieldRow> rows, const char *tableName, const char *listName)
    {
        m_leadingRows = std::move(rows);
        m_leadingName = tableName;
        m_listName = listName;
        return *this;
    }
    // The list is gathered from a group of lines, one per constellation, which the
    // page's route takes before any checksum test: the line containing openWord
    // starts it, wiping the old rows; the one containing closeWord ends it and shows
    // the total. Only those two lines are checksummed.
    ListPageSpec &gatheredBetween(const char *openWord, const char *closeWord)
    {
        m_openWord = openWord;
        m_closeWord = closeWord;
        return *this;
    }
    // The previous rows are wiped only once a line's body is found, not as soon as
    // its header and checksum pass.
    ListPageSpec &blankOnAccept() { m_blankOnAccept = true; return *this; }
    ListPageSpec &window(int width, int height) { m_windowSize = QSize(width, height); return *this; }

private:
    friend class ListPage;
    ListPageSpec(const QMetaObject &page, QVector<ListColumn> columns);

    const char *m_context;
    QVector<ListColumn> m_columns;
    int m_rows = 0;
    int m_stride;
    int m_firstField = 1;
    int m_uncounted = 0;
    QVector<const char *> m_countLabels;
    const char *m_countEditName = nullptr;
    bool m_countFromFirstField = false;
    QVector<FieldRow> m_leadingRows;
    const char *m_leadingName = nullptr;
    const char *m_listName = "tableWidget";
    const char *m_openWord = nullptr;
    const char *m_closeWord = nullptr;
    bool m_blankOnAccept = false;
    QSize m_windowSize = QSize(580, 392);
};

// The engine behind every list page: wipes the rows the previous line wrote, counts
// the line's field groups, fills rows up to the table's size and shows the count.
class ListPage : public MsgBaseWidget
{
    Q_OBJECT
public:
    ListPage(const ListPageSpec &spec, QWidget *parent, const QString &introStr, QTreeWidgetItem *treeParent);
    ~ListPage() override;

    bool parse(QString line) override;
    bool parseRawData(QByteArray) override { return false; }

    QTableWidget *table() const { return m_table; }

public slots:
    void onRetranslateUI() override;

private:
    bool parseLog(const QString &line);
    bool parseGroupLine(const QString &line);
    int rowsInLine() const;
    void fillRows(qint64 firstRow, int rows);
    void blankPreviousRows();

    const ListPageSpec &m_spec;
    const PageRoute &m_route;
    QTableWidget *m_table = nullptr;
    QLineEdit *m_countEdit = nullptr;
    QVector<QLabel *> m_countLabels;
    std::unique_ptr<FieldBlock> m_leading;
    FieldViews m_fields;
    // Rows written by the last accepted line, never more than the table holds: the
    // extent of the next wiping pass.
    qint16 m_previousRows = 0;
    // Rows gathered so far in the current group of lines.
    qint64 m_groupRows = 0;
    bool m_groupOpen = false;
    bool m_columnsFitted = false;
};
