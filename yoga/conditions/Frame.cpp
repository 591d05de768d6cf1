#include "yoga/conditions/Frame.h"

#include "analysis/AnalyseChart.h"
#include "analysis/Arudhas.h"
#include "analysis/CharaKarakas.h"
#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"
#include "core/NumberText.h"
#include "data/ResearchLine.h"
#include "yoga/KeywordTables.h"

#include <algorithm>
#include <cmath>

namespace kestrav::yoga
{

namespace
{

using core::at;

constexpr double kSignEnd = 30.0;
constexpr int kSmallestCluster = 4;

bool isArudha(int point)
{
    return point == core::kArudhaLagna || (point >= core::kArudhaPada1 && point <= core::kUpapada);
}

bool isFunctionalBenefic(const analysis::Nature& nature)
{
    return (nature.benefic || nature.yogakaraka) && !nature.malefic;
}

bool isFunctionalMalefic(const analysis::Nature& nature)
{
    return nature.malefic && !nature.benefic && !nature.yogakaraka;
}

std::uint32_t bit(int number)
{
    return 1U << unsigned(number);
}

} // namespace

Frame::Frame(const core::Settings& settings) : settings_(settings)
{}

void Frame::forget()
{
    positionsRead_ = false;
    arudhasReady_ = false;
    relationsReady_ = false;
    divided_.fill(0);
    benefics_.reset();
    natures_.reset();
    karakas_.reset();
    shadbala_.reset();
    ashtakavarga_.reset();
    dashaSystem_ = -1;
    ownOption_ = 0;
}

void Frame::clear()
{
    forget();
    source_ = Source::None;
    given_ = nullptr;
    current_ = nullptr;
    rashi_.fill(0);
}

void Frame::setChart(const core::Chart& chart)
{
    forget();
    source_ = Source::Chart;
    given_ = &chart;
    current_ = &chart;
    for (int point = 0; point < core::kPointCount; ++point) {
        at(rashi_, point) = analysis::signInVarga(chart, core::kRashi, point);
    }
}

// The signs are read at once, because nearly every condition asks for them and they stand near the
// beginning of the line.
bool Frame::setLine(std::string_view line)
{
    clear();
    if (!ownIsLine_) {
        own_ = std::make_unique<core::Chart>();
        ownIsLine_ = true;
    }
    current_ = own_.get();
    line_ = line;
    for (int field = 0; field < data::kSignFields; ++field) {
        const std::size_t tab = line.find('\t');
        if (tab == std::string_view::npos) {
            return false;
        }
        line.remove_prefix(tab + 1);
    }
    for (const int point : data::kResearchPoints) {
        int sign = 0;
        std::size_t length = 0;
        for (; length < line.size() && line[length] != '\t'; ++length) {
            sign = length < 2 && line[length] >= '0' && line[length] <= '9'
                       ? sign * 10 + (line[length] - '0')
                       : 0;
        }
        if (length == line.size()) {
            return false;
        }
        at(rashi_, point) = sign <= 12 ? sign : 0;
        line.remove_prefix(length + 1);
    }
    source_ = Source::Line;
    return true;
}

// The strengths stay: none of them reads what the options change.
void Frame::setOption(int option)
{
    divided_.fill(0);
    ashtakavarga_.reset();
    if (source_ != Source::Chart) {
        return;
    }
    if (option == kPlainOption) {
        current_ = given_;
        return;
    }
    if (ownOption_ != option) {
        own_ = std::make_unique<core::Chart>(*given_);
        ownIsLine_ = false;
        ownOption_ = option;
        analysis::analyseSigns(*own_, settings_);
    }
    current_ = own_.get();
}

void Frame::readPositions()
{
    if (source_ != Source::Line || positionsRead_) {
        return;
    }
    positionsRead_ = true;
    if (!data::ReadResearchPositions(line_, *own_)) {
        own_->clearPoints();
    }
}

void Frame::prepareArudhas()
{
    if (source_ != Source::Line || arudhasReady_) {
        return;
    }
    readPositions();
    arudhasReady_ = true;
    analysis::computeArudhaPoints(*own_, settings_);
    for (int point = core::kArudhaPada1; point <= core::kUpapada; ++point) {
        at(rashi_, point) = analysis::signInVarga(*own_, core::kRashi, point);
    }
    rashi_[core::kArudhaLagna] = analysis::signInVarga(*own_, core::kRashi, core::kArudhaLagna);
}

// Of a research line only the points are divided that are asked for.
void Frame::prepareVarga(int varga, int point)
{
    readPositions();
    std::uint64_t& ready = at(divided_, varga);
    if (source_ != Source::Line || (ready & (std::uint64_t{1} << unsigned(point))) != 0) {
        return;
    }
    ready |= std::uint64_t{1} << unsigned(point);
    if (own_->computed(point)) {
        analysis::computeVarga(*own_, varga, point, settings_);
    }
}

void Frame::prepareVarga(int varga)
{
    if (source_ != Source::Line) {
        return;
    }
    for (const int point : data::kResearchPoints) {
        prepareVarga(varga, point);
    }
}

// The arudhas of a divisional chart follow from the places of all planets in it.
void Frame::prepareArudhas(int varga)
{
    if (source_ != Source::Line) {
        return;
    }
    prepareArudhas();
    const std::uint64_t arudhaLagna = std::uint64_t{1} << unsigned(core::kArudhaLagna);
    if (varga == core::kRashi || (at(divided_, varga) & arudhaLagna) != 0) {
        return;
    }
    prepareVarga(varga);
    prepareVarga(varga, core::kArudhaLagna);
    for (int point = core::kArudhaPada1; point <= core::kUpapada; ++point) {
        prepareVarga(varga, point);
    }
    if (settings_.arudhasInVargas) {
        analysis::storeArudhaSigns(*own_, varga, settings_);
    }
}

void Frame::prepareRelations()
{
    readPositions();
    if (source_ != Source::Line || relationsReady_) {
        return;
    }
    relationsReady_ = true;
    analysis::computeCompoundRelationships(*own_, settings_);
}

const core::Chart& Frame::chart(int varga)
{
    prepareRelations();
    if (varga != core::kRashi) {
        prepareVarga(varga);
    }
    return *current_;
}

int Frame::sign(int point, int varga)
{
    if (source_ == Source::None) {
        return 0;
    }
    if (isArudha(point)) {
        prepareArudhas(varga);
    }
    if (varga == core::kRashi) {
        return at(rashi_, point);
    }
    prepareVarga(varga, point);
    return analysis::signInVarga(*current_, varga, point);
}

double Frame::longitude(int point, int varga)
{
    if (sign(point, varga) == 0) {
        return -1.0;
    }
    readPositions();
    if (!current_->computed(point)) {
        return -1.0;
    }
    if (varga == core::kRashi) {
        return at(current_->longitude, point);
    }
    const core::VargaPlacement& placement = at(at(current_->vargas, varga), point);
    // Rounding puts a position at the very edges of a part a hair outside the sign.
    const double position =
        core::ClampRange(0.0, std::nextafter(kSignEnd, 0.0), placement.position);
    return kSignEnd * (placement.sign - 1) + position;
}

double Frame::nakshatraPosition(int point)
{
    return longitude(point, core::kRashi) < 0.0 ? -1.0 : at(current_->nakshatraPosition, point);
}

// Exaltation, debilitation and own signs are decided without the relationship to the lord.
bool Frame::relationMatters(int point, int sign) const
{
    const int scheme = settings_.nodeDignityScheme;
    return sign != analysis::exaltationSign(point, scheme) &&
           sign != analysis::debilitationSign(point, scheme) && analysis::signLord(sign) != point;
}

std::optional<PlainWord> Frame::dignity(int point, int varga)
{
    const int place = point >= core::kSun && point <= core::kKetu ? sign(point, varga) : 0;
    if (place == 0) {
        return std::nullopt;
    }
    readPositions();
    const int shown = analysis::displayDignity(chart(varga), point, place, varga, settings_);
    // Outside the rashi nothing tells moolatrikona from an own sign; the code above that of the own
    // sign means exalted.
    const bool exalted = varga != core::kRashi && shown == analysis::kExalted + 3;
    return PlainWord(exalted ? int(kWordExalted) : kWordDebilitated + shown);
}

bool Frame::retrograde(int point)
{
    readPositions();
    return exists() && at(current_->retrograde, point);
}

bool Frame::combust(int planet)
{
    readPositions();
    return exists() &&
           (source_ == Source::Line ? analysis::isCombust(*own_, *own_, planet, settings_)
                                    : at(current_->combust, planet));
}

const analysis::NaturalBenefics& Frame::benefics()
{
    if (!benefics_) {
        readPositions();
        benefics_ = analysis::naturalBenefics(*current_);
    }
    return *benefics_;
}

const analysis::NatureTable& Frame::natures()
{
    if (!natures_) {
        readPositions();
        natures_ = analysis::chartNatures(*current_);
    }
    return *natures_;
}

int Frame::karaka(int place)
{
    if (!karakas_) {
        constexpr int kPitri = 4;
        std::array<int, 8> planets{};
        readPositions();
        if (settings_.charaKarakas == 8) {
            planets = analysis::eightKarakas(*current_).value_or(planets);
        } else if (const auto seven = analysis::sevenKarakas(*current_)) {
            for (int i = 0; i < 7; ++i) {
                at(planets, i < kPitri ? i : i + 1) = at(*seven, i);
            }
        }
        karakas_ = planets;
    }
    return at(*karakas_, place);
}

const analysis::ShadbalaTable& Frame::shadbala()
{
    if (!shadbala_) {
        shadbala_ = isWhole()
                        ? analysis::computeShadbala(*current_, analysis::strengthInputs(*current_))
                        : analysis::ShadbalaTable{};
    }
    return *shadbala_;
}

const analysis::Ashtakavarga& Frame::ashtakavarga(int varga)
{
    if (!ashtakavarga_ || ashtakavarga_->varga != varga) {
        ashtakavarga_ = analysis::computeAshtakavarga(chart(varga), varga, false);
    }
    return *ashtakavarga_;
}

const timing::Dasha* Frame::dasha(int system, const astro::Series& series)
{
    if (!isWhole()) {
        return nullptr;
    }
    if (dashaSystem_ != system) {
        dashaSystem_ = system;
        dasha_.reset();
        timing::DashaOptions options = timing::dashaOptions(settings_);
        options.system = system;
        if (auto made = timing::dashaOf(*given_, settings_, options, series)) {
            dasha_ = std::move(made.value());
        }
    }
    return dasha_ ? &*dasha_ : nullptr;
}

std::optional<double> Frame::momentOfChart() const
{
    if (!isWhole() || !given_->hasMoment) {
        return std::nullopt;
    }
    return analysis::strengthInputs(*given_).julianDay;
}

char Frame::sex() const
{
    switch (source_) {
    case Source::None:
        return 0;
    case Source::Chart: {
        const std::wstring& sex = given_->identity.sex;
        return sex == L"M" ? 'M' : sex == L"F" ? 'F' : '\0';
    }
    case Source::Line: {
        const std::string_view sex = data::researchField(line_, data::kSexField);
        return sex == "M" || sex == "F" ? sex[0] : '\0';
    }
    }
    return 0;
}

std::uint32_t Frame::lordsOfHouses(std::uint32_t houses, int varga)
{
    const int ascendant = sign(core::kAscendant, varga);
    std::uint32_t lords = 0;
    for (int house = 1; ascendant != 0 && house <= 12; ++house) {
        if ((houses & bit(house)) != 0) {
            lords |= bit(analysis::signLord(core::norm12(ascendant + house - 1)));
        }
    }
    return lords;
}

std::uint32_t Frame::cluster(int varga)
{
    std::array<std::uint32_t, 13> planets{};
    std::array<int, 13> counts{};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const int place = sign(planet, varga);
        at(planets, place) |= bit(planet);
        ++at(counts, place);
    }
    for (int place = 1; place <= 12; ++place) {
        if (at(counts, place) >= kSmallestCluster) {
            return at(planets, place);
        }
    }
    return 0;
}

