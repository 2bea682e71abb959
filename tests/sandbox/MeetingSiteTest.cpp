#include "sandbox/MeetingSite.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include "tests/sandbox/Visitor.h"

namespace {

// What a client gets that asks a site, then for its updates, then for the package.
enum class Expected { Good, BadHash, TooLong, NoJson, ServerError, Nothing, WrongCertificate, LedRound };

struct WayCase {
  const char* name;
  const char* site;
  Expected expected;
};

class MeetingSiteTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!m_service.listen()) GTEST_SKIP() << "the openssl program is missing: no certificate for the sandbox";
    visitor.places = m_service.describe();
  }

  Visitor::Answer askSite(const QString& site) {
    return visitor.get("https://" + site + "/companion/site.json");
  }

  // Where the site has its downloads.
  static QUrl downloadsOf(const QString& site, const QJsonObject& content) {
    return content.value("downloads").toString("https://" + site);
  }

  static QJsonObject jsonOf(const Visitor::Answer& answer) {
    return QJsonDocument::fromJson(answer.body).object();
  }

  Visitor visitor;

 private:
  sandbox::MeetingSite m_service;
};

class MeetingSiteWayTest : public MeetingSiteTest, public testing::WithParamInterface<WayCase> {
 protected:
  void expectFault(const Visitor::Answer& answer) {
    switch (GetParam().expected) {
      case Expected::NoJson:
        EXPECT_EQ(answer.status, 200);
        EXPECT_TRUE(QJsonDocument::fromJson(answer.body).isNull());
        return;
      case Expected::ServerError:
        EXPECT_EQ(answer.status, 500);
        return;
      case Expected::Nothing:
        EXPECT_EQ(answer.error, QNetworkReply::TimeoutError);
        EXPECT_EQ(answer.status, 0);
        return;
      case Expected::WrongCertificate:
        EXPECT_EQ(answer.error, QNetworkReply::SslHandshakeFailedError);
        return;
      case Expected::LedRound: {
        const Visitor::Answer next = visitor.get(QUrl(answer.location));
        EXPECT_EQ(next.status, 302);
        EXPECT_NE(next.location, answer.location);
        return;
      }
      default:
        FAIL() << "this site answers";
    }
  }

  void expectPackage(const Visitor::Answer& answer, const QJsonObject& manifest) {
    const qint64 promised = manifest.value("bytes").toInteger();
    if (GetParam().expected == Expected::TooLong) {
      EXPECT_GT(answer.body.size(), promised);
      return;
    }
    EXPECT_EQ(answer.body.size(), promised);
    const QByteArray hash = QCryptographicHash::hash(answer.body, QCryptographicHash::Sha256).toHex();
    EXPECT_EQ(hash == manifest.value("sha256").toString().toLatin1(), GetParam().expected == Expected::Good);
  }
};

TEST_P(MeetingSiteWayTest, DoesWhatItsMeaningSays) {
  const bool answers = GetParam().expected == Expected::Good || GetParam().expected == Expected::BadHash ||
                       GetParam().expected == Expected::TooLong;
  if (GetParam().expected == Expected::Nothing) visitor.patience = std::chrono::milliseconds(1500);
  const QString site = GetParam().site;
  const Visitor::Answer first = askSite(site);
  if (!answers) return expectFault(first);
  ASSERT_EQ(first.status, 200);
  const QUrl manifestUrl = downloadsOf(site, jsonOf(first)).resolved(QUrl("/companion/updates.json"));
  const QJsonObject manifest = jsonOf(visitor.get(manifestUrl));
  ASSERT_FALSE(manifest.value("version").toString().isEmpty());
  visitor.mostBytes = manifest.value("bytes").toInteger();
  expectPackage(visitor.get(manifestUrl.resolved(QUrl(manifest.value("package").toString()))), manifest);
}

INSTANTIATE_TEST_SUITE_P(
    Sites, MeetingSiteWayTest,
    testing::Values(WayCase{"Works", "meetings.sandbox.example", Expected::Good},
                    WayCase{"Current", "current.sandbox.example", Expected::Good},
                    WayCase{"Silent", "silent.meetings.sandbox.example", Expected::Nothing},
                    WayCase{"ServerError", "error.meetings.sandbox.example", Expected::ServerError},
                    WayCase{"OtherName", "certificate.meetings.sandbox.example", Expected::WrongCertificate},
                    WayCase{"Loop", "loop.meetings.sandbox.example", Expected::LedRound},
                    WayCase{"Garbage", "garbage.meetings.sandbox.example", Expected::NoJson},
                    WayCase{"Huge", "huge.meetings.sandbox.example", Expected::TooLong},
                    WayCase{"Damaged", "damaged.meetings.sandbox.example", Expected::BadHash}),
    [](const auto& test) { return test.param.name; });

TEST_F(MeetingSiteTest, EverySiteThatIsToldOfIsPlayed) {
  visitor.patience = std::chrono::milliseconds(300);
  const QJsonArray sites = visitor.places.value("sites").toArray();
  EXPECT_FALSE(sites.isEmpty());
  for (const QJsonValue& one : sites) {
    const QString site = one["site"].toString();
    EXPECT_FALSE(one["meaning"].toString().isEmpty()) << site.toStdString();
    EXPECT_NE(askSite(site).status, 404) << site.toStdString();
  }
}

TEST_F(MeetingSiteTest, TheSlowSiteSendsItsUpdateInPieces) {
  const QString site("slow.meetings.sandbox.example");
  QElapsedTimer clock;
  clock.start();
  const QJsonObject manifest = jsonOf(visitor.get("https://" + site + "/companion/updates.json"));
  EXPECT_GE(clock.restart(), 1000);
  const Visitor::Answer package = visitor.get("https://" + site + manifest.value("package").toString());
  EXPECT_GE(clock.elapsed(), 3500);
  EXPECT_EQ(package.body.size(), manifest.value("bytes").toInteger());
  EXPECT_GT(package.pieces, 20);
}

TEST_F(MeetingSiteTest, LinksLeadToPagesOnThisMachine) {
  const QJsonObject links = jsonOf(askSite("meetings.sandbox.example")).value("links").toObject();
  EXPECT_EQ(links.size(), 2);
  for (const QJsonValue& link : links) {
    const QUrl address(link.toString());
    EXPECT_EQ(address.host(), "127.0.0.1");
    const Visitor::Answer page = visitor.get(address);
    EXPECT_EQ(page.status, 200);
    EXPECT_TRUE(page.contentType.startsWith("text/html"));
    EXPECT_TRUE(page.body.contains("<title>"));
  }
}

}  // namespace
