#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "host/KZUIExtension/KZWarningWindowController.h"

namespace {

QWidgetList visibleWindows() {
  QWidgetList windows;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible()) windows.append(window);
  return windows;
}

QWidget* warningWindow() {
  const QWidgetList windows = visibleWindows();
  EXPECT_EQ(windows.size(), 1);
  return windows.value(0);
}

TEST(KZWarningWindowControllerTest, OneWindowTakesEveryTextAndIsClosedByKeyOrButton) {
  KZWarningWindowController warning(nullptr);
  warning.showWithTitle("First", "one");
  QWidget* window = warningWindow();
  const auto closings = {
      +[](QWidget* shown) { QTest::keyClick(shown, Qt::Key_Escape); },
      +[](QWidget* shown) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : shown, Qt::Key_Return);
      },
      +[](QWidget* shown) { QTest::mouseClick(shown->findChild<QPushButton*>(), Qt::LeftButton); }};
  for (const auto close : closings) {
    warning.showWithTitle("Second", "two");
    ASSERT_EQ(warningWindow(), window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    EXPECT_EQ(window->windowTitle(), "Second");
    EXPECT_EQ(window->findChild<QPlainTextEdit*>()->toPlainText(), "two");
    EXPECT_FALSE(window->isModal());
    close(window);
    EXPECT_FALSE(window->isVisible());
  }
}

TEST(KZWarningWindowControllerTest, ShowsTextsLiterallyWhateverTheyAre) {
  KZWarningWindowController warning(nullptr);
  const QString markup = "<b>bold</b> & <img src=x>";
  warning.showWithTitle(markup, markup);
  QWidget* window = warningWindow();
  EXPECT_EQ(window->findChild<QPlainTextEdit*>()->toPlainText(), markup);
  EXPECT_EQ(window->findChild<QLabel*>()->textFormat(), Qt::PlainText);

  warning.showWithTitle(QString(), QString());
  EXPECT_FALSE(window->findChild<QPlainTextEdit*>()->isVisible());

  warning.showWithTitle(QString(5000, 'W'), QString("many words ").repeated(20000));
  QApplication::processEvents();
  EXPECT_LT(window->height(), 700);
  EXPECT_LT(window->width(), 700);
  auto* message = window->findChild<QPlainTextEdit*>();
  EXPECT_GT(message->verticalScrollBar()->maximum(), 0);
  EXPECT_TRUE(message->focusPolicy() & Qt::TabFocus);
}

TEST(KZWarningWindowControllerTest, CallsItsObserverAtEveryShowing) {
  QStringList seen;
  KZWarningWindowController::setObserver(
      [&seen](const QString& title, const QString& message) { seen.append(title + '|' + message); });
  {
    KZWarningWindowController warning(nullptr);
    warning.showWithTitle("a", "b");
    warning.showWithTitle("a", "b");
  }
  EXPECT_TRUE(visibleWindows().isEmpty()) << "the window must go with its controller";
  KZWarningWindowController::setObserver({});
  KZWarningWindowController(nullptr).showWithTitle("c", "d");
  EXPECT_EQ(seen, QStringList({"a|b", "a|b"}));
}

}  // namespace
