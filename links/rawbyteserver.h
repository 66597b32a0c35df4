// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QString>

class QTcpServer;
class QTcpSocket;

// Re-serves the receiver's raw bytes to any number of TCP clients, so other programs
// can share one receiver. Each client gets the stream from the moment it connects; what
// clients send is read and dropped. A client that falls more than the backlog limit
// behind (beyond what the kernel buffers) is dropped, so a slow reader never slows the
// console, and what is held for it stays under the limit plus one chunk.
class RawByteServer : public QObject
{
    Q_OBJECT
public:
    static constexpr qint64 kDefaultBacklogLimit = 4 * 1024 * 1024;

    explicit RawByteServer(QObject *parent = nullptr);
    ~RawByteServer() override;

    // "[ADDRESS:]PORT": loopback unless an address is given; false and error otherwise.
    static bool parseListenAddress(const QString &text, QHostAddress *address, quint16 *port, QString *error);

    bool listen(const QHostAddress &address, quint16 port, QString *error);
    void close();
    bool isListening() const;
    quint16 port() const;
    QString listenText() const;
    int clientCount() const { return m_clients.size(); }
    void setBacklogLimit(qint64 bytes) { m_backlogLimit = bytes; }

    void send(const QByteArray &bytes);

signals:
    // Clients coming, going and dropped, for the status bar and the log.
    void message(const QString &text);
    void clientCountChanged(int count);
    void listeningChanged(bool listening);

private:
    void accept();
    void forget(QTcpSocket *client, const QString &why);

    QTcpServer *m_server;
    QList<QTcpSocket *> m_clients;
    qint64 m_backlogLimit = kDefaultBacklogLimit;
};