std::uint32_t Frame::dynamicMembers(PlanetSet set, int varga)
{
    // A planet without position has no nature or state.
    const auto those = [&](int first, int last, auto test) {
        std::uint32_t mask = 0;
        for (int planet = first; planet <= last; ++planet) {
            mask |= at(rashi_, planet) != 0 && test(planet) ? bit(planet) : 0U;
        }
        return mask;
    };
    const auto withDignity = [&](PlainWord lowest, PlainWord highest) {
        return those(core::kSun, core::kKetu, [&](int planet) {
            const std::optional<PlainWord> found = dignity(planet, varga);
            return found && *found >= lowest && *found <= highest;
        });
    };
    constexpr int kFirst = core::kSun;
    constexpr int kLast = core::kKetu;
    switch (set) {
    case kBenefics:
        return those(kFirst, kLast, [&](int planet) { return at(benefics(), planet); });
    case kMalefics:
        return those(kFirst, kLast, [&](int planet) { return !at(benefics(), planet); });
    case kFunctionalBenefics:
        return those(kFirst, kLast,
                     [&](int planet) { return isFunctionalBenefic(at(natures(), planet)); });
    case kFunctionalMalefics:
        return those(kFirst, kLast,
                     [&](int planet) { return isFunctionalMalefic(at(natures(), planet)); });
    case kYogakarakas:
        return those(kFirst, kLast, [&](int planet) { return at(natures(), planet).yogakaraka; });
    case kMarakas:
        return those(kFirst, kLast, [&](int planet) { return at(natures(), planet).maraka; });
    case kKendraLords:
        return lordsOfHouses(bitsOf({1, 4, 7, 10}), varga);
    case kTrikonaLords:
        return lordsOfHouses(bitsOf({1, 5, 9}), varga);
    case kDusthanaLords:
        return lordsOfHouses(bitsOf({6, 8, 12}), varga);
    case kUpachayaLords:
        return lordsOfHouses(bitsOf({3, 6, 10, 11}), varga);
    case kPanapharaLords:
        return lordsOfHouses(bitsOf({2, 5, 8, 11}), varga);
    case kApoklimaLords:
        return lordsOfHouses(bitsOf({3, 6, 9, 12}), varga);
    case kMarakaLords:
        return lordsOfHouses(bitsOf({2, 7}), varga);
    case kRetrogradePlanets:
        return those(core::kMars, core::kSaturn, [&](int planet) { return retrograde(planet); });
    case kCombustPlanets:
        return those(core::kMoon, core::kSaturn, [&](int planet) { return combust(planet); });
    case kExaltedPlanets:
        return withDignity(kWordExalted, kWordExalted);
    case kOwnSignPlanets:
        return withDignity(kWordOwn, kWordMoolatrikona);
    case kDebilitatedPlanets:
        return withDignity(kWordDebilitated, kWordDebilitated);
    case kClusterPlanets:
        return cluster(varga);
    case kNamedPlanets:
    case kPlanetSets:
        break;
    }
    return 0;
}

std::uint32_t Frame::members(const SetWord& word, int varga)
{
    if (source_ == Source::None) {
        return 0;
    }
    if (word.set == kNamedPlanets) {
        return word.mask;
    }
    const std::uint32_t members = dynamicMembers(word.set, varga);
    return word.without ? members & ~word.mask : members | word.mask;
}

} // namespace kestrav::yoga
