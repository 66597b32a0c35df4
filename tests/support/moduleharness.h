// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "messageviewmodules.h"

#include <QStackedWidget>
#include <QString>
#include <memory>

class MsgBaseWidget;
class QTableWidget;
class QTreeWidgetItem;

// A shown stacked widget with a module in a product mode: feed bytes, bring a page
// forward as a click on its tree item would, and read its cells.
class ModuleHarness
{
public:
    explicit ModuleHarness(int mode, const QString &language = QStringLiteral("EN"));
    ~ModuleHarness();

    MessageViewModules &module() { return *m_module; }
    QStackedWidget &stack() { return m_stack; }

    void feed(const QByteArray &bytes) { m_module->onUpdateBuffer(bytes); }
    // Clicks the tree item with this label (first match, category items skipped).
    bool show(const QString &label);
    QTreeWidgetItem *treeItem(const QString &label) const;
    MsgBaseWidget *page(const QString &label) const;
    // The page's first table (or the one with this object name).
    QTableWidget *table(const QString &label, const QString &objectName = QString()) const;
    QString cell(const QString &label, int row, int column) const;
    int pageCount() const { return m_stack.count(); }
    QStringList pageLabels() const;
    bool isMarked(const QString &label) const;
    // The page's count box (its first line edit).
    QString countText(const QString &label) const;
    // Lines taken by the pages with this label, and by any page.
    quint64 taken(const QString &label) const;
    quint64 takenByAny() const;

private:
    QStackedWidget m_stack;
    std::unique_ptr<MessageViewModules> m_module;
};
