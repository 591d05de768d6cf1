#include "app/present/Document.h"
#include "app/present/Markup.h"
#include "app/present/TableWriters.h"

#include <algorithm>
#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr double kTwipsPerMillimetre = 1440.0 / 25.4;
constexpr int kMarginTwips = 850; // 15 mm

class RtfWriter
{
public:
    RtfWriter(std::string& rtf, int width) : rtf_(&rtf), width_(width)
    {}

    void operator()(const Heading& heading)
    {
        *rtf_ += "\\pard\\keepn\\sb240\\sa80" + rtfSize(26) + "{\\b " + rtfText(heading.text) +
                 "}\\par\n";
    }

    void operator()(const Paragraph& paragraph)
    {
        addLines(paragraph.text, paragraph.fixedPitch);
    }

    void operator()(const Table& table)
    {
        *rtf_ += tableRtf(table, width_) + "\\pard\\par\n";
    }

    void operator()(const DrawingRow& row)
    {
        for (const Drawing& drawing : row.drawings) {
            addLines(drawing.text, true);
        }
    }

    void operator()(const PageBreak& /*pageBreak*/)
    {
        *rtf_ += "\\page\n";
    }

private:
    void addLines(std::wstring text, bool fixedPitch)
    {
        text.erase(text.find_last_not_of(L'\n') + 1);
        if (fixedPitch) {
            // Some word processors widen plain blanks, which tears columns and drawings apart.
            std::replace(text.begin(), text.end(), L' ', L'\u00A0');
        }
        *rtf_ += "\\pard\\sa120\\ql" +
                 (fixedPitch ? "\\keep\\f1" + rtfSize(14) : "\\f0" + rtfSize(18)) + "{" +
                 rtfText(text) + "}\\f0\\par\n";
    }

    std::string* rtf_;
    int width_;
};

int twips(double millimetres)
{
    return int(std::lround(millimetres * kTwipsPerMillimetre));
}

} // namespace

std::string documentRtf(const Document& document, double widthMm, double heightMm)
{
    const int width = twips(widthMm);
    const std::string margin = std::to_string(kMarginTwips);
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1"
                      "{\\fonttbl{\\f0\\fswiss DejaVu Sans;}{\\f1\\fmodern DejaVu Sans Mono;}}\n"
                      "{\\info{\\title " +
                      rtfText(document.title) + "}}\n\\paperw" + std::to_string(width) +
                      "\\paperh" + std::to_string(twips(heightMm)) + "\\margl" + margin +
                      "\\margr" + margin + "\\margt" + margin + "\\margb" + margin + "\n";
    rtf += "\\pard\\sa80" + rtfSize(32) + "{\\b " + rtfText(document.title) + "}\\par\n";
    for (const std::wstring& line : document.head) {
        rtf += "\\pard" + rtfSize(18) + "{" + rtfText(line) + "}\\par\n";
    }
    RtfWriter writer(rtf, width - 2 * kMarginTwips);
    for (const Block& block : document.blocks) {
        std::visit(writer, block);
    }
    return rtf + "}\n";
}

} // namespace kestrav::present
