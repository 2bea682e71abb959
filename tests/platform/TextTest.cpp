#include "platform/Text.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <cmath>

namespace {

TEST(Text, MeasuresInTheFontThatDraws) {
  const struct {
    const char* text;
    FontRole role;
    double size;
  } rows[] = {{"Full name:", FontRole::Label, 13},
              {"Account", FontRole::BoldSystem, 16},
              {"\xE4\xBC\x9A\xE8\xAE\xAE", FontRole::System, 13},
              {"\xF0\x9F\x99\x82 a\xCC\x81", FontRole::System, 13}};
  for (const auto& row : rows) {
    const QString text = QString::fromUtf8(row.text);
    const Size size = sizeOfText(text, row.role, row.size);
    EXPECT_DOUBLE_EQ(size.width, QFontMetricsF(fontFor(row.role, row.size)).horizontalAdvance(text))
        << row.text;
    EXPECT_EQ(size.height, std::ceil(size.height));
    EXPECT_GE(size.height, row.size);
  }
  EXPECT_EQ(sizeOfText(QString(), FontRole::Label, 13).width, 0);
  EXPECT_GT(sizeOfText("Account", FontRole::BoldSystem, 13).width,
            sizeOfText("Account", FontRole::Label, 13).width);
}

}  // namespace
