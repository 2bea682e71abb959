#include "platform/FrameLayout.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "platform/KeyView.h"
#include "platform/View.h"
#include "platform/WindowController.h"

namespace {

QWidget* childIn(QWidget* parent, const Frame& frame, VerticalAnchor anchor = VerticalAnchor::Bottom) {
  auto* child = new QWidget;
  addSubview(parent, child, frame, anchor);
  return child;
}

TEST(FrameLayout, KeepsExactFramesAndRoundsEdges) {
  View parent({0, 0, 200, 100});
  const struct {
    Frame frame;
    QRect geometry;
  } rows[] = {
      {{10, 20, 30, 16}, {10, 64, 30, 16}},
      {{10.4, 20.3, 30.2, 16.5}, {10, 63, 31, 17}},
      {{0.5, 0.5, 0.4, 0.4}, {1, 99, 0, 1}},
      {{-5, -7, 10, 10}, {-5, 97, 10, 10}},
  };
  for (const auto& row : rows) {
    const QWidget* child = childIn(&parent, row.frame);
    EXPECT_EQ(frameOf(child), row.frame);
    EXPECT_EQ(child->geometry(), row.geometry) << row.frame.x;
  }
}

TEST(FrameLayout, AnchorsHoldWhenTheParentChangesItsHeight) {
  QWidget parent;
  parent.resize(100, 100);
  const QWidget* low = childIn(&parent, {0, 10.5, 10, 10});
  const QWidget* high = childIn(&parent, {0, 80.25, 10, 10}, VerticalAnchor::Top);
  parent.show();
  for (const int height : {160, 30, 100}) {
    parent.resize(100, height);
    EXPECT_EQ(frameOf(low), (Frame{0, 10.5, 10, 10})) << height;
    EXPECT_EQ(low->y(), qRound(height - 20.5)) << height;
    EXPECT_EQ(frameOf(high), (Frame{0, height - 19.75, 10, 10})) << height;
    EXPECT_EQ(high->y(), 10) << height;
  }
}

TEST(FrameLayout, AHiddenParentPlacesItsViewsToo) {
  View parent({0, 0, 100, 100});
  const QWidget* child = childIn(&parent, {0, 0, 10, 10});
  setFrame(&parent, {0, 0, 100, 140.5});
  EXPECT_EQ(child->y(), 131);
}

TEST(FrameLayout, RemovedViewsLeaveTheListAndComeBackInFront) {
  View parent({0, 0, 100, 100});
  QWidget* first = childIn(&parent, {0, 0, 10, 10});
  QWidget* second = childIn(&parent, {0, 0, 10, 10});
  removeFromSuperview(first);
  EXPECT_EQ(subviewsOf(&parent), QList<QWidget*>{second});
  EXPECT_TRUE(first->isHidden());
  EXPECT_EQ(first->parentWidget(), &parent);

  first->setVisible(true);
  addSubview(&parent, first, {5, 5, 10, 10});
  EXPECT_EQ(subviewsOf(&parent), (QList<QWidget*>{second, first}));
  EXPECT_EQ(parent.childAt(7, 90), first);

  delete second;
  EXPECT_EQ(subviewsOf(&parent), QList<QWidget*>{first});
  QWidget elsewhere;
  first->setParent(&elsewhere);
  EXPECT_TRUE(subviewsOf(&parent).isEmpty());
}

TEST(FrameLayout, ExplicitlyHiddenViewsStayHidden) {
  QWidget parent;
  parent.resize(100, 100);
  parent.show();
  auto* hidden = new QWidget;
  hidden->hide();
  addSubview(&parent, hidden, {0, 0, 10, 10});
  EXPECT_FALSE(hidden->isVisible());
  EXPECT_TRUE(childIn(&parent, {0, 0, 10, 10})->isVisible());
}

TEST(FrameLayout, AWindowKeepsItsUpperLeftCornerThroughFractionalSizes) {
  Window window;
  window.resize(300, 200);
  window.show();
  window.move(40, 60);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const QPoint corner = window.geometry().topLeft();
  for (const double height : {150.4, 120.6, 310.5, 150.0}) {
    const Frame before = frameOf(&window);
    const Frame after{before.x, before.maxY() - height, 280.3, height};
    setFrame(&window, after);
    EXPECT_EQ(window.geometry().topLeft(), corner) << height;
    EXPECT_EQ(frameOf(&window).size(), after.size());
    EXPECT_DOUBLE_EQ(frameOf(&window).y, after.y);
  }
}

TEST(FrameLayout, TabFollowsKeyViewsWhileTheyCanTakeIt) {
  QWidget parent;
  QLineEdit* fields[3];
  for (QLineEdit*& field : fields) {
    field = new QLineEdit;
    addSubview(&parent, field, {0, 0, 10, 10});
  }
  auto [first, second, third] = fields;
  setNextKeyView(first, third);
  setNextKeyView(first, third);
  EXPECT_EQ(nextKeyViewOf(first), third);
  EXPECT_EQ(nextKeyViewOf(third), nullptr);
  parent.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&parent));
  const auto focusedAfterTabIn = [&](QWidget* from, Qt::KeyboardModifiers modifiers = {}) {
    from->setFocus();
    QTest::keyClick(from, modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
    return QApplication::focusWidget();
  };
  EXPECT_EQ(focusedAfterTabIn(first), third);
  EXPECT_EQ(focusedAfterTabIn(second, Qt::ShiftModifier), first);
  third->setEnabled(false);
  EXPECT_EQ(focusedAfterTabIn(first), second);
  delete third;
  EXPECT_EQ(nextKeyViewOf(first), nullptr);
  EXPECT_EQ(focusedAfterTabIn(first), second);
}

}  // namespace
