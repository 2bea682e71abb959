#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "platform/ViewAnimation.h"
#include "tests/KZPreference/panes/meetings/PreferenceHost.h"
#include "tests/kit/AssistiveTechnology.h"
#include "tests/kit/Input.h"

namespace {

class CalendarKeyboard : public testing::Test {
 protected:
  CalendarKeyboard() { host.openMeetings(PreferenceHost::Variant::SignedIn); }

  PreferenceHost host;
};

TEST_F(CalendarKeyboard, ACredentialRequestWaitsForItsPane) {
  PreferenceHost::window()->controller()->setProperty("crossFade", true);
  const auto* username = &PreferenceHost::control<QLineEdit>("m_usernameInputTxt");
  const auto* fade = PreferenceHost::window()->controller()->findChild<ViewAnimation*>();
  const auto showPane = [fade](const char* pane) {
    kit::clickItem(*PreferenceHost::window(), pane);
    EXPECT_TRUE(kit::waitUntil([fade] { return !fade->isRunning(); }));
  };
  showPane("General");
  host.needCredential();
  QTest::keyClick(PreferenceHost::window()->windowHandle(), Qt::Key_S);
  EXPECT_EQ(username->text(), "");
  showPane("Meetings");
  EXPECT_EQ(QApplication::focusWidget(), username);
  host.fail(QStringLiteral("No service there"));
  showPane("General");
  showPane("Meetings");
  EXPECT_NE(QApplication::focusWidget(), username);
}

TEST_F(CalendarKeyboard, TheStatusLineIsAnnouncedOnce) {
  kit::AssistiveTechnology reader;
  host.fail(QStringLiteral("No service there"));
  host.fail(QStringLiteral("Still none"));
  host.fail(QString());
  host.resolveWith(QStringLiteral("ann@brenn.example"));
  host.openMeetings();
  EXPECT_EQ(reader.takeAnnounced(),
            QStringList({"No service there", "Still none", "Applied failed", "Applied successfully"}));
}

}  // namespace
