// SPDX-License-Identifier: BSD-3-Clause
#include "packetconsoleview.h"

#include "tablestyle.h"
#include "viewpalette.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QSaveFile>
#include <QSpinBox>
#include <QTableView>
#include <QToolButton>
#include <QWidgetAction>

namespace {

constexpr LineOutcome kOutcomes[] = {LineOutcome::Taken,       LineOutcome::NoPage,   LineOutcome::Refused,
                                     LineOutcome::BadChecksum, LineOutcome::CutShort, LineOutcome::TooLong,
                                     LineOutcome::Garbage};
constexpr int kTypingPauseMs = 150;

QToolButton *toggleButton(const QString &text, const QString &toolTip, bool checked, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setCheckable(true);
    button->setChecked(checked);
    button->setAutoRaise(true);
    return button;
}

QToolButton *actionButton(const QString &text, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setText(text);
    button->setAutoRaise(true);
    return button;
}

} // namespace

PacketConsoleView::PacketConsoleView(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    auto *filterRow = new QHBoxLayout;
    filterRow->setContentsMargins(8, 4, 8, 2);
    filterRow->addWidget(makeKindsButton());
    filterRow->addSpacing(8);
    for (LineOutcome outcome : kOutcomes) {
        auto *box = new QCheckBox(lineOutcomeName(outcome), this);
        box->setChecked(true);
        const QColor colour = ViewPalette::outcomeColours(outcome).foreground;
        if (colour.isValid()) {
            QPalette palette = box->palette();
            palette.setColor(QPalette::WindowText, colour);
            box->setPalette(palette);
        }
        connect(box, &QCheckBox::toggled, this, &PacketConsoleView::applyFilter);
        filterRow->addWidget(box);
        m_outcomeBoxes << box;
    }
    filterRow->addStretch(1);
    layout->addLayout(filterRow);

    auto *controlRow = new QHBoxLayout;
    controlRow->setContentsMargins(8, 2, 8, 4);
    m_textFilter = new QLineEdit(this);
    m_textFilter->setPlaceholderText(tr("Find in lines"));
    m_textFilter->setClearButtonEnabled(true);
    m_regexButton = toggleButton(QStringLiteral(".*"), tr("Regular expression"), false, this);
    m_caseButton = toggleButton(QStringLiteral("Aa"), tr("Match case"), false, this);
    m_pauseButton = toggleButton(tr("Pause"), tr("Hold the table still; lines are still kept"), false, this);
    m_followButton = toggleButton(tr("Follow"), tr("Keep the newest line in sight"), true, this);
    auto *copy = actionButton(tr("Copy"), this);
    auto *save = actionButton(tr("Save…"), this);
    m_capacityBox = new QSpinBox(this);
    m_capacityBox->setRange(1000, 1000000);
    m_capacityBox->setSingleStep(10000);
    m_capacityBox->setGroupSeparatorShown(true);
    m_capacityBox->setValue(m_model.capacity());
    m_capacityBox->setToolTip(tr("How many of the newest lines are kept"));
    controlRow->addWidget(m_textFilter, 1);
    controlRow->addWidget(m_regexButton);
    controlRow->addWidget(m_caseButton);
    controlRow->addSpacing(12);
    for (QWidget *widget : {m_pauseButton, m_followButton, copy, save})
        controlRow->addWidget(widget);
    controlRow->addSpacing(12);
    controlRow->addWidget(new QLabel(tr("Keep"), this));
    controlRow->addWidget(m_capacityBox);
    layout->addLayout(controlRow);

    m_table = new QTableView(this);
    m_table->setModel(&m_model);
    setUpTrafficTable(m_table);
    setColumnsWide(m_table, {QStringLiteral("00:00:00.000"), QStringLiteral("PQTMVERNO"), QStringLiteral("00000"),
                             lineOutcomeName(LineOutcome::BadChecksum)});
    layout->addWidget(m_table, 1);

    m_counts = new QLabel(this);
    m_counts->setContentsMargins(8, 2, 8, 2);
    layout->addWidget(m_counts);

    auto *copyAction = new QAction(tr("Copy"), m_table);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    m_table->addAction(copyAction);
    connect(copyAction, &QAction::triggered, this, &PacketConsoleView::copySelection);
    connect(copy, &QToolButton::clicked, this, &PacketConsoleView::copySelection);
    connect(save, &QToolButton::clicked, this, &PacketConsoleView::saveSelectionAs);

    m_typingPause.setSingleShot(true);
    m_typingPause.setInterval(kTypingPauseMs);
    connect(&m_typingPause, &QTimer::timeout, this, &PacketConsoleView::applyFilter);
    connect(m_textFilter, &QLineEdit::textChanged, &m_typingPause, qOverload<>(&QTimer::start));
    connect(m_regexButton, &QToolButton::toggled, this, &PacketConsoleView::applyFilter);
    connect(m_caseButton, &QToolButton::toggled, this, &PacketConsoleView::applyFilter);
    connect(m_pauseButton, &QToolButton::toggled, this, &PacketConsoleView::updateHeld);
    connect(m_followButton, &QToolButton::toggled, this, &PacketConsoleView::followNewest);
    connect(m_capacityBox, &QSpinBox::editingFinished, this, [this] { setCapacity(m_capacityBox->value()); });

    connect(&m_model, &PacketConsoleModel::kindsChanged, this, &PacketConsoleView::addNewKinds);
    connect(&m_model, &PacketConsoleModel::rowsInserted, this, &PacketConsoleView::followNewest);
    for (auto rowsChanged : {&PacketConsoleModel::rowsInserted, &PacketConsoleModel::rowsRemoved})
        connect(&m_model, rowsChanged, this, &PacketConsoleView::updateCounts);
    connect(&m_model, &PacketConsoleModel::modelReset, this, &PacketConsoleView::updateCounts);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &PacketConsoleView::currentRowChanged);
    connect(&m_kindList, &QStandardItemModel::itemChanged, this, &PacketConsoleView::applyFilter);
    updateHeld();
    updateCounts();
}

