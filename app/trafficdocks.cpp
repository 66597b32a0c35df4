// SPDX-License-Identifier: BSD-3-Clause
#include "trafficdocks.h"

#include "fieldview.h"
#include "headlessreplay.h"
#include "linetraffic.h"
#include "messagestatisticsview.h"
#include "packetconsoleview.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>

TrafficDocks::TrafficDocks(LineTraffic &traffic, QMainWindow &window)
    : QObject(&window)
    , m_traffic(traffic)
    , m_packets(new PacketConsoleView)
    , m_statistics(new MessageStatisticsView(traffic.statistics()))
    , m_fields(new FieldView)
{
    QSettings settings;
    m_packets->setCapacity(settings.value(QStringLiteral("traffic/capacity"), m_packets->capacity()).toInt());
    m_packets->setFollowing(settings.value(QStringLiteral("traffic/follow"), true).toBool());
    m_traffic.setSink([this](const LineRecord &record) { m_packets->append(record); });
    connect(m_packets, &PacketConsoleView::lineSelected, m_fields, &FieldView::showLine);
    connect(m_statistics, &MessageStatisticsView::kindSelected, this, &TrafficDocks::showLatestLineOf);

    // First placed with the views of the receiver, as tabs; the user moves them.
    QDockWidget *packets = addDock(window, m_packets, "packets", tr("Packets"));
    QDockWidget *messages = addDock(window, m_statistics, "messages", tr("Messages"));
    QDockWidget *fields = addDock(window, m_fields, "fields", tr("Fields"));
    for (QDockWidget *dock : window.findChildren<QDockWidget *>()) {
        if (dock->objectName() == QLatin1String("dock-signals")) {
            window.tabifyDockWidget(dock, packets);
            window.tabifyDockWidget(packets, messages);
            dock->raise();
        } else if (dock->objectName() == QLatin1String("dock-position")) {
            window.tabifyDockWidget(dock, fields);
            dock->raise();
        }
    }
}

QDockWidget *TrafficDocks::addDock(QMainWindow &window, QWidget *widget, const char *name, const QString &title)
{
    auto *dock = new QDockWidget(title, &window);
    dock->setObjectName(QStringLiteral("dock-%1").arg(QLatin1String(name)));
    dock->setWidget(widget);
    window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    m_docks << dock;
    return dock;
}

void TrafficDocks::addToggleActions(QMenu *menu) const
{
    for (QDockWidget *dock : m_docks)
        menu->addAction(dock->toggleViewAction());
}

void TrafficDocks::saveSettings() const
{
    QSettings settings;
    settings.setValue(QStringLiteral("traffic/capacity"), m_packets->capacity());
    settings.setValue(QStringLiteral("traffic/follow"), m_packets->isFollowing());
}

void TrafficDocks::clear()
{
    m_packets->model().clear();
    m_statistics->refresh();
}

void TrafficDocks::showLatestLineOf(const QByteArray &kind)
{
    for (const KindStatistics &statistics : m_traffic.statistics().kinds(m_traffic.now())) {
        if (statistics.kind == kind) {
            m_fields->showLine(kind, statistics.lastLine);
            return;
        }
    }
}

TrafficPictures::TrafficPictures(LineTraffic &traffic)
    : m_traffic(traffic)
    , m_packets(std::make_unique<PacketConsoleView>())
    , m_statistics(std::make_unique<MessageStatisticsView>(traffic.statistics()))
{
    m_statistics->setClock([&traffic] { return traffic.statistics().latestMs(); });
    for (QWidget *view : {static_cast<QWidget *>(m_packets.get()), static_cast<QWidget *>(m_statistics.get())}) {
        view->resize(900, 500);
        view->show();
    }
    m_traffic.setSink([this](const LineRecord &record) { m_packets->append(record); });
}

TrafficPictures::~TrafficPictures()
{
    m_traffic.setSink(nullptr);
}

int TrafficPictures::save(const QString &directory, QTextStream &out)
{
    m_packets->model().flush();
    m_statistics->refresh();
    QCoreApplication::processEvents();
    int written = 0;
    for (const auto &[name, view] : {std::pair<const char *, QWidget *>{"packets", m_packets.get()},
                                     std::pair<const char *, QWidget *>{"messages", m_statistics.get()}}) {
        written += writePicture(*view, directory, QStringLiteral("dock-%1").arg(QLatin1String(name)), out);
    }
    return written;
}
