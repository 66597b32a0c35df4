// SPDX-License-Identifier: BSD-3-Clause
// The built-in decoder fed arbitrary bytes in arbitrary chunks, then asked for every
// kind it lists and made to render each record.
#include "fuzzsupport.h"
#include "nmeadecoder.h"

#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    NmeaDecoder decoder;
    const int chunkSize = 1 + input.takeByte();
    while (!input.empty()) {
        const QByteArray chunk = input.take(chunkSize);
        decoder.putData(reinterpret_cast<const unsigned char *>(chunk.constData()), chunk.size());
    }
    std::vector<KV_GNSS_MSGID_T> kinds(KV_GNSS_MSGID_MAX);
    const int count = decoder.getMsgs(kinds.data());
    std::vector<char> record(KV_GNSS_MSG_RECORD_SIZE);
    std::vector<char> text(KV_GNSS_MSG_TEXT_SIZE);
    for (int i = 0; i < count && i < int(kinds.size()); ++i) {
        if (decoder.getMsg(record.data(), kinds[size_t(i)].msgId) == 0)
            decoder.structDataToStr(record.data(), text.data(), 0);
    }
    return 0;
}
