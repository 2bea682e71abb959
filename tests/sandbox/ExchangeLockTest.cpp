#include <gtest/gtest.h>

#include "sandbox/ExchangeService.h"
#include "tests/sandbox/Visitor.h"

namespace {

// An Exchange of one's own, asked with user names and passwords.
class ExchangeLockTest : public testing::Test {
 protected:
  void SetUp() override { startAnew(); }

  void startAnew() {
    service = std::make_unique<sandbox::ExchangeService>("http://127.0.0.1:1",
                                                         [](const QString&) { return false; });
    if (!service->listen()) GTEST_SKIP() << "the openssl program is missing: no certificate for the sandbox";
    visitor.places = service->describe();
  }

  int statusWith(const QByteArray& credential) {
    return visitor
        .post(QUrl("https://mail.corp.sandbox.example/EWS/Exchange.asmx"), "<x/>",
              "Basic " + credential.toBase64())
        .status;
  }

  std::unique_ptr<sandbox::ExchangeService> service;
  Visitor visitor;
};

TEST_F(ExchangeLockTest, TheThirdRefusalLocksTheAccountUntilTheSandboxStartsAnew) {
  EXPECT_EQ(statusWith("CORP\\onprem:wrong"), 401);
  EXPECT_EQ(statusWith("CORP\\onprem:correct horse"), 200);
  EXPECT_EQ(statusWith("CORP\\onprem:wrong"), 401);
  EXPECT_EQ(statusWith("onprem@corp.sandbox.example:correct horse"), 200) << "locked too early";
  EXPECT_EQ(statusWith("CORP\\onprem:wrong"), 401);
  EXPECT_EQ(statusWith("CORP\\onprem:correct horse"), 401);
  ASSERT_NO_FATAL_FAILURE(startAnew());
  EXPECT_EQ(statusWith("CORP\\onprem:correct horse"), 200);
}

TEST_F(ExchangeLockTest, OneAccountIsLockedFromTheStart) {
  EXPECT_EQ(statusWith("CORP\\locked:correct horse"), 401);
  EXPECT_EQ(statusWith("CORP\\onprem:correct horse"), 200) << "the other one is locked with it";
}

}  // namespace
