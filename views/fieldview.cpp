#include "fieldview.h"

#include <QBoxLayout>
#include <QHeaderView>
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
    if (role == Qt::TextAlignmentRole && index.column() == NumberColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant FieldTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
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
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 4);
    QHeaderView *header = table->horizontalHeader();
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int digit = table->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    header->resizeSection(FieldTableModel::NumberColumn, digit * 5);
    header->resizeSection(FieldTableModel::NameColumn, digit * 20);
    header->setStretchLastSection(true);
    layout->addWidget(table, 1);
}

void FieldView::showLine(const QByteArray &kind, const QByteArray &bytes)
{
    m_model.setFields(namedFields(kind, bytes));
    const QString name = kind.isEmpty() ? tr("Bytes that are no line") : QString::fromLatin1(kind);
    m_title->setText(tr("<b>%1</b> · %n fields", nullptr, m_model.rowCount()).arg(name.toHtmlEscaped()));
}
