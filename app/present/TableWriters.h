// Tables as text in columns, comma-separated values, HTML, RTF and JSON.
#pragma once

#include "app/present/Table.h"

#include <string>

namespace kestrav::present
{

/// The title, the headings and the rows in columns as wide as their widest cell, and the notes.
/// Every line is ended.
[[nodiscard]] std::wstring tableText(const Table& table);

/// The headings and the rows in UTF-8 with line ends CR LF as RFC 4180 has them. Texts that a
/// spreadsheet would take for a formula are held back by an apostrophe; numbers are not.
[[nodiscard]] std::string tableCsv(const Table& table);

/// A `table` element with the title as its caption, in UTF-8, and the notes as paragraphs below;
/// the title and the notes alone where there are no rows but notes that say why.
[[nodiscard]] std::string tableHtml(const Table& table);

/// The rows as a table of Rich Text Format, without the head of a document. `width` is the room
/// for it in twips.
[[nodiscard]] std::string tableRtf(const Table& table, int width);

/// One object: "id", "title", "columns" with "heading" and "align", "rows" of cells with "text",
/// "sortKey" and "about" (null, or subject, index, varga and moment), and "notes". UTF-8.
[[nodiscard]] std::string tableJson(const Table& table);

} // namespace kestrav::present
