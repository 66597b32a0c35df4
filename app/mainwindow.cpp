#include "mainwindow.h"

#include "messageviewmodules.h"

#include <QIODevice>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTreeWidget>

namespace {
constexpr int kReplayTickMs = 50;
}

MainWindow::MainWindow(const QString &language, int mode, QWidget *parent)
    : QMainWindow(parent)
    , m_stack(new QStackedWidget)
{
    m_module = new MessageViewModules(m_stack, language);
    auto *splitter = new QSplitter(this);
    splitter->addWidget(m_module->getTreeWidget());
    splitter->addWidget(m_stack);
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);
    resize(1280, 860);
    setWindowTitle(tr("Receiver messages"));
    connect(m_module, &MessageViewModules::messageViewTitleShow, this,
            [this](const QString &title) { setWindowTitle(tr("Receiver messages - %1").arg(title)); });
    m_module->addItemToTree(mode);
    connect(&m_replayTimer, &QTimer::timeout, this, &MainWindow::feedNextChunk);
}

MainWindow::~MainWindow()
{
    // The tree was placed in the splitter; give it back to the module, which owns it.
    m_module->getTreeWidget()->setParent(nullptr);
    delete m_module;
}

void MainWindow::replay(QIODevice *input, int bytesPerSecond)
{
    m_input = input;
    m_chunkBytes = bytesPerSecond > 0 ? qMax(1, bytesPerSecond * kReplayTickMs / 1000) : 64 * 1024;
    m_replayTimer.start(bytesPerSecond > 0 ? kReplayTickMs : 0);
}

void MainWindow::feedNextChunk()
{
    const QByteArray chunk = m_input ? m_input->read(m_chunkBytes) : QByteArray();
    if (chunk.isEmpty()) {
        m_replayTimer.stop();
        statusBar()->showMessage(tr("Replay finished: %1 lines").arg(m_module->lineCount()));
        return;
    }
    m_module->onUpdateBuffer(chunk);
    statusBar()->showMessage(tr("%1 lines").arg(m_module->lineCount()));
}
