#include "host/KZFoundation/Dictionary.h"

#include <gtest/gtest.h>

TEST(Dictionary, EndsItsPairsAtTheFirstMissingValue) {
  const QVariant missing[] = {QVariant(), QString(), QVariant::fromValue(nullptr)};
  for (const QVariant& value : missing) {
    const Dictionary built = dictionaryWithPairs({{"a", 1}, {"b", value}, {"c", 3}});
    EXPECT_EQ(built, (Dictionary{{"a", 1}}));
  }
  EXPECT_EQ(dictionaryWithPairs({{"a", QString("")}, {"b", false}}).size(), 2);
}

TEST(Dictionary, TakesANumberAsAFlagAndAsACount) {
  const struct {
    QVariant value;
    std::optional<bool> flag;
    QString count;
  } rows[] = {{true, true, {}},
              {false, false, {}},
              {0, false, "0"},
              {-1, true, "-1"},
              {7U, true, "7"},
              {qlonglong{0}, false, "0"},
              {std::numeric_limits<qulonglong>::max(), true, "18446744073709551615"},
              {15.0, true, "15"},
              {0.0, false, "0"},
              {"0", {}, "0"},
              {"true", {}, "true"},
              {QVariantList{1}, {}, {}},
              {Dictionary{{"a", 1}}, {}, {}},
              {QVariant(), {}, {}}};
  for (const auto& row : rows) {
    const Dictionary contents{{"key", row.value}};
    EXPECT_EQ(flagValue(contents, "key"), row.flag) << (&row - rows);
    EXPECT_EQ(countValue(contents, "key"), row.count) << (&row - rows);
    EXPECT_EQ(countValue(contents, "key").isNull(), row.count.isNull()) << (&row - rows);
  }
}

TEST(Dictionary, CountsAValueOfAnotherTypeAsAbsent) {
  const Dictionary contents{{"text", "1"},          {"number", 1},
                            {"flag", true},         {"inner", Dictionary{{"a", 1}}},
                            {"empty", QString("")}, {"nothing", QVariant()}};
  for (const char* key : {"number", "flag", "inner", "nothing", "absent"}) {
    EXPECT_TRUE(textValue(contents, key).isNull()) << key;
  }
  EXPECT_FALSE(textValue(contents, "empty").isNull());
  EXPECT_FALSE(isSet(contents, "absent"));
  EXPECT_TRUE(isSet(contents, "flag"));
  for (const char* key : {"text", "flag", "nothing"})
    EXPECT_TRUE(dictionaryValue(contents, key).isEmpty()) << key;
  EXPECT_EQ(dictionaryValue(contents, "inner").size(), 1);
}

TEST(Dictionary, NeverFindsAMissingTextEqual) {
  EXPECT_FALSE(isEqualText(QString(), QString()));
  EXPECT_FALSE(isEqualText(QString(), QString("")));
  EXPECT_TRUE(isEqualText(QString(""), QString("")));
  EXPECT_FALSE(isEqualText("a", "A"));
}
