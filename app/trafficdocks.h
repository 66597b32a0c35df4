// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>
#include <QObject>
#include <QTextStream>
#include <memory>

class FieldView;
class LineTraffic;
class MessageStatisticsView;
class PacketConsoleView;
class QDockWidget;
class QMainWindow;
class QMenu;

// The stream accounted for, in docks: every line with what became of it (packet
// console), the counts per kind (message statistics), and one line taken apart into
// its fields (field view), which follows the kind or line chosen in the other two.
class TrafficDocks : public QObject
{
    Q_OBJECT
public:
    TrafficDocks(LineTraffic &traffic, QMainWindow &window);

    const QList<QDockWidget *> &docks() const { return m_docks; }
    PacketConsoleView *packetConsole() const { return m_packets; }
    void addToggleActions(QMenu *menu) const;
    // The packet console's ring size and whether it follows the newest line.
    void saveSettings() const;
    // A new connection: the lines of the last one go.
    void clear();

private:
    QDockWidget *addDock(QMainWindow &window, QWidget *widget, const char *name, const QString &title);
    void showLatestLineOf(const QByteArray &kind);

    LineTraffic &m_traffic;
    PacketConsoleView *m_packets;
    MessageStatisticsView *m_statistics;
    FieldView *m_fields;
    QList<QDockWidget *> m_docks;
};

// The packet console and the message statistics of a replay as pictures: made before
// the replay so that the console receives its lines, saved after it.
class TrafficPictures
{
public:
    explicit TrafficPictures(LineTraffic &traffic);
    ~TrafficPictures();
    // Writes dock-packets.png and dock-messages.png; returns how many were written.
    int save(const QString &directory, QTextStream &out);
    static constexpr int count = 2;

private:
    LineTraffic &m_traffic;
    std::unique_ptr<PacketConsoleView> m_packets;
    std::unique_ptr<MessageStatisticsView> m_statistics;
};
