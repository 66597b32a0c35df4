// SPDX-License-Identifier: BSD-3-Clause
#include "receiverconnection.h"

#include <QFile>
#include <QSerialPort>
#include <QSocketNotifier>
#include <QTcpSocket>

#include <unistd.h>

namespace {
constexpr int kReplayTickMs = 50;
constexpr int kMaxRetryMs = 30000;
} // namespace

int Backoff::nextDelayMs()
{
    m_delayMs = m_delayMs == 0 ? 1000 : qMin(m_delayMs * 2, kMaxRetryMs);
    return m_delayMs;
}

ReceiverConnection::ReceiverConnection(QString description)
    : m_description(std::move(description))
{
}

ReceiverConnection::~ReceiverConnection() = default;

bool ReceiverConnection::write(const QByteArray &)
{
    return false;
}

void ReceiverConnection::setState(State state, const QString &text)
{
    m_state = state;
    m_stateText = text;
    emit stateChanged(state, text);
}

std::unique_ptr<ReceiverConnection> ReceiverConnection::fromAddress(const QString &address, QString *error)
{
    const int colon = address.indexOf(QLatin1Char(':'));
    const QString kind = colon < 0 ? address : address.left(colon);
    const QString rest = colon < 0 ? QString() : address.mid(colon + 1);
    if (kind == QLatin1String("stdin") || address == QLatin1String("-"))
        return std::make_unique<StdinConnection>();
    if (kind == QLatin1String("serial")) {
        const int at = rest.lastIndexOf(QLatin1Char('@'));
        bool ok = at < 0;
        const int baud = at < 0 ? 115200 : rest.mid(at + 1).toInt(&ok);
        if (rest.isEmpty() || !ok || baud <= 0) {
            *error = QObject::tr("Expected serial:DEVICE[@BAUD], for example serial:/dev/ttyUSB0@115200");
            return nullptr;
        }
        return std::make_unique<SerialConnection>(at < 0 ? rest : rest.left(at), baud);
    }
    if (kind == QLatin1String("tcp")) {
        const int portColon = rest.lastIndexOf(QLatin1Char(':'));
        bool ok = false;
        const uint port = portColon < 0 ? 0 : rest.mid(portColon + 1).toUInt(&ok);
        if (portColon <= 0 || !ok || port == 0 || port > 65535) {
            *error = QObject::tr("Expected tcp:HOST:PORT, for example tcp:192.168.1.10:5000");
            return nullptr;
        }
        return std::make_unique<TcpConnection>(rest.left(portColon), quint16(port));
    }
    if (kind == QLatin1String("gpsd")) {
        const int portColon = rest.lastIndexOf(QLatin1Char(':'));
        bool ok = true;
        const uint port = portColon < 0 ? GpsdConnection::kDefaultPort : rest.mid(portColon + 1).toUInt(&ok);
        const QString host = portColon < 0 ? rest : rest.left(portColon);
        if (host.isEmpty() || !ok || port == 0 || port > 65535) {
            *error = QObject::tr("Expected gpsd:HOST[:PORT], for example gpsd:localhost or gpsd:localhost:2947");
            return nullptr;
        }
        return std::make_unique<GpsdConnection>(host, quint16(port));
    }
    if (kind == QLatin1String("file")) {
        const int at = rest.lastIndexOf(QLatin1Char('@'));
        bool ok = true;
        int rate = 0;
        QString path = rest;
        if (at > 0) {
            rate = rest.mid(at + 1).toInt(&ok);
            if (ok)
                path = rest.left(at);
        }
        if (path.isEmpty() || !ok || rate < 0) {
            *error = QObject::tr("Expected file:PATH[@BYTES_PER_SECOND]");
            return nullptr;
        }
        return std::make_unique<FileReplayConnection>(path, rate);
    }
    *error = QObject::tr("Unknown connection \"%1\": use serial:, tcp:, gpsd:, file: or stdin").arg(address);
    return nullptr;
}

// --- serial ---------------------------------------------------------------

