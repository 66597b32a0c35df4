// SPDX-License-Identifier: BSD-3-Clause
#include "bdt.h"

#include <QEvent>
#include <utility>

QVector<FieldRow> BDT::systemTimeRows()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("TimeQuality"), nullptr,
         QT_TR_NOOP("时间质量，精度级别如下：0：时间未知,1：粗略（毫秒级精度）,2：外推（微秒级精度）,3：精确（3D正常定位或定点授时模式，纳秒级精度）")},
        {QT_TR_NOOP("Week"), nullptr, QT_TR_NOOP("周数，无效则为空")},
        {QT_TR_NOOP("Sow"), nullptr, QT_TR_NOOP("周内秒（小数点后9位，ns精度），无效则为空")},
        {QT_TR_NOOP("BdsTotalSec"), nullptr, QT_TR_NOOP("BDS 系统总秒数")},
        {QT_TR_NOOP("GPSWeek"), nullptr, QT_TR_NOOP("GPS周数，无效则为空")},
        {QT_TR_NOOP("GPSSow"), nullptr, QT_TR_NOOP("GPS周内秒（小数点后9位，ns精度），无效则为空")},
        {QT_TR_NOOP("Lsf"), nullptr, QT_TR_NOOP("闰秒")},
        {QT_TR_NOOP("lsfFlag"), nullptr,
         QT_TR_NOOP("闰秒有效标志0：未知,1：用户配置或默认值,2：由其它GNSS系统同步获得,3：本系统电文播发闰秒参数")},
    };
    return fieldRows(rows);
}

QVector<FieldRow> BDT::interchangedSystemTimeRows()
{
    QVector<FieldRow> rows = systemTimeRows();
    std::swap(rows.first().description, rows.last().description);
    return rows;
}

const FieldTableSpec &BDT::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, systemTimeRows()).lastFieldOptional();
    return spec;
}

BDT::BDT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

void BDT::changeEvent(QEvent *event)
{
    FieldTablePage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        onRetranslateUI();
}
