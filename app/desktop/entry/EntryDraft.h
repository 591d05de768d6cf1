// What is typed into the entry form and not saved yet, kept in the state folder.
#pragma once

#include "core/Chart.h"
#include "core/Result.h"
#include "data/DateOrder.h"

#include <QMap>
#include <QString>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::desktop
{

/// A record that is being typed, and the texts of its fields, which may stand for no value yet.
struct EntryDraft
{
    core::Chart chart;
    QMap<QString, QString> texts; ///< by the object names of the fields
};

/// A chart line behind whose events the texts stand, where readers of chart lines do not look.
[[nodiscard]] std::string draftLine(const EntryDraft& draft, data::DateOrder order);
[[nodiscard]] EntryDraft readDraftLine(std::string_view line);

/// The file of the drafts, a chart line each.
[[nodiscard]] std::filesystem::path draftPath();

/// The lines that were kept, the oldest first.
[[nodiscard]] std::vector<std::string> keptDrafts();

/// Keeps exactly these; without any the file goes.
[[nodiscard]] core::Result<void> keepDrafts(const std::vector<std::string>& lines);

} // namespace kestrav::desktop
