#include <gtest/gtest.h>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZConstantRegistry.h"
#include "host/KZFoundation/KZConstants.h"

TEST(Constants, AreFoundByNameAsTheVeryObject) {
  EXPECT_EQ(constantNamed("kstartDetectVD").constData(), kstartDetectVD.constData());
  EXPECT_EQ(constantNamed("kKZCalendarIntegrationDaysDefault"), "7");
  EXPECT_TRUE(constantNamed("7").isNull());
  EXPECT_TRUE(constantNamed("").isNull());
}

TEST(Constants, KeepTheirIdentityThroughContents) {
  Dictionary content{{"inner", Dictionary{{kproximityCommand, kstartDetectVD}}}};
  Dictionary copy = content;
  copy.insert("other", 1);
  const QString passed = dictionaryValue(copy, "inner").value(kproximityCommand).toString();
  EXPECT_EQ(passed.constData(), kstartDetectVD.constData());
  const QString equal = QString::fromUtf8(kstartDetectVD.toUtf8());
  EXPECT_EQ(equal, kstartDetectVD);
  EXPECT_NE(equal.constData(), kstartDetectVD.constData());
}
