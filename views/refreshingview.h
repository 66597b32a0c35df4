// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTimer>
#include <QWidget>

// A view that reads its figures when shown and then once a second, and not at all while
// hidden: what it shows costs nothing while nobody looks.
class RefreshingView : public QWidget
{
    Q_OBJECT
public:
    static constexpr int refreshIntervalMs = 1000;

    explicit RefreshingView(QWidget *parent = nullptr);
    virtual void refresh() = 0;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QTimer m_refreshTimer;
};
