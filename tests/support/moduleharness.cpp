// SPDX-License-Identifier: BSD-3-Clause
#include "moduleharness.h"

#include "msgbasewidget.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QTreeWidget>

ModuleHarness::ModuleHarness(int mode, const QString &language)
    : m_module(new MessageViewModules(&m_stack, language))
{
    m_module->addItemToTree(mode);
    m_stack.resize(1100, 800);
    m_stack.show();
}

ModuleHarness::~ModuleHarness() = default;

QTreeWidgetItem *ModuleHarness::treeItem(const QString &label) const
{
    QTreeWidget *tree = m_module->getTreeWidget();
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *category = tree->topLevelItem(i);
        for (int j = 0; j < category->childCount(); ++j) {
            if (category->child(j)->text(0) == label)
                return category->child(j);
        }
    }
    return nullptr;
}

bool ModuleHarness::show(const QString &label)
{
    QTreeWidgetItem *item = treeItem(label);
    if (!item)
        return false;
    emit m_module->getTreeWidget()->itemClicked(item, 0);
    return true;
}

MsgBaseWidget *ModuleHarness::page(const QString &label) const
{
    QTreeWidgetItem *item = treeItem(label);
    for (int i = 0; item && i < m_stack.count(); ++i) {
        auto *page = qobject_cast<MsgBaseWidget *>(m_stack.widget(i));
        if (page && page->treeItem() == item)
            return page;
    }
    return nullptr;
}

QTableWidget *ModuleHarness::table(const QString &label, const QString &objectName) const
{
    MsgBaseWidget *p = page(label);
    if (!p)
        return nullptr;
    return objectName.isEmpty() ? p->findChild<QTableWidget *>() : p->findChild<QTableWidget *>(objectName);
}

QString ModuleHarness::cell(const QString &label, int row, int column) const
{
    QTableWidget *t = table(label);
    QTableWidgetItem *item = t ? t->item(row, column) : nullptr;
    return item ? item->text() : QString();
}

QStringList ModuleHarness::pageLabels() const
{
    QStringList labels;
    for (int i = 0; i < m_stack.count(); ++i) {
        auto *page = qobject_cast<MsgBaseWidget *>(m_stack.widget(i));
        labels << (page && page->treeItem() ? page->treeItem()->text(0) : QString());
    }
    return labels;
}

QString ModuleHarness::countText(const QString &label) const
{
    return page(label)->findChild<QLineEdit *>()->text();
}

quint64 ModuleHarness::taken(const QString &label) const
{
    quint64 sum = 0;
    for (const auto &count : m_module->acceptedLineCounts())
        sum += count.first == label ? count.second : 0;
    return sum;
}

quint64 ModuleHarness::takenByAny() const
{
    quint64 sum = 0;
    for (const auto &count : m_module->acceptedLineCounts())
        sum += count.second;
    return sum;
}

bool ModuleHarness::isMarked(const QString &label) const
{
    QTreeWidgetItem *item = treeItem(label);
    return item && item->foreground(0).color() == Qt::black;
}
