// SPDX-License-Identifier: BSD-3-Clause
#include "mainwindow.h"

#include "correctionsview.h"
#include "linetraffic.h"
#include "messageviewmodules.h"
#include "ntripdialog.h"
#include "playerbar.h"
#include "recordingplayer.h"
#include "headlessreplay.h"
#include "sessiontrack.h"
#include "receiverdocks.h"
#include "trafficdocks.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSerialPortInfo>
#include <QSettings>
#include <QSplitter>
#include <QToolBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// Ok and Cancel under the form; true when the user chose Ok.
bool acceptedWithButtons(QDialog &dialog, QFormLayout *form)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace

QList<QPair<int, QString>> MainWindow::productModes()
{
    return {{0, tr("NMEA")},
            {1, tr("NMEA and receiver logs")},
            {2, tr("NMEA and all receiver logs")},
            {4, tr("Binary messages (4)")},
            {5, tr("Binary messages (5)")},
            {7, tr("Timing receiver")}};
}

MainWindow::MainWindow(const QString &language, int mode, QWidget *parent)
    : QMainWindow(parent)
    , m_language(language)
    , m_mode(mode)
{
    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    m_splitter = new QSplitter(central);
    m_stack = new QStackedWidget;
    layout->addWidget(m_splitter, 1);

    auto *commandRow = new QHBoxLayout;
    commandRow->setContentsMargins(6, 0, 6, 6);
    m_commandLine = new QLineEdit(central);
    m_commandLine->setObjectName(QStringLiteral("commandLine"));
    m_commandLine->setPlaceholderText(tr("Command to the receiver, e.g. LOG BESTPOSA ONTIME 1 (Enter sends, Up/Down: history)"));
    m_commandLine->installEventFilter(this);
    auto *send = new QPushButton(tr("Send"), central);
    commandRow->addWidget(m_commandLine, 1);
    commandRow->addWidget(send);
    layout->addLayout(commandRow);
    setCentralWidget(central);
    connect(m_commandLine, &QLineEdit::returnPressed, this, [this] {
        if (sendCommandText(m_commandLine->text()))
            m_commandLine->clear();
    });
    connect(send, &QPushButton::clicked, m_commandLine, &QLineEdit::returnPressed);

    m_connectionLabel = new QLabel(tr("not connected"));
    connect(&m_session, &ReceiverSession::dataReceived, this, &MainWindow::onData);
    connect(&m_session, &ReceiverSession::connectionStateChanged, this, &MainWindow::onConnectionState);
    m_rateLabel = new QLabel;
    m_totalLabel = new QLabel;
    m_silenceLabel = new QLabel;
    statusBar()->addWidget(m_connectionLabel, 1);
    statusBar()->addPermanentWidget(m_rateLabel);
    statusBar()->addPermanentWidget(m_totalLabel);
    statusBar()->addPermanentWidget(m_silenceLabel);
    connect(&m_statusTimer, &QTimer::timeout, this, &MainWindow::updateStatus);
    m_statusTimer.start(1000);

    m_traffic = new LineTraffic([] { return QDateTime::currentMSecsSinceEpoch(); }, this);
    createModule();
    m_docks = new ReceiverDocks(m_state, *this);
    m_trafficDocks = new TrafficDocks(*m_traffic, *this);
    createCorrectionsDock();
    createPlayerBar();
    buildMenus();
    resize(1600, 1000);
    // Where the user left the window and its docks.
    QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    if (!restoreState(settings.value(QStringLiteral("window/state")).toByteArray())) {
        // First sizes, once the window is laid out: room for the position plot beside the
        // pages and for the history beside the signals.
        QTimer::singleShot(0, this, [this] {
            const QList<QDockWidget *> &docks = m_docks->docks(); // sky, position, signals, history
            resizeDocks({docks.at(0)}, {width() * 2 / 5}, Qt::Horizontal);
            resizeDocks({docks.at(2)}, {height() / 3}, Qt::Vertical);
            resizeDocks({docks.at(2), docks.at(3)}, {width() * 3 / 5, width() * 2 / 5}, Qt::Horizontal);
        });
    }
    updateStatus();
}

