// SPDX-License-Identifier: BSD-3-Clause
#include "fieldview.h"

#include "tablestyle.h"

#include <QBoxLayout>
#include <QLabel>
#include <QTableView>

void FieldTableModel::setFields(QVector<NamedField> fields)
{
    beginResetModel();
    m_fields = std::move(fields);
    endResetModel();
}

int FieldTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_fields.size();
}

int FieldTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FieldTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_fields.size())
        return {};
    const NamedField &field = m_fields.at(index.row());
    if (role == Qt::DisplayRole) {
        switch (index.column()) {
        case NumberColumn: return index.row();
        case NameColumn: return field.name;
        default: return field.value;
        }
    }
    if (role == Qt::TextAlignmentRole)
        return headerData(index.column(), Qt::Horizontal, role);
    return {};
}

QVariant FieldTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return section == NumberColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case NumberColumn: return tr("#");
    case NameColumn: return tr("Field");
    default: break;
    }
    return tr("Value");
}

FieldView::FieldView(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_title = new QLabel(tr("Choose a line or a kind of message"), this);
    m_title->setContentsMargins(8, 6, 8, 6);
    m_title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_title);

    auto *table = new QTableView(this);
    table->setModel(&m_model);
    setUpTrafficTable(table);
    table->setAlternatingRowColors(true);
    setColumnsWide(table, {QStringLiteral("000"), QStringLiteral("Destination longitude")});
    layout->addWidget(table, 1);
}

void FieldView::showLine(const QByteArray &kind, const QByteArray &bytes)
{
    m_model.setFields(namedFields(kind, bytes));
    const QString name = kind.isEmpty() ? tr("Bytes that are no line") : QString::fromLatin1(kind);
    QString title = tr("<b>%1</b> · %n fields", nullptr, m_model.rowCount()).arg(name.toHtmlEscaped());
    if (!kind.isEmpty() && sentenceFieldNames(kind).isEmpty())
        title += tr(" · no names known for this kind");
    m_title->setText(title);
}
