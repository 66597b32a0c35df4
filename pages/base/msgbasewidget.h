// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>

class QTableWidgetItem;
class QTextDocument;
class QTreeWidgetItem;

// Base of every message page. The module offers each received line to the pages
// through parse() until one takes it; the binary decode page alone gets raw bytes.
class MsgBaseWidget : public QWidget
{
    Q_OBJECT
public:
    MsgBaseWidget(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);
    ~MsgBaseWidget() override;

    // True when the line is this page's message (also when the page is hidden and
    // nothing was shown); false hands the line on to the next page.
    virtual bool parse(QString line) = 0;
    // Only the binary decode page is fed raw bytes; text pages ignore them.
    virtual bool parseRawData(QByteArray data) = 0;

    QTreeWidgetItem *treeItem() const { return m_treeItem; }
    // Raw text of the page, made by the base constructor: part of the page interface hosts see.
    QTextDocument *textDocument() const { return m_textDocument; }

    // Status vocabularies: prefix match of the value against the receiver's
    // enumeration names, first match wins; an unknown value leaves the cell alone.
    void describePositionType(QTableWidgetItem *item, const QString &value) const;
    void describeSolutionStatus(QTableWidgetItem *item, const QString &value) const;

signals:
    // Emitted after the texts are set again: part of the page interface hosts see.
    void retranslate();
    // A command for the receiver, sent by no page yet: part of the page interface hosts see.
    void sendCommand(int index, QString cmd, bool isHex);

public slots:
    // Empty, yet connectable by a host: part of the page interface hosts see.
    void onGetCurRecIndex(int index);
    virtual void onRetranslateUI();

private:
    QTreeWidgetItem *m_treeItem = nullptr;
    QTextDocument *m_textDocument = nullptr;
};
