#include "data/ResearchDatabase.h"

#include "core/Files.h"
#include "core/NumberText.h"
#include "data/ChartLineFields.h"
#include "data/DatabaseMessages.h"
#include "data/DerivedFile.h"
#include "data/FieldReader.h"
#include "data/ResearchLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

namespace kestrav::data
{

namespace
{

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestFile = std::uintmax_t{1} << 32;
constexpr std::uintmax_t kLargestPrint = 65536;
constexpr std::string_view kPrintHead = "kestrav research 1";

// The 64-bit FNV-1a hash: it has to notice changes, nobody gains by forging it.
class Hash
{
public:
    void add(std::string_view bytes)
    {
        for (const char byte : bytes) {
            value_ = (value_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
        }
    }
    [[nodiscard]] std::string text() const
    {
        std::array<char, 16> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value_, 16);
        return {digits.data(), end.ptr};
    }

private:
    std::uint64_t value_ = 0xCBF29CE484222325U;
};

// The order code of a line, which decides whether the order in force matters for it.
bool hasOwnOrder(std::string_view line)
{
    constexpr int kFieldsBeforeDate = 4;
    constexpr int kFieldsBeforeSecondDate = 11;
    FieldReader fields(line);
    fields.unquoted(1);
    fields.skipText(kFieldsBeforeDate);
    fields.skipCompound(3);
    fields.skipText(kFieldsBeforeSecondDate);
    fields.skipCompound(3);
    fields.skipCompound(2);
    fields.skipCompound(2);
    const std::string_view code = fields.part(1);
    return code == "E" || code == "U";
}

// The lines of the side file. Their order is that of the tests in researchState.
struct Print
{
    std::string lines;
    std::string settings;
    std::string order; ///< the order in force, when some line has none of its own
    std::string size;  ///< of the research file

    [[nodiscard]] std::string text() const
    {
        return std::string(kPrintHead) + "\nlines " + lines + "\nsettings " + settings +
               "\norder " + order + "\nsize " + size + "\n";
    }
};

Print printOf(const ChartDatabase& database, const core::Settings& settings)
{
    Hash hash;
    bool ownOrders = true;
    for (std::size_t i = 0; i < database.size(); ++i) {
        const std::string_view line = database.line(i);
        // Nothing in a research line comes from the tag, so that a change of groups leaves it
        // valid.
        const std::size_t tab = line.find('\t');
        hash.add(tab == std::string_view::npos ? line : line.substr(tab));
        hash.add("\n");
        ownOrders = ownOrders && (isShortLine(line) || hasOwnOrder(line));
    }
    Print print;
    print.lines = std::to_string(database.size()) + " " + hash.text();
    print.settings = researchSettingsText(settings);
    print.order = ownOrders ? "none" : settings.monthFirst ? "month first" : "day first";
    return print;
}

std::string sizeText(const fs::path& path)
{
    return std::to_string(stampOf(path).size);
}

std::optional<Print> readPrint(const fs::path& path)
{
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestPrint);
    core::Result<LineList> lines =
        bytes ? LineList::fromBytes(bytes.value()) : core::Result<LineList>(bytes.error());
    if (!lines || lines.value().size() != 5 || lines.value().line(0) != kPrintHead) {
        return std::nullopt;
    }
    Print print;
    const std::array<std::pair<std::string_view, std::string*>, 4> parts = {{
        {"lines ", &print.lines},
        {"settings ", &print.settings},
        {"order ", &print.order},
        {"size ", &print.size},
    }};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::string_view line = lines.value().line(i + 1);
        if (!line.starts_with(parts[i].first)) {
            return std::nullopt;
        }
        *parts[i].second = line.substr(parts[i].first.size());
    }
    return print;
}

// Whether the file may be replaced: its first line that is not empty is a research line.
bool isResearchFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string line;
    while (file.good()) {
        line.clear();
        for (char byte = 0; line.size() <= kLongestLine && file.get(byte) && byte != '\n';) {
            line += byte;
        }
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (!line.empty()) {
            core::Chart chart;
            return line.size() <= kLongestLine && ParseResearchLine(line, chart);
        }
    }
    return file.eof();
}

} // namespace

