// SPDX-License-Identifier: BSD-3-Clause
#include "gnssdecoder.h"

#include "nmeadecoder.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

GnssDecoder::~GnssDecoder() = default;

namespace {

class LibraryDecoder : public GnssDecoder
{
public:
    int putData(const unsigned char *data, int length) override { return m_putData(data, length); }
    int getMsgs(KV_GNSS_MSGID_T *list) override { return m_getMsgs(list); }
    int getMsg(void *record, unsigned int msgId) override { return m_getMsg(record, msgId); }
    int structDataToStr(const void *record, char *text, int option) override
    {
        return m_structDataToStr(record, text, option);
    }
    int setOutMsgId(unsigned int msgId) override { return m_setOutMsgId(msgId); }

    // Resolves every function or none. The library stays loaded for the rest of the
    // process: it keeps the decoder's state, which a later page continues to use.
    bool resolve(QLibrary &library)
    {
        m_putData = reinterpret_cast<GNSSPutDataFn>(library.resolve("GNSSPutData"));
        m_getMsgs = reinterpret_cast<GNSSGetMsgsFn>(library.resolve("GNSSGetMsgs"));
        m_getMsg = reinterpret_cast<GNSSGetMsgFn>(library.resolve("GNSSGetMsg"));
        m_structDataToStr = reinterpret_cast<structDataToStrFn>(library.resolve("structDataToStr"));
        m_setOutMsgId = reinterpret_cast<GNSSSetOutMsgIDFn>(library.resolve("GNSSSetOutMsgID"));
        return m_putData && m_getMsgs && m_getMsg && m_structDataToStr && m_setOutMsgId;
    }

private:
    GNSSPutDataFn m_putData = nullptr;
    GNSSGetMsgsFn m_getMsgs = nullptr;
    GNSSGetMsgFn m_getMsg = nullptr;
    structDataToStrFn m_structDataToStr = nullptr;
    GNSSSetOutMsgIDFn m_setOutMsgId = nullptr;
};

// Loads and resolves one candidate. `file` is set when the library loaded, and
// `failure` says why it cannot be used.
std::unique_ptr<GnssDecoder> loadLibrary(const QString &name, QString &file, QString &failure)
{
    QLibrary library(name);
    if (!library.load()) {
        failure = library.errorString();
        return nullptr;
    }
    file = library.fileName();
    auto decoder = std::make_unique<LibraryDecoder>();
    if (!decoder->resolve(library)) {
        failure = QStringLiteral("it does not export all of GNSSPutData, GNSSGetMsgs, GNSSGetMsg, "
                                 "structDataToStr and GNSSSetOutMsgID");
        return nullptr;
    }
    return decoder;
}

} // namespace

GnssDecoderChoice openGnssDecoder()
{
    GnssDecoderChoice choice;
    const QString named = qEnvironmentVariable(kGnssDecodeEnvironment);
    if (!named.isEmpty()) {
        choice.decoder = loadLibrary(named, choice.libraryFile, choice.failure);
        if (choice.libraryFile.isEmpty())
            choice.libraryFile = named;
    } else {
        const QString candidates[] = {
            QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("GNSSDecode")),
            QStringLiteral("GNSSDecode"),
        };
        for (const QString &candidate : candidates) {
            QString file, failure;
            choice.decoder = loadLibrary(candidate, file, failure);
            // A library that loads but lacks functions is worth saying; one that is
            // simply absent is the usual case.
            if (!file.isEmpty()) {
                choice.libraryFile = file;
                choice.failure = choice.decoder ? QString() : failure;
            }
            if (choice.decoder)
                break;
        }
    }
    choice.makerLibrary = bool(choice.decoder);
    if (!choice.decoder)
        choice.decoder = std::make_unique<NmeaDecoder>();
    return choice;
}
