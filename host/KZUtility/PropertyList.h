#pragma once

#include <QByteArray>
#include <optional>

#include "host/KZFoundation/Dictionary.h"

// XML property lists with a dictionary at the top. Text, flag, whole number, real, data, list and dictionary
// convert without loss, a date by whole seconds. Missing values are left out.

// Nothing when it is malformed, nested deeper than 64 levels, or has an internal document type subset.
std::optional<Dictionary> parsedPropertyList(const QByteArray& xml);

struct PropertyListXml {
  QByteArray xml;
  // False when a value was left out because property lists have no type for it, or a character that XML
  // cannot contain was replaced by U+FFFD.
  bool isExact = true;
};
PropertyListXml xmlOfPropertyList(const Dictionary& dictionary);
