// SPDX-License-Identifier: BSD-3-Clause
// A minimal host of the receiver message pages: the message tree beside the stack of
// pages, fed with the bytes of a recording or of standard input.
//
//   messageview-host session.log
//   rxsim --duration 60 | messageview-host
#include <messageviewmodules.h>

#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QSocketNotifier>
#include <QStackedWidget>
#include <QTextStream>
#include <QTimer>
#include <QTreeWidget>

#include <unistd.h>

namespace {

constexpr int kProductMode = 2; // NMEA and all the receiver's logs
constexpr qint64 kChunkBytes = 4096;
// A recording is played in pieces, so the pages fill while the window is up.
constexpr int kFileChunkIntervalMs = 10;

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() > 2) {
        QTextStream(stderr) << "usage: " << arguments.constFirst() << " [RECORDING]\n";
        return 1;
    }

    QMainWindow window;
    auto *central = new QWidget;
    auto *layout = new QHBoxLayout(central);
    auto *stack = new QStackedWidget;
    // The view places its pages in the stack; the window owns both.
    auto *view = new MessageViewModules(stack, QStringLiteral("EN"));
    view->setParent(&window);
    view->addItemToTree(kProductMode);
    layout->addWidget(view->getTreeWidget(), 1);
    layout->addWidget(stack, 3);
    window.setCentralWidget(central);
    QObject::connect(view, &MessageViewModules::messageViewTitleShow, &window, &QMainWindow::setWindowTitle);

    const bool fromFile = arguments.size() == 2 && arguments.at(1) != QLatin1String("-");
    QFile recording(fromFile ? arguments.at(1) : QString());
    if (fromFile && !recording.open(QIODevice::ReadOnly)) {
        QTextStream(stderr) << "cannot open " << recording.fileName() << ": " << recording.errorString() << "\n";
        return 1;
    }

    // A recording is read on a timer; standard input when it has bytes, so the window
    // never waits on a pipe or a terminal.
    QTimer recordingTimer;
    QObject::connect(&recordingTimer, &QTimer::timeout, [&] {
        const QByteArray bytes = recording.read(kChunkBytes);
        if (bytes.isEmpty())
            recordingTimer.stop();
        else
            view->onUpdateBuffer(bytes);
    });
    QSocketNotifier stdinNotifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&stdinNotifier, &QSocketNotifier::activated, [&] {
        char buffer[kChunkBytes];
        const ssize_t length = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (length > 0)
            view->onUpdateBuffer(QByteArray(buffer, int(length)));
        else
            stdinNotifier.setEnabled(false); // end of input or a read error: keep what was shown
    });
    stdinNotifier.setEnabled(!fromFile);
    if (fromFile)
        recordingTimer.start(kFileChunkIntervalMs);

    window.resize(1100, 700);
    window.show();
    return app.exec();
}
