#include <gtest/gtest.h>

#include <QLineEdit>
#include <QRadioButton>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/KZPreference/panes/meetings/PreferenceHost.h"

namespace {

using Variant = PreferenceHost::Variant;

const QStringList kRadios{"m_noneRadioBtn", "m_mivraRadioBtn", "m_googleRadioBtn", "m_outlookRadioBtn"};

// The names of the radio buttons that are on.
QStringList chosen() {
  QStringList names;
  for (const QString& name : kRadios) {
    const auto* radio = PreferenceHost::window()->findChild<QRadioButton*>(name);
    if (radio && radio->isChecked()) names.append(name);
  }
  return names;
}

QString storedSource() {
  return textValue(KZPlistFileHandle::sharedInstance().calendarIntegration().value_or(Dictionary()),
                   kKZCalendarIntegrationSource);
}

void storeSource(const QVariant& source) {
  KZPlistFileHandle::sharedInstance().setCalendarIntegration({{kKZCalendarIntegrationSource, source}});
}

void storeAppliedAccount() {
  Dictionary calendar = KZPlistFileHandle::sharedInstance().calendarIntegration().value_or(Dictionary());
  calendar.insert(kKZCalendarIntegrationExchange,
                  Dictionary{{kKZCalendarIntegrationExchangeExternalUrl, QStringLiteral("https://x.example")},
                             {kKZCalendarIntegrationExchangeEmail, QStringLiteral("ann@brenn.example")}});
  KZPlistFileHandle::sharedInstance().setCalendarIntegration(calendar);
  KZKeyChainHandle::sharedInstance().commitOutlookUsername(QStringLiteral("ann"), QStringLiteral("pw"));
}

bool isOn(const char* name) {
  return PreferenceHost::control(name).isEnabled();
}

class CalendarSources : public testing::Test {
 protected:
  void offer(bool none, bool google) {
    host.notify(KZNotify::KZNotifyGetPreferenceDone,
                Dictionary{{QStringLiteral("kz"),
                            Dictionary{{QStringLiteral("disableCalendarIntegration"), none},
                                       {QStringLiteral("enableListGoogleCalendarMeeting"), google}}}});
    host.takeSent();
  }

  PreferenceHost host;
};

TEST_F(CalendarSources, AChoiceIsStoredAndReportedAtOnceAndTheChangeOnClose) {
  offer(true, true);
  host.openMeetings(Variant::SignedIn);
  const struct {
    const char* radio;
    QString source;
    const char* feature;
  } steps[] = {
      {"m_noneRadioBtn", kKZCalendarIntegrationSourceNone,
       "TelemetryValue_FeatureName_Click_CalendarSourceNone"},
      {"m_mivraRadioBtn", kKZCalendarIntegrationSourceMivRa,
       "TelemetryValue_FeatureName_Click_CalendarSourceMivra"},
      {"m_googleRadioBtn", kKZCalendarIntegrationSourceGoogle,
       "TelemetryValue_FeatureName_Click_CalendarSourceGoogle"},
      {"m_outlookRadioBtn", kKZCalendarIntegrationSourceOutlook,
       "TelemetryValue_FeatureName_Click_CalendarSourceOutlook"},
      {"m_mivraRadioBtn", kKZCalendarIntegrationSourceMivRa,
       "TelemetryValue_FeatureName_Click_CalendarSourceMivra"},
  };
  for (const auto& step : steps) {
    host.takeTelemetry();
    host.click(step.radio);
    EXPECT_EQ(chosen(), QStringList(step.radio));
    EXPECT_EQ(storedSource(), step.source);
    EXPECT_EQ(host.takeTelemetry(), QStringList(step.feature));
    EXPECT_EQ(isOn("m_emailInputTxt"), step.source == kKZCalendarIntegrationSourceOutlook);
  }
  EXPECT_EQ(host.takeSent(), QStringList());
  PreferenceHost::window()->close();
  EXPECT_EQ(host.takeSent(), QStringList(kSourceChanged));
  host.openMeetings();
  PreferenceHost::window()->close();
  EXPECT_EQ(host.takeSent(), QStringList());
}

TEST_F(CalendarSources, TheServicesOwnCalendarHidesTheStateOfAnAppliedAccount) {
  storeSource(kKZCalendarIntegrationSourceMivRa);
  storeAppliedAccount();
  host.openMeetings(Variant::SignedIn);
  const auto& message = PreferenceHost::control("m_messageTxt");
  EXPECT_TRUE(message.isHidden());
  host.click("m_outlookRadioBtn");
  EXPECT_TRUE(message.isVisible());
  EXPECT_EQ(PreferenceHost::control<QLineEdit>("m_emailInputTxt").text(), "ann@brenn.example");
  host.click("m_mivraRadioBtn");
  EXPECT_TRUE(message.isHidden());
  EXPECT_FALSE(isOn("m_detectBtn"));
}

TEST_F(CalendarSources, AGuestHasOutlookOnlyWhateverIsStored) {
  for (const QVariant& stored : {QVariant(kKZCalendarIntegrationSourceGoogle), QVariant(3),
                                 QVariant(kKZCalendarIntegrationSourceOutlook)}) {
    storeSource(stored);
    storeAppliedAccount();
    host.openMeetings(Variant::Guest);
    EXPECT_EQ(chosen(), QStringList("m_outlookRadioBtn"));
    EXPECT_EQ(PreferenceHost::window()->findChildren<QRadioButton*>().size(), 1);
    EXPECT_TRUE(isOn("m_emailInputTxt"));
    EXPECT_TRUE(PreferenceHost::control("m_messageTxt").isVisible());
    host.takeTelemetry();
    host.click("m_outlookRadioBtn");
    EXPECT_EQ(storedSource(), kKZCalendarIntegrationSourceOutlook);
    EXPECT_EQ(host.takeTelemetry(), QStringList("TelemetryValue_FeatureName_Click_CalendarSourceOutlook"));
  }
}

TEST_F(CalendarSources, AGuestsCloseReportsOnlyWhatTheDashboardAskedForAndIsApplied) {
  const Dictionary outlook{{kKZCalendarIntegrationSource, kKZCalendarIntegrationSourceOutlook}};
  for (const bool isApplied : {false, true}) {
    for (const bool isByDashboard : {false, true}) {
      KZPlistFileHandle::sharedInstance().setCalendarIntegration({});
      if (isApplied) storeAppliedAccount();
      host.openMeetings(Variant::Guest);
      if (isByDashboard) host.command(KZCommand::KZCmdRequireChangeCalendarIntegration, outlook);
      host.takeSent();
      PreferenceHost::window()->close();
      const bool isReported = isApplied && isByDashboard;
      EXPECT_EQ(host.takeSent(), isReported ? QStringList(kSourceChanged) : QStringList());
      EXPECT_EQ(storedSource(), isReported ? kKZCalendarIntegrationSourceOutlook : QString());
    }
  }
}

}  // namespace