MainWindow::~MainWindow()
{
    m_session.close();
    // The tree sits in the splitter; hand it back to the module, which owns it.
    m_module->getTreeWidget()->setParent(nullptr);
    delete m_module;
}

void MainWindow::createModule()
{
    if (m_module) {
        m_module->getTreeWidget()->setParent(nullptr);
        delete m_module;
    }
    m_module = new MessageViewModules(m_stack, m_language);
    m_traffic->attach(m_module);
    m_splitter->insertWidget(0, m_module->getTreeWidget());
    if (m_splitter->indexOf(m_stack) < 0)
        m_splitter->addWidget(m_stack);
    m_splitter->setStretchFactor(1, 1);
    updateWindowTitle();
    connect(m_module, &MessageViewModules::messageViewTitleShow, this, [this](const QString &title) {
        m_pageOnScreen = title;
        updateWindowTitle();
    });
    m_module->addItemToTree(m_mode);
}

void MainWindow::buildMenus()
{
    QMenu *connectionMenu = menuBar()->addMenu(tr("&Connection"));
    connectionMenu->addAction(tr("&Serial port..."), this, &MainWindow::chooseSerialPort);
    connectionMenu->addAction(tr("&TCP..."), this, [this] {
        chooseNetworkPeer(QStringLiteral("tcp"), tr("TCP"), tr("Receiver or stream server (host:port)"));
    });
    connectionMenu->addAction(tr("&gpsd..."), this, [this] {
        chooseNetworkPeer(QStringLiteral("gpsd"), tr("gpsd"), tr("A receiver that gpsd owns (host or host:port)"));
    });
    connectionMenu->addAction(tr("&Replay file..."), this, &MainWindow::chooseReplayFile, QKeySequence::Open);
    connectionMenu->addAction(tr("&Export recording..."), this, &MainWindow::exportRecording);
    connectionMenu->addAction(tr("Standard &input"), this, [this] { connectTo(std::make_unique<StdinConnection>()); });
    connectionMenu->addSeparator();
    m_pauseAction = connectionMenu->addAction(tr("&Pause replay"));
    m_pauseAction->setCheckable(true);
    connect(m_pauseAction, &QAction::toggled, this, [this](bool paused) {
        if (connection())
            connection()->setPaused(paused);
    });
    connectionMenu->addAction(tr("Restart replay"), this, [this] {
        if (connection() && connection()->canPause()) {
            forgetReceiver();
            connection()->restart();
        }
    });
    connectionMenu->addAction(tr("&Go to time..."), this, [this] {
        if (!m_player || !m_player->index())
            return;
        bool ok = false;
        const QString text = QInputDialog::getText(this, tr("Go to time"), tr("Receiver time (HH:MM:SS or 2024-05-20T14:32:05)"),
                                                   QLineEdit::Normal, QString(), &ok);
        if (ok)
            goToTime(text);
    });
    connectionMenu->addAction(tr("&Disconnect"), this, &MainWindow::disconnectReceiver);
    connectionMenu->addSeparator();
    m_recordAction = connectionMenu->addAction(tr("Record raw bytes"));
    m_recordAction->setCheckable(true);
    connect(m_recordAction, &QAction::triggered, this, [this](bool on) {
        if (on)
            startRecording();
        else
            stopRecording();
    });
    connectionMenu->addAction(tr("&Corrections from NTRIP..."), this, &MainWindow::chooseCorrections);
    connectionMenu->addAction(tr("Stop corrections"), this, [this] { m_session.stopCorrections(); });
    m_serveAction = connectionMenu->addAction(tr("Serve raw bytes to other programs..."));
    m_serveAction->setCheckable(true);
    connect(m_serveAction, &QAction::triggered, this, &MainWindow::toggleServing);
    connect(&m_session.server(), &RawByteServer::listeningChanged, m_serveAction, &QAction::setChecked);
    connect(&m_session.server(), &RawByteServer::message, this, [this](const QString &text) {
        statusBar()->showMessage(text, 5000);
    });
    connectionMenu->addSeparator();
    connectionMenu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);

    QMenu *modeMenu = menuBar()->addMenu(tr("&Mode"));
    m_modeGroup = new QActionGroup(this);
    for (const auto &mode : productModes()) {
        QAction *action = modeMenu->addAction(tr("%1 - %2").arg(mode.first).arg(mode.second));
        action->setCheckable(true);
        action->setChecked(mode.first == m_mode);
        action->setData(mode.first);
        m_modeGroup->addAction(action);
    }
    connect(m_modeGroup, &QActionGroup::triggered, this, [this](QAction *action) { setMode(action->data().toInt()); });

    QMenu *languageMenu = menuBar()->addMenu(tr("&Language"));
    m_languageGroup = new QActionGroup(this);
    for (const auto &language : {qMakePair(QStringLiteral("EN"), tr("English")), qMakePair(QStringLiteral("CH"), tr("Chinese"))}) {
        QAction *action = languageMenu->addAction(language.second);
        action->setCheckable(true);
        action->setChecked(language.first == m_language);
        action->setData(language.first);
        m_languageGroup->addAction(action);
    }
    connect(m_languageGroup, &QActionGroup::triggered, this,
            [this](QAction *action) { setLanguage(action->data().toString()); });

    QMenu *viewMenu = menuBar()->addMenu(tr("&View"));
    viewMenu->addAction(tr("Clear received marks"), this, [this] { m_module->setTreeForeground(); });
    viewMenu->addSeparator();
    m_docks->addToggleActions(viewMenu);
    viewMenu->addSeparator();
    m_trafficDocks->addToggleActions(viewMenu);
    viewMenu->addAction(m_correctionsDock->toggleViewAction());
}

