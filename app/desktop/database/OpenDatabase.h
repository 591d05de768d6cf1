// The database that is open in the window.
#pragma once

#include "data/ChartDatabase.h"
#include "data/Chooser.h"

#include <QObject>

#include <cstddef>
#include <filesystem>
#include <optional>

namespace kestrav::desktop
{

class OpenDatabase : public QObject
{
    Q_OBJECT

public:
    explicit OpenDatabase(data::DateOrder order, QObject* parent = nullptr);

    /// Opens a file; the one before stays open when that fails.
    [[nodiscard]] core::Result<void> load(const std::filesystem::path& path);

    [[nodiscard]] data::ChartDatabase& charts()
    {
        return charts_;
    }
    [[nodiscard]] const std::filesystem::path& path() const
    {
        return charts_.path();
    }
    [[nodiscard]] bool modified() const
    {
        return charts_.modified();
    }
    /// What the chart list shows of every line.
    [[nodiscard]] const data::ChooserList& list() const
    {
        return list_;
    }
    /// The chart of a line; nothing where the line is too short to be one or does not exist.
    [[nodiscard]] std::optional<core::Chart> record(std::size_t line);

signals:
    /// Everything may have changed: another file, or many lines.
    void reset();
    void modifiedChanged();

private:
    data::ChartDatabase charts_;
    data::ChooserList list_;
};

} // namespace kestrav::desktop
