#include "support/svgpicture.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace vernacle::test {

namespace {

constexpr double kMmPerPoint = 25.4 / 72;
constexpr double kOpaqueByte = 255;

using Attributes = std::map<std::string, std::string>;

struct Tag {
    std::string name; // "/g" for an end
    bool empty = false;
    Attributes attributes;

    std::string Get(const std::string& key) const {
        const auto found = attributes.find(key);
        return found == attributes.end() ? "" : found->second;
    }
};

struct Matrix {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

    MmPoint Map(MmPoint p) const { return {a * p.x + c * p.y + e, b * p.x + d * p.y + f}; }
};

double NumberOf(std::string_view text, std::string_view* rest = nullptr) {
    const std::size_t start = text.find_first_not_of(" ,\n\r\t");
    if (start != text.npos) {
        text.remove_prefix(start);
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc()) {
        throw std::runtime_error("SVG: no number in \"" + std::string(text.substr(0, 40)) + "\"");
    }
    if (rest) {
        *rest = text.substr(static_cast<std::size_t>(end - text.data()));
    }
    return value;
}

bool IsSpace(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

// The tags of the text, whatever stands between them left out.
std::vector<Tag> TagsOf(std::string_view text) {
    std::vector<Tag> tags;
    for (std::size_t at = text.find('<'); at != text.npos; at = text.find('<', at)) {
        ++at;
        Tag tag;
        while (at < text.size() && !IsSpace(text[at]) && text[at] != '>' &&
               !(text[at] == '/' && text[at + 1] == '>')) {
            tag.name += text[at++];
        }
        while (at < text.size() && text[at] != '>') {
            if (text[at] == '/' || text[at] == '?' || IsSpace(text[at])) {
                tag.empty = text[at] == '/';
                ++at;
                continue;
            }
            const std::size_t equals = text.find_first_of("=>", at);
            if (equals == text.npos || text[equals] == '>') {
                at = equals;
                break; // a declaration
            }
            const std::size_t end = text.find(text.at(equals + 1), equals + 2);
            tag.attributes[std::string(text.substr(at, equals - at))] =
                text.substr(equals + 2, end - equals - 2);
            at = end + 1;
        }
        tags.push_back(std::move(tag));
        if (at == text.npos) {
            break;
        }
    }
    return tags;
}

// "fill:none;stroke-width:16" as attributes of their own.
void SpreadStyle(Attributes& attributes) {
    std::string_view style = attributes["style"];
    const std::string kept(style);
    style = kept;
    while (!style.empty()) {
        const std::size_t end = std::min(style.find(';'), style.size());
        const std::string_view item = style.substr(0, end);
        const std::size_t colon = item.find(':');
        if (colon != item.npos) {
            const std::size_t start = std::min(item.find_first_not_of(' '), colon);
            attributes[std::string(item.substr(start, colon - start))] = item.substr(colon + 1);
        }
        style.remove_prefix(std::min(end + 1, style.size()));
    }
}

// "#0000ff", "rgb(0%,0%,100%)" or a name; none for "none" and for what is not said.
std::optional<unsigned> ColourOf(const std::string& text) {
    if (text.empty() || text == "none") {
        return std::nullopt;
    }
    if (text == "black") {
        return 0U;
    }
    if (text[0] == '#') {
        return static_cast<unsigned>(std::stoul(text.substr(1), nullptr, 16));
    }
    std::string_view rest = std::string_view(text).substr(text.find('(') + 1);
    unsigned rgb = 0;
    for (int part = 0; part < 3; ++part) {
        const double percent = NumberOf(rest, &rest);
        rgb = rgb << 8U | static_cast<unsigned>(percent / 100 * kOpaqueByte + 0.5);
        rest.remove_prefix(std::min<std::size_t>(2, rest.size())); // "%,"
    }
    return rgb;
}

Matrix MatrixOf(const std::string& text) {
    Matrix matrix;
    if (text.starts_with("matrix(")) {
        std::string_view rest = std::string_view(text).substr(7);
        for (double* value : {&matrix.a, &matrix.b, &matrix.c, &matrix.d, &matrix.e, &matrix.f}) {
            *value = NumberOf(rest, &rest);
        }
    }
    return matrix;
}

// A path's commands M, L, C and Z, absolute as both writers have them; one outline a path, and what
// behind a Z begins the next is only its end.
void ReadPath(std::string_view path, Shape& shape) {
    const auto take = [&path] {
        MmPoint point;
        point.x = NumberOf(path, &path);
        point.y = NumberOf(path, &path);
        return point;
    };
    for (std::size_t at = path.find_first_of("MLCZmlczHVhvAaQqSsTt"); at != path.npos;
         at = path.find_first_of("MLCZmlczHVhvAaQqSsTt")) {
        const char command = path[at];
        path.remove_prefix(at + 1);
        if (command == 'Z') {
            shape.points.push_back(shape.points.front());
            return;
        }
        if (command == 'C') {
            shape.curved = true;
            take();
            take();
        } else if (command != 'M' && command != 'L') {
            throw std::runtime_error("SVG: unknown path command");
        }
        shape.points.push_back(take());
    }
}

std::vector<MmPoint> Corners(double x, double y, double width, double height) {
    return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}, {x, y}};
}