// Tabbed with the message statistics at first; the session's figures, the state's fix.
void MainWindow::createCorrectionsDock()
{
    m_correctionsView = new CorrectionsView([this] { return m_session.corrections(); }, [this] { return m_state.fix(); });
    m_correctionsDock = new QDockWidget(tr("Corrections"), this);
    m_correctionsDock->setObjectName(QStringLiteral("dock-corrections"));
    m_correctionsDock->setWidget(m_correctionsView);
    addDockWidget(Qt::BottomDockWidgetArea, m_correctionsDock);
    if (QDockWidget *messages = findChild<QDockWidget *>(QStringLiteral("dock-messages")))
        tabifyDockWidget(messages, m_correctionsDock);
    m_correctionsLabel = new QLabel;
    statusBar()->addPermanentWidget(m_correctionsLabel);
    m_correctionsLabel->hide();
    m_session.setReceiverState(&m_state);
    connect(&m_session, &ReceiverSession::correctionsStateChanged, this,
            [this](NtripClient::State state, const QString &text) {
                m_correctionsView->setLinkText(text);
                m_correctionsLabel->setText(tr("Corrections: %1").arg(text));
                m_correctionsLabel->setVisible(state != NtripClient::State::Idle);
                if (state == NtripClient::State::Failed || state == NtripClient::State::Retrying)
                    statusBar()->showMessage(text, 8000);
            });
    connect(&m_session, &ReceiverSession::message, this, [this](const QString &text) {
        statusBar()->showMessage(text, 8000);
    });
}

void MainWindow::startCorrections(const NtripAddress &address, int ggaIntervalSeconds)
{
    m_session.startCorrections(address, ggaIntervalSeconds);
}

