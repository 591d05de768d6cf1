// A chart database: a text file that holds one chart per line.
#pragma once

#include "core/Chart.h"
#include "core/Files.h"
#include "core/Result.h"
#include "data/DateOrder.h"
#include "data/FileStamp.h"
#include "data/LineList.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kestrav::data
{

/// The lines of a database in memory, and the file that they belong to. Lines are numbered from 0
/// here and from 1 in messages. A line that was not edited goes back byte for byte.
class ChartDatabase
{
public:
    explicit ChartDatabase(DateOrder order = DateOrder::DayFirst) : order_(order)
    {}

    /// Replaces everything by the file's lines; nothing changes when it fails.
    [[nodiscard]] core::Result<void> load(const std::filesystem::path& path);

    /// Begins an empty database of that name, which is written when it is saved.
    void begin(const std::filesystem::path& path);

    /// Writes the lines to the file, which keeps its previous contents under its backup name.
    /// Whether somebody else changed the file is not looked at here.
    [[nodiscard]] core::Result<void>
    save(const std::filesystem::path& path,
         const std::function<void(core::WriteStep)>& afterStep = {});

    /// Notes that the lines were written to the file by other means, which had the stamp then.
    /// `modified` when lines were changed after that.
    void setSaved(const std::filesystem::path& path, const FileStamp& stamp, bool modified);

    [[nodiscard]] const std::filesystem::path& path() const
    {
        return path_;
    }
    /// Whether there is something that was not saved.
    [[nodiscard]] bool modified() const
    {
        return modified_;
    }
    /// Whether the file is not any more what was loaded or saved last.
    [[nodiscard]] bool changedOnDisk() const;

    /// The date order in force. Reading a line without an order of its own can flip it.
    [[nodiscard]] DateOrder order() const
    {
        return order_;
    }
    void setOrder(DateOrder order)
    {
        order_ = order;
    }

    [[nodiscard]] std::size_t size() const
    {
        return lines_.size();
    }
    [[nodiscard]] std::string_view line(std::size_t index) const
    {
        return lines_.line(index);
    }
    /// Parses a line into the record, which is returned.
    core::Chart& read(std::size_t index, core::Chart& chart, bool namesOnly = false);

    /// The first line whose chart has exactly this name. Damaged lines have none.
    [[nodiscard]] std::optional<std::size_t> find(std::wstring_view name) const;

    /// Appends a chart and returns its index.
    std::size_t add(const core::Chart& chart);
    std::size_t addLine(std::string line);
    /// Puts a line before that of the index, which may be size().
    void insertLine(std::size_t index, std::string line);
    void replace(std::size_t index, const core::Chart& chart);
    void replaceLine(std::size_t index, std::string line);
    void remove(std::size_t index);
    /// Changes the tag and no other byte of a line. A line without fields stays as it is.
    void setTag(std::size_t index, wchar_t tag);

    /// The whole file as it would be saved now.
    [[nodiscard]] std::vector<std::uint8_t> bytes() const
    {
        return lines_.bytes();
    }

private:
    std::filesystem::path path_;
    LineList lines_;
    FileStamp stamp_;
    DateOrder order_;
    bool modified_ = false;
};

/// Whether a line is too short to be a chart line.
[[nodiscard]] bool isShortLine(std::string_view line);

/// The name of a line's chart, as the parser gives it.
[[nodiscard]] std::wstring nameOfLine(std::string_view line);

/// The tag of a line's chart.
[[nodiscard]] wchar_t tagOfLine(std::string_view line);

} // namespace kestrav::data
