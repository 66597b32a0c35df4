// SPDX-License-Identifier: BSD-3-Clause
#include "binarypage.h"
#include "moduleharness.h"
#include "nmeaepoch.h"

#include <QDir>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QtTest>

#include <atomic>
#include <iterator>
#include <thread>

// A receiving thread feeds the module as fast as it can while the GUI thread keeps
// switching product modes, choosing messages and delivering the page's queued
// records. Run also in the thread-sanitizer build (MESSAGEVIEW_SANITIZE=thread).
class BinaryThreadsTest : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void feedingThreadSurvivesModeSwitches();
    void moduleDestroyedWithDecodedTextsQueued();
};

void BinaryThreadsTest::initTestCase()
{
    qunsetenv("MESSAGEVIEW_GNSSDECODE");
    QDir::setCurrent(QStringLiteral(MESSAGEVIEW_SOURCE_DIR));
}

void BinaryThreadsTest::feedingThreadSurvivesModeSwitches()
{
    ModuleHarness h(4);
    const QByteArray stream = nmeaEpoch(1) + nmeaEpoch(2) + nmeaEpoch(3);
    // Every 20th call of the clock is four seconds on, so the list is refreshed and
    // sent across often; on every call it would flood the GUI thread's event queue
    // faster than any receiver could (one refresh per four seconds), and processing
    // events would never end.
    std::atomic<qint64> now{0};
    std::atomic<int> calls{0};
    auto clock = [&now, &calls] { return ++calls % 20 == 0 ? now += 4 : now.load(); };

    std::atomic<bool> stop{false};
    std::atomic<int> chunks{0};
    std::thread feeder([&] {
        int at = 0;
        while (!stop.load()) {
            // Chunks of varying size, so sentences are split across calls.
            const int size = 1 + (at * 31) % 300;
            h.module().onUpdateBuffer(stream.mid(at, size));
            at = (at + size) % stream.size();
            chunks.fetch_add(1);
        }
    });

    // Every kind of change: binary to binary, binary to text and back, text to text.
    const int modes[] = {4, 5, 0, 5, 1, 4, 2, 7, 4};
    const char *const kinds[] = {"GGA", "GSV", "RMC", "GSA"};
    for (int round = 0; round < 60; ++round) {
        const int mode = modes[round % int(std::size(modes))];
        h.module().addItemToTree(mode);
        if (mode == 4 || mode == 5) {
            BinaryPage::page(h)->setClock(clock);
            QVERIFY(h.show(kinds[round % 4]));
        }
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            std::this_thread::yield();
        }
    }
    const int fedWhileSwitching = chunks.load();
    stop = true;
    feeder.join();
    QVERIFY(fedWhileSwitching > 0);

    // The page of the last switch still decodes and shows.
    h.module().addItemToTree(4);
    QVERIFY(h.show("GGA"));
    h.feed(nmeaEpoch(4));
    QCOMPARE(BinaryPage::cell(h, 1, 1), QString("081204.00"));
}

void BinaryThreadsTest::moduleDestroyedWithDecodedTextsQueued()
{
    // A receiving thread decodes and queues texts for the page; the host stops it and
    // destroys the module before the GUI thread has delivered them.
    auto *stack = new QStackedWidget;
    auto *module = new MessageViewModules(stack, QStringLiteral("EN"));
    module->addItemToTree(4);
    QTreeWidget *tree = module->getTreeWidget();
    const auto items = tree->findItems(QStringLiteral("GGA"), Qt::MatchExactly | Qt::MatchRecursive);
    QVERIFY(!items.isEmpty());
    emit tree->itemClicked(items.first(), 0);
    stack->show();

    std::thread feeder([module] {
        for (int epoch = 1; epoch < 200; ++epoch)
            module->onUpdateBuffer(nmeaEpoch(epoch));
    });
    feeder.join();
    delete module;
    delete stack;
    // The queued texts' receiver is gone: delivering the queue must do nothing.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

QTEST_MAIN(BinaryThreadsTest)
#include "tst_binarythreads.moc"
