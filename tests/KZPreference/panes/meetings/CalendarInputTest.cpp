#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPointer>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "tests/KZPreference/panes/meetings/PreferenceHost.h"

namespace {

using Variant = PreferenceHost::Variant;

// The value of that key in the last command that was sent.
QString sentText(PreferenceHost& host, const QString& key) {
  const QString last = host.takeSent().value(0);
  return QJsonDocument::fromJson(last.mid(last.indexOf(u' ')).toUtf8()).object().value(key).toString();
}

// A letter, a mark or a private character of each of the seventeen planes.
QString everyPlane() {
  QString text;
  for (char32_t plane = 0; plane <= 16; ++plane) {
    const char32_t sign = (plane << 16) + (plane == 14 ? 0x100 : 0x400);
    text += QString::fromUcs4(&sign, 1);
  }
  return text;
}

// The credential that the Exchange client gets for a challenge during discovery.
Dictionary answerToChallenge() {
  Dictionary answer;
  const auto token = KZNotificationCenter::defaultCenter().addObserver(
      QStringLiteral("HTTPAuthenticationDatasource"),
      [&answer](const KZNotification& notification) { answer = notification.userInfo; });
  PreferenceHost::challenge(1);
  return answer;
}

class CalendarInput : public testing::Test {
 protected:
  CalendarInput() { host.openMeetings(Variant::SignedIn); }

  void detect(const QString& email) {
    host.paste("m_emailInputTxt", email);
    host.takeSent();
    host.click("m_detectBtn");
  }

  PreferenceHost host;
};

TEST_F(CalendarInput, AddressesArePassedOnAsTheyAre) {
  const QString addresses[] = {
      QString(50'000, u'a') + u'@' + QString(49'999, u'b'),
      QStringLiteral("\u202Eann\u200F@\u2066brenn.example\u2069"),
      QStringLiteral("  ann @ brenn.example\t"),
      everyPlane() + u'@' + everyPlane(),
  };
  for (const QString& address : addresses) {
    detect(address);
    EXPECT_EQ(sentText(host, QRT_ExchangeDiscover_Email), address);
  }
  detect(QStringLiteral("ann@brenn@example"));
  EXPECT_EQ(host.takeSent(), QStringList());
}

TEST_F(CalendarInput, CredentialsArePassedOnExactlyAndPasswordsNeverTraced) {
  const struct {
    QString username;
    QString password;
  } credentials[] = {
      {QStringLiteral("BRENN\\ann"), everyPlane()},
      {QStringLiteral("a:b\r\nc\u2028d"), QStringLiteral("s\u00e9cret:%@ \"\\{}\n\t***")},
      {QStringLiteral(" ann "), QString(100'000, u'\u2603')},
  };
  for (const auto& credential : credentials) {
    detect(QStringLiteral("ann@brenn.example"));
    host.needCredential();
    host.paste("m_usernameInputTxt", credential.username);
    host.paste("m_passwordInputTxt", credential.password);
    host.takeSent();
    host.click("m_applyBtn");
    EXPECT_EQ(sentText(host, QRT_CredentialContent), credential.username + u':' + credential.password);
    const Dictionary answer = answerToChallenge();
    EXPECT_EQ(textValue(answer, QStringLiteral("Username")), credential.username);
    EXPECT_EQ(textValue(answer, QStringLiteral("Password")), credential.password);
    host.resolveWith(QStringLiteral("ann@brenn.example"));
    QString username;
    QString password;
    KZKeyChainHandle::sharedInstance().getOutlookUsername(&username, &password);
    EXPECT_EQ(username, credential.username);
    EXPECT_EQ(password, credential.password);
    for (const QString& line : host.takeTrace()) {
      EXPECT_FALSE(line.contains(credential.password)) << qPrintable(line.left(200));
      EXPECT_FALSE(line.contains(credential.password.left(6))) << qPrintable(line.left(200));
    }
  }
}

TEST_F(CalendarInput, TheAuthenticatorUsesTheOpenWindowsGroupOnly) {
  const auto answered = [] { return textValue(answerToChallenge(), QStringLiteral("Username")); };
  const auto typeUser = [this](const QString& name) {
    detect(QStringLiteral("ann@brenn.example"));
    host.needCredential();
    host.type("m_usernameInputTxt", name);
  };
  typeUser(QStringLiteral("first"));
  EXPECT_EQ(answered(), "first");
  const QPointer<QWidget> firstWindow = PreferenceHost::window();
  host.command(KZCommand::KZCmdInitGuestPreference);
  EXPECT_EQ(answered(), "");
  host.openMeetings();
  EXPECT_TRUE(firstWindow.isNull());
  typeUser(QStringLiteral("second"));
  EXPECT_EQ(answered(), "second");
  host.command(KZCommand::KZCmdDestroyPreference);
  EXPECT_EQ(answered(), "");
}

}  // namespace
