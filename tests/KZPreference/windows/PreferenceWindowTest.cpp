#include <QAccessible>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>
#include <map>

#include "bench/ReducedMotion.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

const QStringList kPaneNames{"m_generalView", "m_accountView", "m_meetingView", "m_notificationView",
                             "m_proximityView"};

class PreferenceWindowTest : public RecordingHost {
 protected:
  QString shownPane() {
    return subviewsOf(window()->findChild<QWidget*>("contentSubview")).last()->objectName();
  }
  static QString selectedItem() {
    for (const QToolButton* item : window()->findChildren<QToolButton*>())
      if (item->isChecked()) return item->text();
    return {};
  }
  static QString focusedItem() {
    const auto* item = qobject_cast<QToolButton*>(window()->focusWidget());
    return item ? item->text() : QString();
  }
};

TEST_F(PreferenceWindowTest, OnlyASuccessSendsASourceChange) {
  for (const bool isShown : {false, true}) {
    if (isShown) command(2);
    notify(15, Dictionary{{kKZResult, kKZFail}});
    notify(15, Dictionary{{"other", 1}});
    EXPECT_FALSE(takeSent().contains("18 {}"));
    notify(15, Dictionary{{kKZResult, kKZSuccess}});
    EXPECT_TRUE(takeSent().contains("18 {}"));
  }
  command(3);
  takeSent();
  notify(15, Dictionary{{kKZResult, kKZSuccess}});
  EXPECT_FALSE(takeSent().contains("18 {}"));
}

TEST_F(PreferenceWindowTest, TheFocusFollowsTheKeysThatChooseAPane) {
  command(2);
  ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window()->windowHandle(), key, modifiers);
  };
  EXPECT_EQ(window()->focusWidget()->accessibleName(), "General");
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  const struct {
    Qt::Key key;
    qsizetype pane;
  } arrows[] = {{Qt::Key_Right, 1}, {Qt::Key_Right, 2}, {Qt::Key_Left, 1}, {Qt::Key_End, 4},
                {Qt::Key_Right, 4}, {Qt::Key_Home, 0},  {Qt::Key_Left, 0}};
  for (const auto& [key, pane] : arrows) {
    press(key);
    EXPECT_EQ(shownPane(), kPaneNames.at(pane)) << key;
    EXPECT_EQ(focusedItem(), selectedItem()) << "the focus goes with the selection";
  }

  // Without a focus, Tab begins at the pane that is shown, and Shift+Tab at its item.
  reduceMotion(window());
  for (const auto& [key, first] : {std::pair{Qt::Key_4, "m_checkbox"}, {Qt::Key_3, "m_editBtn"}}) {
    window()->focusWidget()->clearFocus();
    press(key, Qt::ControlModifier);
    EXPECT_EQ(window()->focusWidget(), nullptr);
    press(Qt::Key_Tab);
    EXPECT_EQ(window()->focusWidget()->objectName(), first);
    press(key == Qt::Key_4 ? Qt::Key_5 : Qt::Key_4, Qt::ControlModifier);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focusedItem(), selectedItem());
    EXPECT_EQ(shownPane(), kPaneNames.at(key == Qt::Key_4 ? 4 : 3));
  }
}

TEST_F(PreferenceWindowTest, StaysInFrontOfTheMainWindowWhileThatIsVisible) {
  QWidget mainWindow;
  KZApplicationHelper::sharedInstance().setMainWindow(&mainWindow);
  for (const bool isVisible : {false, true}) {
    mainWindow.setVisible(isVisible);
    command(2);
    EXPECT_EQ(window()->windowHandle()->transientParent(), isVisible ? mainWindow.windowHandle() : nullptr);
    window()->close();
  }
}

