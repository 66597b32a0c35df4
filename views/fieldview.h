// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "sentencefields.h"

#include <QAbstractTableModel>
#include <QWidget>

class QLabel;

// One line's fields as rows: number, name, value.
class FieldTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { NumberColumn, NameColumn, ValueColumn, ColumnCount };

    explicit FieldTableModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    void setFields(QVector<NamedField> fields);
    const QVector<NamedField> &fields() const { return m_fields; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVector<NamedField> m_fields;
};

// A line taken apart into its numbered fields, named where the sentence type is known.
class FieldView : public QWidget
{
    Q_OBJECT
public:
    explicit FieldView(QWidget *parent = nullptr);

    void showLine(const QByteArray &kind, const QByteArray &bytes);
    const FieldTableModel &model() const { return m_model; }

private:
    FieldTableModel m_model;
    QLabel *m_title;
};
