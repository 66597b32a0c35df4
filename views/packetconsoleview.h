// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "packetconsolemodel.h"

#include <QStandardItemModel>
#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTableView;
class QToolButton;

// Every line of the stream as it came, with what became of it: filters by kind, by
// outcome and by text, Pause and Follow, copying and saving the selected rows. The
// rows change a few times a second at most, and not at all while the view is hidden
// or paused (the lines that come meanwhile are kept for when it resumes).
class PacketConsoleView : public QWidget
{
    Q_OBJECT
public:
    explicit PacketConsoleView(QWidget *parent = nullptr);

    PacketConsoleModel &model() { return m_model; }
    QTableView *table() const { return m_table; }
    void append(LineRecord record) { m_model.append(std::move(record)); }

    // The settings worth remembering.
    void setCapacity(int lines);
    int capacity() const { return m_model.capacity(); }
    void setFollowing(bool following);
    bool isFollowing() const;

    QString selectedRowsText() const;
    // Writes selectedRowsText() to path; false, and why in *error, when it cannot.
    bool saveSelection(const QString &path, QString *error = nullptr) const;

signals:
    // The user made a row current; garbage has no kind and gives only lineSelected().
    void kindSelected(const QByteArray &kind);
    void lineSelected(const QByteArray &kind, const QByteArray &bytes);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeKindsButton();
    void addNewKinds();
    void applyFilter();
    void updateHeld();
    void updateCounts();
    void followNewest();
    void currentRowChanged(const QModelIndex &current);
    void copySelection() const;
    void saveSelectionAs();

    PacketConsoleModel m_model;
    QStandardItemModel m_kindList; // checked: shown
    QToolButton *m_kindsButton;
    QVector<QCheckBox *> m_outcomeBoxes; // by LineOutcome
    QLineEdit *m_textFilter;
    QToolButton *m_regexButton;
    QToolButton *m_caseButton;
    QToolButton *m_pauseButton;
    QToolButton *m_followButton;
    QSpinBox *m_capacityBox;
    QTableView *m_table;
    QLabel *m_counts;
    QTimer m_typingPause; // the filter follows typing after a short pause
};
