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

TEST(Dictionary, CountsAValueOfAnotherTypeAsAbsent) {
  const Dictionary contents{{"text", "1"},          {"number", 1},
                            {"flag", true},         {"inner", Dictionary{{"a", 1}}},
                            {"empty", QString("")}, {"nothing", QVariant()}};
  for (const char* key : {"number", "flag", "inner", "nothing", "absent"}) {
    EXPECT_TRUE(textValue(contents, key).isNull()) << key;
  }
  EXPECT_FALSE(textValue(contents, "empty").isNull());
  for (const char* key : {"text", "number", "inner", "absent"}) {
    EXPECT_FALSE(flagValue(contents, key).has_value()) << key;
    EXPECT_FALSE(isSet(contents, key)) << key;
  }
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
