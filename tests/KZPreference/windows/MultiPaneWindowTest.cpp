#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolBar>
#include <QVariantAnimation>

#include "KZPreference/windows/LWPrefsWindowController.h"
#include "bench/ReducedMotion.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"
#include "platform/PopUpButton.h"
#include "platform/View.h"
#include "platform/ViewAnimation.h"
#include "tests/kit/Input.h"

namespace {

class Controller final : public LWPrefsWindowController {
 public:
  explicit Controller(const QStringList& labels = {"Short", "Tall", "Middle"}) : m_labels(labels) {}

  int setups = 0;

 protected:
  void setupToolbar() override {
    ++setups;
    double height = 60;
    for (const QString& label : m_labels) {
      if (label == "-") {
        addFlexibleSpacer();
        continue;
      }
      auto* view = new View({0, 0, 320.5, height});
      view->setObjectName(label + QString::number(height));
      addView(view, label);
      height = height == 60 ? 240 : 120;
    }
    addView(nullptr, "Nothing");
  }

 private:
  QStringList m_labels;
};

class MultiPaneWindowTest : public testing::Test {
 protected:
  MultiPaneWindowTest() { muteKZTrace(); }
  ~MultiPaneWindowTest() override { setKZTraceSink({}); }

  void show() {
    m_controller.showWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    m_toolbarHeight = window()->height() - 60;
  }
  Window* window() { return m_controller.window(); }
  QWidget* content() { return window()->findChild<QWidget*>("contentSubview"); }
  View* pane(const char* name) { return window()->findChild<View*>(QLatin1String(name)); }
  QList<QWidget*> shown() { return subviewsOf(content()); }
  bool isFading() { return animation()->state() != QAbstractAnimation::Stopped; }
  QVariantAnimation* animation() { return m_controller.findChild<QVariantAnimation*>(); }
  void click(const QString& label, Qt::KeyboardModifiers modifiers = {}) {
    kit::clickItem(*window(), label, modifiers);
  }
  void expectSettledOn(const char* name, double height) {
    EXPECT_FALSE(isFading());
    EXPECT_EQ(shown(), QList<QWidget*>{pane(name)});
    EXPECT_TRUE(pane(name)->isVisible());
    EXPECT_EQ(pane(name)->mapTo(window(), QPoint()), QPoint(0, m_toolbarHeight));
    EXPECT_EQ(window()->height(), m_toolbarHeight + height);
    EXPECT_EQ(frameOf(window()).width, 320.5);
    EXPECT_EQ(window()->maximumSize(), window()->minimumSize());
  }

