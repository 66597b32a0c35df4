#include "messageviewmodules.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QStackedWidget>
#include <QLoggingCategory>
#include <cstdio>
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules("*.debug=false");
    QStackedWidget stack;
    MessageViewModules m(&stack, "EN");
    m.addItemToTree(0);
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer t; t.start();
        m.addItemToTree(2);
        double b = t.nsecsElapsed()/1e6; t.restart();
        m.addItemToTree(0);
        std::printf("build %.1f ms clear+0 %.1f ms\n", b, t.nsecsElapsed()/1e6);
    }
}
