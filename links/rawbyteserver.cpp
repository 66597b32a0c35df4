// SPDX-License-Identifier: BSD-3-Clause
#include "rawbyteserver.h"

#include <QTcpServer>
#include <QTcpSocket>

namespace {

QString peerText(const QTcpSocket *client)
{
    return QStringLiteral("%1:%2").arg(client->peerAddress().toString()).arg(client->peerPort());
}

} // namespace

RawByteServer::RawByteServer(QObject *parent)
    : QObject(parent)
    , m_server(new QTcpServer(this))
{
    connect(m_server, &QTcpServer::newConnection, this, &RawByteServer::accept);
}

RawByteServer::~RawByteServer()
{
    // Sockets are children: no signals from them may reach a half-destroyed server.
    for (QTcpSocket *client : qAsConst(m_clients))
        client->disconnect(this);
}

bool RawByteServer::parseListenAddress(const QString &text, QHostAddress *address, quint16 *port, QString *error)
{
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    QString host = colon < 0 ? QString() : text.left(colon);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']')))
        host = host.mid(1, host.size() - 2);
    bool ok = false;
    const uint number = text.mid(colon + 1).toUInt(&ok);
    QHostAddress parsed = host.isEmpty() ? QHostAddress(QHostAddress::LocalHost) : QHostAddress(host);
    if (host == QLatin1String("*"))
        parsed = QHostAddress(QHostAddress::Any);
    if (!ok || number > 65535 || parsed.isNull()) {
        *error = QObject::tr("Expected [ADDRESS:]PORT to serve on, for example 5002 or 0.0.0.0:5002, not \"%1\"")
                     .arg(text);
        return false;
    }
    *address = parsed;
    *port = quint16(number);
    return true;
}

bool RawByteServer::listen(const QHostAddress &address, quint16 port, QString *error)
{
    close();
    if (m_server->listen(address, port)) {
        emit listeningChanged(true);
        return true;
    }
    *error = tr("cannot serve on %1:%2: %3").arg(address.toString()).arg(port).arg(m_server->errorString());
    return false;
}

void RawByteServer::close()
{
    const bool hadClients = !m_clients.isEmpty();
    for (QTcpSocket *client : qAsConst(m_clients)) {
        client->disconnect(this);
        client->abort();
        client->deleteLater();
    }
    m_clients.clear();
    const bool wasListening = m_server->isListening();
    m_server->close();
    if (hadClients)
        emit clientCountChanged(0);
    if (wasListening)
        emit listeningChanged(false);
}

bool RawByteServer::isListening() const
{
    return m_server->isListening();
}

quint16 RawByteServer::port() const
{
    return m_server->serverPort();
}

QString RawByteServer::listenText() const
{
    return QStringLiteral("%1:%2").arg(m_server->serverAddress().toString()).arg(m_server->serverPort());
}

void RawByteServer::accept()
{
    while (QTcpSocket *client = m_server->nextPendingConnection()) {
        m_clients << client;
        connect(client, &QTcpSocket::readyRead, client, [client] { client->readAll(); });
        connect(client, &QTcpSocket::disconnected, this, [this, client] { forget(client, tr("disconnected")); });
        emit message(tr("serving %1 to %2").arg(listenText(), peerText(client)));
        emit clientCountChanged(m_clients.size());
    }
}

void RawByteServer::forget(QTcpSocket *client, const QString &why)
{
    if (!m_clients.removeOne(client))
        return;
    emit message(tr("client %1 %2").arg(peerText(client), why));
    client->disconnect(this);
    client->abort();
    client->deleteLater();
    emit clientCountChanged(m_clients.size());
}

void RawByteServer::send(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    // Iterating a copy: dropping a client changes the list.
    const QList<QTcpSocket *> clients = m_clients;
    for (QTcpSocket *client : clients) {
        // What is left after handing the kernel all it takes is what the client is behind.
        if (client->bytesToWrite() > m_backlogLimit) {
            forget(client, tr("dropped: it fell %1 KiB behind").arg(client->bytesToWrite() / 1024));
            continue;
        }
        client->write(bytes);
        client->flush();
    }
}
