#include "tests/layout/PaneWalk.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <QToolBar>

#include "KZPreference/panes/meetings/PrefMeetingView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"

namespace {

const QString kHostsError = QStringLiteral(
    "The server autodiscover.brenn.example answered with an invalid certificate. Ask your administrator to "
    "renew it, or apply the account again with another email address.");

constexpr const char* kPanes[] = {"m_generalView", "m_accountView", "m_meetingView", "m_notificationView",
                                  "m_proximityView"};

QToolBar& toolbarOfWindow() {
  return *PreferenceHost::window()->findChild<QToolBar*>();
}

QWidget& showPane(int at) {
  toolbarOfWindow().actions().at(at)->trigger();
  return *PreferenceHost::window()->findChild<QWidget*>(QLatin1String(kPanes[at]));
}

void clickIn(QWidget& pane, const char* name) {
  pane.findChild<QAbstractButton*>(QLatin1String(name))->click();
}

}  // namespace

void PaneWalk::open(Variant variant, const Addresses& addresses) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  store.setDisplayName(QStringLiteral("Ann Mustermann"));
  store.setUserName(QStringLiteral("ann@brenn.example"));
  store.setSiteName(QStringLiteral("meetings.brenn.example"));
  Dictionary record{{"disableCalendarIntegration", true}, {"enableListGoogleCalendarMeeting", true}};
  if (!addresses.room.isNull()) record.insert(QRT_Preference_PMRUrl, addresses.room);
  if (!addresses.video.isNull()) record.insert(QRT_Preference_PMRSipUrl, addresses.video);
  m_host.notify(KZNotify::KZNotifyGetPreferenceDone, Dictionary{{"kz", record}});
  if (variant == Variant::Guest) m_host.command(KZCommand::KZCmdInitGuestPreference);
  m_host.command(KZCommand::KZCmdShowPreference);
  PreferenceHost::window()->controller()->setProperty("crossFade", false);
  if (!QTest::qWaitForWindowActive(PreferenceHost::window())) qFatal("the window does not become active");
  // The test's screen may be narrower than the window.
  toolbarOfWindow().setMinimumWidth(int(frameOf(&showPane(0)).width));
}

void PaneWalk::walk(Variant variant, const Addresses& addresses, const Look& look) {
  open(variant, addresses);
  look(toolbarOfWindow(), "toolbar");
  look(showPane(0), "general");
  walkAccount(variant, look);
  walkMeetings(variant, look);
  QWidget& notifications = showPane(3);
  look(notifications, "notifications");
  clickIn(notifications, "m_checkbox");
  look(notifications, "no notifications");
  clickIn(notifications, "m_checkbox");
  look(showPane(4), "video devices");
  m_host.command(KZCommand::KZCmdDestroyPreference);
}

void PaneWalk::walkAccount(Variant variant, const Look& look) {
  QWidget& pane = showPane(1);
  look(pane, "account");
  if (variant == Variant::SignedIn) return;
  clickIn(pane, "m_editBtn");
  look(pane, "edit");
  pane.findChild<QLineEdit*>("m_emailInputTxt")->setText("x");
  clickIn(pane, "m_editBtn");
  look(pane, "invalid email");
}

void PaneWalk::walkMeetings(Variant variant, const Look& look) {
  QWidget& pane = showPane(2);
  if (variant == Variant::SignedIn) clickIn(pane, "m_noneRadioBtn");
  look(pane, "meetings");
  clickIn(pane, "m_outlookRadioBtn");
  m_host.type("m_emailInputTxt", QStringLiteral("a@b"));
  clickIn(pane, "m_detectBtn");
  m_host.needCredential();
  look(pane, "credential");
  for (const char* field : {"m_usernameInputTxt", "m_passwordInputTxt"})
    m_host.type(field, QStringLiteral("a@b"));
  look(pane, "typed credential");
  m_host.fail(kHostsError);
  look(pane, "error");
  m_host.resolveWith(QStringLiteral("ann@brenn.example"));
  look(pane, "applied");
  if (variant == Variant::Guest) return;
  clickIn(pane, "m_copyPmrurlBtn");
  clickIn(pane, "m_copySipurlBtn");
  look(pane, "copied");
  // The pane grows with each record.
  for (int records = 2; records <= 3; ++records)
    static_cast<PrefMeetingView&>(pane).setCalendarIntergrationOption(
        {.isEnableNone = true, .isEnableGoogle = true});
  look(pane, "three records");
}
