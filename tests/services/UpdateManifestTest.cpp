#include "companion/services/UpdateManifest.h"

#include <gtest/gtest.h>

namespace {

QByteArray manifestWith(const QByteArray& version, const QByteArray& package, const QByteArray& bytes) {
  return "{\"version\":" + version + ",\"package\":" + package + ",\"bytes\":" + bytes + ",\"sha256\":\"" +
         QByteArray(64, 'a') + "\"}";
}

TEST(UpdateManifest, FindsThePackageFromItsOwnAddress) {
  const QUrl address("https://downloads.example.com/companion/updates.json");
  const auto relative = readUpdateManifest(address, manifestWith("\"9.1.0\"", "\"/p.deb\"", "5"));
  ASSERT_TRUE(relative);
  EXPECT_EQ(relative->package, QUrl("https://downloads.example.com/p.deb"));
  EXPECT_EQ(relative->version.toString(), "9.1.0");
  const auto absolute = readUpdateManifest(address, manifestWith("\"9\"", "\"https://b.example/p\"", "5"));
  ASSERT_TRUE(absolute);
  EXPECT_EQ(absolute->package, QUrl("https://b.example/p"));
}

TEST(UpdateManifest, RefusesWhatCannotBeChecked) {
  const QUrl address("https://downloads.example.com/companion/updates.json");
  const QByteArray refused[] = {"",
                                "[]",
                                "{}",
                                "<html>",
                                QByteArray(100'000, '['),
                                manifestWith("9", "\"/p\"", "5"),
                                manifestWith("\"9.x\"", "\"/p\"", "5"),
                                manifestWith("\"99999999999\"", "\"/p\"", "5"),
                                manifestWith("\"9\"", "\"\"", "5"),
                                manifestWith("\"9\"", "\"http://b.example/p\"", "5"),
                                manifestWith("\"9\"", "\"http://127.0.0.1/p\"", "5"),
                                manifestWith("\"9\"", "\"file:///etc/passwd\"", "5"),
                                manifestWith("\"9\"", "\"https://ada@b.example/p\"", "5"),
                                manifestWith("\"9\"", "\"/p\"", "0"),
                                manifestWith("\"9\"", "\"/p\"", "-1"),
                                manifestWith("\"9\"", "\"/p\"", "1e18"),
                                "{\"version\":\"9\",\"package\":\"/p\",\"bytes\":5,\"sha256\":\"abcd\"}"};
  for (const QByteArray& json : refused)
    EXPECT_FALSE(readUpdateManifest(address, json)) << json.left(200).data();
}

}  // namespace
