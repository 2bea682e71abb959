#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "platform/PopUpButton.h"

namespace {

TEST(PopUpButton, ShowsATitleThatIsNoItemUntilTheUserChooses) {
  PopUpButton button({"5", "10", "15"});
  QSignalSpy chosen(&button, &PopUpButton::chosen);
  button.resize(90, 22);
  button.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&button));
  const QImage item = button.grab().toImage();
  EXPECT_EQ(button.title(), "5");

  button.setTitle("45");
  EXPECT_EQ(button.title(), "45");
  EXPECT_EQ(button.count(), 3);
  EXPECT_NE(button.grab().toImage(), item);
  button.setTitle("");
  EXPECT_EQ(button.title(), "");
  button.setTitle("10");
  EXPECT_EQ(button.title(), "10");
  EXPECT_EQ(chosen.count(), 0);

  button.setTitle("45");
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Down);
  EXPECT_EQ(button.title(), "5");
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen.first().first(), "5");
}

}  // namespace
