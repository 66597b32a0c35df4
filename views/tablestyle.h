// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>

class QTableView;

// The look the traffic tables share: one line per row at a fixed height (so that a
// hundred thousand rows scroll without measuring any), whole rows selected, no grid,
// headers on the left like the text below them.
void setUpTrafficTable(QTableView *table);
// Each column as wide as its sample text or its header, whichever is wider; the last
// column takes the rest. Sizing by contents would read every row.
void setColumnsWide(QTableView *table, const QStringList &samples);
