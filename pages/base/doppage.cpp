// SPDX-License-Identifier: BSD-3-Clause
#include "doppage.h"

#include "linechecksum.h"
#include "routetable.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QTableWidget>
#include <QVarLengthArray>

#include <algorithm>

namespace {
QTableWidget *namedTable(QWidget *parent, const char *name)
{
    auto *table = new QTableWidget(parent);
    table->setObjectName(QLatin1String(name));
    return table;
}
} // namespace

DopPage::DopPage(const DopPageSpec &spec, QWidget *parent, const QString &introStr, QTreeWidgetItem *treeParent)
    : MsgBaseWidget(parent, introStr, treeParent)
    , m_spec(spec)
    , m_route(routeOfPage(spec.context, introStr))
    , m_prnTable(namedTable(this, "tableWidget_Prn"))
    , m_parameters(namedTable(this, "tableWidget"), spec.context, spec.parameters)
{
    resize(664, 340);
    auto *layout = new QGridLayout(this);
    layout->setObjectName(QStringLiteral("gridLayout"));
    layout->addWidget(m_parameters.table(), 0, 0);
    layout->addWidget(m_prnTable, 0, 1);

    m_prnTable->setColumnCount(spec.prnColumns.size());
    m_prnTable->setRowCount(spec.prnRows);
    createCellItems(m_prnTable, Qt::AlignCenter);
    setListTableBehaviour(m_prnTable);
    onRetranslateUI();
}

DopPage::~DopPage() = default;

void DopPage::onRetranslateUI()
{
    setWindowTitle(QCoreApplication::translate(m_spec.context, "Form"));
    m_parameters.retranslate();
    QVector<const char *> headers;
    for (const PrnColumn &column : m_spec.prnColumns)
        headers.append(column.header);
    setColumnHeaders(m_prnTable, m_spec.context, headers);
    emit retranslate();
}

bool DopPage::parse(QString line)
{
    if (!m_route.matchesHeader(line) || !checkLineChecksum(line))
        return false;
    if (!isVisible())
        return true;
    // A line without a record body is refused, as the list pages refuse it.
    if (!splitRecordBody(line, m_fields))
        return false;
    const int parameters = m_parameters.rowCount();
    if (m_fields.size() < parameters + 1)
        return false;

    blankRows(m_prnTable, m_prnTable->rowCount());
    m_parameters.write(m_fields);
    QVarLengthArray<int, 8> filled(m_spec.prnColumns.size());
    std::fill(filled.begin(), filled.end(), 0);
    // Every field after the parameters but the checksum is a PRN; a full column
    // takes no more and a PRN of no constellation is dropped.
    for (int i = parameters; i < m_fields.size() - 1; ++i) {
        const QStringView field = m_fields.at(i);
        const int column = prnColumn(field.toInt());
        if (column < 0 || filled[column] >= m_prnTable->rowCount())
            continue;
        // Shown as received, like every other value.
        m_prnTable->item(filled[column]++, column)->setText(field.toString());
    }
    return true;
}

int DopPage::prnColumn(int prn) const
{
    // Unsigned differences: a PRN below a range's start wraps far above its width,
    // and nothing can overflow whatever the field held.
    for (int column = 0; column < m_spec.prnColumns.size(); ++column) {
        const PrnColumn &range = m_spec.prnColumns.at(column);
        if (quint32(prn) - quint32(range.firstPrn) <= quint32(range.lastPrn - range.firstPrn))
            return column;
    }
    return -1;
}
