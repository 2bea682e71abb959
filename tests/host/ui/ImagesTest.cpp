#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZUIExtension/KZRetinaHelper.h"

namespace {

QIcon sampleIcon(const QString& name = QStringLiteral("preference_meeting")) {
  return KZRetinaHelper::shareInstance().newPNGImageInBundle(QStringLiteral(":/sample/images"), name);
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
