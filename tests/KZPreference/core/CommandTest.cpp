#include <QPointer>

#include "KZPreference/core/KZPreference.h"
#include "KZPreference/core/KZPreferenceCore.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"
#include "host/KZUtility/KZWorkspace.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

KZPlistFileHandle& store() {
  return KZPlistFileHandle::sharedInstance();
}

QString telemetryLine(const QString& feature, const QString& from) {
  return QStringLiteral(
             R"(23 {"TelemetryKey_MetricName":"%1","TelemetryKey_Values":{"TelemetryKey_ActionFrom":"%2",)"
             R"("TelemetryKey_FeatureName":"%3"}})")
      .arg(TelemetryValue_MetricName_KZMetric, from, feature);
}

class CommandTest : public RecordingHost {};

TEST_F(CommandTest, NumbersThatAreNotForThePluginDoNothing) {
  takeTrace();
  const auto isHandled = [](quint64 number) {
    return number <= 3 ? number > 0
                       : (number >= 8 && number <= 10) || number == 17 || number == 20 || number == 28;
  };
  for (quint64 number = 0; number < 64; ++number)
    if (!isHandled(number)) command(number, Dictionary{{kOpenPrefsViewType, kPrefsAccountView}});
  for (const quint64 number : {(1ULL << 32) + 2, (1ULL << 63) + 3, ~0ULL}) command(number);
  for (const quint32 index : {0U, 1U, 2U, 9U, 10U, 11U, 13U, 14U, 24U, 27U, ~0U}) notify(index, Dictionary());
  EXPECT_EQ(takeSent(), QStringList());
  EXPECT_EQ(takeTrace(), QStringList());
  EXPECT_EQ(window(), nullptr);
}

TEST_F(CommandTest, StartMakesTheObjectsInOrderAndShowsNothing) {
  QStringList classes;
  for (const QString& line : takeTrace()) {
    const QString name = line.section(u':', 0, 0);
    if (classes.isEmpty() || classes.last() != name) classes.append(name);
  }
  classes.removeIf(
      [](const QString& name) { return name == "OLAccountAuthenticator" || name == "PropertyListFile"; });
  EXPECT_EQ(classes, (QStringList{"KZPreferenceCore", "KZPreference", "PreferenceActionDelegate",
                                  "PreferenceWindowController", "PreferenceActionDelegate",
                                  "PreferenceWindowController", "ADAuthenticationWrapper"}));
  EXPECT_EQ(window(), nullptr);
  EXPECT_EQ(takeSent(), QStringList());
  EXPECT_EQ(store().meetingNotification(),
            (Dictionary{{kKZMeetintNotificationToast, true}, {kKZMeetintNotificationToastMinutes, "15"}}));
  EXPECT_EQ(store().videoDevice(), (Dictionary{{kKZVideoDeviceAutodetect, true}}));
}

TEST_F(CommandTest, AnyActionFromButTheAppsMeansOutlook) {
  const struct {
    Content content;
    QString from;
  } rows[] = {
      {std::nullopt, TelemetryValue_ActionFrom_Outlook},
      {Dictionary{{TelemetryKey_ActionFrom, TelemetryValue_ActionFrom_APP}}, TelemetryValue_ActionFrom_APP},
      {Dictionary{{TelemetryKey_ActionFrom, TelemetryValue_ActionFrom_APP + u'x'}},
       TelemetryValue_ActionFrom_Outlook},
      {Dictionary{{TelemetryKey_ActionFrom, ""}}, TelemetryValue_ActionFrom_Outlook},
      {Dictionary{{TelemetryKey_ActionFrom, 1}}, TelemetryValue_ActionFrom_Outlook},
  };
  for (const auto& row : rows) {
    command(10, row.content);
    EXPECT_EQ(takeSent(),
              (QStringList{R"(11 {"QRT_Require_Link_Action_Type":2})",
                           telemetryLine(TelemetryValue_FeatureName_Click_JoinByNumber, row.from)}));
  }
}

TEST_F(CommandTest, ChecksForUpdatesOnceAtATimeAndOnlyWithASite) {
  const QString site = QStringLiteral("meet.example.com");
  const QString bare =
      QStringLiteral(R"(%1 {"AppActionType":"CheckForUpdates","QRT_LoginResult_site":"%2"})");
  // Automatic checks neither set the flag nor count as use.
  store().setSiteName(site);
  command(9);
  EXPECT_EQ(takeSent(), QStringList{bare.arg(9).arg(site)});
  EXPECT_FALSE(KZUtility::sharedInstance().isCheckForUpdatesInProgress());

  store().setCdnUrl("https://cdn.example.com");
  command(8);
  EXPECT_EQ(takeSent(),
            (QStringList{
                R"(8 {"AppActionType":"CheckForUpdates","QRT_LoginResult_cdnUrl":"https://cdn.example.com",)"
                R"("QRT_LoginResult_site":"meet.example.com"})",
                telemetryLine(TelemetryValue_FeatureName_Click_CheckForUpdates,
                              TelemetryValue_ActionFrom_Outlook)}));
  command(9);
  EXPECT_EQ(takeSent(), QStringList());
  EXPECT_EQ(takeTrace().last(),
            "KZPreference::onHandleCheckForUpdatesAutomatically "
            "KZPreference::onHandleCheckForUpdatesAutomatically, check for updates is in progress");

  // Success leaves the flag to the host; failure clears it and tells the user.
  notify(8, Dictionary{{kKZResult, kKZSuccess}});
  EXPECT_TRUE(KZUtility::sharedInstance().isCheckForUpdatesInProgress());
  notify(8,
         Dictionary{{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, "No server"}}}});
  EXPECT_FALSE(KZUtility::sharedInstance().isCheckForUpdatesInProgress());
  EXPECT_EQ(m_warnings, QStringList{"Brenn Mivra Meetings|No server"});
}

