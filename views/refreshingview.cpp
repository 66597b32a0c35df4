// SPDX-License-Identifier: BSD-3-Clause
#include "refreshingview.h"

RefreshingView::RefreshingView(QWidget *parent)
    : QWidget(parent)
{
    m_refreshTimer.setInterval(refreshIntervalMs);
    connect(&m_refreshTimer, &QTimer::timeout, this, [this] { refresh(); });
}

void RefreshingView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
    m_refreshTimer.start();
}

void RefreshingView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_refreshTimer.stop();
}
