#include "analysis/Explain.h"

#include "analysis/ExplainTopics.h"
#include "core/FileText.h"

#include <array>
#include <string>

namespace kestrav::analysis
{

namespace
{

using explaining::Answer;
using explaining::Request;

bool isPlanet(int point)
{
    return point >= core::kSun && point <= core::kSaturn;
}

bool isGraha(int point)
{
    return point >= core::kSun && point <= core::kKetu;
}

bool hasPlacements(int point)
{
    return point >= 0 && point <= core::kPartOfFortune - 1;
}

bool hasDignity(int point)
{
    return point >= core::kSun && point <= core::kParivesha;
}

bool canBeCombust(int point)
{
    return point >= core::kMoon && point <= core::kSaturn;
}

bool isBody(int point)
{
    return isGraha(point) || (point >= core::kUranus && point <= core::kPluto);
}

bool hasBindus(int point)
{
    return point >= core::kAscendant && point <= core::kSaturn;
}

bool isHouse(int point)
{
    return point >= core::kCusp1 && point <= core::kCusp12;
}

bool isKarakaPlanet(int point)
{
    return point >= core::kSun && point <= core::kRahu;
}

bool isPoint(int point)
{
    return point >= 0 && point < core::kPointCount;
}

bool noPoint(int)
{
    return false;
}

enum class Detail
{
    None,
    Optional,
    Needed,
};

struct Row
{
    std::string_view result; // the word of the query; empty for the rows of a varga or a part
    Detail detail;
    Answer (*explain)(const Request&);
    ExplainTopic topic;
    ExplainTopic withDetail = {}; // the form with a detail where that may be left out
};

// clang-format off
constexpr std::array<Row, 20> kRows = {{
    {"dignity", Detail::Optional, explaining::explainDignity,
     {"POINT:dignity", "Dignity in the Rashi as reports show it, with what cancels a debilitation.",
      "venus:dignity", hasDignity},
     {"POINT:dignity:VARGA", "Dignity in a divisional chart.", "mars:dignity:navamsha", hasDignity}},
    {"relationship", Detail::Needed, explaining::explainRelationship,
     {"POINT:relationship:PLANET", "Natural, temporary and compound relationship towards another planet.",
      "sun:relationship:saturn", isPlanet}},
    {"combust", Detail::None, explaining::explainCombustion,
     {"POINT:combust", "Whether a planet is combust, with its distance from the Sun and its orb.",
      "mercury:combust", canBeCombust}},
    {"motion", Detail::None, explaining::explainMotion,
     {"POINT:motion", "The motion code, from the speed and the mean motion.", "saturn:motion", isBody}},
    {"nature", Detail::None, explaining::explainNature,
     {"POINT:nature", "The functional nature under the ascendant; that of the nodes by house and company.",
      "rahu:nature", isGraha}},
    {"vimshopaka", Detail::Optional, explaining::explainVimshopaka,
     {"POINT:vimshopaka", "The vimshopaka totals of the four sets of divisional charts.",
      "jupiter:vimshopaka", isPlanet},
     {"POINT:vimshopaka:SET", "The vimshopaka of one set, chart by chart: shodasha, dasha, sapta or shad.",
      "jupiter:vimshopaka:shad", isPlanet}},
    {"bindu", Detail::Needed, explaining::explainBindu,
     {"POINT:bindu:SIGN", "The bindus of a sign in an ashtakavarga and who gives them.",
      "moon:bindu:libra", hasBindus}},
    {"ashtakavarga", Detail::Optional, explaining::explainAshtakavarga,
     {"POINT:ashtakavarga", "The bindus of all signs in the Rashi with both reductions and the pinda.",
      "sun:ashtakavarga", hasBindus},
     {"POINT:ashtakavarga:VARGA", "The same in a divisional chart.", "sun:ashtakavarga:navamsha", hasBindus}},
    {"kakshya", Detail::None, explaining::explainKakshya,
     {"POINT:kakshya", "The eighth of the sign in which a planet stands, its lord and its bindu.",
      "saturn:kakshya", isPlanet}},
    {"strength", Detail::Optional, explaining::explainStrength,
     {"POINT:strength", "The shadbala of a planet from its six parts.", "mars:strength", isPlanet},
     {"POINT:strength:PART", "One part of shadbala. The word strength may be left out but for hora and "
                             "drekkana, which alone are divisional charts; kala.hora is the part too.",
      "mars:strength:hora", isPlanet}},
    {"bhavabala", Detail::None, explaining::explainBhavaBala,
     {"HOUSE:bhavabala", "The strength of a house.", "house4:bhavabala", isHouse}},
    {"rashmi", Detail::None, explaining::explainRashmi,
     {"POINT:rashmi", "The rays of a planet.", "sun:rashmi", isPlanet}},
    {"avastha", Detail::Optional, explaining::explainAvastha,
     {"POINT:avastha", "The states of a body in all five families.", "venus:avastha", isGraha},
     {"POINT:avastha:FAMILY", "One family: baladi, jagradadi, deeptadi, lajjitadi or shayanadi.",
      "venus:avastha:deeptadi", isGraha}},
    {"karaka", Detail::None, explaining::explainKaraka,
     {"POINT:karaka", "The chara karaka that a planet is, by its advancement in sign.", "moon:karaka",
      isKarakaPlanet}},
    {"aspect", Detail::Needed, explaining::explainAspect,
     {"POINT:aspect:POINT", "The graha aspect, the rashi aspect and the value of the aspect on another point.",
      "saturn:aspect:moon", isGraha}},
    {"longitude", Detail::None, explaining::explainLongitude,
     {"POINT:longitude", "How the longitude of a point comes about, with its formula for special points.",
      "gulika:longitude", isPoint}},
    {"arudha", Detail::None, explaining::explainArudha,
     {"POINT:arudha", "The arudha of a planet.", "mercury:arudha", isGraha}},
    {"drekkana22", Detail::None, explaining::explainTwentySecondDrekkana,
     {"POINT:drekkana22", "The 22nd drekkana from a point.", "ascendant:drekkana22", isPoint}},
    {"saham", Detail::Needed, explaining::explainSaham,
     {"saham:NAME", "The formula of a saham with its values.", "saham:punya", noPoint}},
    {"sphuta", Detail::Needed, explaining::explainSphuta,
     {"sphuta:NAME", "The sum that makes a sphuta.", "sphuta:beeja", noPoint}},
}};
// clang-format on

constexpr ExplainTopic kVargaTopic = {
    "POINT:VARGA", "The sign, position and strength step of a point in a divisional chart.",
    "mars:navamsha", hasPlacements};
constexpr ExplainTopic kPartTopic = {
    "POINT:PART", "One part of shadbala: uccha, saptavargaja, sthana, dig, kala, drik and so on.",
    "mars:uccha", isPlanet};

constexpr int countTopics()
{
    int count = 2;
    for (const Row& row : kRows) {
        count += row.withDetail.form.empty() ? 1 : 2;
    }
    return count;
}

constexpr auto kTopics = [] {
    std::array<ExplainTopic, std::size_t(countTopics())> topics{};
    std::size_t next = 0;
    topics[next++] = kVargaTopic;
    for (const Row& row : kRows) {
        topics[next++] = row.topic;
        if (!row.withDetail.form.empty()) {
            topics[next++] = row.withDetail;
        }
    }
    topics[next] = kPartTopic;
    return topics;
}();

struct Parts
{
    std::string_view point;
    std::string_view result;
    std::string_view detail;
    bool hasDetail = false;
};

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

core::Result<Parts> splitQuery(std::string_view query)
{
    const std::size_t first = query.find(':');
    if (first == std::string_view::npos) {
        return core::Error{"write POINT:RESULT, such as mars:navamsha"};
    }
    Parts parts;
    parts.point = trimmed(query.substr(0, first));
    const std::string_view rest = query.substr(first + 1);
    const std::size_t second = rest.find(':');
    parts.result = trimmed(rest.substr(0, second));
    if (second != std::string_view::npos) {
        parts.hasDetail = true;
        parts.detail = trimmed(rest.substr(second + 1));
    }
    return parts;
}

std::string resultList(int point)
{
    std::string list = hasPlacements(point) ? "a varga" : "";
    for (const Row& row : kRows) {
        if (row.topic.appliesTo(point)) {
            list += (list.empty() ? "" : ", ") + std::string(row.result);
        }
    }
    return list + (isPlanet(point) ? " or a strength part" : "");
}

core::Error unwanted(std::string_view result, std::string_view detail)
{
    return core::Error{"'" + std::string(core::cutUtf8(result, 60)) + "' takes no detail, but '" +
                       std::string(core::cutUtf8(detail, 60)) + "' was given"};
}

// The detail that an error of the functions below should name is never left out silently.
Answer explainRow(const Row& row, const Request& request, const Parts& parts)
{
    if (row.detail == Detail::None && parts.hasDetail) {
        return unwanted(parts.result, parts.detail);
    }
    if (parts.detail.empty() && (row.detail == Detail::Needed || parts.hasDetail)) {
        return core::Error{
            "'" + std::string(row.result) + "' needs a detail: " +
            std::string(row.withDetail.form.empty() ? row.topic.form : row.withDetail.form)};
    }
    return row.explain(request);
}

const Row* findRow(std::string_view result)
{
    const std::string wanted = explaining::plainName(result);
    for (const Row& row : kRows) {
        if (row.result == wanted) {
            return &row;
        }
    }
    return nullptr;
}

core::Error noSuchResult(int point, const Parts& parts)
{
    return core::Error{core::toUtf8(explaining::nameOf(point)) + " has no result '" +
                       std::string(core::cutUtf8(parts.result, 60)) + "'; write " +
                       resultList(point)};
}

Answer explainParts(const core::Chart& chart, const core::Settings& settings, const Parts& parts)
{
    const Row* const pointless = findRow(parts.point);
    if (pointless != nullptr && pointless->topic.appliesTo == noPoint) {
        if (parts.hasDetail) {
            return unwanted(parts.result, parts.detail);
        }
        return explainRow(*pointless, {chart, settings, 0, parts.result},
                          {parts.point, parts.point, parts.result, true});
    }
    const std::optional<int> point = explaining::findPoint(parts.point);
    if (!point) {
        return explaining::unknown("the point", parts.point,
                                   "a name such as ascendant, sun, gulika, house4 or arudha3, an "
                                   "index 0 to 62, or saham or sphuta");
    }
    const Request request = {chart, settings, *point, parts.detail};
    const Row* const row = findRow(parts.result);
    if (row != nullptr && row->topic.appliesTo(*point)) {
        return explainRow(*row, request, parts);
    }
    const std::optional<int> varga = explaining::findVargaName(parts.result);
    const bool asVarga = row == nullptr && varga && hasPlacements(*point);
    const bool asPart =
        row == nullptr && !varga && isPlanet(*point) && explaining::isStrengthPart(parts.result);
    if (!asVarga && !asPart) {
        return noSuchResult(*point, parts);
    }
    if (parts.hasDetail) {
        return unwanted(parts.result, parts.detail);
    }
    return asVarga ? explaining::explainVarga(request, *varga)
                   : explaining::explainStrength({chart, settings, *point, parts.result});
}

} // namespace

core::Result<Explanation> explain(const core::Chart& chart, const core::Settings& settings,
                                  std::string_view query)
{
    const core::Result<Parts> parts = splitQuery(query);
    Answer answer = parts ? explainParts(chart, settings, parts.value()) : Answer(parts.error());
    if (!answer) {
        core::Error error = answer.error();
        error.message = "explain '" + std::string(core::cutUtf8(query, 80)) + "': " + error.message;
        return error;
    }
    return answer;
}

std::span<const ExplainTopic> explainTopics()
{
    return kTopics;
}

} // namespace kestrav::analysis
