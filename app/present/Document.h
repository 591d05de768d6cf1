// A report before it is written: headings, paragraphs, tables and drawings in their order.
#pragma once

#include "app/present/DisplayList.h"
#include "app/present/Table.h"

#include <string>
#include <variant>
#include <vector>

namespace kestrav::present
{

struct Heading
{
    std::wstring text;
};

/// A text whose lines end with a line feed.
struct Paragraph
{
    std::wstring text;
    bool fixedPitch = false; ///< columns of the text line up by counting characters
};

/// A drawing, and what stands in its place where only text can be written.
struct Drawing
{
    DisplayList list;
    std::wstring text; ///< lines of a drawing in characters
};

/// Drawings that stand side by side where the page is wide enough.
struct DrawingRow
{
    std::vector<Drawing> drawings;
};

struct PageBreak
{};

using Block = std::variant<Heading, Paragraph, Table, DrawingRow, PageBreak>;

struct Document
{
    std::wstring title;
    std::vector<std::wstring> head; ///< lines below the title: whose chart, made how
    std::vector<Block> blocks;
};

/// Plain text. A page break is a form feed before the next line.
[[nodiscard]] std::wstring documentText(const Document& document);

/// A page of HTML in UTF-8 with its style and its drawings inside.
[[nodiscard]] std::string documentHtml(const Document& document);

/// Rich Text Format in ASCII for paper of `widthMm` x `heightMm` millimetres. Drawings stand as
/// their text.
[[nodiscard]] std::string documentRtf(const Document& document, double widthMm = 210.0,
                                      double heightMm = 297.0);

/// "title", "head" and "blocks", each with "kind" and what it holds, in UTF-8. Drawings stand as
/// their title and description.
[[nodiscard]] std::string documentJson(const Document& document);

/// The tables of the document alone, each under a line with its title, empty lines between them.
[[nodiscard]] std::string documentCsv(const Document& document);

} // namespace kestrav::present
