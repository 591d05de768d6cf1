// One chart as conditions see it: from an analysed chart, or from the fields of a research line
// that are asked for.
#pragma once

#include "analysis/Ashtakavarga.h"
#include "analysis/Benefics.h"
#include "analysis/FunctionalNature.h"
#include "analysis/Shadbala.h"
#include "core/Chart.h"
#include "core/Settings.h"
#include "timing/Dasha.h"
#include "yoga/Keywords.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace kestrav::yoga
{

/// The divisional-chart option under which charts are as the settings have them.
inline constexpr int kPlainOption = 1;

class Frame
{
public:
    /// The settings must outlive the object; setOption tells of a change.
    explicit Frame(const core::Settings& settings);

    void clear();
    void setChart(const core::Chart& chart);
    bool setLine(std::string_view line);

    /// Tells that the settings are now those of a divisional-chart option. Under option 1 a chart
    /// is as it was computed; for another one it is copied and its divisions are made again.
    void setOption(int option);

    [[nodiscard]] const core::Settings& settings() const
    {
        return settings_;
    }
    [[nodiscard]] bool exists() const
    {
        return source_ != Source::None;
    }

    /// Sign 1 to 12 of a point 0 to 62 in a divisional chart; 0 when it has none there.
    [[nodiscard]] int sign(int point, int varga);

    /// Longitude in a divisional chart, 0 to under 360, or a negative number. Outside the rashi it
    /// is made of the sign and the position in it.
    [[nodiscard]] double longitude(int point, int varga);

    [[nodiscard]] double nakshatraPosition(int point);

    /// The rank of a dignity, PlainWord from kWordDebilitated to kWordExalted; nothing for points
    /// without dignity.
    [[nodiscard]] std::optional<PlainWord> dignity(int point, int varga);

    [[nodiscard]] bool retrograde(int point);
    [[nodiscard]] bool combust(int planet);

    [[nodiscard]] const analysis::NaturalBenefics& benefics();
    [[nodiscard]] const analysis::NatureTable& natures();
    /// The planet that has a chara karaka's place in the list of eight, 0 (Atma) to 7 (Dara); 0
    /// when there is none, as Pitri among seven.
    [[nodiscard]] int karaka(int place);
    [[nodiscard]] const analysis::ShadbalaTable& shadbala();
    [[nodiscard]] const analysis::Ashtakavarga& ashtakavarga(int varga);

    /// A dasha of the chart, or null when it has none.
    [[nodiscard]] const timing::Dasha* dasha(int system, const astro::Series& series);

    /// The planets 1 to 9 of a set, bit n for planet n.
    [[nodiscard]] std::uint32_t members(const SetWord& word, int varga);

    /// The chart with the positions of all points that the source has, its relationships and the
    /// placements of one divisional chart. Of a research line it has no combustions.
    [[nodiscard]] const core::Chart& chart(int varga = core::kRashi);

    /// Whether the source is a whole chart.
    [[nodiscard]] bool isWhole() const
    {
        return source_ == Source::Chart;
    }
    /// The Julian day of the moment of a whole chart, in Universal Time.
    [[nodiscard]] std::optional<double> momentOfChart() const;
    /// The sex of the native: "M", "F" or empty.
    [[nodiscard]] char sex() const;

private:
    enum class Source
    {
        None,
        Chart,
        Line,
    };

    void forget();
    void readPositions();
    void prepareVarga(int varga, int point);
    void prepareVarga(int varga);
    void prepareArudhas();
    void prepareArudhas(int varga);
    void prepareRelations();
    [[nodiscard]] bool relationMatters(int point, int sign) const;
    [[nodiscard]] std::uint32_t dynamicMembers(PlanetSet set, int varga);
    [[nodiscard]] std::uint32_t lordsOfHouses(std::uint32_t houses, int varga);
    [[nodiscard]] std::uint32_t cluster(int varga);

    const core::Settings& settings_;
    Source source_ = Source::None;
    const core::Chart* given_ = nullptr;   ///< the chart that was set
    const core::Chart* current_ = nullptr; ///< it, or its copy under another option
    std::unique_ptr<core::Chart> own_;     ///< that copy, or the positions of a research line
    bool ownIsLine_ = false;
    int ownOption_ = 0; ///< option of that copy; 0 when there is none of the chart
    std::string_view line_;
    core::PointArray<int> rashi_ = {};
    bool positionsRead_ = false;
    bool arudhasReady_ = false;
    bool relationsReady_ = false;
    core::VargaArray<std::uint64_t> divided_ = {}; ///< points of a line with placements, bit n
    std::optional<analysis::NaturalBenefics> benefics_;
    std::optional<analysis::NatureTable> natures_;
    std::optional<std::array<int, 8>> karakas_;
    std::optional<analysis::ShadbalaTable> shadbala_;
    std::optional<analysis::Ashtakavarga> ashtakavarga_;
    std::optional<timing::Dasha> dasha_;
    int dashaSystem_ = -1; ///< of dasha_, also when it could not be made
};

} // namespace kestrav::yoga