void MainWindow::chooseCorrections()
{
    NtripDialog dialog([this] { return m_state.fix(); }, this);
    if (dialog.exec() == QDialog::Accepted) {
        startCorrections(dialog.address(), dialog.ggaIntervalSeconds());
        m_correctionsDock->show();
        m_correctionsDock->raise();
    }
}

void MainWindow::setMode(int mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    m_module->addItemToTree(mode);
    QSettings().setValue(QStringLiteral("mode"), mode);
    for (QAction *action : m_modeGroup->actions())
        action->setChecked(action->data().toInt() == mode);
}

void MainWindow::setLanguage(const QString &language)
{
    if (language == m_language)
        return;
    // The module installs its translator when it is made; a new language needs a new one.
    m_language = language;
    createModule();
    QSettings().setValue(QStringLiteral("language"), language);
    for (QAction *action : m_languageGroup->actions())
        action->setChecked(action->data().toString() == language);
}

void MainWindow::connectTo(std::unique_ptr<ReceiverConnection> connection)
{
    disconnectReceiver();
    forgetReceiver();
    m_pauseAction->setChecked(false);
    m_player = qobject_cast<RecordingPlayer *>(connection.get());
    m_session.open(std::move(connection));
    attachPlayer();
}

void MainWindow::openRecording(const QString &path, int bytesPerSecond)
{
    auto player = std::make_unique<RecordingPlayer>(path, bytesPerSecond > 0 ? bytesPerSecond : 11520);
    if (bytesPerSecond <= 0)
        player->setSpeed(0);
    connectTo(std::move(player));
}

// Below the pages: it stays out of the docks' way and the user may move it.
void MainWindow::createPlayerBar()
{
    m_playerBar = new PlayerBar;
    m_playerToolBar = new QToolBar(tr("Player"), this);
    m_playerToolBar->setObjectName(QStringLiteral("toolbar-player"));
    m_playerToolBar->addWidget(m_playerBar);
    addToolBar(Qt::BottomToolBarArea, m_playerToolBar);
    m_playerToolBar->hide();
    connect(m_playerBar, &PlayerBar::playingToggled, this, [this](bool playing) {
        if (m_player)
            m_player->setPaused(!playing);
    });
    connect(m_playerBar, &PlayerBar::stepRequested, this, [this](int epochs) {
        if (m_player)
            m_player->step(epochs);
    });
    connect(m_playerBar, &PlayerBar::speedChosen, this, [this](double factor) {
        if (m_player)
            m_player->setSpeed(factor);
    });
    connect(m_playerBar, &PlayerBar::seekRequested, this, [this](int epoch) {
        if (m_player)
            m_player->seek(epoch);
    });
    connect(m_playerBar, &PlayerBar::jumpRequested, this, &MainWindow::goToTime);
    connect(m_playerBar, &PlayerBar::cancelIndexingRequested, this, [this] {
        if (m_player)
            m_player->cancelIndexing();
    });
}

void MainWindow::attachPlayer()
{
    m_playerBar->setIndex(nullptr);
    m_playerToolBar->setVisible(m_player != nullptr);
    if (!m_player)
        return;
    m_playerBar->setPlaying(m_player->isPlaying());
    m_playerBar->setIndexingProgress(0, 1);
    connect(m_player, &RecordingPlayer::indexProgress, m_playerBar, &PlayerBar::setIndexingProgress);
    connect(m_player, &RecordingPlayer::indexFinished, this, [this](bool, const QString &text) {
        m_playerBar->setIndex(m_player->index());
        m_playerBar->setIndexingFinished();
        m_playerBar->setPosition(m_player->position());
        m_playerBar->showMessage(text);
    });
    connect(m_player, &RecordingPlayer::positionChanged, m_playerBar, &PlayerBar::setPosition);
    connect(m_player, &RecordingPlayer::playingChanged, m_playerBar, &PlayerBar::setPlaying);
    connect(m_player, &RecordingPlayer::playingChanged, this, [this](bool playing) {
        const QSignalBlocker quiet(m_pauseAction);
        m_pauseAction->setChecked(!playing);
    });
    connect(m_player, &RecordingPlayer::rebuilt, this, &MainWindow::showRebuilt);
}