SerialConnection::SerialConnection(QString device, int baud)
    : ReceiverConnection(QStringLiteral("%1 @ %2 baud").arg(device).arg(baud))
    , m_device(std::move(device))
    , m_baud(baud)
    , m_port(new QSerialPort(this))
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &SerialConnection::open);
    connect(m_port, &QSerialPort::readyRead, this, [this] { emit dataReceived(m_port->readAll()); });
    connect(m_port, &QSerialPort::errorOccurred, this, [this](QSerialPort::SerialPortError error) {
        // A read or resource error on an open port means the device went away (an
        // unplugged adapter, a closed pseudo-terminal); anything else is transient.
        if ((error == QSerialPort::ResourceError || error == QSerialPort::ReadError) && m_port->isOpen())
            fail(tr("device lost (%1)").arg(m_port->errorString()));
    });
}

SerialConnection::~SerialConnection()
{
    m_wanted = false;
    m_port->close();
}

void SerialConnection::open()
{
    m_wanted = true;
    setState(State::Opening, tr("opening %1").arg(description()));
    m_port->setPortName(m_device);
    m_port->setBaudRate(m_baud);
    m_port->setDataBits(QSerialPort::Data8);
    m_port->setParity(QSerialPort::NoParity);
    m_port->setStopBits(QSerialPort::OneStop);
    m_port->setFlowControl(QSerialPort::NoFlowControl);
    if (!m_port->open(QIODevice::ReadWrite)) {
        fail(m_port->errorString());
        return;
    }
    m_backoff.reset();
    setState(State::Open, tr("connected to %1").arg(description()));
}

void SerialConnection::fail(const QString &reason)
{
    if (m_port->isOpen()) {
        const QByteArray rest = m_port->readAll(); // keep whatever arrived before the loss
        if (!rest.isEmpty())
            emit dataReceived(rest);
        m_port->close();
    }
    if (!m_wanted)
        return;
    const int delay = m_backoff.nextDelayMs();
    setState(State::Retrying, tr("%1: %2; retrying in %3 s").arg(m_device, reason).arg(delay / 1000));
    m_retry.start(delay);
}

void SerialConnection::close()
{
    m_wanted = false;
    m_retry.stop();
    m_port->close();
    setState(State::Closed, tr("disconnected"));
}

bool SerialConnection::write(const QByteArray &bytes)
{
    return canWrite() && m_port->write(bytes) == bytes.size();
}

bool SerialConnection::canWrite() const
{
    return m_port->isOpen();
}

// --- TCP ------------------------------------------------------------------

TcpConnection::TcpConnection(QString host, quint16 port)
    : TcpConnection(host, port, QStringLiteral("%1:%2").arg(host).arg(port))
{
}

TcpConnection::TcpConnection(QString host, quint16 port, QString descriptionText)
    : ReceiverConnection(std::move(descriptionText))
    , m_host(std::move(host))
    , m_port(port)
    , m_socket(new QTcpSocket(this))
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &TcpConnection::open);
    connect(m_socket, &QTcpSocket::readyRead, this, [this] { deliver(m_socket->readAll()); });
    connect(m_socket, &QTcpSocket::connected, this, [this] {
        m_backoff.reset();
        setState(State::Open, tr("connected to %1").arg(description()));
        greet();
    });
    connect(m_socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        lost(error == QAbstractSocket::RemoteHostClosedError ? tr("peer closed the connection")
                                                             : m_socket->errorString());
    });
}

void TcpConnection::open()
{
    m_wanted = true;
    setState(State::Opening, tr("connecting to %1").arg(description()));
    m_socket->abort();
    m_socket->connectToHost(m_host, m_port);
}

void TcpConnection::lost(const QString &reason)
{
    const QByteArray rest = m_socket->readAll(); // keep whatever arrived before the loss
    if (!rest.isEmpty())
        deliver(rest);
    if (!m_wanted || m_retry.isActive())
        return;
    const int delay = m_backoff.nextDelayMs();
    setState(State::Retrying, tr("%1: %2; retrying in %3 s").arg(description(), reason).arg(delay / 1000));
    m_retry.start(delay);
}

void TcpConnection::close()
{
    m_wanted = false;
    m_retry.stop();
    m_socket->abort();
    setState(State::Closed, tr("disconnected"));
}

