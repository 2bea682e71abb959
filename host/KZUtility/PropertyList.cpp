#include "host/KZUtility/PropertyList.h"

#include <QDateTime>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <algorithm>

namespace {

// Levels of elements, the root and the top dictionary included; the same for writing, so that every written
// file can be read.
constexpr int kDeepestPropertyList = 64;
constexpr int kTopLevel = 2;

class PropertyListReader final {
 public:
  explicit PropertyListReader(const QByteArray& xml) : m_xml(QString::fromUtf8(xml)) {}

  std::optional<Dictionary> read() {
    if (!enterChild() || m_xml.name() != u"plist" || !enterChild() || m_xml.name() != u"dict") return {};
    const QVariant top = value(kTopLevel);
    if (enterChild()) return {};
    while (!m_xml.atEnd()) m_xml.readNext();
    return m_xml.hasError() ? std::nullopt : std::optional(top.toMap());
  }

 private:
  // False at the parent's end, and after an error.
  bool enterChild() {
    for (;;) {
      switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
          return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
          return false;
        case QXmlStreamReader::DTD:
          if (m_xml.text().contains(u'[')) m_xml.raiseError();
          break;
        case QXmlStreamReader::Characters:
          if (!m_xml.isWhitespace()) m_xml.raiseError();
          break;
        case QXmlStreamReader::EntityReference:
          m_xml.raiseError();
          break;
        default:
          break;
      }
    }
  }

  // Of the element that was entered; leaves it.
  QVariant value(int level) {
    if (level > kDeepestPropertyList) {
      m_xml.raiseError();
      return {};
    }
    const QString type = m_xml.name().toString();
    if (type == u"dict") return dictionary(level);
    if (type == u"array") return list(level);
    const QVariant leaf = leafValue(type, text());
    if (!leaf.isValid()) m_xml.raiseError();
    return leaf;
  }

  Dictionary dictionary(int level) {
    Dictionary dictionary;
    while (enterChild()) {
      const bool isKey = m_xml.name() == u"key";
      const QString key = text();
      if (isKey && enterChild()) {
        dictionary.insert(key, value(level + 1));
      } else {
        m_xml.raiseError();
      }
    }
    return dictionary;
  }

  QVariantList list(int level) {
    QVariantList list;
    while (enterChild()) list.append(value(level + 1));
    return list;
  }

  QString text() {
    QString text = QStringLiteral("");
    for (;;) {
      switch (m_xml.readNext()) {
        case QXmlStreamReader::Characters:
          text += m_xml.text();
          break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
          break;
        case QXmlStreamReader::EndElement:
          return text;
        default:
          m_xml.raiseError();
          return text;
      }
    }
  }

  // Invalid when the text is no value of that type.
  static QVariant leafValue(const QString& type, const QString& text) {
    bool isNumber = false;
    if (type == u"string") return text;
    if (type == u"true") return true;
    if (type == u"false") return false;
    if (type == u"integer") {
      const qlonglong number = text.toLongLong(&isNumber);
      if (isNumber) return number;
      const qulonglong large = text.toULongLong(&isNumber);
      return isNumber ? QVariant(large) : QVariant();
    }
    if (type == u"real") {
      const double number = text.toDouble(&isNumber);
      return isNumber ? QVariant(number) : QVariant();
    }
    if (type == u"date") {
      const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
      return date.isValid() ? QVariant(date) : QVariant();
    }
    if (type == u"data") {
      const auto data = QByteArray::fromBase64Encoding(text.simplified().remove(u' ').toLatin1(),
                                                       QByteArray::AbortOnBase64DecodingErrors);
      return data ? QVariant(*data) : QVariant();
    }
    return {};
  }

  QXmlStreamReader m_xml;
};

