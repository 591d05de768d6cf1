#include "app/desktop/database/OpenDatabase.h"

namespace kestrav::desktop
{

OpenDatabase::OpenDatabase(data::DateOrder order, QObject* parent) : QObject(parent), charts_(order)
{}

core::Result<void> OpenDatabase::load(const std::filesystem::path& path)
{
    core::Result<void> loaded = charts_.load(path);
    if (loaded) {
        list_ = data::listCharts(charts_);
        emit reset();
        emit modifiedChanged();
    }
    return loaded;
}

std::optional<core::Chart> OpenDatabase::record(std::size_t line)
{
    if (line >= charts_.size() || data::isShortLine(charts_.line(line))) {
        return std::nullopt;
    }
    core::Chart chart;
    charts_.read(line, chart);
    return chart;
}

} // namespace kestrav::desktop
