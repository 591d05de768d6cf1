#include "app/desktop/pages/SavedPages.h"

#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"
#include "core/Files.h"
#include "core/Locations.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <span>
#include <system_error>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::uintmax_t kLargestFile = 1U << 16U;
constexpr int kMostPages = 100;

core::Result<present::PageLayout> readPageFile(const std::filesystem::path& path)
{
    const auto bytes = core::readFile(path, kLargestFile);
    if (!bytes) {
        return bytes.error();
    }
    return present::readPageLayout(std::string(bytes.value().begin(), bytes.value().end()));
}

} // namespace

std::filesystem::path savedPagesFolder()
{
    return core::configFolder() / "pages";
}

std::string pageFileName(const std::string& name)
{
    std::string file;
    for (const char character : name) {
        const auto byte = static_cast<unsigned char>(character);
        const bool kept = byte >= 0x80 || std::isalnum(byte) != 0;
        file += kept ? static_cast<char>(byte < 0x80 ? std::tolower(byte) : byte) : '-';
    }
    return file + ".txt";
}

std::vector<present::PageLayout> savedPages(std::vector<std::string>& problems)
{
    std::vector<present::PageLayout> pages;
    std::error_code problem;
    for (std::filesystem::directory_iterator entry(savedPagesFolder(), problem), end;
         !problem && entry != end; entry.increment(problem)) {
        if (entry->path().extension() != ".txt") {
            continue;
        }
        auto layout = readPageFile(entry->path());
        if (layout) {
            pages.push_back(std::move(layout.value()));
        } else {
            problems.push_back(entry->path().filename().string() + ": " + layout.error().text());
        }
    }
    std::sort(pages.begin(), pages.end(),
              [](const auto& one, const auto& other) { return one.name < other.name; });
    return pages;
}

core::Result<void> savePage(const present::PageLayout& layout)
{
    std::error_code problem;
    std::filesystem::create_directories(savedPagesFolder(), problem);
    const std::string text = present::writePageLayout(layout);
    return core::writeFileSafely(
        savedPagesFolder() / pageFileName(layout.name),
        std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

void keepPages(const PageStrip& pages)
{
    QSettings& state = stateOfWindow();
    state.remove("pages");
    state.beginWriteArray("pages");
    for (int i = 0; i < pages.count(); ++i) {
        state.setArrayIndex(i);
        state.setValue("layout", toQt(present::writePageLayout(pages.layout(i))));
        state.setValue("sizes", pages.sizes(i));
    }
    state.endArray();
    state.setValue("window/page", pages.current());
}

std::vector<std::string> restorePages(PageStrip& pages)
{
    std::vector<std::string> problems;
    QSettings& state = stateOfWindow();
    std::vector<present::PageLayout> layouts;
    std::vector<QByteArray> sizes;
    int current = state.value("window/page").toInt();
    const int count = std::min(state.beginReadArray("pages"), kMostPages);
    for (int i = 0; i < count; ++i) {
        state.setArrayIndex(i);
        auto layout = present::readPageLayout(toUtf8(state.value("layout").toString()));
        if (layout) {
            layouts.push_back(std::move(layout.value()));
            sizes.push_back(state.value("sizes").toByteArray());
        } else {
            problems.push_back("a page of the last run: " + layout.error().text());
            current -= int(layouts.size()) < current ? 1 : 0;
        }
    }
    state.endArray();
    if (layouts.empty()) {
        return problems;
    }
    pages.setPages(std::move(layouts));
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        pages.setSizes(int(i), sizes[i]);
    }
    pages.show(current);
    return problems;
}

} // namespace kestrav::desktop
