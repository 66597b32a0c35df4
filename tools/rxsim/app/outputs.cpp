// SPDX-License-Identifier: BSD-3-Clause
#include "outputs.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {
// Bytes a client or link may hold back before the generator waits (as fast as
// possible) or the output gives up on it (real time).
constexpr qint64 kPauseBacklog = 1 << 20;
constexpr qint64 kDropBacklog = 16 << 20;
// What is read back from a link in one go; it is handed on at once.
constexpr int kReadBackChunk = 4096;
constexpr int kReadBackChunksPerPump = 16;

qint64 monotonicNs()
{
    static QElapsedTimer clock;
    if (!clock.isValid())
        clock.start();
    return clock.nsecsElapsed();
}
} // namespace

StreamOutput::StreamOutput(std::FILE *file, bool owned, QObject *parent)
    : Output(parent)
    , m_file(file)
    , m_owned(owned)
{
}

StreamOutput::~StreamOutput()
{
    if (m_owned)
        std::fclose(m_file);
    else
        std::fflush(m_file);
}

void StreamOutput::write(const QByteArray &chunk)
{
    if (m_failed)
        return;
    // One write per piece, so that split pieces reach a pipe as pieces.
    if (std::fwrite(chunk.constData(), 1, size_t(chunk.size()), m_file) != size_t(chunk.size())
        || std::fflush(m_file) != 0)
        m_failed = true;
}

TcpOutput::TcpOutput(bool asFastAsPossible, QObject *parent)
    : Output(parent)
    , m_server(new QTcpServer(this))
    , m_asFastAsPossible(asFastAsPossible)
{
    connect(m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *client = m_server->nextPendingConnection()) {
            client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            client->setReadBufferSize(16 * kReadBackChunk);
            m_clients << client;
            connect(client, &QTcpSocket::readyRead, this,
                    [this, client] { emit received(quintptr(client), client->readAll()); });
            connect(client, &QTcpSocket::bytesWritten, this, [this] {
                if (!isBacklogged())
                    emit drained();
            });
            connect(client, &QTcpSocket::disconnected, this, [this, client] {
                m_clients.removeAll(client);
                emit linkClosed(quintptr(client));
                client->deleteLater();
                emit clientCountChanged(m_clients.size());
                if (!isBacklogged())
                    emit drained();
                checkFinished();
            });
            if (m_finishing)
                client->disconnectFromHost();
            emit clientCountChanged(m_clients.size());
        }
    });
}

bool TcpOutput::listen(quint16 port, QString *error)
{
    if (m_server->listen(QHostAddress::LocalHost, port))
        return true;
    *error = m_server->errorString();
    return false;
}

quint16 TcpOutput::port() const
{
    return m_server->serverPort();
}

void TcpOutput::write(const QByteArray &chunk)
{
    for (QTcpSocket *client : qAsConst(m_clients)) {
        if (!m_asFastAsPossible && client->bytesToWrite() > kDropBacklog) {
            std::fprintf(stderr, "rxsim: a client at %s reads too slowly; closing it\n",
                         qPrintable(client->peerAddress().toString()));
            client->abort();
            continue;
        }
        client->write(chunk);
    }
}

bool TcpOutput::isBacklogged() const
{
    for (const QTcpSocket *client : m_clients) {
        if (client->bytesToWrite() > kPauseBacklog)
            return true;
    }
    return false;
}

void TcpOutput::finish()
{
    m_finishing = true;
    m_server->close();
    // disconnectFromHost() delivers what is queued before it closes.
    const QList<QTcpSocket *> clients = m_clients;
    for (QTcpSocket *client : clients)
        client->disconnectFromHost();
    // A client that stops reading does not keep the program alive for ever.
    QTimer::singleShot(30000, this, [this] {
        const QList<QTcpSocket *> stalled = m_clients;
        for (QTcpSocket *client : stalled)
            client->abort();
    });
    checkFinished();
}

void TcpOutput::checkFinished()
{
    if (m_finishing && m_clients.isEmpty())
        emit finished();
}

