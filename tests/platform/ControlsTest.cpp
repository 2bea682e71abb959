#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>

#include "platform/FrameLayout.h"
#include "platform/PopUpButton.h"
#include "platform/View.h"

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

class UnhideCounter final : public View {
 public:
  UnhideCounter() : View({0, 0, 10, 10}) {}
  int count = 0;

 protected:
  void viewDidUnhide() override { ++count; }
};

TEST(View, HearsThatItBecameVisibleAgain) {
  QWidget window;
  auto* view = new UnhideCounter;
  addSubview(&window, view, {0, 0, 10, 10});
  EXPECT_EQ(view->count, 0);
  window.show();
  EXPECT_EQ(view->count, 1);
  view->hide();
  view->show();
  EXPECT_EQ(view->count, 2);
  window.hide();
  window.show();
  EXPECT_EQ(view->count, 3);
}

}  // namespace
