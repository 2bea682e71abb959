#include <algorithm>

#include "KZPreference/core/KZPreference.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
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

// With this content every handler traces, sends or shows something.
TEST_F(CommandTest, HandlesExactlyTheNumbersThatTheTablesList) {
  const Dictionary content{{kproximityCommand, kstartDetectVD}, {kKZResult, kKZFail}};
  const auto didSomething = [this] {
    const bool isSilent = takeTrace().isEmpty();
    return !takeSent().isEmpty() || !isSilent || !m_warnings.isEmpty();
  };
  const auto isCommand = [](quint64 number) {
    return std::ranges::any_of(kzCommandTable(), [number](const KZCommandRow& row) {
      return row.direction == KZDirection::ToPlugin && static_cast<quint64>(row.number) == number;
    });
  };
  const auto isNotification = [](quint64 index) {
    return std::ranges::any_of(kzNotifyTable(), [index](const KZNotifyRow& row) {
      return static_cast<quint64>(row.index) == index;
    });
  };
  std::vector<quint64> numbers{(1ULL << 32) + 2, (1ULL << 63) + 3, ~0ULL};
  for (quint64 number = 0; number < 64; ++number) numbers.push_back(number);
  didSomething();
  for (const quint64 number : numbers) {
    command(number, content);
    EXPECT_EQ(didSomething(), isCommand(number)) << "command " << number;
    const auto index = static_cast<quint32>(number >> 32 == 0 ? number : ~0U);
    notify(index, content);
    EXPECT_EQ(didSomething(), isNotification(index)) << "notification " << index;
    m_warnings.clear();
  }
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

TEST_F(CommandTest, ACheckForUpdatesNamesTheCdnWhenItIsKnown) {
  store().setSiteName("meet.example.com");
  store().setCdnUrl("https://cdn.example.com");
  command(9);
  EXPECT_EQ(takeSent(),
            QStringList{R"(9 {"AppActionType":"CheckForUpdates","QRT_LoginResult_cdnUrl":)"
                        R"("https://cdn.example.com","QRT_LoginResult_site":"meet.example.com"})"});
}

TEST_F(CommandTest, ProximityWantsTheHostsOwnObject) {
  store().setVideoDevice({{"other", 1}, {kKZVideoDeviceAutodetect, false}});
  QString equal = kstartDetectVD;
  equal.detach();
  for (const QVariant& value : {QVariant(equal), QVariant(1), QVariant(QString()), QVariant()}) {
    command(20, Dictionary{{kproximityCommand, value}});
    EXPECT_EQ(store().videoDevice()->size(), 2);
  }
  command(20);
  Dictionary content{{kproximityCommand, kstartDetectVD}};
  content.insert("detached", true);
  command(20, content);
  EXPECT_EQ(store().videoDevice(), (Dictionary{{kKZVideoDeviceAutodetect, true}}));
  EXPECT_EQ(takeSent(), QStringList());
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
  EXPECT_EQ(KZPreference::paserMeetingKey(
                "<r><MivRa><MeetingInfo><MeetingKey>1</MeetingKey></MeetingInfo></MivRa></r>"),
            "1");
  EXPECT_TRUE(KZPreference::getBrennOI({{"BrennOI", 3}}).isNull());
}

}  // namespace
