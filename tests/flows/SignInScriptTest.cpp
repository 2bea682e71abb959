#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "tests/kit/SessionRun.h"
#include "tests/kit/TokenProvider.h"

namespace {

QString line(const QJsonObject& step) {
  return QString::fromUtf8(QJsonDocument(step).toJson(QJsonDocument::Compact));
}

QString signIn(const TokenProvider& provider) {
  const QJsonObject parameters{{"authority", provider.authority()},
                               {"resource", "https://mail.example"},
                               {"clientId", "client-1"},
                               {"redirectUri", "urn:ietf:wg:oauth:2.0:oob"},
                               {"email", "ann@brenn.example"}};
  return line({{"notify", 26},
               {"content", QJsonObject{{"kKZResult", "kKZSuccess"},
                                       {"QRT_ExchangeDiscover_O365LoginParams", line(parameters)}}}});
}

TEST(SignInScript, PressesWhatAUserWouldInTheWindowThatWaitsForTheBrowser) {
  const TokenProvider provider;
  const QString get = line({{"get", "signIn"}});
  const QString wait = line({{"wait", 300}});
  const SessionRun run =
      runSession({get, signIn(provider), wait, get, line({{"click", "m_continueBtn"}}),
                  line({{"click", "m_openAgainBtn"}}), line({{"click", "ADSignInDialog/m_copyBtn"}}),
                  line({{"get", "pasteboard"}}), line({{"click", "m_cancelBtn"}}), get, signIn(provider),
                  wait, line({{"type", "m_codeTxt"}, {"text", "pasted-code"}}), get,
                  line({{"click", "m_continueBtn"}}), wait, get, line({{"click", "m_cancelBtn"}})});
  EXPECT_EQ(run.status, 2) << run.complaints.toStdString();
  EXPECT_EQ(run.last().value("error"), "there is no control m_cancelBtn");
  const QString none = line({{"result", QJsonValue()}});
  QStringList lines = run.lines;
  EXPECT_EQ(lines.value(0), none);
  QString page = run.object(1).value("opened").toString();
  EXPECT_TRUE(page.startsWith(provider.authority() + "/authorize?")) << qPrintable(run.lines.join('\n'));
  const QJsonObject shown = run.object(2).value("result").toObject();
  EXPECT_EQ(shown.value("title"), "Sign in");
  EXPECT_TRUE(shown.value("message").toString().startsWith("Sign in in your browser."));
  EXPECT_EQ(shown.value("address"), page);
  EXPECT_EQ(shown.value("code"), "");
  EXPECT_EQ(run.lines.value(3), line({{"refused", "m_continueBtn is disabled"}}));
  EXPECT_EQ(run.object(4).value("opened"), page);
  EXPECT_EQ(run.object(5).value("result"), page);
  EXPECT_EQ(run.lines.count(none), 3) << "the window stays after it was cancelled, or after the code";
  EXPECT_TRUE(run.lines.join('\n').contains(R"("code":"pasted-code")"));
  ASSERT_EQ(provider.requests().size(), 1);
  EXPECT_EQ(provider.requests().first().queryItemValue("code"), "pasted-code");
}

}  // namespace
