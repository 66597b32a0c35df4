// SPDX-License-Identifier: BSD-3-Clause
#include "sentencefields.h"

#include "fieldtext.h"
#include "linerecord.h"

#include <algorithm>
#include <initializer_list>

namespace {

// The fields in order: `head`, then `group` `repeats` times ("%1" the group's number),
// then `tail`. A sentence of GSV's sort holds as many groups as its length shows.
struct SentenceFields
{
    const char *type;
    std::initializer_list<const char *> head;
    std::initializer_list<const char *> group = {};
    int repeats = 0;
    std::initializer_list<const char *> tail = {};
    bool groupsByLength = false;
};

const SentenceFields kSentences[] = {
    {"GGA", {"UTC time", "Latitude", "N/S", "Longitude", "E/W", "Quality", "Satellites", "HDOP", "Altitude",
             "Altitude unit", "Geoid separation", "Separation unit", "Correction age", "Station ID"}},
    {"RMC", {"UTC time", "Status", "Latitude", "N/S", "Longitude", "E/W", "Speed (kn)", "Course", "Date",
             "Magnetic variation", "Variation E/W", "Mode", "Nav status"}},
    {"GLL", {"Latitude", "N/S", "Longitude", "E/W", "UTC time", "Status", "Mode"}},
    {"VTG", {"Course (true)", "T", "Course (magnetic)", "M", "Speed (kn)", "N", "Speed (km/h)", "K", "Mode"}},
    {"ZDA", {"UTC time", "Day", "Month", "Year", "Zone hours", "Zone minutes"}},
    {"GST", {"UTC time", "Range RMS", "Major axis SD", "Minor axis SD", "Orientation", "Latitude SD",
             "Longitude SD", "Altitude SD"}},
    {"HDT", {"Heading", "T"}},
    {"THS", {"Heading", "Mode"}},
    {"ROT", {"Rate of turn", "Status"}},
    {"GSA", {"Mode", "Fix type"}, {"PRN %1"}, 12, {"PDOP", "HDOP", "VDOP", "System ID"}},
    {"GSV", {"Sentences", "Sentence", "Satellites in view"}, {"PRN %1", "Elevation %1", "Azimuth %1", "SNR %1"}, 4,
     {"Signal ID"}, true},
    {"GNS", {"UTC time", "Latitude", "N/S", "Longitude", "E/W", "Mode", "Satellites", "HDOP", "Altitude",
             "Geoid separation", "Correction age", "Station ID", "Nav status"}},
    {"GBS", {"UTC time", "Latitude error", "Longitude error", "Altitude error", "Failed satellite",
             "Miss probability", "Bias", "Bias SD", "System ID", "Signal ID"}},
    {"DTM", {"Datum", "Subdivision", "Latitude offset", "N/S", "Longitude offset", "E/W", "Altitude offset",
             "Reference datum"}},
    {"GRS", {"UTC time", "Mode"}, {"Residual %1"}, 12, {"System ID", "Signal ID"}},
    {"TXT", {"Sentences", "Sentence", "Text ID", "Text"}},
    {"RMB", {"Status", "Cross-track error", "Steer to", "Origin waypoint", "Destination waypoint",
             "Destination latitude", "N/S", "Destination longitude", "E/W", "Range (nm)", "Bearing",
             "Closing speed (kn)", "Arrival", "Mode"}},
};

const SentenceFields *sentenceOf(const QByteArray &kind)
{
    if (kind.size() != 5 || kind.startsWith('P'))
        return nullptr;
    const QByteArray type = kind.right(3);
    const auto found = std::find_if(std::begin(kSentences), std::end(kSentences),
                                    [&type](const SentenceFields &sentence) { return type == sentence.type; });
    return found == std::end(kSentences) ? nullptr : found;
}

void appendNames(QStringList &names, std::initializer_list<const char *> fields, int number = 0)
{
    for (const char *field : fields)
        names << (number > 0 ? QString::fromLatin1(field).arg(number) : QString::fromLatin1(field));
}

QStringList namesWithGroups(const SentenceFields &sentence, int groups)
{
    QStringList names;
    appendNames(names, sentence.head);
    for (int number = 1; number <= groups; ++number)
        appendNames(names, sentence.group, number);
    appendNames(names, sentence.tail);
    return names;
}

} // namespace

QStringList sentenceFieldNames(const QByteArray &kind)
{
    const SentenceFields *sentence = sentenceOf(kind);
    return sentence ? namesWithGroups(*sentence, sentence->repeats) : QStringList();
}

QStringList sentenceFieldNames(const QByteArray &kind, int fieldCount)
{
    const SentenceFields *sentence = sentenceOf(kind);
    if (!sentence)
        return {};
    int groups = sentence->repeats;
    if (sentence->groupsByLength) {
        const int groupSize = int(sentence->group.size());
        groups = std::clamp((fieldCount - int(sentence->head.size())) / groupSize, 0, sentence->repeats);
    }
    return namesWithGroups(*sentence, groups);
}

QVector<NamedField> namedFields(const QByteArray &kind, const QByteArray &line)
{
    const QString text = QString::fromLatin1(line.constData(), lengthWithoutLineEnd(line));
    FieldViews parts;
    splitFields(text, parts);
    const bool named = !kind.isEmpty();
    const bool hasChecksum = named && parts.size() > 1 && text.contains(QLatin1Char('*'));
    const int dataFields = parts.size() - 1 - (hasChecksum ? 1 : 0);
    const QStringList names = named ? sentenceFieldNames(kind, dataFields) : QStringList();
    QVector<NamedField> fields;
    fields.reserve(parts.size());
    for (int i = 0; i < parts.size(); ++i) {
        QString name;
        if (named && i == 0)
            name = QStringLiteral("Address");
        else if (hasChecksum && i == parts.size() - 1)
            name = QStringLiteral("Checksum");
        else if (named)
            name = names.value(i - 1);
        fields << NamedField{name, lineText(parts.at(i).toLatin1(), false)};
    }
    return fields;
}