bool TcpConnection::write(const QByteArray &bytes)
{
    return canWrite() && m_socket->write(bytes) == bytes.size();
}

bool TcpConnection::canWrite() const
{
    return m_socket->state() == QAbstractSocket::ConnectedState;
}

// --- gpsd -------------------------------------------------------------------

GpsdConnection::GpsdConnection(QString host, quint16 port)
    : TcpConnection(host, port, QStringLiteral("gpsd at %1:%2").arg(host).arg(port))
{
}

void GpsdConnection::greet()
{
    m_atLineStart = true;
    m_inReport = false;
    socket()->write(R"(?WATCH={"enable":true,"nmea":true};)" "\n");
}

// gpsd's reports are lines starting with '{'; everything else is the receiver's.
void GpsdConnection::deliver(const QByteArray &bytes)
{
    QByteArray receiverBytes;
    receiverBytes.reserve(bytes.size());
    for (const char c : bytes) {
        if (m_atLineStart)
            m_inReport = c == '{';
        if (!m_inReport)
            receiverBytes.append(c);
        m_atLineStart = c == '\n';
    }
    if (!receiverBytes.isEmpty())
        emit dataReceived(receiverBytes);
}

// --- file replay ------------------------------------------------------------

FileReplayConnection::FileReplayConnection(QString path, int bytesPerSecond)
    : ReceiverConnection(bytesPerSecond > 0 ? QStringLiteral("%1 at %2 B/s").arg(path).arg(bytesPerSecond) : path)
    , m_path(std::move(path))
    , m_bytesPerSecond(bytesPerSecond)
{
    connect(&m_timer, &QTimer::timeout, this, &FileReplayConnection::feed);
}

FileReplayConnection::~FileReplayConnection() = default;

void FileReplayConnection::open()
{
    m_file = std::make_unique<QFile>(m_path);
    if (!m_file->open(QIODevice::ReadOnly)) {
        setState(State::Failed, tr("cannot open %1: %2").arg(m_path, m_file->errorString()));
        m_file.reset();
        return;
    }
    setState(State::Open, tr("replaying %1").arg(description()));
    m_timer.start(m_bytesPerSecond > 0 ? kReplayTickMs : 0);
}

void FileReplayConnection::feed()
{
    const qint64 chunk = m_bytesPerSecond > 0 ? qMax<qint64>(1, qint64(m_bytesPerSecond) * kReplayTickMs / 1000)
                                              : 64 * 1024;
    const QByteArray bytes = m_file ? m_file->read(chunk) : QByteArray();
    if (bytes.isEmpty()) {
        m_timer.stop();
        setState(State::Finished, tr("replay of %1 finished").arg(m_path));
        return;
    }
    emit dataReceived(bytes);
}

void FileReplayConnection::setPaused(bool paused)
{
    if (!m_file || state() == State::Finished)
        return;
    if (paused) {
        m_timer.stop();
        setState(State::Paused, tr("replay of %1 paused").arg(m_path));
    } else {
        setState(State::Open, tr("replaying %1").arg(description()));
        m_timer.start(m_bytesPerSecond > 0 ? kReplayTickMs : 0);
    }
}

void FileReplayConnection::restart()
{
    m_timer.stop();
    open();
}

void FileReplayConnection::close()
{
    m_timer.stop();
    m_file.reset();
    setState(State::Closed, tr("replay stopped"));
}

// --- standard input ----------------------------------------------------------

StdinConnection::StdinConnection()
    : ReceiverConnection(QStringLiteral("standard input"))
{
}

void StdinConnection::open()
{
    m_notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char buffer[65536];
        const ssize_t got = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (got > 0) {
            emit dataReceived(QByteArray(buffer, int(got)));
            return;
        }
        m_notifier->setEnabled(false);
        setState(got == 0 ? State::Finished : State::Failed,
                 got == 0 ? tr("standard input ended") : tr("standard input failed"));
    });
    setState(State::Open, tr("reading standard input"));
}

void StdinConnection::close()
{
    delete m_notifier;
    m_notifier = nullptr;
    setState(State::Closed, tr("disconnected"));
}
