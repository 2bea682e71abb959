#include <QCheckBox>
#include <QTest>

#include "KZPreference/panes/account/PrefAccountView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

const QStringList kPaneNames{"m_generalView", "m_accountView", "m_meetingView", "m_notificationView",
                             "m_proximityView"};

class PreferenceWindowTest : public RecordingHost {
 protected:
  static double widthOf(const QString& name) { return frameOf(window()->findChild<QWidget*>(name)).width; }
  QString shownPane() {
    return subviewsOf(window()->findChild<QWidget*>("contentSubview")).last()->objectName();
  }
};

TEST_F(PreferenceWindowTest, TheWidestPaneSetsTheWidthOfAll) {
  auto& store = KZPlistFileHandle::sharedInstance();
  store.setDisplayName(QString(48, u'M'));
  command(2);
  const double expected = PrefAccountView::caculateViewSize().width;
  for (const QString& name : kPaneNames) EXPECT_EQ(widthOf(name), expected) << qPrintable(name);
  EXPECT_EQ(frameOf(window()).width, expected);

  command(1);
  settle();
  command(2);
  for (const QString& name : kPaneNames) EXPECT_LT(widthOf(name), expected);
}

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

TEST_F(PreferenceWindowTest, EveryPaneIsReachedAndUsedByKeyboard) {
  command(2);
  ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  auto* checkbox = find<QCheckBox>("m_startCheckingBtn");
  for (int press = 0; press < 10 && !checkbox->hasFocus(); ++press)
    QTest::keyClick(window()->windowHandle(), Qt::Key_Tab);
  ASSERT_TRUE(checkbox->hasFocus());
  QTest::keyClick(window()->windowHandle(), Qt::Key_Space);
  EXPECT_EQ(takeSent(), QStringList{R"(4 {"kLaunchAtLogin":false})"});
  for (int press = 0; press < 12 && shownPane() != "m_accountView"; ++press) {
    QTest::keyClick(window()->windowHandle(), Qt::Key_Tab);
    if (QApplication::focusWidget() && QApplication::focusWidget()->property("text") == "Account")
      QTest::keyClick(window()->windowHandle(), Qt::Key_Space);
  }
  EXPECT_EQ(shownPane(), "m_accountView");
}

}  // namespace
