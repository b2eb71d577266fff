#include "FamilyFiles/Drawing/DrawingSvg.h"

#include "FamilyFiles/Drawing/DrawingStyle.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace familyfiles {

namespace {

/// Pixels of a side when nothing else is said.
constexpr int kPixels = 512;

/// Parts of the side that are told apart.
constexpr double kResolution = 1e5;

/// Writes lengths with as many decimals as the drawing's size needs.
class SvgWriter
{
public:
    explicit SvgWriter(const DrawingSquare& square)
        : m_square(square),
          m_decimals(std::clamp(static_cast<int>(std::ceil(std::log10(kResolution / square.side))), 0, 5))
    {
    }

    std::string Document(const Drawing& drawing)
    {
        const std::string pixels = std::to_string(kPixels);
        m_text = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + pixels + "\" height=\"" + pixels +
                 "\" viewBox=\"0 0 ";
        AddLength(m_square.side);
        m_text += ' ';
        AddLength(m_square.side);
        m_text += "\" fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
        for (const LineStyle style : kLineStyles) {
            AddStyle(drawing, style);
        }
        m_text += "</svg>\n";
        return std::move(m_text);
    }

private:
    void AddStyle(const Drawing& drawing, LineStyle style)
    {
        const bool hasLines = std::any_of(drawing.paths.begin(), drawing.paths.end(),
            [style](const DrawingPath& path) { return path.style == style; });
        if (!hasLines) {
            return;
        }
        const StyleLook& look = LookOf(style);
        m_text += std::string("<path class=\"") + look.name + "\" stroke=\"" + look.colour +
                  "\" vector-effect=\"non-scaling-stroke\" stroke-width=\"";
        AddPixels(look.width * kPixels);
        AddDashes(look);
        m_text += "\" d=\"";
        for (const DrawingPath& path : drawing.paths) {
            if (path.style == style) {
                AddPath(path.points);
            }
        }
        m_text += "\"/>\n";
    }

    void AddDashes(const StyleLook& look)
    {
        if (look.dashes[0] == 0) {
            return;
        }
        m_text += "\" stroke-linecap=\"butt\" stroke-dasharray=\"";
        for (const double dash : look.dashes) {
            AddPixels(dash * look.width * kPixels);
            m_text += ' ';
        }
        m_text.pop_back();
    }

    void AddPath(const std::vector<Point2>& points)
    {
        const bool isClosed =
            points.size() > 2 && points.front().u == points.back().u && points.front().v == points.back().v;
        const std::size_t count = isClosed ? points.size() - 1 : points.size();
        for (std::size_t i = 0; i < count; ++i) {
            m_text += i == 0 ? 'M' : 'L';
            AddLength(points[i].u - m_square.low.u);
            m_text += ' ';
            AddLength(m_square.low.v + m_square.side - points[i].v);
        }
        if (isClosed) {
            m_text += 'Z';
        }
    }

    void AddLength(double length) { AddNumber(length, m_decimals); }
    void AddPixels(double pixels) { AddNumber(pixels, 2); }

    /// Trailing zeros are left out; so is the sign of zero.
    void AddNumber(double number, int decimals)
    {
        const double scale = std::pow(10, decimals);
        long long rounded = std::llround(number * scale);
        if (rounded < 0) {
            m_text += '-';
            rounded = -rounded;
        }
        const auto whole = static_cast<long long>(scale);
        m_text += std::to_string(rounded / whole);
        std::string rest = std::to_string(rounded % whole);
        rest.insert(
            0, static_cast<std::size_t>(decimals) - std::min(rest.size(), static_cast<std::size_t>(decimals)), '0');
        while (!rest.empty() && rest.back() == '0') {
            rest.pop_back();
        }
        if (!rest.empty() && decimals > 0) {
            m_text += '.' + rest;
        }
    }

    DrawingSquare m_square;
    int m_decimals;
    std::string m_text;
};

} // namespace

std::string DrawingSvg(const Drawing& drawing)
{
    return SvgWriter(SquareOf(drawing)).Document(drawing);
}

} // namespace familyfiles
