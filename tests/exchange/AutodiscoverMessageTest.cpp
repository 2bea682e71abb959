#include "companion/exchange/AutodiscoverMessage.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>

#include "companion/exchange/ExchangeMeetings.h"

namespace {

using Kind = AutodiscoverResponse::Kind;

struct ResponseCase {
  const char* name;
  QByteArray xml;
  Kind kind;
};

QByteArray account(const QByteArray& content) {
  return "<a:Autodiscover xmlns:a='urn:x'><Response><Account>" + content +
         "</Account></Response></a:Autodiscover>";
}

class AutodiscoverResponseTest : public testing::TestWithParam<ResponseCase> {};

TEST_P(AutodiscoverResponseTest, IsWhatItSays) {
  EXPECT_EQ(readAutodiscoverResponse(GetParam().xml).kind, GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(
    Responses, AutodiscoverResponseTest,
    testing::Values(
        ResponseCase{"Empty", "", Kind::Unreadable},
        ResponseCase{"CutOff", account("<Action>settings</Action>").chopped(5), Kind::Unreadable},
        ResponseCase{"NoAction", account("<Protocol/>"), Kind::Unreadable},
        ResponseCase{"Settings", account("<Action>settings</Action>"), Kind::Services},
        ResponseCase{"NoAddress", account("<Action>redirectAddr</Action>"), Kind::Unreadable},
        ResponseCase{"BadUrl", account("<Action>redirectUrl</Action><RedirectUrl>:</RedirectUrl>"),
                     Kind::Unreadable},
        ResponseCase{"Deep", QByteArray("<x>").repeated(300'000), Kind::Unreadable},
        ResponseCase{"DocumentType", "<!DOCTYPE a>" + account("<Action>settings</Action>"), Kind::Unreadable},
        ResponseCase{"UnknownEntity", account("<Action>&settings;</Action>"), Kind::Unreadable},
        ResponseCase{"BadUtf8", account("<Action>settings\xff\xfe</Action>"), Kind::Unreadable}),
    [](const auto& test) { return test.param.name; });

TEST(AutodiscoverMessageTest, TakesOnlySecureAddressesOfTheRightProtocols) {
  const AutodiscoverResponse answer = readAutodiscoverResponse(
      account("<Action>settings</Action>"
              "<Protocol><Type>WEB</Type><EwsUrl>https://web.example/</EwsUrl></Protocol>"
              "<Protocol><Type>EXHTTP</Type><EwsUrl> https://newer.example/ </EwsUrl></Protocol>"
              "<Protocol><Type>EXCH</Type><EwsUrl>http://plain.example/</EwsUrl></Protocol>"));
  EXPECT_EQ(answer.services.externalUrl, QUrl("https://newer.example/"));
  EXPECT_TRUE(answer.services.internalUrl.isEmpty());
}

TEST(AutodiscoverMessageTest, KeepsAnEmailOfAnyCharactersInItsPlace) {
  const QString email("a<b>&'\"\u202e@x.example");
  QXmlStreamReader reader(autodiscoverRequest(email));
  QString found;
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"EMailAddress") {
      found = reader.readElementText();
    }
  }
  EXPECT_FALSE(reader.hasError());
  EXPECT_EQ(found, email);
}

TEST(MeetingMessageTest, RefusesAnswersThatAreNone) {
  EXPECT_FALSE(readMeetings("<html/>"));
  EXPECT_FALSE(readMeetings("<x><ResponseCode>ErrorAccessDenied</ResponseCode></x>"));
  const auto meetings = readMeetings(
      "<x><ResponseCode>NoError</ResponseCode><CalendarItem><Subject>a</Subject><Start>never</Start>"
      "</CalendarItem><CalendarItem><Start>2030-01-01T10:00:00+02:00</Start></CalendarItem></x>");
  ASSERT_TRUE(meetings);
  ASSERT_EQ(meetings->size(), 1);
  EXPECT_EQ(meetings->first().start.toString(Qt::ISODate), "2030-01-01T08:00:00Z");
}

}  // namespace
