#include "companion/exchange/ExchangeMeetings.h"

#include "host/KZFoundation/KZConstants.h"
#include "tests/exchange/DiscoveryFixture.h"

namespace {

class ExchangeMeetingsTest : public DiscoveryFixture {
 protected:
  void list(const Dictionary& exchange, const QString& token = QString()) {
    meetings = std::make_unique<ExchangeMeetings>(
        configuration, [this](const QList<ExchangeMeeting>& rows, const QString& failure) {
          for (const ExchangeMeeting& row : rows) subjects.append(row.subject);
          if (!failure.isEmpty()) failures.append(failure);
        });
    meetings->list(exchange, token, 7);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !subjects.isEmpty() || !failures.isEmpty(); }, 2000));
  }

  static Dictionary account(const QString& host, bool isOnline) {
    return {{kKZCalendarIntegrationExchangeExternalUrl, "https://" + host + "/EWS/Exchange.asmx"},
            {kKZCalendarIntegrationIsOnline, isOnline}};
  }

  const Dictionary ownAccount = account("mail.corp.sandbox.example", false);
  const Dictionary onlineAccount = account("mail.online.sandbox.example", true);
  const QStringList inOrder{"Stand-up", "Design & lunch", "Review of the quarter"};
  std::unique_ptr<ExchangeMeetings> meetings;
  QStringList subjects;
  QStringList failures;
};

TEST_F(ExchangeMeetingsTest, ReportsARefusedCredentialOnce) {
  password = "changed";
  list(ownAccount);
  ASSERT_EQ(failures.size(), 1);
  EXPECT_TRUE(failures.first().contains("Detect the account again"));
  ASSERT_EQ(challenges.size(), 2);
  EXPECT_EQ(challenges.last(), (Dictionary{{"AuthRequiringType", 2}, {"ShowWarningMsg", "true"}}));
  EXPECT_EQ(authorizedVisits().size(), 1);
}

TEST_F(ExchangeMeetingsTest, NeedsACredentialOrToken) {
  username.clear();
  list(ownAccount);
  list(onlineAccount);
  list(Dictionary{{kKZCalendarIntegrationExchangeExternalUrl, "http://mail.corp.sandbox.example/x"}});
  EXPECT_EQ(failures.size(), 3);
  EXPECT_TRUE(authorizedVisits().isEmpty());
}

TEST_F(ExchangeMeetingsTest, ListsAnOnlineAccountWithItsTokenAlone) {
  list(onlineAccount, "good-token");
  EXPECT_EQ(subjects, inOrder);
  subjects.clear();
  list(onlineAccount, "bad-token");
  ASSERT_EQ(failures.size(), 1);
  EXPECT_TRUE(failures.first().contains("sign in anew"));
  EXPECT_TRUE(challenges.isEmpty());
}

}  // namespace
