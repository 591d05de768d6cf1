#include "app/present/SvgWriter.h"

#include "app/present/AccessibleText.h"
#include "app/present/Glyphs.h"
#include "app/present/Markup.h"
#include "app/present/TextWidths.h"

#include <array>
#include <charconv>
#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr int kDecimals = 3;
constexpr double kArrowLength = 5.0; // line widths
constexpr double kArrowHalfWidth = 2.2;

// Asks for the text form of a character that has a coloured picture too.
constexpr wchar_t kTextForm = 0xFE0E;

class SvgText
{
public:
    explicit SvgText(std::string& out) : out_(out)
    {}

    SvgText& operator<<(std::string_view text)
    {
        out_ += text;
        return *this;
    }

    // A decimal number without zeros at its end, the same in every locale.
    SvgText& operator<<(double value)
    {
        std::array<char, 64> buffer{};
        const double shown = std::fabs(value) < 0.0005 ? 0.0 : value;
        const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), shown,
                                           std::chars_format::fixed, kDecimals);
        const char* end = written.ptr;
        while (*(end - 1) == '0') {
            --end;
        }
        end -= *(end - 1) == '.' ? 1 : 0;
        out_.append(buffer.data(), std::size_t(end - buffer.data()));
        return *this;
    }

    SvgText& operator<<(const std::vector<Spot>& spots)
    {
        for (std::size_t i = 0; i < spots.size(); ++i) {
            *this << (i == 0 ? "" : " ") << spots[i].x << "," << spots[i].y;
        }
        return *this;
    }

private:
    std::string& out_;
};

std::string withTextForms(std::wstring_view text)
{
    std::wstring marked;
    for (const wchar_t character : text) {
        marked += character;
        if (isGlyph(character)) {
            marked += kTextForm;
        }
    }
    return xmlText(marked);
}

class SvgMaker
{
public:
    SvgMaker(const DisplayList& list, const SvgOptions& options)
        : list_(list), options_(options), svg_(out_)
    {
        out_.reserve(16384);
    }

    std::string make()
    {
        addHead();
        for (const Shape& shape : list_.shapes) {
            addShape(shape);
        }
        for (const Line& line : list_.lines) {
            addLine(line);
        }
        for (const Text& text : list_.texts) {
            addText(text);
        }
        if (options_.tips) {
            addTips();
        }
        svg_ << "</svg>\n";
        return std::move(out_);
    }

private:
    [[nodiscard]] std::string colour(ColourRole role) const
    {
        return hexColour(colourOf(role, list_.scheme));
    }

    void addHead()
    {
        const double margin = options_.margin < 0.0 ? 0.01 * list_.width : options_.margin;
        const double width = list_.width + 2.0 * margin;
        const double height = list_.height + 2.0 * margin;
        const std::string_view prefix = options_.idPrefix;
        svg_ << R"(<?xml version="1.0" encoding="UTF-8"?>)"
             << "\n<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"" << width
             << "\" height=\"" << height << "\" viewBox=\"" << -margin << " " << -margin << " "
             << width << " " << height << "\" role=\"img\" aria-labelledby=\"" << prefix << "title "
             << prefix << "desc\" font-family=\"DejaVu Sans, Verdana, sans-serif\" "
             << "text-anchor=\"middle\">\n";
        svg_ << "<title id=\"" << prefix << "title\">" << xmlText(list_.title) << "</title>\n";
        svg_ << "<desc id=\"" << prefix << "desc\">" << xmlText(accessibleText(list_))
             << "</desc>\n";
        svg_ << "<rect x=\"" << -margin << "\" y=\"" << -margin << "\" width=\"" << width
             << "\" height=\"" << height << "\" fill=\"" << colour(ColourRole::Paper) << "\"/>\n";
    }

    void addShape(const Shape& shape)
    {
        svg_ << "<polygon points=\"" << shape.points << "\" fill=\""
             << (shape.fill ? colour(*shape.fill) : std::string("none")) << "\"";
        if (shape.stroke) {
            svg_ << " stroke=\"" << colour(*shape.stroke) << "\" stroke-width=\"" << shape.width
                 << "\" stroke-linejoin=\"round\"";
        }
        svg_ << "/>\n";
    }

    void addLine(const Line& line)
    {
        const std::string ink = colour(line.role);
        svg_ << "<line x1=\"" << line.from.x << "\" y1=\"" << line.from.y << "\" x2=\"" << line.to.x
             << "\" y2=\"" << line.to.y << "\" stroke=\"" << ink << "\" stroke-width=\""
             << line.width << "\"";
        if (line.dashed) {
            svg_ << " stroke-dasharray=\"" << 4.0 * line.width << " " << 3.0 * line.width << "\"";
        }
        svg_ << "/>\n";
        const double length = std::hypot(line.to.x - line.from.x, line.to.y - line.from.y);
        if (!line.arrow || length <= 0.0) {
            return;
        }
        const Spot along{(line.to.x - line.from.x) / length, (line.to.y - line.from.y) / length};
        const Spot back{line.to.x - kArrowLength * line.width * along.x,
                        line.to.y - kArrowLength * line.width * along.y};
        const double aside = kArrowHalfWidth * line.width;
        const std::vector<Spot> head = {line.to,
                                        {back.x - aside * along.y, back.y + aside * along.x},
                                        {back.x + aside * along.y, back.y - aside * along.x}};
        svg_ << "<polygon points=\"" << head << "\" fill=\"" << ink << "\"/>\n";
    }

    void addText(const Text& text)
    {
        svg_ << "<text x=\"" << text.box.centre().x << "\" y=\""
             << text.box.top + kAscent * text.size << "\" font-size=\"" << text.size << "\" fill=\""
             << colour(text.role) << "\"";
        if (text.halo) {
            svg_ << " stroke=\"" << colour(*text.halo) << "\" stroke-width=\"" << 0.25 * text.size
                 << "\" stroke-linejoin=\"round\" paint-order=\"stroke\"";
        }
        svg_ << ">" << withTextForms(text.text) << "</text>\n";
    }

    void addTips()
    {
        svg_ << "<g fill=\"none\" pointer-events=\"all\">\n";
        for (const Region& region : list_.regions) {
            if (!region.tip.empty()) {
                svg_ << "<polygon points=\"" << region.polygon << "\"><title>"
                     << xmlText(region.tip) << "</title></polygon>\n";
            }
        }
        svg_ << "</g>\n";
    }

    const DisplayList& list_;
    const SvgOptions& options_;
    std::string out_;
    SvgText svg_;
};

} // namespace

std::string writeSvg(const DisplayList& list, const SvgOptions& options)
{
    return SvgMaker(list, options).make();
}

} // namespace kestrav::present