  Controller m_controller;
  int m_toolbarHeight = 0;
};

TEST_F(MultiPaneWindowTest, TheFirstShowingBuildsAndCentresLaterOnesOnlyShow) {
  show();
  expectSettledOn("Short60", 60);
  const QPoint middle = window()->geometry().center() - window()->screen()->availableGeometry().center();
  EXPECT_LE(middle.manhattanLength(), 3);
  EXPECT_EQ(window()->windowTitle(), "Preferences");

  m_controller.loadViewForIdentifier("Tall", Animate::No);
  m_controller.loadViewForIdentifier("Nowhere", Animate::Yes);
  window()->move(7, 9);
  m_controller.close();
  EXPECT_FALSE(window()->isVisible());
  m_controller.showWindow();
  EXPECT_EQ(m_controller.setups, 1);
  EXPECT_EQ(window()->pos(), QPoint(7, 9));
  expectSettledOn("Tall240", 240);
}

TEST_F(MultiPaneWindowTest, AClickFadesAndKeepsTheUpperEdge) {
  show();
  const QPoint corner = window()->geometry().topLeft();
  click("Short");
  EXPECT_FALSE(isFading()) << "the pane that is shown already";
  for (const auto& [label, name, height] : {std::tuple{"Tall", "Tall240", 240}, {"Short", "Short60", 60}}) {
    const int from = window()->height();
    click(label);
    ASSERT_TRUE(isFading());
    animation()->pause();
    animation()->setCurrentTime(125);
    EXPECT_NEAR(window()->height(), (from + m_toolbarHeight + height) / 2.0, 1);
    EXPECT_EQ(window()->geometry().topLeft(), corner);
    EXPECT_EQ(pane(name)->mapTo(window(), QPoint()).y(), m_toolbarHeight);
    animation()->setCurrentTime(250);
    expectSettledOn(name, height);
    EXPECT_EQ(window()->geometry().topLeft(), corner);
    EXPECT_EQ(window()->focusWidget(), nullptr);
  }
}

TEST_F(MultiPaneWindowTest, ASecondSwitchInMidFlightEndsOnTheLastPane) {
  show();
  const QPoint corner = window()->geometry().topLeft();
  click("Tall");
  animation()->pause();
  animation()->setCurrentTime(100);
  click("Middle");
  animation()->pause();
  animation()->setCurrentTime(20);
  click("Tall");
  animation()->pause();
  click("Tall");  // the pane that is fading in: the fade continues
  EXPECT_TRUE(isFading());
  animation()->setCurrentTime(250);
  expectSettledOn("Tall240", 240);

  click("Short");
  animation()->pause();
  m_controller.loadViewForIdentifier("Middle", Animate::No);
  expectSettledOn("Middle120", 120);
  EXPECT_EQ(window()->geometry().topLeft(), corner);
}

TEST_F(MultiPaneWindowTest, WithoutFadeTheSizeIsAnimatedAndWithReducedMotionNothing) {
  show();
  m_controller.setCrossFade(false);
  click("Tall");
  ASSERT_TRUE(isFading());
  animation()->pause();
  animation()->setCurrentTime(125);
  EXPECT_EQ(shown(), QList<QWidget*>{pane("Tall240")});
  EXPECT_NEAR(window()->height(), m_toolbarHeight + 150, 1);
  animation()->setCurrentTime(250);
  expectSettledOn("Tall240", 240);
  m_controller.setCrossFade(true);
  reduceMotion(window());
  click("Middle");
  expectSettledOn("Middle120", 120);
}

TEST_F(MultiPaneWindowTest, OnlyCommandAndASmallWCloses) {
  show();
  auto* field = new QLineEdit;
  addSubview(pane("Short60"), field, {0, 0, 50, 20});
  auto* popUp = new PopUpButton({"w", "x"});
  addSubview(pane("Short60"), popUp, {60, 0, 50, 20});
  for (QWidget* focused :
       {static_cast<QWidget*>(pane("Short60")), static_cast<QWidget*>(field), static_cast<QWidget*>(popUp)}) {
    const struct {
      Qt::Key key;
      Qt::KeyboardModifiers modifiers;
      bool isClosing;
    } rows[] = {{Qt::Key_W, {}, false},
                {Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier, false},
                {Qt::Key_W, Qt::AltModifier, false},
                {Qt::Key_Q, Qt::ControlModifier, false},
                {Qt::Key_W, Qt::ControlModifier, true}};
    for (const auto& row : rows) {
      focused->setFocus();
      QTest::keyClick(window()->windowHandle(), row.key, row.modifiers);
      EXPECT_EQ(window()->isVisible(), !row.isClosing) << focused->metaObject()->className() << row.key;
    }
    m_controller.showWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  }
}

// The window's upper edge stays as long as there is room below it.
TEST(MultiPaneWindow, EveryPaneIsOnTheScreenAndScrollsOnlyWhenItIsTaller) {
  muteKZTrace();
  class TallController final : public LWPrefsWindowController {
   protected:
    void setupToolbar() override {
      addView(new View({0, 0, 300, 100}), "Low");
      addView(new View({0, 0, 500, 400}), "Middle");
      addView(new View({0, 0, 300, 5000}), "High");
    }
  } controller;
  controller.showWindow();
  Window* window = controller.window();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  auto* area = window->findChild<QScrollArea*>();
  const QRect screen = window->screen()->availableGeometry();
  for (const Animate animate : {Animate::No, Animate::Yes}) {
    for (const char* label : {"Middle", "Low", "High", "Low"}) {
      window->move(screen.right() - 310, screen.bottom() - 200);
      controller.loadViewForIdentifier(label, animate);
      auto* animation = controller.findChild<QVariantAnimation*>();
      animation->setCurrentTime(animation->duration());
      EXPECT_TRUE(screen.contains(window->frameGeometry())) << label;
      EXPECT_EQ(area->verticalScrollBar()->isVisible(), QLatin1String(label) == "High") << label;
      EXPECT_EQ(window->y() == screen.bottom() - 200, QLatin1String(label) == "Low") << label;
    }
  }
  setKZTraceSink({});
}

TEST_F(MultiPaneWindowTest, IsNeverMaximised) {
  show();
  window()->windowHandle()->setWindowStates(Qt::WindowMaximized);
  EXPECT_TRUE(kit::waitUntil([&] { return window()->windowHandle()->windowStates() == Qt::WindowNoState; }));
  click("Tall");
  animation()->setCurrentTime(250);
  expectSettledOn("Tall240", 240);
}

// What was added before the first showing is dropped, and asking for it is harmless.
TEST(MultiPaneWindow, ViewsAddedTooEarlyAreDropped) {
  muteKZTrace();
  Controller controller;
  const QPointer<View> early = new View({0, 0, 300, 100});
  controller.addView(early, "Early");
  controller.loadViewForIdentifier("Early", Animate::Yes);
  EXPECT_EQ(controller.frameForView(early).size(), (Size{300, 100}));
  controller.showWindow();
  EXPECT_FALSE(early);
  EXPECT_EQ(controller.window()->findChild<QToolBar*>()->actions().size(), 3);
  setKZTraceSink({});
}

// Its action replaces the switch of panes.
TEST(MultiPaneWindow, AnItemWithItsOwnActionIsSelectedToo) {
  muteKZTrace();
  class HelpController final : public LWPrefsWindowController {
   public:
    int calls = 0;

   protected:
    void setupToolbar() override {
      addView(new View({0, 0, 300, 100}), "Pane");
      addToolbarItemForIdentifier("Help", "Help", QIcon(), ToolbarAction(&HelpController::help));
    }
    void help(QAction*) { ++calls; }
  } controller;
  controller.showWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window()));
  kit::clickItem(*controller.window(), "Help");
  EXPECT_EQ(controller.calls, 1);
  EXPECT_TRUE(controller.window()->findChild<QToolBar*>()->actions().at(1)->isChecked());
  setKZTraceSink({});
}

