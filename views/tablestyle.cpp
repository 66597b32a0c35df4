// SPDX-License-Identifier: BSD-3-Clause
#include "tablestyle.h"

#include <QHeaderView>
#include <QTableView>

#include <algorithm>

void setUpTrafficTable(QTableView *table)
{
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setStretchLastSection(true);
}

void setColumnsWide(QTableView *table, const QStringList &samples)
{
    const QFontMetrics metrics = table->fontMetrics();
    const int padding = metrics.horizontalAdvance(QStringLiteral("00"));
    for (int column = 0; column < samples.size(); ++column) {
        const QString header = table->model()->headerData(column, Qt::Horizontal).toString();
        const int text = std::max(metrics.horizontalAdvance(samples.at(column)), metrics.horizontalAdvance(header));
        table->horizontalHeader()->resizeSection(column, text + padding);
    }
}