// The frames stay, the places and what is drawn are mirrored.
TEST_F(PreferenceWindowTest, MirrorsEveryPaneFromRightToLeft) {
  auto& store = KZPlistFileHandle::sharedInstance();
  store.setDisplayName("Ada");
  store.setPreferenceInfo(Dictionary{{QRT_Preference_PMRUrl, "https://meet.example.com/ada"}});
  using Places = std::map<QString, QRect>;
  const auto measure = [this](Qt::LayoutDirection direction, QHash<QString, Frame>* frames) {
    QApplication::setLayoutDirection(direction);
    command(3);
    settle();
    command(2);
    Places places;
    reduceMotion(window());
    for (const QString& pane : kPaneNames) {
      QTest::keyClick(window()->windowHandle(), Qt::Key(Qt::Key_1 + kPaneNames.indexOf(pane)),
                      Qt::ControlModifier);
      for (QWidget* view : window()->findChild<QWidget*>(pane)->findChildren<QWidget*>()) {
        if (view->objectName().isEmpty() || !view->parentWidget()->property("platformFrame").isValid())
          continue;
        const QRect place = view->geometry();
        const int left =
            direction == Qt::LeftToRight ? place.left() : view->parentWidget()->width() - place.right() - 1;
        const QString name = pane + view->parentWidget()->objectName() + view->objectName();
        places[name] = QRect(left, place.top(), place.width(), place.height());
        frames->insert(name, frameOf(view));
      }
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
    return places;
  };
  QHash<QString, Frame> frames;
  QHash<QString, Frame> mirroredFrames;
  const Places places = measure(Qt::LeftToRight, &frames);
  EXPECT_GT(places.size(), 20U);
  for (const auto& [name, place] : measure(Qt::RightToLeft, &mirroredFrames))
    EXPECT_EQ(place, places.at(name)) << qPrintable(name) << place.left() << places.at(name).left();
  EXPECT_EQ(mirroredFrames, frames);
}

TEST_F(PreferenceWindowTest, AssistiveTechnologySeesPageTabsAndThePane) {
  command(2);
  const QAccessibleInterface* list = QAccessible::queryAccessibleInterface(window()->findChild<QToolBar*>());
  EXPECT_EQ(list->role(), QAccessible::PageTabList);
  EXPECT_EQ(list->text(QAccessible::Name), "Preferences");
  ASSERT_EQ(list->childCount(), 5);
  for (int place = 4; place >= 0; --place) {
    QAccessibleInterface* tab = list->child(place);
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(list->indexOfChild(tab), place);
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(tab->text(QAccessible::Name), selectedItem());
    EXPECT_TRUE(tab->text(QAccessible::Description).isEmpty());
    const QAccessibleInterface* pane = QAccessible::queryAccessibleInterface(
        subviewsOf(window()->findChild<QWidget*>("contentSubview")).last());
    EXPECT_EQ(pane->text(QAccessible::Name), selectedItem());
    EXPECT_FALSE(pane->state().invisible);
    for (int other = 0; other < 5; ++other) {
      const QAccessible::State state = list->child(other)->state();
      EXPECT_EQ(state.selected, other == place);
      EXPECT_FALSE(state.checkable || state.checked);
    }
  }
}

TEST_F(PreferenceWindowTest, ShortcutsChooseThePane) {
  command(2);
  ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  constexpr Qt::KeyboardModifiers control = Qt::ControlModifier;
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    qsizetype pane;
  } rows[] = {{Qt::Key_5, control, 4},
              {Qt::Key_Tab, control, 0},
              {Qt::Key_Backtab, control | Qt::ShiftModifier, 4},
              {Qt::Key_PageUp, control, 3},
              {Qt::Key_PageDown, control, 4},
              {Qt::Key_PageDown, control, 0},
              {Qt::Key_3, control | Qt::KeypadModifier, 2},
              {Qt::Key_1, control | Qt::AltModifier, 2},
              {Qt::Key_1, {}, 2},
              {Qt::Key_9, control, 2},
              {Qt::Key_1, control | Qt::ShiftModifier, 0}};
  for (const auto& row : rows) {
    QTest::keyClick(window()->windowHandle(), row.key, row.modifiers);
    EXPECT_EQ(shownPane(), kPaneNames.at(row.pane)) << row.key;
  }
}

// A key that is held down comes again and again, in each pane and while it fades.
TEST_F(PreferenceWindowTest, KeysHeldThroughTenSwitchesDoNoHarm) {
  command(2);
  ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  takeSent();
  for (const Qt::Key held : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return, Qt::Key_Down}) {
    for (int press = 0; press < 11; ++press) {
      QKeyEvent key(QEvent::KeyPress, held, Qt::NoModifier, QString(), true);
      QApplication::sendEvent(window()->focusWidget() ? window()->focusWidget() : window(), &key);
      QTest::keyClick(window()->windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
      QCoreApplication::processEvents();
    }
  }
  EXPECT_EQ(shownPane(), kPaneNames.at(44 % 5));
  EXPECT_EQ(takeSent(), QStringList());
}

}  // namespace
