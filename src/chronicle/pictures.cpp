#include <algorithm>
#include <cctype>
#include <cstdio>

#include "chronicle/book.h"
#include "chronicle/signforms.h"

// Pictures as lines and shapes that any browser draws.

namespace grapplemont {

namespace {

std::string Colour(unsigned colour) {
  char text[16];
  std::snprintf(text, sizeof text, "#%06x", colour & 0xFFFFFF);
  return text;
}

/// Darker by a fifth.
unsigned Darker(unsigned colour) {
  unsigned dark = 0;
  for (int shift = 0; shift <= 16; shift += 8) dark |= ((colour >> shift & 0xFF) * 4 / 5) << shift;
  return dark;
}

std::string Number(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.4g", number);
  return text;
}

/// A shape's text with its points on the square.
std::string ShapeMarkup(std::string_view shape, const std::string& paint) {
  if (shape.starts_with('E')) {
    double x = 0, y = 0, across = 0, down = 0;
    std::sscanf(std::string(shape.substr(1)).c_str(), "%lf %lf %lf %lf", &x, &y, &across, &down);
    return "<ellipse cx=\"" + Number(x + 50) + "\" cy=\"" + Number(y) + "\" rx=\"" +
           Number(across) + "\" ry=\"" + Number(down) + "\" " + paint + "/>";
  }
  std::string path;
  bool isX = true;
  for (std::size_t at = 0; at < shape.size();) {
    const auto letter = static_cast<unsigned char>(shape[at]);
    if (letter != '-' && !std::isdigit(letter)) {
      path += shape[at++];
      continue;
    }
    const std::size_t end = std::min(shape.size(), shape.find_first_not_of("-.0123456789", at));
    const double number = std::stod(std::string(shape.substr(at, end - at)));
    path += Number(isX ? number + 50 : number);
    isX = !isX;
    at = end;
  }
  return "<path d=\"" + path + "\" " + paint + "/>";
}

std::string Letters(std::string_view text, double x, double y, double size, double room,
                    const std::string& colour) {
  std::string safe;
  for (const char letter : text)
    safe += std::isalnum(static_cast<unsigned char>(letter)) ? letter : ' ';
  const double wide = static_cast<double>(safe.size()) * size * 0.66;
  return "<text x=\"" + Number(x) + "\" y=\"" + Number(y) +
         "\" text-anchor=\"middle\" font-family=\"sans-serif\" font-weight=\"800\" font-size=\"" +
         Number(wide > room ? size * room / wide : size) + "\" fill=\"" + colour + "\">" + safe +
         "</text>";
}

std::string CrestMarkup(const Figure& figure) {
  const CrestForm form = CrestFormOf(figure.Number, figure.Level);
  const unsigned cloth = CrestCloth(figure.Number);
  return "<svg class=\"crest\" viewBox=\"0 0 100 100\" role=\"img\" aria-label=\"Crest\">" +
         ShapeMarkup(form.Outline, "fill=\"" + Colour(cloth) + "\" stroke=\"" +
                                       Colour(CrestEdge(figure.Number)) +
                                       "\" stroke-width=\"5\" stroke-linejoin=\"round\"") +
         ShapeMarkup(form.Outline, "fill=\"none\" stroke=\"" + Colour(Darker(cloth)) +
                                       "\" stroke-width=\"1\" stroke-dasharray=\"2 2\"") +
         Letters(figure.Words, 50, 58, 24, IsNarrow(form) ? 52 : 60, "#ffffff") + "</svg>";
}

std::string PlateMarkup(const Figure& figure) {
  const PlateMetal metal = PlateMetalOf(figure.Level, false);
  const std::string_view form = PlateForm(figure.Number);
  std::string out =
      "<svg class=\"plate\" viewBox=\"0 0 200 100\" role=\"img\" aria-label=\"Plate\">"
      "<rect x=\"2\" y=\"30\" width=\"196\" height=\"40\" rx=\"8\" fill=\"#2a2d33\"/>";
  const auto plate = [&](double x, double size) {
    out += "<g transform=\"translate(" + Number(x - size / 2) + " " + Number(50 - size / 2) +
           ") scale(" + Number(size / 100) + ")\">" +
           ShapeMarkup(form, "fill=\"" + Colour(metal.Plate) + "\" stroke=\"" + Colour(metal.Dark) +
                                 "\" stroke-width=\"4\"") +
           "<rect x=\"9\" y=\"40\" width=\"82\" height=\"22\" fill=\"#1e1a17\"/>" +
           Letters(figure.Words, 50, 55, 13, 78, Colour(metal.Light)) + "</g>";
  };
  if (figure.Several) {
    plate(62, 76);
    plate(138, 76);
  } else {
    plate(100, 100);
  }
  return out + "</svg>";
}

constexpr double kWide = 600, kHigh = 160, kLeft = 44, kBelow = 22;

std::string ChartMarkup(const Figure& figure) {
  const auto [least, most] = std::ranges::minmax(figure.Values);
  const bool bars = figure.Is == Figure::Kind::Bars;
  const double low = bars ? 0 : least, span = most > low ? most - low : 1;
  const auto count = static_cast<double>(figure.Values.size());
  const double room = kWide - kLeft - 8, step = room / (bars ? count : std::max(1.0, count - 1));
  const auto y = [&](double value) {
    return 8 + (kHigh - kBelow - 8) * (1 - (value - low) / span);
  };
  std::string out = "<svg viewBox=\"0 0 " + Number(kWide) + " " + Number(kHigh) +
                    "\" width=\"100%\" role=\"img\" font-family=\"sans-serif\" "
                    "font-size=\"12\" fill=\"currentColor\">";
  std::string line;
  for (std::size_t i = 0; i < figure.Values.size(); ++i) {
    const double x = kLeft + static_cast<double>(i) * step, top = y(figure.Values[i]);
    if (bars)
      out += "<rect x=\"" + Number(x) + "\" y=\"" + Number(top) + "\" width=\"" +
             Number(step * 0.8) + "\" height=\"" + Number(kHigh - kBelow - top) +
             "\" fill=\"#3c6baa\"/>";
    else
      line += (i == 0 ? "M" : "L") + Number(x) + " " + Number(top);
  }
  if (!bars)
    out += "<path d=\"" + line + "\" fill=\"none\" stroke=\"#3c6baa\" stroke-width=\"2\"/>";
  const auto label = [&](double x, double at, const char* anchor, const std::string& words) {
    out += "<text x=\"" + Number(x) + "\" y=\"" + Number(at) + "\" text-anchor=\"" + anchor +
           "\">" + words + "</text>";
  };
  label(kLeft - 6, y(most) + 8, "end", Number(most));
  label(kLeft - 6, y(low), "end", Number(low));
  if (figure.Captions.size() == 2) {
    label(kLeft, kHigh - 4, "start", figure.Captions[0]);
    label(kWide - 8, kHigh - 4, "end", figure.Captions[1]);
  }
  return out + "</svg>";
}

}  // namespace

std::string SvgOf(const Figure& figure) {
  switch (figure.Is) {
    case Figure::Kind::Crest:
      return CrestMarkup(figure);
    case Figure::Kind::Plate:
      return PlateMarkup(figure);
    default:
      return figure.Values.empty() ? std::string() : ChartMarkup(figure);
  }
}

}  // namespace grapplemont