class PropertyListWriter final {
 public:
  PropertyListXml write(const Dictionary& dictionary) {
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QStringLiteral("plist"));
    m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    writeDictionary(dictionary, kTopLevel);
    m_xml.writeEndDocument();
    return m_result;
  }

 private:
  static bool isXmlCharacter(char32_t character) {
    if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
    return !QChar::isSurrogate(character) && character != 0xFFFE && character != 0xFFFF;
  }

  QString xmlText(const QString& text) {
    QList<uint> characters = text.toUcs4();
    if (std::ranges::all_of(characters, isXmlCharacter)) return text;
    m_result.isExact = false;
    std::ranges::replace_if(
        characters, [](uint character) { return !isXmlCharacter(character); },
        uint{QChar::ReplacementCharacter});
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());
  }

  void writeText(const char* element, const QString& text) {
    m_xml.writeStartElement(QLatin1String(element));
    const QStringList lines = xmlText(text).split(u'\r');
    m_xml.writeCharacters(lines.first());
    for (const QString& line : lines.sliced(1)) {
      // XML readers take a bare carriage return for a line feed.
      m_xml.writeEntityReference(QStringLiteral("#13"));
      m_xml.writeCharacters(line);
    }
    m_xml.writeEndElement();
  }

  void writeDictionary(const Dictionary& dictionary, int level) {
    m_xml.writeStartElement(QStringLiteral("dict"));
    for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry) {
      if (!hasPlace(entry.value(), level + 1)) continue;
      writeText("key", entry.key());
      writeValue(entry.value(), level + 1);
    }
    m_xml.writeEndElement();
  }

  void writeList(const QVariantList& list, int level) {
    m_xml.writeStartElement(QStringLiteral("array"));
    for (const QVariant& item : list) {
      if (hasPlace(item, level + 1)) writeValue(item, level + 1);
    }
    m_xml.writeEndElement();
  }

  bool hasPlace(const QVariant& value, int level) {
    if (isMissing(value)) return false;
    static constexpr int types[] = {QMetaType::Bool,        QMetaType::Int,        QMetaType::UInt,
                                    QMetaType::Long,        QMetaType::LongLong,   QMetaType::ULongLong,
                                    QMetaType::Float,       QMetaType::Double,     QMetaType::QString,
                                    QMetaType::QDateTime,   QMetaType::QByteArray, QMetaType::QVariantList,
                                    QMetaType::QVariantMap, QMetaType::QStringList};
    const bool isFitting =
        level <= kDeepestPropertyList && std::ranges::find(types, value.metaType().id()) != std::end(types);
    if (!isFitting) m_result.isExact = false;
    return isFitting;
  }

  void writeValue(const QVariant& value, int level) {
    switch (value.metaType().id()) {
      case QMetaType::Bool:
        return m_xml.writeEmptyElement(value.toBool() ? QStringLiteral("true") : QStringLiteral("false"));
      case QMetaType::Float:
      case QMetaType::Double:
        return writeText("real", QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest));
      case QMetaType::QString:
        return writeText("string", value.toString());
      case QMetaType::QDateTime:
        return writeText("date", value.toDateTime().toUTC().toString(Qt::ISODate));
      case QMetaType::QByteArray:
        return writeText("data", QString::fromLatin1(value.toByteArray().toBase64()));
      case QMetaType::QVariantList:
      case QMetaType::QStringList:
        return writeList(value.toList(), level);
      case QMetaType::QVariantMap:
        return writeDictionary(value.toMap(), level);
      default:
        return writeText("integer", value.toString());
    }
  }

  PropertyListXml m_result;
  QXmlStreamWriter m_xml{&m_result.xml};
};

}  // namespace

std::optional<Dictionary> parsedPropertyList(const QByteArray& xml) {
  if (xml.contains('\0') || !QByteArrayView(xml).isValidUtf8()) return {};
  return PropertyListReader(xml).read();
}

PropertyListXml xmlOfPropertyList(const Dictionary& dictionary) {
  return PropertyListWriter().write(dictionary);
}
