// SPDX-License-Identifier: BSD-3-Clause
#include "fieldtablepage.h"

#include "linechecksum.h"
#include "routetable.h"
#include "tablecells.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHeaderView>
#include <QMetaObject>
#include <QTableWidget>

FieldTableSpec FieldTableSpec::record(const QMetaObject &page, QVector<FieldRow> rows)
{
    FieldTableSpec spec(page, Framing::Record, std::move(rows));
    spec.m_resizeColumnsToContents = true;
    spec.m_columnWidths = {{1, 110}};
    return spec;
}

FieldTableSpec FieldTableSpec::sentence(const QMetaObject &page, QVector<FieldRow> rows)
{
    return FieldTableSpec(page, Framing::Sentence, std::move(rows));
}

FieldTableSpec::FieldTableSpec(const QMetaObject &page, Framing framing, QVector<FieldRow> rows)
    : m_context(page.className())
    , m_framing(framing)
    , m_rows(std::move(rows))
{
}

struct FieldTablePage::Form
{
    QLayout *layout = nullptr;
    QTableWidget *tableWidget = nullptr;
};

void setFieldTableHeaderTexts(QTableWidget *table)
{
    static const char *const kHeaders[] = {
        QT_TRANSLATE_NOOP("MsgBaseWidget", "参数"),
        QT_TRANSLATE_NOOP("MsgBaseWidget", "值"),
        QT_TRANSLATE_NOOP("MsgBaseWidget", "单位"),
        QT_TRANSLATE_NOOP("MsgBaseWidget", "描述"),
    };
    for (int column = 0; column < 4 && column < table->columnCount(); ++column) {
        QTableWidgetItem *item = table->horizontalHeaderItem(column);
        if (!item) {
            item = new QTableWidgetItem;
            table->setHorizontalHeaderItem(column, item);
        }
        item->setText(QCoreApplication::translate("MsgBaseWidget", kHeaders[column]));
    }
}

FieldTablePage::FieldTablePage(const FieldTableSpec &spec, QWidget *parent, const QString &introStr,
                               QTreeWidgetItem *treeParent)
    : MsgBaseWidget(parent, introStr, treeParent)
    , m_spec(spec)
    , m_route(routeOfPage(spec.m_context, introStr))
    , m_form(new Form)
{
    resize(spec.m_windowSize);
    switch (spec.m_layout) {
    case FormLayout::VBox: m_form->layout = new QVBoxLayout(this); break;
    case FormLayout::HBox: m_form->layout = new QHBoxLayout(this); break;
    case FormLayout::Grid: m_form->layout = new QGridLayout(this); break;
    }
    m_form->layout->setObjectName(QLatin1String(spec.m_layoutName));
    m_form->layout->setContentsMargins(spec.m_margins);

    QTableWidget *table = new QTableWidget(this);
    m_form->tableWidget = table;
    table->setObjectName(QStringLiteral("tableWidget"));
    table->setColumnCount(4);
    table->setRowCount(spec.m_rows.size());
    if (spec.m_compactHeaderForm) {
        table->horizontalHeader()->setDefaultSectionSize(110);
        table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
        table->setDragDropMode(QAbstractItemView::DragOnly);
    }
    if (spec.m_adjustToContents)
        table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_form->layout->addWidget(table);

    for (int row = 0; row < spec.m_rows.size(); ++row) {
        const FieldRow &texts = spec.m_rows[row];
        table->setItem(row, 0, new QTableWidgetItem);
        if (texts.unit)
            table->setItem(row, 2, new QTableWidgetItem);
        const bool statusCell = spec.m_statusCells && row < 2;
        if (texts.description || statusCell) {
            auto *description = new QTableWidgetItem;
            if (statusCell)
                description->setTextAlignment(Qt::AlignLeft);
            table->setItem(row, 3, description);
        }
        auto *value = new ValueCell;
        value->setTextAlignment(spec.m_valueAlignment);
        table->setItem(row, 1, value);
    }
    onRetranslateUI();

    if (spec.m_resizeColumnsToContents)
        table->resizeColumnsToContents();
    for (const auto &width : spec.m_columnWidths)
        table->setColumnWidth(width.first, width.second);
    if (spec.m_rowHeight > 0) {
        for (int row = 0; row < spec.m_rows.size(); ++row)
            table->setRowHeight(row, spec.m_rowHeight);
    }
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->horizontalHeader()->setStretchLastSection(true);
}

FieldTablePage::~FieldTablePage() = default;

QTableWidget *FieldTablePage::table() const
{
    return m_form->tableWidget;
}

void FieldTablePage::onRetranslateUI()
{
    const char *context = m_spec.m_context;
    setWindowTitle(QCoreApplication::translate(context, "Form"));
    QTableWidget *table = m_form->tableWidget;
    setFieldTableHeaderTexts(table);
    for (int row = 0; row < m_spec.m_rows.size(); ++row) {
        const FieldRow &texts = m_spec.m_rows[row];
        table->item(row, 0)->setText(QCoreApplication::translate(context, texts.label));
        if (texts.unit)
            table->item(row, 2)->setText(QCoreApplication::translate(context, texts.unit));
        if (texts.description)
            table->item(row, 3)->setText(QCoreApplication::translate(context, texts.description));
    }
    emit retranslate();
}

bool FieldTablePage::parse(QString line)
{
    if (!m_route.matchesHeader(line) || !checkLineChecksum(line))
        return false;
    // A hidden page still owns its line (the tree marks it) but spends nothing on it.
    if (!isVisible())
        return true;
    return m_spec.m_framing == FieldTableSpec::Framing::Record ? parseRecord(line) : parseSentence(line);
}

bool FieldTablePage::parseRecord(const QString &line)
{
    const int semicolon = line.indexOf(QLatin1Char(';'));
    if (semicolon < 0)
        return false;
    splitFields(QStringView(line).mid(semicolon + 1), m_fields);
    const int rows = m_spec.m_rows.size();
    if (m_fields.size() != rows + 1)
        return false;
    writeValues(rows, 0, 1);
    if (m_spec.m_fillStatus) {
        QTableWidget *table = m_form->tableWidget;
        describeSolutionStatus(table->item(0, 3), m_fields.at(0).toString());
        describePositionType(table->item(1, 3), m_fields.at(1).toString());
    }
    return true;
}

bool FieldTablePage::parseSentence(const QString &line)
{
    splitFields(line, m_fields);
    const int rows = m_spec.m_rows.size();
    const int count = m_fields.size();
    switch (m_spec.m_countRule) {
    case FieldTableSpec::CountRule::Exact:
        if (count != rows + 2)
            return false;
        writeValues(rows, 1, 1);
        return true;
    case FieldTableSpec::CountRule::LastMayBeMissing:
        if (count != rows + 2 && count != rows + 1)
            return false;
        writeValues(count == rows + 2 ? rows : rows - 1, 1, 1);
        return true;
    case FieldTableSpec::CountRule::Unchecked:
        writeValues(rows, 1, m_spec.m_fieldStep);
        return true;
    }
    return false;
}

void FieldTablePage::writeValues(int rows, int firstField, int step)
{
    QTableWidget *table = m_form->tableWidget;
    for (int row = 0; row < rows; ++row) {
        const int field = firstField + row * step;
        if (field >= m_fields.size())
            break;
        table->item(row, 1)->setText(m_fields.at(field).toString());
    }
}
