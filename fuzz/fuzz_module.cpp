// SPDX-License-Identifier: BSD-3-Clause
// A whole module fed with arbitrary bytes in arbitrary chunks: the first bytes choose
// the product mode, the visible page and the chunk size, so every page's parse runs
// both visible and hidden.
#include "fuzzsupport.h"
#include "messageviewmodules.h"

#include <QApplication>
#include <QStackedWidget>

namespace {

struct ModeView
{
    QStackedWidget stack;
    MessageViewModules module{&stack, QStringLiteral("EN")};
    explicit ModeView(int mode)
    {
        module.addItemToTree(mode);
        stack.resize(800, 600);
        stack.show();
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzzApplication();
    static const int kModes[] = {0, 1, 2, 7, 4, 5, 3};
    // One view per mode, built once and never destroyed (the process ends with the
    // fuzzer), so inputs spend their time in the byte path rather than in page setup.
    static ModeView *views[std::size(kModes)] = {};

    FuzzInput input(data, size);
    const size_t which = input.takeByte() % std::size(kModes);
    if (!views[which])
        views[which] = new ModeView(kModes[which]);
    ModeView &view = *views[which];
    if (view.stack.count() > 0)
        view.stack.setCurrentIndex(input.takeByte() % view.stack.count());
    const int chunkSize = 1 + input.takeByte() * 4;
    while (!input.empty())
        view.module.onUpdateBuffer(input.take(chunkSize));
    // End every input on a line boundary so the next one starts clean.
    view.module.onUpdateBuffer(QByteArrayLiteral("\r\n"));
    return 0;
}
