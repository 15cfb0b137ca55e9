#include <gtest/gtest.h>

#include <cmath>

#include "desktop/look.h"

namespace grapplemont::test {
namespace {

using desktop::Colours;

double Light(const QColor& colour) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
         0.0722 * part(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double one = Light(a), other = Light(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

TEST(TheColours, LetEveryTextBeRead) {
  for (const Colours* c :
       {&desktop::DarkColours(), &desktop::LightColours(), &desktop::ContrastColours()}) {
    const double least = c == &desktop::ContrastColours() ? 7 : 4.5;
    const std::pair<const char*, QColor> texts[] = {
        {"text", c->Text}, {"soft", c->Soft},   {"muted", c->Muted}, {"gold", c->Gold},
        {"blue", c->Blue}, {"green", c->Green}, {"amber", c->Amber}, {"red", c->Red}};
    const std::pair<const char*, QColor> grounds[] = {
        {"ground", c->Ground}, {"card", c->Card},     {"field", c->Field}, {"bar", c->Bar},
        {"chosen", c->Chosen}, {"button", c->Button}, {"hover", c->Hover}, {"now", c->Now}};
    for (const auto& [text, ink] : texts)
      for (const auto& [ground, paper] : grounds)
        // What is quiet is written soft below the mouse.
        if (ink != c->Muted || paper != c->Hover) {
          EXPECT_GE(Contrast(ink, paper), least)
              << text << " on " << ground << (c->Dark ? ", dark" : ", light");
        }
    for (const auto& [ground, paper] : grounds)
      EXPECT_GE(Contrast(c->Blue, paper), 3) << "the ring of the keyboard on " << ground;
    EXPECT_EQ(&desktop::ColoursOf(desktop::PaletteOf(*c)), c) << "the palette tells the set";
    for (const QColor& paper : {c->Card, c->Side, c->Button, c->Field})
      EXPECT_GE(Contrast(c->Faint, paper), 3) << "what is switched off";
    EXPECT_GE(Contrast(c->OnDimGold, c->DimGold), 3);
    EXPECT_GE(Contrast(c->OnGold, c->GoldFill), 4.5);
    EXPECT_GE(Contrast(c->Soft, c->Side), 4.5);
    EXPECT_GE(Contrast(c->Muted, c->Side), 4.5);
    EXPECT_GE(Contrast(QColor(Qt::white), c->RedFill), 4.5) << "the count of mails";
  }
}

TEST(TheColours, GoFromRedToGreenWithAPercentage) {
  const Colours& c = desktop::DarkColours();
  const std::pair<int, QColor> kBands[] = {{29, c.RedFill},    {30, c.AmberFill},
                                           {49, c.AmberFill},  {50, c.YellowFill},
                                           {74, c.YellowFill}, {75, c.GreenFill}};
  for (const auto& [percent, colour] : kBands)
    EXPECT_EQ(desktop::PercentColour(c, percent), colour) << percent;
}

}  // namespace
}  // namespace grapplemont::test
