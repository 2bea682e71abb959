#include <gtest/gtest.h>

#include "platform/Look.h"
#include "tests/platform/look/HostPalettes.h"

namespace {

// What no pane shows at rest.
TEST(LookScheme, TextsAreLegibleInEveryScheme) {
  for (const LookScheme scheme : allSchemes) {
    const QPalette& palette = lookPalette(scheme);
    const LookColors& colors = lookColorsFor(scheme);
    const QColor window = palette.color(QPalette::Window);
    const struct {
      const char* name;
      QColor text;
      QColor back;
    } pairs[] = {
        {"selection", palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)},
        {"notice", palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)},
        {"menu", palette.color(QPalette::Text), colors.menu},
    };
    for (const auto& pair : pairs)
      EXPECT_GE(contrast(pair.text, pair.back), 4.5) << schemeName(scheme) << ' ' << pair.name;
    // Colours that show a state and are not text.
    EXPECT_GE(contrast(palette.color(QPalette::Highlight), window), 3.0) << schemeName(scheme);
    EXPECT_GE(contrast(colors.glyph, palette.color(QPalette::Highlight)), 3.0) << schemeName(scheme);
  }
}

TEST(LookScheme, IsChosenFromThePalette) {
  for (const LookScheme scheme : allSchemes) {
    EXPECT_EQ(lookSchemeFor(hostPalette(scheme)), scheme) << schemeName(scheme);
    EXPECT_EQ(lookSchemeFor(lookPalette(scheme)), scheme) << "the look's own palette, " << schemeName(scheme);
  }
  // A plain white window with black text is high contrast only when fields and buttons are as stark.
  for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button, QPalette::Window}) {
    QPalette palette = hostPalette(LookScheme::HighContrastLight);
    palette.setColor(role, QColor(0xf0, 0xf0, 0xf0));
    EXPECT_EQ(lookSchemeFor(palette), LookScheme::Light) << role;
  }
  QPalette mixed = hostPalette(LookScheme::HighContrastDark);
  mixed.setColor(QPalette::Base, Qt::white);
  mixed.setColor(QPalette::Text, Qt::black);
  EXPECT_EQ(lookSchemeFor(mixed), LookScheme::Dark);
}

}  // namespace
