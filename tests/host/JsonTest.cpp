#include <gtest/gtest.h>

#include "host/KZUtility/KZUtility.h"

namespace {

QVariant parsed(const QString& text) {
  return KZUtility::JSONValueFromString(text);
}

}  // namespace

TEST(Json, KeepsTheTypeOfEveryValue) {
  const std::pair<QString, QVariant> rows[] = {
      {"true", true},
      {" -7 ", qlonglong{-7}},
      {"9007199254740993", qlonglong{9007199254740993}},
      {"-9223372036854775808", std::numeric_limits<qlonglong>::min()},
      {"1.5", 1.5},
      {"1e400", QVariant()},
      {"\"\\u0000\\ud83d\\ude00\"", QString(QChar(0)) + "\U0001F600"},
      {"null", QVariant()},
      {"[1,null,\"a\"]", QVariantList{qlonglong{1}, QVariant(), QString("a")}},
      {R"({"a":{"b":null,"c":false},"a2":null})", Dictionary{{"a", Dictionary{{"c", false}}}}},
  };
  for (const auto& [text, value] : rows) {
    EXPECT_EQ(parsed(text).metaType(), value.metaType()) << text.toStdString();
    EXPECT_EQ(parsed(text), value) << text.toStdString();
  }
  const QVariant empty = parsed("\"\"");
  EXPECT_EQ(empty.metaType(), QMetaType::fromType<QString>());
  EXPECT_FALSE(empty.toString().isNull());
}

TEST(Json, RefusesWhatIsMalformedOrTooLarge) {
  QStringList texts = QString(R"(|  |{|{} x|1,2|][|1],[2|{'a':1}|{"a":1,}|"a|nul)").split('|');
  texts += {QString(),
            QString("1") + QChar(0),
            QString(65, '[') + QString(65, ']'),
            QString(1000000, '['),
            QString("{\"a\":").repeated(200000),
            '"' + QString(4 * 1024 * 1024, 'x') + '"'};
  for (const QString& text : texts) EXPECT_FALSE(parsed(text).isValid()) << text.left(20).toStdString();
  EXPECT_TRUE(parsed(QString(64, '[') + QString(64, ']')).isValid());
  EXPECT_TRUE(parsed('"' + QString(1000, '[') + "\\\"" + QString(1000, '[') + '"').isValid());
}