fs::path researchPath(const fs::path& database)
{
    fs::path path = database;
    return path.replace_extension(".txt");
}

fs::path researchPrintPath(const fs::path& database)
{
    fs::path path = database;
    return path.replace_extension(".research");
}

core::Result<LineList> loadResearch(const fs::path& database)
{
    const core::Result<std::vector<std::uint8_t>> bytes =
        core::readFile(researchPath(database), kLargestFile);
    return bytes ? LineList::fromBytes(bytes.value()) : core::Result<LineList>(bytes.error());
}

core::Result<void> saveResearch(const ChartDatabase& database, const core::Settings& settings,
                                const ResearchLines& lines)
{
    const fs::path path = researchPath(database.path());
    if (path == database.path() || (stampOf(path).exists() && !isResearchFile(path))) {
        return core::Error{"is no research database, so it is not written over", path.string()};
    }
    // Without its origin a file counts as stale, also when the next steps do not all happen.
    const fs::path printPath = researchPrintPath(database.path());
    std::error_code problem;
    fs::remove(printPath, problem);
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += '\n';
    }
    core::Result<void> written = writeDerivedFile(path, text);
    if (!written) {
        return written;
    }
    Print print = printOf(database, settings);
    print.size = sizeText(path);
    return writeDerivedFile(printPath, print.text());
}

ResearchState researchState(const ChartDatabase& database, const core::Settings& settings)
{
    const fs::path path = researchPath(database.path());
    if (!stampOf(path).exists()) {
        return ResearchState::Missing;
    }
    if (path == database.path() || !isResearchFile(path)) {
        return ResearchState::Foreign;
    }
    const std::optional<Print> built = readPrint(researchPrintPath(database.path()));
    if (!built || built->size != sizeText(path)) {
        return ResearchState::UnknownOrigin;
    }
    const Print now = printOf(database, settings);
    if (built->lines != now.lines) {
        return ResearchState::ChartsChanged;
    }
    const bool sameSettings = built->settings == now.settings && built->order == now.order;
    return sameSettings ? ResearchState::Fresh : ResearchState::SettingsChanged;
}

std::wstring researchStateText(ResearchState state)
{
    switch (state) {
    case ResearchState::Fresh:
        break;
    case ResearchState::Missing:
        return L"There is no research database yet.";
    case ResearchState::Foreign:
        return L"The text file beside the database is no research database.";
    case ResearchState::UnknownOrigin:
        return L"The research database was not built by this program, or was changed afterwards.";
    case ResearchState::ChartsChanged:
        return L"Charts were changed since the research database was built.";
    case ResearchState::SettingsChanged:
        return L"Settings were changed since the research database was built.";
    }
    return {};
}

std::string researchSettingsText(const core::Settings& settings)
{
    const auto row = std::size_t(std::clamp(settings.ayanamsaRow, 0, core::kAyanamsaRows - 1));
    const core::AyanamsaRow& ayanamsa = settings.ayanamsaTable[row];
    std::string text = std::to_string(settings.ayanamsaRow);
    for (const double value : {double(ayanamsa.epochYear), ayanamsa.valueAtEpoch,
                               ayanamsa.annualRate, double(settings.deltaTOn),
                               double(settings.preciseMoon), double(settings.upagrahaAtMiddle)}) {
        text += " " + core::shortestNumber(value);
    }
    return text;
}

bool agreesToRefresh(core::Messages& messages)
{
    return messages.show(kResearchCaption, kRefreshResearch, core::Buttons::OkCancel) ==
           core::Answer::Ok;
}

void suggestRefreshing(core::Messages& messages)
{
    messages.notice(kNoticeCaption, kTryRefreshing);
}

bool agreesToRefreshAfter(const core::Settings& before, const core::Settings& now,
                          core::Messages& messages)
{
    if (researchSettingsText(before) == researchSettingsText(now)) {
        return false;
    }
    return messages.show(kNoticeCaption, kOptionsMovePlanets, core::Buttons::YesNo) ==
           core::Answer::Yes;
}

} // namespace kestrav::data