TEST(MultiPaneWindow, OnePaneOfALabelIsReachableAndTheCollisionIsTraced) {
  QStringList trace;
  setKZTraceSink([&](const KZTraceRecord& record) { trace.append(record.text); });
  {
    Controller controller({"Same", "-", "Other", "-", "Same"});
    controller.showWindow();
    auto* toolbar = controller.window()->findChild<QToolBar*>();
    EXPECT_EQ(toolbar->actions().size(), 4);
    EXPECT_EQ(subviewsOf(controller.window()->findChild<QWidget*>("contentSubview")),
              QList<QWidget*>{controller.window()->findChild<View*>("Same120")});
    EXPECT_EQ(trace, QStringList{"two toolbar items are called Same"});
  }
  {
    Controller empty{QStringList()};
    empty.showWindow();
    empty.showWindow();
    EXPECT_FALSE(empty.window()->isVisible());
    Controller neverShown;
  }
  setKZTraceSink({});
}

TEST(MultiPaneWindow, TheSharedInstanceLivesUntilItIsDestroyed) {
  LWPrefsWindowController& shared = LWPrefsWindowController::sharedPrefsWindowController<Controller>();
  EXPECT_EQ(&LWPrefsWindowController::sharedPrefsWindowController<Controller>(), &shared);
  shared.showWindow();
  const QPointer<QWidget> window = shared.window();
  LWPrefsWindowController::destroyPrefsWindowController();
  EXPECT_FALSE(window);
  LWPrefsWindowController::destroyPrefsWindowController();
}

}  // namespace
