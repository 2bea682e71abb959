#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/ViewAnimation.h"
#include "tests/KZPreference/panes/meetings/PreferenceHost.h"
#include "tests/kit/AssistiveTechnology.h"
#include "tests/kit/Input.h"

namespace {

using Variant = PreferenceHost::Variant;

// Sends the key to the control that has the focus.
void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(PreferenceHost::window()->windowHandle(), key, modifiers);
}

void keys(const char* text) {
  for (const char* at = text; *at != '\0'; ++at)
    QTest::keyClick(PreferenceHost::window()->windowHandle(), *at);
}

QString focused() {
  const QWidget* widget = QApplication::focusWidget();
  return widget ? widget->objectName() : QString();
}

// Presses Tab until that control has the focus; returns the names of the focused controls, that one included.
QStringList tabTo(const QString& name) {
  QStringList way;
  do {
    key(Qt::Key_Tab);
    way.append(focused());
  } while (way.last() != name && way.size() < 30);
  return way;
}

class CalendarKeyboard : public testing::TestWithParam<Variant> {
 protected:
  CalendarKeyboard() {
    KZPlistFileHandle::sharedInstance().setCalendarIntegration(
        {{kKZCalendarIntegrationSource, kKZCalendarIntegrationSourceMivRa}});
    host.notify(KZNotify::KZNotifyGetPreferenceDone,
                Dictionary{{QStringLiteral("kz"),
                            Dictionary{{QStringLiteral("disableCalendarIntegration"), true},
                                       {QStringLiteral("enableListGoogleCalendarMeeting"), true}}}});
    host.openMeetings(GetParam());
  }

  PreferenceHost host;
};

TEST_P(CalendarKeyboard, TheWholeExchangeFlowNeedsNoMouse) {
  kit::AssistiveTechnology reader;
  tabTo(QStringLiteral("m_daysBtn"));
  key(Qt::Key_Down);
  EXPECT_EQ(reader.takeAnnounced(), QStringList("14"));
  if (GetParam() == Variant::SignedIn) {
    EXPECT_EQ(tabTo(QStringLiteral("m_mivraRadioBtn")), QStringList("m_mivraRadioBtn"));
    key(Qt::Key_Down);
    EXPECT_EQ(focused(), "m_googleRadioBtn");
    key(Qt::Key_Down);
  } else {
    EXPECT_EQ(tabTo("m_outlookRadioBtn"), QStringList("m_outlookRadioBtn"));
  }
  EXPECT_EQ(focused(), "m_outlookRadioBtn");
  EXPECT_EQ(tabTo("m_emailInputTxt"), QStringList("m_emailInputTxt"));
  keys("ann@brenn.example");
  EXPECT_EQ(tabTo("m_detectBtn"), QStringList("m_detectBtn"));
  host.takeSent();
  key(Qt::Key_Space);
  key(Qt::Key_Return);
  key(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(focused(), "m_emailInputTxt");
  key(Qt::Key_Return);
  EXPECT_EQ(host.takeSent().size(), 3);

  host.needCredential();
  EXPECT_EQ(focused(), "m_usernameInputTxt");
  keys("ann");
  EXPECT_EQ(tabTo("m_passwordInputTxt"), QStringList("m_passwordInputTxt"));
  reader.takeTyped();
  keys("pww");
  key(Qt::Key_Backspace);
  EXPECT_EQ(reader.takeTyped(), QStringLiteral("•••-•"));
  EXPECT_EQ(tabTo("m_detectBtn"), QStringList({"m_applyBtn", "m_detectBtn"}));
  key(Qt::Key_Tab, Qt::ShiftModifier);
  key(Qt::Key_Space);
  key(Qt::Key_Return);
  EXPECT_EQ(host.takeSent().size(), 2);
  host.fail(QStringLiteral("No service there"));
  EXPECT_EQ(focused(), "m_emailInputTxt");
}

TEST_P(CalendarKeyboard, ACredentialRequestWaitsForItsPane) {
  PreferenceHost::window()->controller()->setProperty("crossFade", true);
  const auto* fade = PreferenceHost::window()->controller()->findChild<ViewAnimation*>();
  const auto showPane = [fade](const char* pane) {
    kit::clickItem(*PreferenceHost::window(), pane);
    EXPECT_TRUE(kit::waitUntil([fade] { return !fade->isRunning(); }));
  };
  showPane("General");
  host.needCredential();
  keys("secret");
  EXPECT_EQ(PreferenceHost::control<QLineEdit>("m_usernameInputTxt").text(), "");
  showPane("Meetings");
  EXPECT_EQ(focused(), "m_usernameInputTxt");
  host.fail(QStringLiteral("No service there"));
  showPane("General");
  showPane("Meetings");
  EXPECT_NE(focused(), "m_usernameInputTxt");
}

TEST_P(CalendarKeyboard, TheStatusLineIsAnnouncedOnce) {
  kit::AssistiveTechnology reader;
  host.fail(QStringLiteral("No service there"));
  host.fail(QStringLiteral("Still none"));
  host.fail(QString());
  host.resolveWith(QStringLiteral("ann@brenn.example"));
  host.openMeetings();
  EXPECT_EQ(reader.takeAnnounced(),
            QStringList({"No service there", "Still none", "Applied failed", "Applied successfully"}));
}

TEST_P(CalendarKeyboard, EveryControlHasARoleAndAName) {
  host.needCredential();
  const struct {
    const char* control;
    QAccessible::Role role;
    const char* name;
  } cases[] = {
      {"m_outlookRadioBtn", QAccessible::RadioButton, "Microsoft Outlook"},
      {"m_emailInputTxt", QAccessible::EditableText, "Email address"},
      {"m_usernameInputTxt", QAccessible::EditableText, "User name"},
      {"m_passwordInputTxt", QAccessible::EditableText, "Password"},
      {"m_detectBtn", QAccessible::Button, "Look up account"},
      {"m_applyBtn", QAccessible::Button, "Apply"},
      {"m_integrationTxt", QAccessible::Heading, "Calendar integration"},
      {"m_integrationView", QAccessible::Grouping, "Calendar integration"},
  };
  for (const auto& tried : cases) {
    QAccessibleInterface* spoken =
        QAccessible::queryAccessibleInterface(&PreferenceHost::control(tried.control));
    ASSERT_TRUE(spoken) << tried.control;
    EXPECT_EQ(spoken->role(), tried.role) << tried.control;
    EXPECT_EQ(spoken->text(QAccessible::Name), tried.name);
  }
  QAccessibleInterface* days = QAccessible::queryAccessibleInterface(&PreferenceHost::control("m_daysBtn"));
  EXPECT_EQ(days->textInterface()->text(0, days->textInterface()->characterCount()), "7");
  const auto relations = days->relations();
  ASSERT_EQ(relations.size(), 1);
  EXPECT_EQ(relations.first().first->text(QAccessible::Name), "Number of days to show in meetings list:");
  const QAccessible::State secret =
      QAccessible::queryAccessibleInterface(&PreferenceHost::control("m_passwordInputTxt"))->state();
  EXPECT_TRUE(secret.passwordEdit);
}

INSTANTIATE_TEST_SUITE_P(BothVariants, CalendarKeyboard, testing::Values(Variant::SignedIn, Variant::Guest),
                         [](const auto& tried) {
                           return tried.param == Variant::Guest ? "Guest" : "SignedIn";
                         });

}  // namespace