SerialOutput::SerialOutput(bool asFastAsPossible, QObject *parent)
    : Output(parent)
    , m_asFastAsPossible(asFastAsPossible)
{
    m_timer.setInterval(5);
    connect(&m_timer, &QTimer::timeout, this, &SerialOutput::pump);
}

SerialOutput::~SerialOutput()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

bool SerialOutput::open(const QString &path, int baud, QString *error)
{
    static const struct { int baud; speed_t speed; } kRates[] = {
        {1200, B1200}, {2400, B2400}, {4800, B4800}, {9600, B9600}, {19200, B19200}, {38400, B38400},
        {57600, B57600}, {115200, B115200}, {230400, B230400}, {460800, B460800}, {921600, B921600},
        {1000000, B1000000}, {1500000, B1500000}, {2000000, B2000000}, {3000000, B3000000}, {4000000, B4000000}};
    speed_t speed = 0;
    for (const auto &rate : kRates) {
        if (rate.baud == baud)
            speed = rate.speed;
    }
    if (!speed) {
        *error = QStringLiteral("%1 is not a standard baud rate").arg(baud);
        return false;
    }
    m_fd = ::open(path.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (m_fd < 0) {
        *error = QStringLiteral("cannot open %1: %2").arg(path, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    termios tio{};
    if (::tcgetattr(m_fd, &tio) == 0) {
        ::cfmakeraw(&tio);
        tio.c_cflag |= CLOCAL | CREAD;
        ::cfsetispeed(&tio, speed);
        ::cfsetospeed(&tio, speed);
        ::tcsetattr(m_fd, TCSANOW, &tio);
    }
    m_bytesPerSecond = baud / 10.0;
    m_lastPumpNs = monotonicNs();
    m_timer.start();
    return true;
}

void SerialOutput::write(const QByteArray &chunk)
{
    // In real time a link too slow for the chosen messages loses whole pieces, as a
    // receiver's full port buffer does; ten seconds of bytes may wait.
    if (!m_asFastAsPossible && m_pending.size() > qint64(m_bytesPerSecond * 10.0)) {
        if (!m_warnedOverflow)
            std::fprintf(stderr, "rxsim: %.0f bytes/s are too few for the chosen messages; output is dropped\n",
                         m_bytesPerSecond);
        m_warnedOverflow = true;
        return;
    }
    m_pending += chunk;
}

bool SerialOutput::isBacklogged() const
{
    return m_pending.size() > qMax<qint64>(4096, qint64(m_bytesPerSecond / 2.0));
}

void SerialOutput::readBack()
{
    // A bounded share per pump, so a line that floods us cannot stall the sending.
    char buffer[kReadBackChunk];
    for (int i = 0; i < kReadBackChunksPerPump; ++i) {
        const ssize_t got = ::read(m_fd, buffer, sizeof buffer);
        if (got <= 0)
            return;
        emit received(quintptr(this), QByteArray(buffer, int(got)));
    }
}

void SerialOutput::pump()
{
    if (m_readsBack && !m_failed)
        readBack();
    const qint64 now = monotonicNs();
    m_allowance = qMin(m_allowance + (now - m_lastPumpNs) / 1e9 * m_bytesPerSecond, m_bytesPerSecond * 0.02 + 64.0);
    m_lastPumpNs = now;
    const int size = qMin(m_pending.size(), int(m_allowance));
    if (size > 0 && !m_failed) {
        const ssize_t written = ::write(m_fd, m_pending.constData(), size_t(size));
        if (written > 0) {
            m_pending.remove(0, int(written));
            m_allowance -= double(written);
        } else if (written < 0 && errno != EAGAIN && errno != EINTR) {
            std::fprintf(stderr, "rxsim: serial write failed: %s\n", std::strerror(errno));
            m_failed = true;
        }
        if (!isBacklogged())
            emit drained();
    }
    if (m_finishing && (m_pending.isEmpty() || m_failed)) {
        m_timer.stop();
        // Wait until the other end has read the last byte.
        ::tcdrain(m_fd);
        emit finished();
    }
}

void SerialOutput::finish()
{
    m_finishing = true;
}