TEST_F(CommandTest, ProximityWantsTheHostsOwnObject) {
  store().setVideoDevice({{"other", 1}, {kKZVideoDeviceAutodetect, false}});
  QString equal = kstartDetectVD;
  equal.detach();
  for (const QVariant& value : {QVariant(equal), QVariant(1), QVariant(QString()), QVariant()}) {
    command(20, Dictionary{{kproximityCommand, value}});
    EXPECT_EQ(store().videoDevice().size(), 2);
  }
  command(20);
  Dictionary content{{kproximityCommand, kstartDetectVD}};
  content.insert("detached", true);
  command(20, content);
  EXPECT_EQ(store().videoDevice(), (Dictionary{{kKZVideoDeviceAutodetect, true}}));
  EXPECT_EQ(takeSent(), QStringList());
}

TEST_F(CommandTest, OnlyAStoredLinkIsOpened) {
  QStringList opened;
  KZWorkspace::sharedWorkspace().setOpener([&](const QUrl& url) {
    opened.append(url.toString());
    return true;
  });
  const Dictionary join{
      {"kz", Dictionary{{"customInfo", R"({"AppActionType":"AppActionType_JoinByNumber"})"}}}};
  notify(7, join);
  KZUtility::sharedInstance().setKZMemCacheData(kPreferences_JoinByNumberLink, 5);
  notify(7, join);
  EXPECT_EQ(opened, QStringList());
  KZUtility::sharedInstance().setKZMemCacheData(kPreferences_JoinByNumberLink, "https://example.com/join");
  notify(7, join);
  EXPECT_EQ(opened, QStringList{"https://example.com/join"});
  EXPECT_EQ(window(), nullptr);
  KZUtility::sharedInstance().setKZMemCacheData(kPreferences_JoinByNumberLink, QVariant());
  KZWorkspace::sharedWorkspace().setOpener({});
}

TEST_F(CommandTest, SendsNothingWithoutAHostAndAnswersWhatTheHostAnswers) {
  EXPECT_EQ(m_core->sendPluginCommand(14, std::nullopt), 17U);
  m_core->setDelegate(nullptr);
  EXPECT_EQ(m_core->sendPluginCommand(14, std::nullopt), 0U);
  EXPECT_EQ(takeSent(), QStringList{"14 nil"});
}

TEST_F(CommandTest, PersonalRoomAddressesAreLive) {
  const QString& join = m_core->pmrJoinUrl();
  EXPECT_FALSE(join.isNull());
  m_core->setPMRJoinUrl("https://a", "sip:a");
  m_core->setPMRJoinUrl(QString(), "sip:b");
  EXPECT_EQ(join, "https://a");
  EXPECT_EQ(m_core->pmrSipUrl(), "sip:b");
  m_core->setPMRJoinUrl("", QString());
  EXPECT_EQ(join, "");
}

TEST(HostInformation, NamesTheFirstMeeting) {
  const auto mivra = [](const char* key) {
    return QStringLiteral("<MivRa><MeetingInfo><MeetingKey>%1</MeetingKey></MeetingInfo></MivRa>").arg(key);
  };
  const struct {
    QString xml;
    QString key;
  } rows[] = {
      {"<r>" + mivra("1") + mivra("2") + "</r>", "1"},
      {"<any><x>" + mivra("0") + "</x>" + mivra("a&amp;b") + "</any>", "a&b"},
      {"<r><MivRa><MeetingInfo/></MivRa>" + mivra("2") + "</r>", QString()},
      {mivra("1"), QString()},
      {"<r>" + mivra("1"), QString()},
      {"<!DOCTYPE r [<!ENTITY e 'x'>]><r>" + mivra("&e;") + "</r>", QString()},
      {"", QString()},
  };
  for (const auto& row : rows) {
    const QString key = KZPreference::paserMeetingKey(row.xml);
    EXPECT_EQ(key, row.key) << qPrintable(row.xml);
    EXPECT_EQ(key.isNull(), row.key.isNull()) << qPrintable(row.xml);
  }
  EXPECT_TRUE(KZPreference::getBrennOI({{"BrennOI", 3}}).isNull());
}

}  // namespace
