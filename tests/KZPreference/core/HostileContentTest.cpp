#include <QElapsedTimer>
#include <QTest>
#include <limits>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

const char* const kKeysThatAreRead =
    "kz BrennOI customInfo disableCalendarIntegration enableListGoogleCalendarMeeting O365LoginData "
    "O365LoginParams kKZResult kKZErrorHandleData kOpenPrefsViewType kproximityCommand "
    "TelemetryKey_ActionFrom "
    "kKZCalendarIntegration kKZCalendarIntegrationSource kKZCalendarIntegrationExchange "
    "QRT_Preference_PMRUrl "
    "QRT_Preference_PMRSipUrl QRT_ExchangeDiscover_ExchangeType QRT_ExchangeDiscover_O365LoginParams "
    "QRT_ExchangeDiscover_Exchange";

QVariantList valuesOfEveryType() {
  return {QVariant(),
          QVariant::fromValue(nullptr),
          QString(),
          QString("{}"),
          QString("[[[[") + QChar(0xD800),
          QString(QChar(0)),
          5,
          -1.5,
          std::numeric_limits<double>::quiet_NaN(),
          true,
          QByteArray("\xFF\x00\xFE", 3),
          QVariantList{1, QVariantMap{}},
          QVariantMap{{"", QVariant()}},
          QVariantMap{{kKZErrorMessage, 3}, {kKZCalendarIntegrationExchange, true}}};
}

class HostileContentTest : public RecordingHost {
 protected:
  void playAll(const Dictionary& content) {
    for (const quint64 number : {10, 17, 20, 28, 8, 9, 2}) command(number, content);
    for (const quint32 index : {7U, 8U, 12U, 15U, 25U, 26U}) notify(index, content);
  }
};

TEST_F(HostileContentTest, WrongTypesEverywhereCountAsAbsent) {
  for (const QVariant& value : valuesOfEveryType()) {
    Dictionary content;
    for (const QString& key : QString(kKeysThatAreRead).split(' ')) content.insert(key, value);
    playAll(content);
    content.remove(kKZResult);
    content.insert("kz", Dictionary(content));
    playAll(content);
  }
  const Dictionary stored = KZPlistFileHandle::sharedInstance().preferenceInfo().value_or(Dictionary());
  for (const QVariant& address : stored) EXPECT_EQ(address.metaType(), QMetaType::fromType<QString>());
  EXPECT_EQ(controllerClass(), "SignInPreferenceWindowController");
  EXPECT_TRUE(window()->isVisible());
}

TEST_F(HostileContentTest, AStoreOfWrongTypesOpensWithTheDefaults) {
  auto& store = KZPlistFileHandle::sharedInstance();
  for (const QVariant& value : valuesOfEveryType()) {
    for (const char* key :
         {"preferenceInfo", "meetingNotification", "videoDevice", "calendarIntegration", "siteName", "cdnUrl",
          "userName", "displayName", "launchAtLogin", "enableOutlookKZPlugin"}) {
      store.setValue(QString::fromLatin1(key), value);
    }
    store.setMeetingNotification(
        {{kKZMeetintNotificationToast, value}, {kKZMeetintNotificationToastMinutes, value}});
    for (const quint64 number : {3, 2, 1, 2}) command(number);
    settle();
    EXPECT_TRUE(window()->isVisible());
  }
}

// With a profile of a megabyte every pane opens and fades, and the window stays on the screen.
TEST_F(HostileContentTest, AMegabyteOfTextOpensInTime) {
  const QString huge(1024 * 1024, u'W');
  auto& store = KZPlistFileHandle::sharedInstance();
  store.setDisplayName(huge);
  store.setUserName(huge + "@example.com");
  store.setSiteName(huge);
  QElapsedTimer time;
  time.start();
  notify(7, Dictionary{
                {"kz", Dictionary{{QRT_Preference_PMRUrl, huge}, {"customInfo", huge}, {"BrennOI", huge}}}});
  for (const quint64 number : {2, 1, 2}) {
    command(number);
    if (number == 1) continue;
    for (const char* pane : {"Account", "Meetings", "General"}) clickPane(pane);
    settle();
    EXPECT_LE(window()->width(), window()->screen()->availableSize().width());
  }
  notify(8, Dictionary{{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, huge}}}});
  EXPECT_LT(time.elapsed(), 20'000);
}

TEST_F(HostileContentTest, MalformedJsonInsideJsonStartsNoSignIn) {
  for (const char* data : {"", "{", "[]", R"({"O365LoginParams":3})", R"({"O365LoginParams":"{"})",
                           R"({"O365LoginParams":"[[]]"})"}) {
    notify(25, Dictionary{{"O365LoginData", data}});
  }
  QStringList sent = takeSent();
  sent.removeIf([](const QString& line) { return line.startsWith("29 "); });
  EXPECT_EQ(sent, QStringList());
}

}  // namespace
