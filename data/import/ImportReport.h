// What an import took from a file, what it refused and why.
#pragma once

#include "core/Chart.h"
#include "core/Result.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace kestrav::data
{

inline constexpr std::size_t kLargestImport = std::size_t{16} << 20; ///< bytes
inline constexpr std::size_t kMostImportedCharts = 20'000;           ///< per file

/// One record of a file that was not taken, or was taken with a reservation. Texts are UTF-8.
struct ImportNote
{
    long record = 0; ///< number of the line or chart in the file, from 1; 0 for the whole file
    std::string text;
};

struct ImportReport
{
    std::filesystem::path file;
    std::string format; ///< in words; empty when the file was not recognised
    std::vector<core::Chart> charts;
    std::vector<ImportNote> refused;
    std::vector<ImportNote> remarks; ///< on charts that were taken

    void refuse(long record, std::string why)
    {
        refused.push_back({record, std::move(why)});
    }
    /// Takes the chart, or notes why it is none. At most kMostImportedCharts are taken.
    void take(long record, core::Result<core::Chart> chart);
};

} // namespace kestrav::data