QWidget *PacketConsoleView::makeKindsButton()
{
    m_kindsButton = new QToolButton(this);
    m_kindsButton->setPopupMode(QToolButton::InstantPopup);
    m_kindsButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto *menu = new QMenu(m_kindsButton);
    const auto checkAll = [this](Qt::CheckState state) {
        const QSignalBlocker blocker(&m_kindList);
        for (int row = 0; row < m_kindList.rowCount(); ++row)
            m_kindList.item(row)->setCheckState(state);
        applyFilter();
    };
    menu->addAction(tr("Show all"), this, [checkAll] { checkAll(Qt::Checked); });
    menu->addAction(tr("Hide all"), this, [checkAll] { checkAll(Qt::Unchecked); });
    menu->addSeparator();
    auto *list = new QListView(menu);
    list->setModel(&m_kindList);
    list->setUniformItemSizes(true);
    list->setMinimumHeight(240);
    auto *listAction = new QWidgetAction(menu);
    listAction->setDefaultWidget(list);
    menu->addAction(listAction);
    m_kindsButton->setMenu(menu);
    return m_kindsButton;
}

void PacketConsoleView::addNewKinds()
{
    const KindIndex &kinds = m_model.kinds();
    const QSignalBlocker blocker(&m_kindList);
    if (kinds.size() < m_kindList.rowCount())
        m_kindList.clear();
    for (int number = m_kindList.rowCount(); number < kinds.size(); ++number) {
        auto *item = new QStandardItem(QString::fromLatin1(kinds.kindAt(number)));
        item->setData(kinds.kindAt(number));
        item->setCheckable(true);
        item->setEditable(false);
        item->setCheckState(m_model.filter().hiddenKinds.contains(kinds.kindAt(number)) ? Qt::Unchecked : Qt::Checked);
        m_kindList.appendRow(item);
    }
    updateCounts();
}

