#pragma once

#include "rawbyteserver.h"
#include "receiverconnection.h"

#include <QObject>
#include <memory>

// One receiver link and what travels on it besides the receiver's own bytes: the bytes
// re-served to other programs, and (with an NTRIP client) corrections for the receiver.
// The console's window and its headless runs share it.
class ReceiverSession : public QObject
{
    Q_OBJECT
public:
    explicit ReceiverSession(QObject *parent = nullptr);
    ~ReceiverSession() override;

    // Takes over a connection and opens it; the one before is closed.
    void open(std::unique_ptr<ReceiverConnection> connection);
    void close();
    ReceiverConnection *connection() const { return m_connection.get(); }

    RawByteServer &server() { return m_server; }

signals:
    // The receiver's bytes, after they have been passed on to the clients served.
    void dataReceived(const QByteArray &bytes);
    void connectionStateChanged(ReceiverConnection::State state, const QString &text);

private:
    std::unique_ptr<ReceiverConnection> m_connection;
    RawByteServer m_server;
};
