#include "companion/format/ValueCodec.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "host/KZFoundation/KZConstants.h"

namespace {

QJsonValue json(const char* text) {
  return QJsonDocument::fromJson(QByteArray("{\"value\":") + text + '}').object().value("value");
}

QByteArray roundTrip(const char* text) {
  const valuecodec::Decoded decoded = valuecodec::decode(json(text));
  if (!decoded.error.isEmpty()) return "error";
  const QJsonObject object = {{"value", valuecodec::encode(decoded.value)}};
  const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact);
  return line.mid(9, line.size() - 10);
}

TEST(ValueCodec, KeepsTypesBothWays) {
  const std::pair<const char*, const char*> cases[] = {
      {"true", "true"},
      {"9007199254740993", "9007199254740993"},
      {"0.1", "0.1"},
      {"1e300", "1e+300"},
      {"5.0", "5"},
      {R"({"b": 1, "a": {"x": null, "y": "z"}})", R"({"a":{"y":"z"},"b":1})"},
      {R"([1, null, "a"])", R"([1,null,"a"])"},
      {R"({"$data": "AP8="})", R"({"$data":"AP8="})"},
      {R"("@@home")", R"("@home")"},
      {R"("@kKZResult")", R"("kKZResult")"},
      {R"("@kKZCalendarIntegrationDaysDefault")", R"("7")"},
      {R"("@nobody")", "error"},
      {R"({"a": ["@nobody"]})", "error"},
      {R"({"$data": "%%"})", "error"},
      {R"({"$data": 1})", "error"},
  };
  for (const auto& [given, expected] : cases) EXPECT_EQ(roundTrip(given), expected) << given;
}

}  // namespace