void PacketConsoleView::applyFilter()
{
    m_typingPause.stop();
    LineFilter filter;
    for (int row = 0; row < m_kindList.rowCount(); ++row) {
        if (m_kindList.item(row)->checkState() != Qt::Checked)
            filter.hiddenKinds.insert(m_kindList.item(row)->data().toByteArray());
    }
    filter.shownOutcomes = 0;
    for (int i = 0; i < m_outcomeBoxes.size(); ++i) {
        if (m_outcomeBoxes.at(i)->isChecked())
            filter.shownOutcomes |= LineFilter::outcomeBit(kOutcomes[i]);
    }
    filter.text = m_textFilter->text();
    filter.regularExpression = m_regexButton->isChecked();
    filter.caseSensitivity = m_caseButton->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    m_model.setFilter(filter);

    const QString error = m_model.filterError();
    QPalette palette; // what it does not set comes from the parent
    if (!error.isEmpty())
        palette.setColor(QPalette::Base, ViewPalette::invalidEntryColour());
    m_textFilter->setPalette(palette);
    m_textFilter->setToolTip(error.isEmpty() ? QString() : tr("Invalid regular expression: %1").arg(error));
    followNewest();
}

void PacketConsoleView::setCapacity(int lines)
{
    m_capacityBox->setValue(lines);
    if (m_capacityBox->value() != m_model.capacity())
        m_model.setCapacity(m_capacityBox->value());
    followNewest();
}

void PacketConsoleView::setFollowing(bool following)
{
    m_followButton->setChecked(following);
}

bool PacketConsoleView::isFollowing() const
{
    return m_followButton->isChecked();
}

void PacketConsoleView::updateHeld()
{
    m_model.setPaused(m_pauseButton->isChecked() || !isVisible());
}

void PacketConsoleView::updateCounts()
{
    const KindIndex &kinds = m_model.kinds();
    const int hidden = int(m_model.filter().hiddenKinds.size());
    m_kindsButton->setText(hidden == 0 ? tr("Kinds: all %1").arg(kinds.size())
                                       : tr("Kinds: %1 of %2").arg(kinds.size() - hidden).arg(kinds.size()));
    const QLocale locale;
    m_counts->setText(tr("%1 of %2 lines shown, the newest %3 kept")
                          .arg(locale.toString(m_model.rowCount()), locale.toString(m_model.keptLines()),
                               locale.toString(m_model.capacity())));
}

void PacketConsoleView::followNewest()
{
    if (isFollowing())
        m_table->scrollToBottom();
}

void PacketConsoleView::currentRowChanged(const QModelIndex &current)
{
    if (!current.isValid())
        return;
    const LineRecord &record = m_model.record(current.row());
    if (!record.kind.isEmpty())
        emit kindSelected(record.kind);
    emit lineSelected(record.kind, record.bytes);
}

QString PacketConsoleView::selectedRowsText() const
{
    QVector<int> rows;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows())
        rows << index.row();
    return m_model.rowsText(rows);
}

bool PacketConsoleView::saveSelection(const QString &path, QString *error) const
{
    QSaveFile file(path);
    const bool saved = file.open(QIODevice::WriteOnly) && file.write(selectedRowsText().toUtf8()) >= 0 && file.commit();
    if (!saved && error)
        *error = file.errorString();
    return saved;
}

void PacketConsoleView::copySelection() const
{
    QApplication::clipboard()->setText(selectedRowsText());
}

void PacketConsoleView::saveSelectionAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the selected lines"), QString(),
                                                      tr("Text (*.txt);;All files (*)"));
    QString error;
    if (!path.isEmpty() && !saveSelection(path, &error))
        QMessageBox::warning(this, tr("Save the selected lines"), tr("Cannot write %1: %2").arg(path, error));
}

void PacketConsoleView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateHeld();
}

void PacketConsoleView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    updateHeld();
}
