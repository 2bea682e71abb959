#pragma once

#include <plist/plist.h>

#include <QByteArray>
#include <QVariant>
#include <memory>

struct PropertyListDeleter {
  void operator()(void* node) const { plist_free(node); }
};
using PropertyList = std::unique_ptr<void, PropertyListDeleter>;

// Text, flag, whole number, real, data, list and dictionary convert without loss, a date by whole seconds.
// Missing values are left out of lists and dictionaries.

// Null when the value has no place in a property list. `isExact` turns false when a part had to be left out,
// or a character that XML cannot carry was replaced by U+FFFD.
PropertyList propertyListOf(const QVariant& value, bool* isExact);
QVariant valueOfPropertyList(plist_t node);

// A key as it stands in the file.
QByteArray propertyListKey(const QString& key, bool* isExact);

// An XML property list with a dictionary at the top; null when it is malformed, nested deeper than 64 levels,
// or has an internal document type subset.
PropertyList parsedPropertyList(const QByteArray& xml);
QByteArray xmlOfPropertyList(plist_t node);
