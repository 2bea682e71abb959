#include "host/KZUtility/KZXmlDocument.h"

#include <gtest/gtest.h>

namespace {

QString key(const QString& xml) {
  return KZXmlDocument::firstText(xml, "M", {"I", "K"});
}

}  // namespace

TEST(KZXmlDocument, FindsTheFirstTextBelowTheFirstNamedChild) {
  const std::pair<const char*, const char*> rows[] = {
      {"<r><M><I><K>1</K></I></M></r>", "1"},
      {"<?xml version='1.0'?><!-- c --><r a='b'><x/><M><I><x/><K> 1<b>2<c/></b><!-- "
       "-->&lt;<![CDATA[3]]></K><K>4</K></I></M></r>\n",
       " 12<3"},
      {"<r><M><I/><I><K>second</K></I></M></r>", "second"},
      {"<r><x><M><I><K>deep</K></I></M></x><M><I><K>child</K></I></M></r>", "child"},
      {"<r><M><I><K/></I></M></r>", ""},
      {"<?xml version='1.0'?>\n<!DOCTYPE r SYSTEM 'file:///etc/passwd'>\n<r><M><I><K>1</K></I></M></r>", "1"},
      {"<!DOCTYPE r [<!ENTITY e 'x>'><!-- ]> --><!ATTLIST r a CDATA 'd'>]><r><M><I><K>&amp;</K></I></M></r>",
       "&"},
  };
  for (const auto& [xml, text] : rows) {
    EXPECT_FALSE(key(xml).isNull()) << xml;
    EXPECT_EQ(key(xml).toStdString(), text) << xml;
  }
}

TEST(KZXmlDocument, AnswersNothingForWhatIsNotThereMalformedOrHostile) {
  const QString found = "<r><M><I><K>1</K></I></M></r>";
  const QString rows[] = {
      QString(),
      "",
      "text",
      "<M><I><K>the root does not count</K></I></M>",
      "<r><M><I></I></M><M><I><K>only the first M counts</K></I></M></r>",
      "<r><M><x><I><K>1</K></I></x></M></r>",
      "<r xmlns='urn:x'><M><I><K>1</K></I></M></r>",
      "<r xmlns:a='urn:x'><a:M><I><K>1</K></I></a:M></r>",
      found + "x",
      found + found,
      found.chopped(1),
      "<r><M><I><K>1</K></I></M><open></r>",
      "<!DOCTYPE r><!DOCTYPE r>" + found,
      "<!DOCTYPE r [<!ELEMENT r ANY>" + found,
      "<!DOCTYPE r [" + QString(16 * 1024, ' ') + "]>" + found,
      "<!DOCTYPE r [<!ENTITY e 'x'>]><r a='&e;'><M><I><K>1</K></I></M></r>",
      "<!DOCTYPE r [<!ENTITY e 'x'>]><r><M><I><K>&e;</K></I></M></r>",
      "<r><M><I><K>&nbsp;</K></I></M></r>",
      "<r><M><I><K>1" + QString(QChar(0xD800)) + "</K></I></M></r>",
      "<r><M><I><K>1" + QString(QChar(1)) + "</K></I></M></r>",
      QString("<a>").repeated(257) + QString("</a>").repeated(257),
      QString("<a>").repeated(1000000),
      "<r>" + QString(1024 * 1024, ' ') + "<M><I><K>1</K></I></M></r>",
  };
  for (const QString& xml : rows) EXPECT_TRUE(key(xml).isNull()) << xml.left(80).toStdString();
}
