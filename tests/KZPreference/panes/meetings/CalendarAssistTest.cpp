#include "KZPreference/panes/meetings/CalendarIntegrationAssist.h"

#include <gtest/gtest.h>

#include <QLocale>

#include "KZPreference/panes/meetings/CalendarIntegrationMessage.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

TEST(CalendarIntegrationAssist, AnAddressHasSomethingOnBothSidesOfOneAtSign) {
  const CalendarIntegrationAssist assist;
  for (const char* email : {"a@b", "a @ b", " @ ", "ann@brenn.example",
                            "\xE2\x80\x8F"
                            "a@\xE2\x80\x8E"})
    EXPECT_TRUE(assist.isValidEmailAddress(QString::fromUtf8(email))) << email;
  for (const char* email : {"", "@", "a@", "@b", "a", "a@@b", "a@b@c", "a@b@", "@a@b"})
    EXPECT_FALSE(assist.isValidEmailAddress(QString::fromUtf8(email))) << email;
  EXPECT_FALSE(assist.isValidEmailAddress(QString()));
}

TEST(CalendarIntegrationAssist, AppliedMeansAServiceAndACredentialThatFitsIt) {
  const CalendarIntegrationAssist assist;
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  store.close();
  EXPECT_FALSE(assist.isOLAccountApplied());
  struct Case {
    QVariant external;
    QVariant internal;
    QVariant online;
    QString username;
    QString password;
    bool isApplied;
  };
  const QString url = QStringLiteral("https://x.example");
  const Case cases[] = {
      {QVariant(), url, QVariant(), "ann", "pw", true},
      {url, QVariant(), false, "ann", "pw", true},
      {url, url, QVariant(), "ann", "", false},
      {url, url, QVariant(), "", "pw", false},
      {"", "", QVariant(), "ann", "pw", false},
      {1, QVariantList(), QVariant(), "ann", "pw", false},
      {url, url, true, "ann", "pw", false},
      {url, url, "true", "ann", "pw", true},
  };
  for (const Case& tried : cases) {
    Dictionary exchange{{kKZCalendarIntegrationExchangeEmail, QStringLiteral("ann@brenn.example")}};
    if (tried.external.isValid()) exchange.insert(kKZCalendarIntegrationExchangeExternalUrl, tried.external);
    if (tried.internal.isValid()) exchange.insert(kKZCalendarIntegrationExchangeInternalUrl, tried.internal);
    if (tried.online.isValid()) exchange.insert(kKZCalendarIntegrationIsOnline, tried.online);
    store.setCalendarIntegration({{kKZCalendarIntegrationExchange, exchange}});
    KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
    KZKeyChainHandle::sharedInstance().commitOutlookUsername(tried.username, tried.password);
    EXPECT_EQ(assist.isOLAccountApplied(), tried.isApplied) << (&tried - cases);
  }
  store.close();
}

TEST(CalendarIntegrationMessage, KeepsItsTextFieldAndOutlivesIt) {
  auto line = std::make_unique<StaticText>(QString(), FontRole::Label, 13);
  CalendarIntegrationMessage message;
  message.showSuccessMessage();
  message.setMessageTxt(line.get());
  message.setMessageTxt(nullptr);
  message.showInvalidEmailMessage();
  EXPECT_EQ(line->text(), "Invalid email address");
  message.hideMessage();
  message.showErrorMessage({});
  EXPECT_TRUE(line->isHidden());
  EXPECT_EQ(line->text(), "Invalid email address");
  line.reset();
  message.showSuccessMessage();
  message.hideMessage();
}

TEST(CalendarIntegrationMessage, ShowsATextOfTheHostAsItIs) {
  QLocale::setDefault(QLocale(QLocale::German));
  StaticText line(QString(), FontRole::Label, 13);
  CalendarIntegrationMessage message;
  message.setMessageTxt(&line);
  for (const char* text : {"Applied failed", "Account"}) {
    message.showErrorMessage({{kKZErrorHandleData, Dictionary{{kKZErrorMessage, text}}}});
    EXPECT_EQ(line.text(), text);
  }
  QLocale::setDefault(QLocale::c());
}

}  // namespace
