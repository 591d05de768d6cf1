#include "app/desktop/entry/EntryDraft.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"
#include "core/Files.h"
#include "data/ChartLine.h"

#include <cstdint>
#include <span>
#include <system_error>

namespace kestrav::desktop
{

namespace
{

constexpr std::uintmax_t kLargestFile = 1 << 20;
// Begins the texts; no chart line holds this control character.
constexpr std::string_view kTexts = "\t\x01";

} // namespace

std::string draftLine(const EntryDraft& draft, data::DateOrder order)
{
    std::string line = data::FormatChartLine(draft.chart, order);
    line += kTexts;
    for (auto text = draft.texts.begin(); text != draft.texts.end(); ++text) {
        line += '\t' + toUtf8(text.key()) + '=' + toUtf8(text.value().simplified());
    }
    return line;
}

EntryDraft readDraftLine(std::string_view line)
{
    EntryDraft draft;
    const std::size_t end = line.find(kTexts);
    // The line says its own date order.
    data::DateOrder order = data::DateOrder::DayFirst;
    data::ParseChartLine(line.substr(0, end), draft.chart, order);
    if (end != std::string_view::npos) {
        const QStringList texts =
            toQt(line.substr(end + kTexts.size())).split(QLatin1Char('\t'), Qt::SkipEmptyParts);
        for (const QString& text : texts) {
            draft.texts[text.section(QLatin1Char('='), 0, 0)] = text.section(QLatin1Char('='), 1);
        }
    }
    return draft;
}

std::filesystem::path draftPath()
{
    return stateFolder() / "draft.ksc";
}

std::vector<std::string> keptDrafts()
{
    std::vector<std::string> lines;
    const auto bytes = core::readFile(draftPath(), kLargestFile);
    if (!bytes) {
        return lines;
    }
    std::string line;
    for (const std::uint8_t byte : bytes.value()) {
        if (byte != '\n') {
            line += char(byte);
        } else if (!line.empty()) {
            lines.push_back(std::move(line));
            line.clear();
        }
    }
    // A line without its end was never written by this program.
    return lines;
}

core::Result<void> keepDrafts(const std::vector<std::string>& lines)
{
    const std::filesystem::path path = draftPath();
    if (lines.empty()) {
        std::error_code problem;
        std::filesystem::remove(path, problem);
        std::filesystem::remove(core::backupPath(path), problem);
        return {};
    }
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return core::writeFileSafely(
        path, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

} // namespace kestrav::desktop
