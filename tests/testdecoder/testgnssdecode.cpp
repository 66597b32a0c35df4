// SPDX-License-Identifier: BSD-3-Clause
// A maker-style decode library for the tests of the decode page's loading seam. It
// exports the five GNSSDecode functions with one decoder state per process, like the
// maker's, and logs every call so a test can check how the page drives it.
//
// Its "messages" are lines "<id>:<text>\n"; the record of an id is its latest text.
#include "gnssdecode.h"

#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

struct Record
{
    unsigned int msgId;
    char text[KV_GNSS_MSG_RECORD_SIZE - sizeof(unsigned int)];
};

std::string g_log;
std::string g_pending;
std::vector<unsigned int> g_seen;
std::map<unsigned int, std::string> g_latest;
unsigned int g_outMsgId = 0;

void logCall(const char *format, long a = 0, long b = 0)
{
    char entry[64];
    std::snprintf(entry, sizeof entry, format, a, b);
    if (!g_log.empty())
        g_log += ' ';
    g_log += entry;
}

} // namespace

extern "C" {

int GNSSPutData(const unsigned char *data, int length)
{
    int available = 0;
    g_pending.append(reinterpret_cast<const char *>(data), size_t(length));
    for (size_t end; (end = g_pending.find('\n')) != std::string::npos; g_pending.erase(0, end + 1)) {
        const std::string line = g_pending.substr(0, end);
        const size_t colon = line.find(':');
        if (colon == std::string::npos)
            continue;
        const unsigned int id = unsigned(std::stoul(line.substr(0, colon)));
        g_latest[id] = line.substr(colon + 1);
        bool seen = false;
        for (unsigned int each : g_seen)
            seen = seen || each == id;
        if (!seen)
            g_seen.push_back(id);
        if (g_outMsgId == 0 || g_outMsgId == id)
            ++available;
    }
    logCall("put(%ld)=%ld", length, available);
    return available;
}

int GNSSGetMsgs(KV_GNSS_MSGID_T *list)
{
    for (size_t i = 0; i < g_seen.size(); ++i)
        list[i].msgId = g_seen[i];
    logCall("msgs=%ld", long(g_seen.size()));
    return int(g_seen.size());
}

int GNSSGetMsg(void *record, unsigned int msgId)
{
    logCall("get(%ld)", msgId);
    const auto latest = g_latest.find(msgId);
    if (latest == g_latest.end())
        return -1;
    auto *out = static_cast<Record *>(record);
    out->msgId = msgId;
    std::snprintf(out->text, sizeof out->text, "%s", latest->second.c_str());
    return 0;
}

int structDataToStr(const void *record, char *text, int option)
{
    logCall("str(%ld)", option);
    const auto *in = static_cast<const Record *>(record);
    std::snprintf(text, KV_GNSS_MSG_TEXT_SIZE, "%s", in->text);
    return int(std::strlen(text));
}

// Built once more without it: a library one function short, which the page must refuse.
#ifndef TEST_DECODER_WITHOUT_OUTPUT_CHOICE
int GNSSSetOutMsgID(unsigned int msgId)
{
    logCall("out(%ld)", msgId);
    g_outMsgId = msgId;
    return 0;
}
#endif

// For the tests only: the calls since the last take, and a fresh decoder.
const char *testDecoderTakeLog()
{
    static std::string taken;
    taken.swap(g_log);
    g_log.clear();
    return taken.c_str();
}

void testDecoderReset()
{
    g_log.clear();
    g_pending.clear();
    g_seen.clear();
    g_latest.clear();
    g_outMsgId = 0;
}

} // extern "C"
