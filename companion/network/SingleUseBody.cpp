#include "companion/network/SingleUseBody.h"

#include <algorithm>

qint64 SingleUseBody::readData(char* data, qint64 size) {
  const qint64 count = std::min(size, m_body.size() - m_read);
  if (count == 0) return -1;
  std::copy_n(m_body.constData() + m_read, count, data);
  m_read += count;
  return count;
}
