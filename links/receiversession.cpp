#include "receiversession.h"

ReceiverSession::ReceiverSession(QObject *parent)
    : QObject(parent)
{
}

ReceiverSession::~ReceiverSession()
{
    if (m_connection)
        m_connection->disconnect(this);
}

void ReceiverSession::open(std::unique_ptr<ReceiverConnection> connection)
{
    close();
    m_connection = std::move(connection);
    connect(m_connection.get(), &ReceiverConnection::dataReceived, this, [this](const QByteArray &bytes) {
        m_server.send(bytes);
        emit dataReceived(bytes);
    });
    connect(m_connection.get(), &ReceiverConnection::stateChanged, this, &ReceiverSession::connectionStateChanged);
    m_connection->open();
}

void ReceiverSession::close()
{
    if (!m_connection)
        return;
    m_connection->close();
    m_connection->disconnect(this);
    m_connection.reset();
}
