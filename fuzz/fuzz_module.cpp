// A whole module fed with arbitrary bytes in arbitrary chunks: the first bytes choose
// the product mode, the visible page and the chunk sizes, so every page's parse runs
// both visible and hidden.
#include "fuzzsupport.h"
#include "messageviewmodules.h"

#include <QApplication>
#include <QStackedWidget>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzApplication();
    static const int kModes[] = {0, 1, 2, 7, 4, 5, 3};
    // One module per mode, kept across inputs as a console keeps it across chunks.
    static QStackedWidget stack;
    static MessageViewModules module(&stack, QStringLiteral("EN"));
    static bool shown = [] {
        stack.resize(800, 600);
        stack.show();
        return true;
    }();
    Q_UNUSED(shown);

    FuzzInput input(data, size);
    module.addItemToTree(kModes[input.takeByte() % std::size(kModes)]);
    if (stack.count() > 0)
        stack.setCurrentIndex(input.takeByte() % stack.count());
    const int chunkSize = 1 + input.takeByte();
    while (!input.empty())
        module.onUpdateBuffer(input.take(chunkSize));
    return 0;
}
