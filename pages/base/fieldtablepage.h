// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtext.h"
#include "msgbasewidget.h"

#include <QMargins>
#include <QSize>
#include <QVector>
#include <iterator>
#include <memory>

class QLayout;
class QMetaObject;
class QTableWidget;
struct PageRoute;

// One row of a field table: column 0 label, column 2 unit, column 3 description,
// all source texts translated in the page's own class context. A null description
// marks a cell that retranslation never touches (filled at parse time or by nobody).
struct FieldRow
{
    const char *label;
    const char *unit;
    const char *description;
};

// A row table kept in a C array, as a list a FieldTableSpec can copy and adjust.
template <size_t N>
QVector<FieldRow> fieldRows(const FieldRow (&rows)[N])
{
    return QVector<FieldRow>(std::begin(rows), std::end(rows));
}

enum class FormLayout { VBox, HBox, Grid };

// What a field-table page is: how fields map to rows and how its form looks. A
// page file is one of these plus its row table; which lines are the page's is the
// route table's business.
class FieldTableSpec
{
public:
    enum class Framing {
        Record,   // "#" log: the fields after the first ';', field i to row i
        Sentence, // "$" sentence: the whole line split, field 0 is the address
    };
    enum class CountRule {
        Exact,            // every row's field and the checksum
        LastMayBeMissing, // ... or one field short, the last row keeping its text
        Unchecked,        // fixed field positions; rows without a field keep their text
    };

    // A "#" log page: exactly rowCount + 1 fields after ';' (the last is the
    // checksum), and the position pages' form: columns fitted, then the value
    // column 110 wide.
    static FieldTableSpec record(const QMetaObject &page, QVector<FieldRow> rows);

    // A "$" sentence page: field i + 1 goes to row i; exactly rowCount + 2 fields
    // unless a count rule says otherwise. Column sizes are the table's defaults.
    static FieldTableSpec sentence(const QMetaObject &page, QVector<FieldRow> rows);

    // Row texts shared with another page, adjusted where this page differs.
    FieldTableSpec &replaceRow(int row, FieldRow texts) { m_rows[row] = texts; return *this; }
    FieldTableSpec &appendRows(const QVector<FieldRow> &rows) { m_rows += rows; return *this; }

    // Field mapping.
    FieldTableSpec &lastFieldOptional() { m_countRule = CountRule::LastMayBeMissing; return *this; }
    FieldTableSpec &uncheckedFieldsEvery(int step)
    {
        m_countRule = CountRule::Unchecked;
        m_fieldStep = step;
        return *this;
    }
    // Places left-aligned description cells at (0,3) and (1,3); when `filled`, each
    // accepted record writes the solution-status and position-type descriptions there.
    FieldTableSpec &statusCells(bool filled) { m_statusCells = true; m_fillStatus = filled; return *this; }

    // Form.
    FieldTableSpec &layout(FormLayout kind, const char *objectName, QMargins margins = QMargins(-1, -1, -1, -1))
    {
        m_layout = kind;
        m_layoutName = objectName;
        m_margins = margins;
        return *this;
    }
    FieldTableSpec &window(int width, int height) { m_windowSize = QSize(width, height); return *this; }
    FieldTableSpec &valuesAligned(Qt::Alignment alignment) { m_valueAlignment = alignment; return *this; }
    FieldTableSpec &resizeColumnsToContents() { m_resizeColumnsToContents = true; return *this; }
    FieldTableSpec &columnWidth(int column, int width) { m_columnWidths.append(qMakePair(column, width)); return *this; }
    FieldTableSpec &rowHeight(int height) { m_rowHeight = height; return *this; }
    // Default section size 110, table adjusted to its contents, drag-only: the form
    // settings of the best-position style pages.
    FieldTableSpec &compactHeaderForm() { m_compactHeaderForm = true; return *this; }
    FieldTableSpec &adjustToContents() { m_adjustToContents = true; return *this; }

private:
    friend class FieldTablePage;
    FieldTableSpec(const QMetaObject &page, Framing framing, QVector<FieldRow> rows);

    const char *m_context;
    Framing m_framing;
    QVector<FieldRow> m_rows;
    CountRule m_countRule = CountRule::Exact;
    int m_fieldStep = 1;
    bool m_statusCells = false;
    bool m_fillStatus = false;
    FormLayout m_layout = FormLayout::VBox;
    const char *m_layoutName = "verticalLayout";
    QMargins m_margins = QMargins(-1, -1, -1, -1);
    QSize m_windowSize = QSize(400, 300);
    Qt::Alignment m_valueAlignment = Qt::AlignRight | Qt::AlignVCenter;
    bool m_resizeColumnsToContents = false;
    QVector<QPair<int, int>> m_columnWidths;
    int m_rowHeight = 0;
    bool m_compactHeaderForm = false;
    bool m_adjustToContents = false;
};

// The page engine behind every single-record page: builds the form from a spec,
// takes the lines of its route, writes fields into the value column, and re-applies
// the texts of its FieldTableSpec on retranslation.
class FieldTablePage : public MsgBaseWidget
{
    Q_OBJECT
public:
    FieldTablePage(const FieldTableSpec &spec, QWidget *parent, const QString &introStr,
                   QTreeWidgetItem *treeParent);
    ~FieldTablePage() override;

    bool parse(QString line) override;
    bool parseRawData(QByteArray) override { return false; }

    QTableWidget *table() const;

public slots:
    void onRetranslateUI() override;

private:
    bool parseRecord(const QString &line);
    bool parseSentence(const QString &line);
    void writeValues(int rows, int firstField, int step);

    struct Form;
    const FieldTableSpec &m_spec;
    const PageRoute &m_route;
    std::unique_ptr<Form> m_form;
    FieldViews m_fields;
};

// Header texts shared by every four-column field table ("参数", "值", "单位", "描述"),
// translated in the framework's context.
void setFieldTableHeaderTexts(QTableWidget *table);