Shape OutlineOf(const Tag& tag) {
    Shape shape;
    const auto number = [&tag](const char* key) { return NumberOf(tag.Get(key)); };
    if (tag.name == "path") {
        ReadPath(tag.Get("d"), shape);
    } else if (tag.name == "polyline" || tag.name == "polygon") {
        const std::string points = tag.Get("points");
        std::string_view rest = points;
        while (rest.find_first_of("0123456789") != rest.npos) {
            MmPoint point;
            point.x = NumberOf(rest, &rest);
            point.y = NumberOf(rest, &rest);
            shape.points.push_back(point);
        }
    } else if (tag.name == "rect") {
        shape.points = Corners(number("x"), number("y"), number("width"), number("height"));
    } else if (tag.name == "circle" || tag.name == "ellipse") {
        const double rx = number(tag.name == "circle" ? "r" : "rx");
        const double ry = number(tag.name == "circle" ? "r" : "ry");
        const double x = number("cx");
        const double y = number("cy");
        shape.curved = true;
        shape.points = {{x + rx, y}, {x, y - ry}, {x - rx, y}, {x, y + ry}, {x + rx, y}};
    }
    return shape;
}

double MmOf(const std::string& length) {
    std::string_view unit;
    const double value = NumberOf(length, &unit);
    if (unit == "mm") {
        return value;
    }
    if (unit == "pt") {
        return value * kMmPerPoint;
    }
    throw std::runtime_error("SVG: a length in \"" + std::string(unit) + "\"");
}

class SvgReader {
public:
    SvgPicture Read(const std::string& text) {
        for (Tag& tag : TagsOf(text)) {
            Take(tag);
        }
        if (unitMm_ == 0) {
            throw std::runtime_error("no SVG");
        }
        return std::move(picture_);
    }

private:
    void Take(Tag& tag) {
        if (tag.name == "svg") {
            TakeSize(tag);
        } else if (tag.name == "defs" && !tag.empty) {
            ++inDefinitions_;
        } else if (tag.name == "/defs") {
            --inDefinitions_;
        } else if (tag.name == "g" && !tag.empty) {
            SpreadStyle(tag.attributes);
            Attributes all = tag.attributes;
            if (!groups_.empty()) {
                all.insert(groups_.back().begin(), groups_.back().end());
            }
            groups_.push_back(std::move(all));
        } else if (tag.name == "/g" && !groups_.empty()) {
            groups_.pop_back();
        } else if (tag.name == "use" && tag.attributes.contains("x") && inDefinitions_ == 0) {
            const MmPoint origin = {NumberOf(tag.Get("x")), NumberOf(tag.Get("y"))};
            picture_.glyphs.push_back({origin.x * unitMm_, origin.y * unitMm_});
        } else if (inDefinitions_ == 0) {
            TakeShape(tag);
        }
    }

    void TakeSize(const Tag& tag) {
        picture_.width = tag.Get("width");
        picture_.height = tag.Get("height");
        picture_.widthMm = MmOf(picture_.width);
        picture_.heightMm = MmOf(picture_.height);
        const std::string box = tag.Get("viewBox");
        std::string_view rest = box;
        NumberOf(rest, &rest);
        NumberOf(rest, &rest);
        unitMm_ = picture_.widthMm / NumberOf(rest);
    }

    void TakeShape(Tag& tag) {
        Shape shape = OutlineOf(tag);
        if (shape.points.empty()) {
            return;
        }
        SpreadStyle(tag.attributes);
        if (!groups_.empty()) {
            tag.attributes.insert(groups_.back().begin(), groups_.back().end());
        }
        const Matrix matrix = MatrixOf(tag.Get("transform"));
        const std::optional<unsigned> stroke = ColourOf(tag.Get("stroke"));
        const std::optional<unsigned> fill = ColourOf(tag.Get("fill"));
        if (!stroke && !fill) {
            return;
        }
        shape.stroked = stroke.has_value();
        shape.rgb = stroke ? *stroke : *fill;
        shape.widthMm = stroke ? NumberOf(tag.Get("stroke-width")) * matrix.a * unitMm_ : 0;
        shape.cap = tag.Get("stroke-linecap");
        shape.join = tag.Get("stroke-linejoin");
        for (MmPoint& point : shape.points) {
            point = matrix.Map(point);
            point.x *= unitMm_;
            point.y *= unitMm_;
        }
        picture_.shapes.push_back(std::move(shape));
    }

    SvgPicture picture_;
    double unitMm_ = 0;
    int inDefinitions_ = 0;
    std::vector<Attributes> groups_;
};

} // namespace

MmPoint Shape::Centre() const {
    const auto [left, right] = std::minmax_element(points.begin(), points.end(),
                                                   [](MmPoint a, MmPoint b) { return a.x < b.x; });
    const auto [top, bottom] = std::minmax_element(points.begin(), points.end(),
                                                   [](MmPoint a, MmPoint b) { return a.y < b.y; });
    return {(left->x + right->x) / 2, (top->y + bottom->y) / 2};
}

double Shape::WidthOfBox() const {
    const auto [left, right] = std::minmax_element(points.begin(), points.end(),
                                                   [](MmPoint a, MmPoint b) { return a.x < b.x; });
    return right->x - left->x;
}

double Shape::HeightOfBox() const {
    const auto [top, bottom] = std::minmax_element(points.begin(), points.end(),
                                                   [](MmPoint a, MmPoint b) { return a.y < b.y; });
    return bottom->y - top->y;
}

SvgPicture ReadSvg(const std::string& text) {
    return SvgReader().Read(text);
}

} // namespace vernacle::test
