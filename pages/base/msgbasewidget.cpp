// SPDX-License-Identifier: BSD-3-Clause
#include "msgbasewidget.h"

#include <QCoreApplication>
#include <QFile>
#include <QFont>
#include <QTableWidgetItem>
#include <QTextDocument>
#include <QTreeWidgetItem>

namespace {

struct VocabularyEntry
{
    const char *key;
    int comparedLength;
    const char *description;
};

// Keys are tried in this order and compared as prefixes of the value, so the
// longer INS keys must precede the bare "INS". "INS_RTKFLOA" is eleven characters
// on purpose: it also matches the receiver's "INS_RTKFLOAT".
const VocabularyEntry kPositionTypes[] = {
    {"NONE", 4, QT_TRANSLATE_NOOP("MsgBaseWidget", "无解")},
    {"FIXEDPOS", 8, QT_TRANSLATE_NOOP("MsgBaseWidget", "位置由 FIX POSITION 命令指定")},
    {"FIXEDHEIGHT", 11, QT_TRANSLATE_NOOP("MsgBaseWidget", "暂不支持")},
    {"DOPPLER_VELOCITY", 16, QT_TRANSLATE_NOOP("MsgBaseWidget", "速度由即时多普勒信息导出")},
    {"SINGLE", 6, QT_TRANSLATE_NOOP("MsgBaseWidget", "单点定位")},
    {"PSRDIFF", 7, QT_TRANSLATE_NOOP("MsgBaseWidget", "伪距差分解")},
    {"SBAS", 4, QT_TRANSLATE_NOOP("MsgBaseWidget", "SBAS 定位")},
    {"L1_FLOAT", 8, QT_TRANSLATE_NOOP("MsgBaseWidget", "L1 浮点解")},
    {"IONOFREE_FLOAT", 14, QT_TRANSLATE_NOOP("MsgBaseWidget", "消电离层浮点解")},
    {"NARROW_FLOAT", 12, QT_TRANSLATE_NOOP("MsgBaseWidget", "窄巷浮点解")},
    {"L1_INT", 6, QT_TRANSLATE_NOOP("MsgBaseWidget", "L1 固定解")},
    {"WIDE_INT", 8, QT_TRANSLATE_NOOP("MsgBaseWidget", "宽巷固定解")},
    {"NARROW_INT", 10, QT_TRANSLATE_NOOP("MsgBaseWidget", "窄巷固定解")},
    {"INS_PSRSP", 9, QT_TRANSLATE_NOOP("MsgBaseWidget", "惯导与单点定位组合解")},
    {"INS_PSRDIFF", 11, QT_TRANSLATE_NOOP("MsgBaseWidget", "惯导与伪距差分定位组合解")},
    {"INS_RTKFLOA", 11, QT_TRANSLATE_NOOP("MsgBaseWidget", "惯导与载波相位差分浮点解组合解")},
    {"INS_RTKFIXED", 12, QT_TRANSLATE_NOOP("MsgBaseWidget", "惯导与载波相位差分固定解组合解")},
    {"INS", 3, QT_TRANSLATE_NOOP("MsgBaseWidget", "纯惯导定位解")},
};

const VocabularyEntry kSolutionStatuses[] = {
    {"SOL_COMPUTED", 12, QT_TRANSLATE_NOOP("MsgBaseWidget", "已解出")},
    {"INSUFFICIENT_OBS", 16, QT_TRANSLATE_NOOP("MsgBaseWidget", "观测数据不足")},
    {"NO_CONVERGENCE", 14, QT_TRANSLATE_NOOP("MsgBaseWidget", "无法收敛")},
    {"COV_TRACE", 9, QT_TRANSLATE_NOOP("MsgBaseWidget", "协方差矩阵的迹超过最大值")},
};

template <size_t N>
void describe(const VocabularyEntry (&vocabulary)[N], QTableWidgetItem *item, const QString &value)
{
    if (!item)
        return;
    for (const VocabularyEntry &entry : vocabulary) {
        if (QStringView(value).left(entry.comparedLength) == QLatin1String(entry.key)) {
            item->setText(QCoreApplication::translate("MsgBaseWidget", entry.description));
            return;
        }
    }
}

// Every page uses the same sheet; read the resource once rather than per page.
const QString &pageStyleSheet()
{
    static const QString sheet = [] {
        QFile file(QStringLiteral(":/msgbasewidget.qss"));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }();
    return sheet;
}

} // namespace

MsgBaseWidget::MsgBaseWidget(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : QWidget(parent)
{
    // More than one character, not merely non-empty: a one-character introduction
    // deliberately gives a page without a tree item.
    if (introStr.size() > 1) {
        m_treeItem = new QTreeWidgetItem(treeParent);
        m_treeItem->setText(0, introStr);
        m_treeItem->setForeground(0, Qt::gray);
    }
    m_textDocument = new QTextDocument(this);
    m_textDocument->setMaximumBlockCount(512);
    m_textDocument->setDefaultFont(QFont(QStringLiteral("Lucida Console"), 8));
    if (!pageStyleSheet().isEmpty())
        setStyleSheet(pageStyleSheet());
}

MsgBaseWidget::~MsgBaseWidget() = default;

void MsgBaseWidget::describePositionType(QTableWidgetItem *item, const QString &value) const
{
    describe(kPositionTypes, item, value);
}

void MsgBaseWidget::describeSolutionStatus(QTableWidgetItem *item, const QString &value) const
{
    describe(kSolutionStatuses, item, value);
}

void MsgBaseWidget::onGetCurRecIndex(int) {}

void MsgBaseWidget::onRetranslateUI() {}
