// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "moduleharness.h"

#include "basicwidget.h"

#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTreeWidget>

// Reaches into the binary modes' one page and its tree categories.
namespace BinaryPage {

inline BasicWidget *page(ModuleHarness &h)
{
    for (int i = 0; i < h.stack().count(); ++i) {
        if (auto *page = qobject_cast<BasicWidget *>(h.stack().widget(i)))
            return page;
    }
    return nullptr;
}

inline QTableWidget *table(ModuleHarness &h)
{
    return page(h)->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
}

inline QString cell(ModuleHarness &h, int row, int column)
{
    const QTableWidgetItem *item = table(h)->item(row, column);
    return item ? item->text() : QString();
}

inline QString header(ModuleHarness &h, int column)
{
    const QTableWidgetItem *item = table(h)->horizontalHeaderItem(column);
    return item ? item->text() : QString();
}

inline QString decoderText(ModuleHarness &h)
{
    return page(h)->findChild<QLabel *>(QStringLiteral("label_decoder"))->text();
}

inline void chooseSystem(ModuleHarness &h, const QString &system)
{
    page(h)->findChild<QComboBox *>(QStringLiteral("comboBox_system"))->setCurrentText(system);
}

// The texts of the children of the top-level item `index` (0 NMEA, 3 binary).
inline QStringList categoryChildren(ModuleHarness &h, int index)
{
    QStringList names;
    const QTreeWidgetItem *category = h.module().getTreeWidget()->topLevelItem(index);
    for (int i = 0; i < category->childCount(); ++i)
        names << category->child(i)->text(0);
    return names;
}

} // namespace BinaryPage
