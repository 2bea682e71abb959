#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QTest>

#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZUIExtension/KZRetinaHelper.h"

namespace {

// Draws an icon as a control would.
class IconView final : public QWidget {
 public:
  IconView(const QIcon& icon, QIcon::State state) : m_icon(icon), m_state(state) { resize(24, 24); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    m_icon.paint(&painter, rect(), Qt::AlignCenter, QIcon::Normal, m_state);
  }

 private:
  QIcon m_icon;
  QIcon::State m_state;
};

QIcon sampleIcon(const QString& name = QStringLiteral("preference_meeting")) {
  return KZRetinaHelper::shareInstance().newPNGImageInBundle(QStringLiteral(":/sample/images"), name);
}

QPalette plainPalette(const QColor& back, const QColor& fore) {
  QPalette palette(fore, back, back, back, back, fore, fore, back, back);
  palette.setColor(QPalette::Highlight, QColor(200, 0, 0));
  return palette;
}

// The pixel of the icon's frame that is drawn in every picture.
QColor inkOf(const QImage& picture) {
  return picture.pixelColor(12, 9);
}

TEST(KZRetinaHelperTest, AnIconFollowsThePaletteOfWhereItIsDrawn) {
  const struct {
    const char* name;
    QPalette palette;
    QIcon::State state;
    bool (*isRight)(const QColor&);
  } cases[] = {
      {"light", plainPalette(QColor(245, 245, 247), QColor(29, 29, 31)), QIcon::Off,
       [](const QColor& ink) { return ink.lightness() < 130; }},
      {"dark", plainPalette(QColor(40, 40, 44), QColor(240, 240, 240)), QIcon::Off,
       [](const QColor& ink) { return ink.lightness() > 130; }},
      {"chosen", plainPalette(QColor(40, 40, 44), QColor(240, 240, 240)), QIcon::On,
       [](const QColor& ink) { return ink.red() > 100 && ink.green() < 40; }},
      {"high contrast light", plainPalette(Qt::white, Qt::black), QIcon::Off,
       [](const QColor& ink) { return ink.lightness() < 70 && ink.saturation() == 0; }},
      {"high contrast dark", plainPalette(Qt::black, Qt::white), QIcon::Off,
       [](const QColor& ink) { return ink.lightness() > 185 && ink.saturation() == 0; }},
  };
  for (const auto& one : cases) {
    IconView view(sampleIcon(), one.state);
    view.setPalette(one.palette);
    const QColor ink = inkOf(view.grab().toImage());
    EXPECT_TRUE(one.isRight(ink)) << one.name << ' ' << ink.name().toStdString();
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    const QColor onScreen = inkOf(view.screen()->grabWindow(view.winId()).toImage());
    EXPECT_TRUE(one.isRight(onScreen)) << one.name << " on the screen " << onScreen.name().toStdString();
  }
}

TEST(KZRetinaHelperTest, ReadsTheDetailedPictureForADenseScreen) {
  const QPixmap dense = sampleIcon().pixmap(QSize(24, 24), 2.0);
  EXPECT_EQ(dense.size(), QSize(48, 48));
  EXPECT_EQ(dense.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
            QImage(":/sample/images/preference_meeting@2x.png")
                .convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

TEST(KZRetinaHelperTest, WhatIsNotThereIsANullIcon) {
  EXPECT_TRUE(sampleIcon("no_such_image").isNull());
  EXPECT_TRUE(sampleIcon("").isNull());
  EXPECT_TRUE(sampleIcon("../images/x").isNull());
}

TEST(MarigoldWarningViewTest, TakesItsParentsWidthAndTheHeightOfItsText) {
  QWidget pane;
  pane.resize(500, 200);
  auto* notice = new MarigoldWarningView;
  notice->setWarningText("Your setting changes will take effect after you restart the program. <b>Now</b>");
  notice->setParent(&pane);
  pane.show();
  EXPECT_EQ(notice->geometry().topLeft(), QPoint(0, 0));
  EXPECT_EQ(notice->width(), 500);
  const int height = notice->height();
  pane.resize(200, 200);
  QApplication::processEvents();
  EXPECT_EQ(notice->width(), 200);
  EXPECT_GT(notice->height(), height);
  EXPECT_EQ(notice->height(), notice->heightForWidth(200));
  const auto* text = notice->findChild<QLabel*>();
  EXPECT_LE(text->heightForWidth(text->width()), text->height());
  EXPECT_EQ(text->textFormat(), Qt::PlainText);
}

}  // namespace