// Fresh pages (the one on screen stays on screen), a fresh receiver state, then what
// the seek replays. The message counts start again from the seek.
void MainWindow::showRebuilt(const SeekRebuild &rebuild)
{
    // Mode 3 has no pages: passing through it makes the mode's pages anew.
    const QString pageOnScreen = m_pageOnScreen;
    m_module->addItemToTree(3);
    m_module->addItemToTree(m_mode);
    QTreeWidget *tree = m_module->getTreeWidget();
    for (QTreeWidgetItem *item : tree->findItems(pageOnScreen, Qt::MatchExactly | Qt::MatchRecursive)) {
        if (item->parent()) {
            tree->setCurrentItem(item);
            emit tree->itemClicked(item, 0);
            break;
        }
    }
    replaySeek(*m_module, m_state, rebuild);
    m_traffic->reset();
    m_trafficDocks->clear();
}

void MainWindow::goToTime(const QString &text)
{
    if (!m_player)
        return;
    QString reason;
    const int epoch = m_player->findTime(text, &reason);
    if (epoch < 0 || !m_player->seek(epoch))
        m_playerBar->showMessage(reason);
}

void MainWindow::exportRecording()
{
    if (!m_player || !m_player->index()) {
        statusBar()->showMessage(tr("Export needs a recording that has been indexed: replay a file first"), 8000);
        return;
    }
    const SessionIndex &index = *m_player->index();
    QDialog dialog(this);
    dialog.setWindowTitle(tr("Export recording"));
    auto *form = new QFormLayout(&dialog);
    auto *format = new QComboBox(&dialog);
    format->addItem(tr("Positions as CSV"), QStringLiteral("csv"));
    format->addItem(tr("GPX track"), QStringLiteral("gpx"));
    format->addItem(tr("KML track, coloured by fix quality"), QStringLiteral("kml"));
    format->addItem(tr("Raw bytes of the span (a recording that replays the same)"), QStringLiteral("raw"));
    const auto timeText = [&index](int epoch) {
        return QDateTime::fromMSecsSinceEpoch(index.epochTimeMs(epoch), Qt::UTC)
            .toString(index.hasDates() ? QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz") : QStringLiteral("HH:mm:ss.zzz"));
    };
    auto *from = new QLineEdit(timeText(0), &dialog);
    auto *to = new QLineEdit(timeText(index.epochCount() - 1), &dialog);
    from->setPlaceholderText(tr("the start (HH:MM:SS or 2024-05-20T14:32:05)"));
    to->setPlaceholderText(tr("the end"));
    form->addRow(tr("Format"), format);
    form->addRow(tr("From"), from);
    form->addRow(tr("To"), to);
    if (!acceptedWithButtons(dialog, form))
        return;
    const QString kind = format->currentData().toString();
    const QString suffix = kind == QLatin1String("raw") ? QStringLiteral("log") : kind;
    const QString path = QFileDialog::getSaveFileName(this, tr("Export to"), QStringLiteral("track.%1").arg(suffix));
    if (path.isEmpty())
        return;
    QFile recording(m_player->path());
    QFile out(path);
    QString error;
    if (!recording.open(QIODevice::ReadOnly))
        error = recording.errorString();
    else if (!out.open(QIODevice::WriteOnly))
        error = out.errorString();
    else
        exportSession(recording, index, kind, from->text(), to->text(), QFileInfo(recording.fileName()).completeBaseName(),
                      out, &error);
    statusBar()->showMessage(error.isEmpty() ? tr("Exported to %1").arg(path) : tr("Cannot export: %1").arg(error), 8000);
}

// Another receiver, or the same session again: nothing of the last one carries over.
void MainWindow::forgetReceiver()
{
    m_state.reset();
    m_traffic->reset();
    m_trafficDocks->clear();
}

void MainWindow::disconnectReceiver()
{
    // The bar lets go of the player's index before the session deletes the player.
    m_player = nullptr;
    attachPlayer();
    m_session.close();
}

void MainWindow::onData(const QByteArray &bytes)
{
    m_totalBytes += quint64(bytes.size());
    m_sinceData.start();
    if (m_recording.isOpen())
        m_recording.write(bytes);
    m_module->onUpdateBuffer(bytes);
    m_state.feed(bytes);
}

// The page on screen, and a receiver that was lost: seen in the task bar too.
void MainWindow::updateWindowTitle()
{
    QString title = m_pageOnScreen.isEmpty() ? tr("Receiver messages") : tr("Receiver messages - %1").arg(m_pageOnScreen);
    if (m_receiverLost)
        title = tr("%1 (receiver lost)").arg(title);
    setWindowTitle(title);
}

void MainWindow::onConnectionState(ReceiverConnection::State state, const QString &text)
{
    const bool lost = state == ReceiverConnection::State::Retrying || state == ReceiverConnection::State::Failed;
    if (lost != m_receiverLost) {
        m_receiverLost = lost;
        updateWindowTitle();
    }
    m_connectionLabel->setText(text);
    if (state == ReceiverConnection::State::Failed || state == ReceiverConnection::State::Retrying)
        statusBar()->showMessage(text, 5000);
}

bool MainWindow::sendCommandText(const QString &command)
{
    const QString trimmed = command.trimmed();
    if (trimmed.isEmpty())
        return false;
    if (!connection() || !connection()->canWrite()) {
        statusBar()->showMessage(tr("No receiver connection to send \"%1\" to").arg(trimmed), 5000);
        return false;
    }
    connection()->write(trimmed.toLatin1() + "\r\n");
    if (m_history.isEmpty() || m_history.last() != trimmed)
        m_history << trimmed;
    m_historyIndex = m_history.size();
    statusBar()->showMessage(tr("Sent: %1").arg(trimmed), 3000);
    return true;
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_commandLine && event->type() == QEvent::KeyPress && !m_history.isEmpty()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            m_historyIndex = qBound(0, m_historyIndex + (key == Qt::Key_Up ? -1 : 1), m_history.size());
            m_commandLine->setText(m_history.value(m_historyIndex));
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/state"), saveState());
    m_docks->saveSettings();
    m_trafficDocks->saveSettings();
    QMainWindow::closeEvent(event);
}

bool MainWindow::startRecording(const QString &path)
{
    stopRecording();
    const QString name = path.isEmpty()
        ? QDir(QSettings().value(QStringLiteral("recordingDir"), QDir::currentPath()).toString())
              .filePath(QStringLiteral("capture-%1.log").arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"))))
        : path;
    m_recording.setFileName(name);
    if (!m_recording.open(QIODevice::WriteOnly)) {
        statusBar()->showMessage(tr("Cannot record to %1: %2").arg(name, m_recording.errorString()), 8000);
        m_recordAction->setChecked(false);
        return false;
    }
    m_recordAction->setChecked(true);
    statusBar()->showMessage(tr("Recording to %1").arg(name), 5000);
    return true;
}

void MainWindow::stopRecording()
{
    if (!m_recording.isOpen())
        return;
    m_recording.close();
    m_recordAction->setChecked(false);
    statusBar()->showMessage(tr("Recorded %1").arg(m_recording.fileName()), 5000);
}

void MainWindow::updateStatus()
{
    const quint64 lines = m_module->lineCount();
    m_rateLabel->setText(tr("%1 B/s  %2 lines/s").arg(m_totalBytes - m_bytesAtLastTick).arg(lines - m_linesAtLastTick));
    m_totalLabel->setText(tr("total %1 bytes").arg(m_totalBytes));
    m_silenceLabel->setText(m_sinceData.isValid() ? tr("last data %1 s ago").arg(m_sinceData.elapsed() / 1000)
                                                  : tr("no data yet"));
    m_bytesAtLastTick = m_totalBytes;
    m_linesAtLastTick = lines;
}

void MainWindow::chooseSerialPort()
{
    QDialog dialog(this);
    dialog.setWindowTitle(tr("Serial port"));
    auto *form = new QFormLayout(&dialog);
    auto *ports = new QComboBox(&dialog);
    ports->setEditable(true);
    for (const QSerialPortInfo &info : QSerialPortInfo::availablePorts())
        ports->addItem(info.systemLocation() + (info.description().isEmpty() ? QString() : QStringLiteral("  (%1)").arg(info.description())),
                       info.systemLocation());
    QSettings settings;
    ports->setCurrentText(settings.value(QStringLiteral("serialDevice")).toString());
    auto *baud = new QComboBox(&dialog);
    baud->setEditable(true);
    for (int rate : {9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600})
        baud->addItem(QString::number(rate));
    baud->setCurrentText(settings.value(QStringLiteral("serialBaud"), 115200).toString());
    form->addRow(tr("Device"), ports);
    form->addRow(tr("Baud (8N1)"), baud);
    if (!acceptedWithButtons(dialog, form))
        return;
    const QString device = ports->currentData().isValid() && ports->currentText().startsWith(ports->currentData().toString())
        ? ports->currentData().toString()
        : ports->currentText().trimmed();
    settings.setValue(QStringLiteral("serialDevice"), device);
    settings.setValue(QStringLiteral("serialBaud"), baud->currentText().toInt());
    connectTo(std::make_unique<SerialConnection>(device, baud->currentText().toInt()));
}

// A peer typed as host:port, remembered under its kind ("tcp", "gpsd").
void MainWindow::chooseNetworkPeer(const QString &kind, const QString &title, const QString &label)
{
    QSettings settings;
    const QString key = kind + QStringLiteral("Peer");
    bool ok = false;
    const QString address = QInputDialog::getText(this, title, label, QLineEdit::Normal, settings.value(key).toString(), &ok);
    if (!ok)
        return;
    QString error;
    auto connection = ReceiverConnection::fromAddress(kind + QLatin1Char(':') + address.trimmed(), &error);
    if (!connection) {
        statusBar()->showMessage(error, 8000);
        return;
    }
    settings.setValue(key, address.trimmed());
    connectTo(std::move(connection));
}

void MainWindow::toggleServing(bool on)
{
    RawByteServer &server = m_session.server();
    if (!on) {
        server.close();
        statusBar()->showMessage(tr("No longer serving the receiver's bytes"), 5000);
        return;
    }
    QSettings settings;
    bool ok = false;
    const QString text = QInputDialog::getText(
        this, tr("Serve the receiver"),
        tr("Serve the receiver's raw bytes to other programs on [address:]port\n(loopback unless an address is given)"),
        QLineEdit::Normal, settings.value(QStringLiteral("servePort"), QStringLiteral("5002")).toString(), &ok);
    QHostAddress address;
    quint16 port = 0;
    QString error;
    if (ok && RawByteServer::parseListenAddress(text.trimmed(), &address, &port, &error)
        && server.listen(address, port, &error)) {
        settings.setValue(QStringLiteral("servePort"), text.trimmed());
        statusBar()->showMessage(tr("Serving the receiver's bytes on %1").arg(server.listenText()), 5000);
    } else if (ok) {
        statusBar()->showMessage(error, 8000);
    }
    m_serveAction->setChecked(server.isListening()); // a cancelled dialog unticks it again
}

void MainWindow::chooseReplayFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Replay a recorded session"));
    if (path.isEmpty())
        return;
    openRecording(path);
}
