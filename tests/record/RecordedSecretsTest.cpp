#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include "companion/record/SecretNames.h"
#include "host/KZFoundation/KZConstants.h"
#include "tests/record/PlayedRecord.h"

namespace {

QString json(const QJsonObject& object) {
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

TEST(RecordedSecrets, AreNowhereInTheFile) {
  const QString typed = "pass \"word\" \u00fc/+&";
  const QString stored = "st0red-secret";
  const QString access = "acc3ss.token";
  const QString refresh = "r3fresh.token";
  const QString inJson = "nested-s3cret";
  const QString code = "c0de";
  const PlayedRecord record(
      {json({{"set", "keychain"}, {"username", "ann"}, {"password", stored}}),
       json({{"set", "tokens"},
             {"items", QJsonArray{QJsonObject{{"userId", "ann@brenn.example"},
                                              {"resource", "r"},
                                              {"accessToken", access},
                                              {"refreshToken", refresh},
                                              {"expiresIn", 3600}}}}}),
       R"({"command": 2})", R"({"pane": "Meetings"})", R"({"wait": 400})",
       R"({"type": "m_emailInputTxt", "text": "ann@brenn.example"})", R"({"click": "m_detectBtn"})",
       json({{"notify", 26},
             {"content",
              QJsonObject{{"kKZResult", "kKZSuccess"},
                          {"QRT_ExchangeDiscover_ExchangeType", "QRT_ExchangeDiscover_ExchangeTypeOnpremise"},
                          {"extra", json({{"client_secret", inJson}})},
                          {"page", "https://x.example/?code=" + code},
                          {"message", "refused: " + access + " and " + code}}}}),
       json({{"type", "m_usernameInputTxt"}, {"text", "ann"}}),
       json({{"type", "m_passwordInputTxt"}, {"text", typed}}), R"({"click": "m_applyBtn"})",
       R"({"post": "HTTPAuthenticationRequired", "userInfo": {"AuthRequiringType": 1}, "thread": "worker"})",
       R"({"command": 28, "content": {"email": "ann@brenn.example"}})"});
  ASSERT_EQ(record.run().status, 0) << qPrintable(record.run().complaints);
  const QByteArray bytes = record.bytes();
  for (const QString& secret : {typed, stored, access, refresh, inJson, code}) {
    const QString escaped = json({{"", secret}});
    EXPECT_FALSE(bytes.contains(escaped.mid(5, escaped.size() - 7).toUtf8())) << bytes.toStdString();
  }
  // One secret is one name, wherever it stands.
  const QString name = QJsonDocument::fromJson(record.lines().filter("m_passwordInputTxt").value(0).toUtf8())
                           .object()
                           .value("text")
                           .toString();
  EXPECT_TRUE(bytes.contains("\"QRT_CredentialContent\":\"ann:" + name.toUtf8() + '"'))
      << bytes.toStdString();
  EXPECT_TRUE(bytes.contains("\"Password\":\"" + name.toUtf8() + '"'));
  const SessionRun checked = record.check();
  EXPECT_EQ(checked.status, 0) << qPrintable(checked.lines.value(checked.lines.size() - 1));
}

TEST(SecretNames, StayTheSame) {
  SecretNames names;
  EXPECT_EQ(names.nameOf("one").toStdString(), "secret-1");
  EXPECT_EQ(names.nameOf("secret-2").toStdString(), "secret-2");
  EXPECT_EQ(names.nameOf("three").toStdString(), "secret-3");
  EXPECT_EQ(names.nameOf("one").toStdString(), "secret-1");
  EXPECT_EQ(names.nameOf("my-secret-1").toStdString(), "secret-4");
  EXPECT_TRUE(names.nameOf("").isEmpty());
}

TEST(SecretNames, StandWhereTheSecretsStood) {
  struct Row {
    const char* member;
    QJsonValue before;
    QJsonValue after;
  };
  const QJsonObject bytes{{"$data", QString::fromLatin1(QByteArray("hush-hush").toBase64())}};
  const QJsonObject named{{"$data", QString::fromLatin1(QByteArray("secret-3").toBase64())}};
  const Row rows[] = {
      {"content", QJsonObject{{"password", "hush"}}, QJsonObject{{"password", "secret-2"}}},
      {"content", QJsonObject{{"password", bytes}}, QJsonObject{{"password", named}}},
      {"content", QJsonObject{{"QRT_CredentialContent", "a\\b:hush"}},
       QJsonObject{{"QRT_CredentialContent", "a\\b:secret-2"}}},
      {"content", QJsonObject{{"token", QJsonArray{"hush", 7}}},
       QJsonObject{{"token", QJsonArray{"secret-2", "secret-4"}}}},
      {"content", QJsonArray{"a hush, a hush-hush, pw, hus"}, QJsonArray{"a secret-2, a secret-3, pw, hus"}},
      {"opened", "https://x.example/hush?state=s&a=b", "https://x.example/secret-2?state=secret-5&a=b"},
      // No secrets.
      {"content",
       QJsonObject{{"accessTokenResult", "@kKZSuccess"}, {"isTokenExpired", true}, {"token", QJsonValue()}},
       QJsonObject{{"accessTokenResult", "@kKZSuccess"}, {"isTokenExpired", true}, {"token", QJsonValue()}}},
      // What names a control stays, or the line would not play.
      {"pane", "hush", "hush"},
  };
  SecretNames names;
  for (const char* secret : {"pw", "hush", "hush-hush"}) (void)names.nameOf(secret);
  for (const Row& row : rows) {
    const QJsonValue open = names.withoutSecrets(row.member, row.before);
    EXPECT_EQ(open, row.after) << json({{row.member, open}}).toStdString();
  }
}

// A password may be what the names are made of.
TEST(SecretNames, AreNotReplacedThemselves) {
  SecretNames names;
  (void)names.nameOf("secret");
  const QJsonObject content{{"password", "other"}, {"text", "secret-9"}};
  const QJsonValue open = names.withoutSecrets("content", content);
  EXPECT_EQ(open, (QJsonObject{{"password", "secret-2"}, {"text", "secret-9"}}));
}

// A bound that time which grows with the square would miss by far.
TEST(SecretNames, ManySecretsCostLittle) {
  constexpr int kSecrets = 5'000;
  SecretNames names;
  QElapsedTimer timer;
  timer.start();
  for (int number = 0; number < kSecrets; ++number) {
    const QString token = QStringLiteral("access-%1").arg(number, 24, 10, QChar(u'0'));
    const QJsonObject content{{"token", token},
                              {"message", "The server refused access-0 and " + token + "."}};
    ASSERT_FALSE(json({{"", names.withoutSecrets("content", content)}}).contains(token));
  }
  EXPECT_LT(timer.elapsed(), 5'000);
}

}  // namespace
