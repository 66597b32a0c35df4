#include "pageroutes.h"

#include "lineframe.h"

#include <cstring>
#include <iterator>

namespace rxsim {

namespace {

enum class Test {
    Prefix,        // the line starts with the literal
    Sentence,      // "$", then the literal from index 3 (any talker)
    AtThree,       // the literal from index 3, first character not looked at
    TimingName,    // "$", then the literal from index 1
    PrefixNoCheck, // the literal only: the page takes it before any checksum test
    Never,
};

struct PageRule
{
    const char *label;
    Test test;
    const char *literal;
    int modeFilter; // 0: every mode that shows the catalogue
};

const PageRule kNmeaPages[] = {
    {"GGA", Test::Sentence, "GGA,", 0},
    // The high-rate variants compare four letters without a comma.
    {"GGAH", Test::Sentence, "GGAH", 0},
    {"VTG", Test::Sentence, "VTG,", 0},
    {"ZDA", Test::Sentence, "ZDA,", 0},
    {"RMC", Test::Sentence, "RMC,", 0},
    {"RMCH", Test::Sentence, "RMCH", 0},
    // Any talker: the page picks a store by talker only after it has taken the line.
    {"GSV", Test::Sentence, "GSV,", 0},
    {"GLL", Test::Sentence, "GLL,", 0},
    {"GST", Test::Sentence, "GST,", 0},
    {"HDT", Test::Sentence, "HDT,", 0},
    {"TRA", Test::Sentence, "TRA,", 0},
};

const PageRule kKorvanePages[] = {
    // The attitude page does not look at the first character.
    {"HPR", Test::AtThree, "HPR,", 0},
    {"AGRIC", Test::Prefix, "#AGRICA,", 0},
    {"Satvis", Test::Prefix, "#SATVISA,", 0},
    // Gathers a group over several lines and tests checksums only after taking them.
    {"Satvis2", Test::PrefixNoCheck, "#SATVIS2A,", 2},
    {"Bestpos", Test::Prefix, "#BESTPOSA,", 0},
    {"Bestnav", Test::Prefix, "#BESTNAVA,", 0},
    {"BestnavH", Test::Prefix, "#BESTNAVHA", 0},
    {"Bestvel", Test::Prefix, "#BESTVELA,", 0},
    {"Bestxyz", Test::Prefix, "#BESTXYZA,", 0},
    {"Satxyz2", Test::Prefix, "#SATXYZ2A,", 2},
    // Its nine-character header is compared with ten characters: never equal.
    {"Heading", Test::Never, "#HEADINGA", 0},
    // Ten characters: KVNHEADING2 logs start the same way and land here too.
    {"KvnHeading", Test::Prefix, "#KVNHEADIN", 0},
    {"Heading2", Test::Prefix, "#HEADING2A,", 2},
    {"KvnHeading2", Test::Prefix, "#KVNHEADING", 0},
    // No comma, yet "#MATCHEDPOSH..." differs from it in the twelfth character.
    {"Matchpos", Test::Prefix, "#MATCHEDPOSA", 0},
    {"Matchposh", Test::Prefix, "#MATCHEDPOSHA", 0},
    {"Psrdop", Test::Prefix, "#PSRDOPA,", 0},
    {"Psrdop2", Test::Prefix, "#PSRDOP2A,", 0},
    {"Psrpos", Test::Prefix, "#PSRPOSA,", 2},
    {"Tdifpos", Test::Prefix, "#TDIFPOSA,", 0},
    {"Psrvel", Test::Prefix, "#PSRVELA,", 0},
    {"Tdifvel", Test::Prefix, "#TDIFVELA,", 0},
    // The ionosphere and UTC pages compare seven characters only.
    {"Gpsutc", Test::Prefix, "#GPSUTC", 0},
    {"Bdsutc", Test::Prefix, "#BDSUTC", 0},
    {"Galutc", Test::Prefix, "#GALUTC", 0},
    {"Gpsion", Test::Prefix, "#GPSION", 0},
    {"Bdsion", Test::Prefix, "#BDSION", 0},
    {"Bd3ion", Test::Prefix, "#BD3ION", 0},
    {"Galion", Test::Prefix, "#GALION", 0},
    {"Fwinfo", Test::Prefix, "#FWINFOA,", 0},
    {"Bestsats", Test::Prefix, "#BESTSATSA,", 0},
    {"Time", Test::Prefix, "#TIMEA,", 0},
    {"Rtkdata", Test::Prefix, "#RTKDATAA,", 0},
    {"Inspva", Test::Prefix, "#INSPVAA,", 0},
    {"Rawimux", Test::Prefix, "#RAWIMUXA,", 0},
    {"Antenna", Test::Prefix, "#ANTENNAA,", 0},
    {"Gpsephemeris", Test::Prefix, "#GPSEPHEMERISA,", 0},
    {"Gloephem", Test::Prefix, "#GLOEPHEMA,", 0},
    {"Bdsephem", Test::Prefix, "#BDSEPHEMA,", 0},
    {"Galephem", Test::Prefix, "#GALEPHEMA,", 0},
    {"Range", Test::Prefix, "#RANGEA,", 2},
    {"Rangeh", Test::Prefix, "#RANGEHA,", 2},
    {"Obsvm", Test::Prefix, "#OBSVMA,", 0},
};

const PageRule kTimingPages[] = {
    // No separator after the name is compared.
    {"LSINFO", Test::TimingName, "LSINFO", 0},
    // Compared from index 3 like an NMEA formatter: "$TP" is not looked at.
    {"TPFINFO", Test::Sentence, "FINFO,", 0},
    {"PPSINFO", Test::Prefix, "$PPSINFO", 0},
    {"BDSTIME", Test::TimingName, "BDSTIME,", 0},
    {"GPSTIME", Test::TimingName, "GPSTIME,", 0},
    {"GLOTIME", Test::TimingName, "GLOTIME,", 0},
    // Listed as GATTIME, takes GALTIME sentences.
    {"GATTIME", Test::TimingName, "GALTIME,", 0},
    {"UTCTIME", Test::TimingName, "UTCTIME,", 0},
    {"TIMPOS", Test::TimingName, "TIMPOS,", 0},
    {"JAM", Test::TimingName, "JAM", 0},
    {"SVNUM", Test::Sentence, "NUM,", 0},
};

// The NMEA kinds the binary decoder of modes 4 and 5 reports by name.
const char *const kDecoderKinds[] = {"GGA", "RMC", "GSA", "GSV", "GLL", "GST", "GBS", "VTG", "ZDA"};

template <typename F>
void forEachPage(int mode, F &&f)
{
    auto visit = [&](const PageRule *rules, int count) {
        for (int i = 0; i < count; ++i) {
            if (rules[i].modeFilter == 0 || rules[i].modeFilter == mode) {
                if (!f(rules[i]))
                    return false;
            }
        }
        return true;
    };
    switch (mode) {
    case 0:
        visit(kNmeaPages, int(std::size(kNmeaPages)));
        break;
    case 1:
    case 2:
        if (visit(kNmeaPages, int(std::size(kNmeaPages))))
            visit(kKorvanePages, int(std::size(kKorvanePages)));
        break;
    case 7:
        if (visit(kNmeaPages, int(std::size(kNmeaPages))))
            visit(kTimingPages, int(std::size(kTimingPages)));
        break;
    default:
        break;
    }
}

bool literalAt(const QByteArray &line, int offset, const char *literal)
{
    const int length = int(std::strlen(literal));
    return line.size() >= offset + length && std::memcmp(line.constData() + offset, literal, size_t(length)) == 0;
}

bool headerMatches(const PageRule &rule, const QByteArray &line)
{
    switch (rule.test) {
    case Test::Prefix:
    case Test::PrefixNoCheck:
        return literalAt(line, 0, rule.literal);
    case Test::Sentence:
        return line.startsWith('$') && literalAt(line, 3, rule.literal);
    case Test::AtThree:
        return literalAt(line, 3, rule.literal);
    case Test::TimingName:
        return line.startsWith('$') && literalAt(line, 1, rule.literal);
    case Test::Never:
        return false;
    }
    return false;
}

} // namespace

QStringList pageLabels(int mode)
{
    QStringList labels;
    if (mode == 4 || mode == 5) {
        for (const char *kind : kDecoderKinds)
            labels << QLatin1String(kind);
        return labels;
    }
    forEachPage(mode, [&](const PageRule &rule) {
        labels << QLatin1String(rule.label);
        return true;
    });
    return labels;
}

QString pageForLine(int mode, const QByteArray &line)
{
    if (mode == 4 || mode == 5) {
        if (!line.startsWith('$') || line.size() < 7 || line.at(6) != ',' || !lineChecksumAccepted(line))
            return QString();
        for (const char *kind : kDecoderKinds) {
            if (literalAt(line, 3, kind))
                return QLatin1String(kind);
        }
        return QString();
    }
    QString label;
    int checksum = -1; // computed once, when a header first matches
    forEachPage(mode, [&](const PageRule &rule) {
        if (!headerMatches(rule, line))
            return true;
        if (rule.test != Test::PrefixNoCheck) {
            if (checksum < 0)
                checksum = lineChecksumAccepted(line) ? 1 : 0;
            if (checksum == 0)
                return true;
        }
        label = QLatin1String(rule.label);
        return false;
    });
    return label;
}

bool lineChecksumAccepted(const QByteArray &line)
{
    if (line.isEmpty() || (line.at(0) != '$' && line.at(0) != '#'))
        return false;
    const int star = line.indexOf('*');
    if (star < 0)
        return false;
    int end = 1;
    while (end < star && line.at(end) != '\0')
        ++end;
    const quint32 computed = line.at(0) == '$' ? xorChecksum(line.constData() + 1, end - 1)
                                                : receiverCrc(line.constData() + 1, end - 1);
    // Read as the console reads it: text, blanks trimmed, base 16, 32 bits.
    bool ok = false;
    const uint received = QString::fromUtf8(line.constData() + star + 1, line.size() - star - 1).toUInt(&ok, 16);
    return ok && received == computed;
}

} // namespace rxsim
