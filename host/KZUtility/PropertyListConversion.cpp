#include "host/KZUtility/PropertyListConversion.h"

#include <QDateTime>
#include <algorithm>
#include <cstdlib>
#include <limits>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/PropertyListScan.h"

namespace {

struct FreeDeleter {
  void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Allocated = std::unique_ptr<T, FreeDeleter>;

bool isXmlCharacter(char32_t sign) {
  if (sign < 0x20) return sign == '\t' || sign == '\n' || sign == '\r';
  return !QChar::isSurrogate(sign) && sign != 0xFFFE && sign != 0xFFFF;
}

// The C interface ends a text at its first NUL, and other readers refuse what XML forbids.
QByteArray xmlText(const QString& text, bool* isExact) {
  QString result;
  const QList<uint> signs = text.toUcs4();
  if (std::ranges::all_of(signs, isXmlCharacter)) return text.toUtf8();
  *isExact = false;
  for (const uint sign : signs) {
    const char32_t kept = isXmlCharacter(sign) ? char32_t{sign} : char32_t{QChar::ReplacementCharacter};
    result += QString::fromUcs4(&kept, 1);
  }
  return result.toUtf8();
}

// The C interface cuts a date to 32 bits and an unsigned number to a signed one; XML does not.
PropertyList leafOfXml(const QByteArray& element) {
  const QByteArray xml = "<plist version=\"1.0\">" + element + "</plist>";
  plist_t node = nullptr;
  plist_from_xml(xml.constData(), static_cast<uint32_t>(xml.size()), &node);
  return PropertyList(node);
}

QByteArray xmlOfLeaf(plist_t node, const QByteArray& element) {
  const QByteArray xml = xmlOfPropertyList(node);
  const qsizetype begin = xml.indexOf('<' + element + '>') + element.size() + 2;
  return xml.mid(begin, xml.indexOf("</", begin) - begin);
}

// A document that is written must be one that is read again: its root and top dictionary are two levels.
constexpr int kTopValueLevel = 3;

PropertyList nodeOf(const QVariant& value, int level, bool* isExact);

PropertyList listOf(const QVariantList& list, int level, bool* isExact) {
  PropertyList array(plist_new_array());
  for (const QVariant& item : list) {
    if (PropertyList node = nodeOf(item, level + 1, isExact))
      plist_array_append_item(array.get(), node.release());
  }
  return array;
}

PropertyList dictionaryOf(const Dictionary& dictionary, int level, bool* isExact) {
  PropertyList dict(plist_new_dict());
  for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry) {
    PropertyList node = nodeOf(entry.value(), level + 1, isExact);
    if (node)
      plist_dict_set_item(dict.get(), propertyListKey(entry.key(), isExact).constData(), node.release());
  }
  return dict;
}

PropertyList numberOf(const QVariant& value) {
  const qulonglong number = value.toULongLong();
  const bool isUnsigned = value.metaType() == QMetaType::fromType<qulonglong>();
  if (isUnsigned && number > std::numeric_limits<qlonglong>::max()) {
    return leafOfXml("<integer>" + QByteArray::number(number) + "</integer>");
  }
  return PropertyList(plist_new_uint(static_cast<uint64_t>(value.toLongLong())));
}

PropertyList nodeOf(const QVariant& value, int level, bool* isExact) {
  if (isMissing(value)) return nullptr;
  if (level > kDeepestPropertyList) {
    *isExact = false;
    return nullptr;
  }
  switch (value.metaType().id()) {
    case QMetaType::Bool:
      return PropertyList(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
      return numberOf(value);
    case QMetaType::Float:
    case QMetaType::Double:
      return PropertyList(plist_new_real(value.toDouble()));
    case QMetaType::QString:
      return PropertyList(plist_new_string(xmlText(value.toString(), isExact).constData()));
    case QMetaType::QByteArray: {
      const QByteArray data = value.toByteArray();
      return PropertyList(plist_new_data(data.constData(), static_cast<uint64_t>(data.size())));
    }
    case QMetaType::QDateTime:
      return leafOfXml("<date>" + value.toDateTime().toUTC().toString(Qt::ISODate).toLatin1() + "</date>");
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
      return listOf(value.toList(), level, isExact);
    case QMetaType::QVariantMap:
      return dictionaryOf(value.toMap(), level, isExact);
    default:
      *isExact = false;
      return nullptr;
  }
}

QVariant numberValue(plist_t node) {
  uint64_t number = 0;
  plist_get_uint_val(node, &number);
  const bool mayBeUnsigned = number > uint64_t{std::numeric_limits<int64_t>::max()};
  if (mayBeUnsigned && !xmlOfLeaf(node, "integer").startsWith('-')) return qulonglong{number};
  return static_cast<qlonglong>(number);
}

QVariant dateValue(plist_t node) {
  // Years before 1000 come without their leading zeros.
  const QByteArray text = xmlOfLeaf(node, "date").rightJustified(20, '0');
  return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
}

QVariant arrayValue(plist_t node) {
  QVariantList list;
  const uint32_t size = plist_array_get_size(node);
  list.reserve(size);
  plist_array_iter position = nullptr;
  plist_array_new_iter(node, &position);
  const Allocated<void> owned(position);
  for (uint32_t index = 0; index < size; ++index) {
    plist_t item = nullptr;
    plist_array_next_item(node, position, &item);
    list.append(valueOfPropertyList(item));
  }
  return list;
}

QVariant dictValue(plist_t node) {
  Dictionary dictionary;
  plist_dict_iter position = nullptr;
  plist_dict_new_iter(node, &position);
  const Allocated<void> owned(position);
  for (;;) {
    char* key = nullptr;
    plist_t item = nullptr;
    plist_dict_next_item(node, position, &key, &item);
    if (!item) return dictionary;
    const Allocated<char> ownedKey(key);
    const QVariant value = valueOfPropertyList(item);
    if (value.isValid()) dictionary.insert(QString::fromUtf8(key), value);
  }
}

}  // namespace

QByteArray propertyListKey(const QString& key, bool* isExact) {
  return xmlText(key, isExact);
}

PropertyList propertyListOf(const QVariant& value, bool* isExact) {
  return nodeOf(value, kTopValueLevel, isExact);
}

QVariant valueOfPropertyList(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
      uint8_t flag = 0;
      plist_get_bool_val(node, &flag);
      return flag != 0;
    }
    case PLIST_UINT:
      return numberValue(node);
    case PLIST_REAL: {
      double number = 0;
      plist_get_real_val(node, &number);
      return number;
    }
    case PLIST_STRING:
      return QString::fromUtf8(plist_get_string_ptr(node, nullptr));
    case PLIST_DATA: {
      uint64_t size = 0;
      const char* data = plist_get_data_ptr(node, &size);
      return QByteArray(data ? data : "", static_cast<qsizetype>(size));
    }
    case PLIST_DATE:
      return dateValue(node);
    case PLIST_ARRAY:
      return arrayValue(node);
    case PLIST_DICT:
      return dictValue(node);
    default:
      return {};
  }
}

PropertyList parsedPropertyList(const QByteArray& xml) {
  if (!isPlainPropertyList(xml)) return nullptr;
  const CNumericLocale locale;
  plist_t node = nullptr;
  plist_from_xml(xml.constData(), static_cast<uint32_t>(xml.size()), &node);
  PropertyList list(node);
  return list && plist_get_node_type(list.get()) == PLIST_DICT ? std::move(list) : nullptr;
}

QByteArray xmlOfPropertyList(plist_t node) {
  const CNumericLocale locale;
  char* xml = nullptr;
  uint32_t size = 0;
  plist_to_xml(node, &xml, &size);
  const std::unique_ptr<char, void (*)(char*)> owned(xml, plist_to_xml_free);
  return QByteArray(xml, static_cast<qsizetype>(size));
}
