#pragma once

#include <QByteArray>
#include <clocale>

inline constexpr int kDeepestPropertyList = 64;  // levels, the root's included

// Whether the bytes are one XML document that the property list reader, which recurses and trusts, can be
// given: UTF-8, at most 64 levels, no internal document type subset, nothing behind the root. Which tags meet
// is left to the reader.
bool isPlainPropertyList(const QByteArray& xml);

// While one lives, this thread writes and reads numbers with a point.
class CNumericLocale final {
 public:
  CNumericLocale();
  ~CNumericLocale();
  Q_DISABLE_COPY_MOVE(CNumericLocale)

 private:
  locale_t m_before;
};
