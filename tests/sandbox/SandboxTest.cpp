#include "sandbox/Sandbox.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "companion/exchange/SandboxDescription.h"
#include "companion/network/HttpCall.h"
#include "tests/kit/Input.h"

namespace {

class SandboxTest : public testing::Test {
 protected:
  void SetUp() override { startAnew(); }

  void startAnew() {
    played = std::make_unique<sandbox::Sandbox>("http://127.0.0.1:1", [](const QString&) { return false; });
    if (!played->listen()) GTEST_SKIP() << "the openssl program is missing: no certificate for the sandbox";
    description = SandboxDescription::fromJson(QJsonDocument(played->describe()).toJson());
    configuration = description.addedTo({}).network;
  }

  HttpResponse responseTo(const HttpRequest& request) {
    std::optional<HttpResponse> response;
    const HttpCall call(configuration, request, [&response](const HttpResponse& got) { response = got; });
    EXPECT_TRUE(kit::waitUntil([&response] { return response.has_value(); }));
    return response.value_or(HttpResponse());
  }

  bool letsIn(const QByteArray& credential) {
    return !responseTo({.address = QUrl("https://mail.corp.sandbox.example/EWS/Exchange.asmx"),
                        .body = "<x/>",
                        .authorization = "Basic " + credential.toBase64()})
                .isChallenge;
  }

  std::unique_ptr<sandbox::Sandbox> played;
  SandboxDescription description;
  NetworkConfiguration configuration;
};

TEST_F(SandboxTest, TheThirdRefusalLocksTheAccountUntilTheSandboxStartsAnew) {
  EXPECT_FALSE(letsIn("CORP\\locked:correct horse")) << "this one is always locked";
  EXPECT_FALSE(letsIn("CORP\\onprem:wrong"));
  EXPECT_TRUE(letsIn("CORP\\onprem:correct horse"));
  EXPECT_FALSE(letsIn("CORP\\onprem:wrong"));
  EXPECT_TRUE(letsIn("onprem@corp.sandbox.example:correct horse")) << "locked too early";
  EXPECT_FALSE(letsIn("CORP\\onprem:wrong"));
  EXPECT_FALSE(letsIn("CORP\\onprem:correct horse"));
  ASSERT_NO_FATAL_FAILURE(startAnew());
  EXPECT_TRUE(letsIn("CORP\\onprem:correct horse"));
}

TEST_F(SandboxTest, WorkingSitesAndTheirPagesAreThere) {
  for (const char* site :
       {"meetings.sandbox.example", "current.sandbox.example", "slow.meetings.sandbox.example"}) {
    const HttpResponse response =
        responseTo({.address = QUrl(QStringLiteral("https://%1/companion/site.json").arg(site))});
    const QJsonObject links = QJsonDocument::fromJson(response.body)["links"].toObject();
    EXPECT_EQ(links.size(), 2) << site;
    for (const QJsonValue& link : links) {
      EXPECT_TRUE(responseTo({.address = QUrl(link.toString())}).body.contains("This is the sandbox"))
          << link.toString().toStdString();
    }
  }
}

TEST(SandboxProgram, DescribesWithoutAServerWhatItPlays) {
  QProcess program;
  program.start(KZ_SANDBOX, {"--describe"});
  ASSERT_TRUE(program.waitForFinished());
  const SandboxDescription described = SandboxDescription::fromJson(program.readAllStandardOutput());
  EXPECT_TRUE(described.isEmpty()) << "no host is played";
  EXPECT_FALSE(described.accounts.isEmpty() || described.sites.isEmpty());
  for (const auto& account : described.accounts) {
    EXPECT_TRUE(account.email.contains(u'@') && !account.meaning.isEmpty()) << account.email.toStdString();
  }
  for (const auto& site : described.sites) EXPECT_FALSE(site.meaning.isEmpty()) << site.site.toStdString();
}

TEST(SandboxProgram, LeavesNoFileBehindHoweverItEnds) {
  if (QStandardPaths::findExecutable("openssl").isEmpty()) GTEST_SKIP() << "openssl is missing";
  for (const bool isKilled : {true, false}) {
    const QTemporaryDir folder;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", folder.path());
    program.setProcessEnvironment(environment);
    program.start(KZ_SANDBOX, {});
    while (!program.canReadLine()) ASSERT_TRUE(program.waitForReadyRead(20'000));
    const QByteArray line = program.readLine();
    EXPECT_FALSE(SandboxDescription::fromJson(line).isEmpty());
    EXPECT_TRUE(line.contains("CERTIFICATE") && !line.contains("PRIVATE KEY"));
    isKilled ? program.kill() : program.terminate();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
  }
}

}  // namespace
