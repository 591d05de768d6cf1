// The texts in the middle of a diagram.
#include "analysis/VargaNames.h"
#include "app/present/DiagramFrame.h"
#include "app/present/TextValues.h"
#include "core/DisplayFlags.h"
#include "core/FileText.h"
#include "core/TextForms.h"
#include "timing/Balance.h"

#include <algorithm>
#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr double kLineSpacing = 1.2;
constexpr double kLeastScale = 0.7;
constexpr wchar_t kEllipsis = 0x2026;

class CentreText
{
public:
    CentreText(const DiagramFrame& frame, const Box& box)
        : options_(frame.options), box_(box),
          size_(frame.options.characterGrid ? frame.font : frame.font * 0.95)
    {}

    // The lines as they fit, with the size that was chosen in `size`.
    std::vector<std::wstring> fitted(double& size) const
    {
        std::vector<std::wstring> lines;
        const double least = options_.characterGrid ? size_ : size_ * kLeastScale;
        size = size_;
        while (size >= least * 0.999) {
            lines = broken(size);
            if (double(lines.size()) <= room(size)) {
                return lines;
            }
            size *= 0.95;
        }
        size = least;
        lines = broken(size);
        const auto most = std::size_t(std::max(room(size), 1.0));
        if (lines.size() > most) {
            lines.resize(most);
            lines.back() = shortened(lines.back(), size);
        }
        return lines;
    }

    [[nodiscard]] double pitch(double size) const
    {
        return options_.characterGrid ? size : size * kLineSpacing;
    }

private:
    [[nodiscard]] double room(double size) const
    {
        return std::floor((box_.height() - size) / pitch(size) + 1e-9) + 1.0;
    }

    [[nodiscard]] bool fits(std::wstring_view text, double size) const
    {
        return measured(options_, text) * size <= box_.width();
    }

    [[nodiscard]] std::vector<std::wstring> broken(double size) const
    {
        std::vector<std::wstring> lines;
        for (const std::wstring& line : options_.centre) {
            breakLine(oneLine(line), size, lines);
        }
        return lines;
    }

    // Breaks between words, and inside those that are longer than a line.
    void breakLine(std::wstring_view rest, double size, std::vector<std::wstring>& lines) const
    {
        while (!rest.empty() && !fits(rest, size)) {
            std::size_t count = 1;
            while (count < rest.size() &&
                   (fits(rest.substr(0, count + 1), size) || columnsOf(rest[count]) == 0)) {
                ++count;
            }
            const std::size_t blank = rest.substr(0, count + 1).rfind(L' ');
            const bool between = blank != std::wstring_view::npos && blank > 0;
            lines.emplace_back(rest.substr(0, between ? blank : count));
            rest.remove_prefix(between ? blank + 1 : count);
        }
        if (!rest.empty()) {
            lines.emplace_back(rest);
        }
    }

    [[nodiscard]] std::wstring shortened(std::wstring line, double size) const
    {
        while (!line.empty() && !fits(line + kEllipsis, size)) {
            line.pop_back();
        }
        return line + kEllipsis;
    }

    const DiagramOptions& options_;
    Box box_;
    double size_;
};

std::wstring placeLine(const core::Chart& chart)
{
    const std::wstring where =
        geoText(chart.geoLatitude, L'N', L'S') + L" " + geoText(chart.geoLongitude, L'E', L'W');
    return chart.place.empty() ? where : chart.place;
}

} // namespace

void addCentre(const DiagramFrame& frame, DisplayList& list, const Box& box)
{
    const std::vector<std::wstring>& centre = frame.options.centre;
    if (centre.empty()) {
        return;
    }
    Region region;
    region.kind = RegionKind::Centre;
    region.polygon = cornersOf(box);
    for (const std::wstring& line : centre) {
        region.tip += (region.tip.empty() ? L"" : L"\n") + oneLine(line);
    }
    region.spoken = region.tip;
    std::replace(region.spoken.begin(), region.spoken.end(), L'\n', L';');
    const int index = int(list.regions.size());
    list.regions.push_back(std::move(region));

    const double marginX = 2.0 * frame.marginX();
    const double marginY = frame.marginY();
    const Box inside{box.left + marginX, box.top + marginY, box.right - marginX,
                     box.bottom - marginY};
    const CentreText text(frame, inside);
    double size = 0.0;
    const std::vector<std::wstring> lines = text.fitted(size);
    const double pitch = text.pitch(size);
    const double height = (double(lines.size()) - 1.0) * pitch + size;
    double top = inside.centre().y - height / 2.0;
    if (frame.options.characterGrid) {
        top = 2.0 * std::floor(top / 2.0) + 1.0;
    }
    for (const std::wstring& line : lines) {
        const double width = measured(frame.options, line) * size;
        double left = inside.centre().x - width / 2.0;
        if (frame.options.characterGrid) {
            left = std::floor(left) + 0.5;
        }
        list.texts.push_back(
            frame.text(line, {left, top, left + width, top + size}, ColourRole::Text, index));
        top += pitch;
    }
}

std::vector<std::wstring> centreLines(const DiagramSubject& subject, bool english)
{
    const core::DisplayFlagsOverride names(english ? core::kEnglishNames : 0);
    const core::Chart& chart = subject.chart;
    std::vector<std::wstring> lines = {std::wstring(analysis::vargaName(subject.varga)) + L" (D-" +
                                       std::to_wstring(analysis::vargaDivision(subject.varga)) +
                                       L")"};
    if (!chart.name.empty()) {
        lines.push_back(chart.name);
    }
    if (chart.hasMoment) {
        lines.push_back(oneLine(
            dateText(chart.time) + L" " +
            core::FormatClock(chart.time.localTime, subject.settings.twelveHourClock, false)));
        // Without a place no house system was applied.
        if (chart.houseSystem >= 0 || !chart.place.empty()) {
            lines.push_back(placeLine(chart));
        }
        const auto row = std::size_t(subject.settings.ayanamsaRow);
        lines.push_back(core::fromFileBytes(subject.settings.ayanamsaTable[row].nameText()) + L" " +
                        core::FormatDMS(chart.ayanamsa, 1));
    }
    if (const std::optional<timing::DashaBalance> balance = timing::balanceAtBirth(chart)) {
        lines.push_back(timing::balanceLine(*balance));
    }
    return lines;
}

} // namespace kestrav::present
