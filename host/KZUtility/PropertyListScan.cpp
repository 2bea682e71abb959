#include "host/KZUtility/PropertyListScan.h"

#include <string_view>

namespace {

// Skips one construct of the document at a time, counting levels.
class MarkupScan final {
 public:
  explicit MarkupScan(std::string_view text) : m_rest(text) {}

  bool isPlain() {
    while (!m_rest.empty()) {
      if (!skipOne()) return false;
    }
    return m_hadRoot && m_depth == 0;
  }

 private:
  bool skipOne() {
    if (m_rest.front() != '<') return skipText();
    if (m_rest.starts_with("<?")) return skipTo("?>");
    if (m_rest.starts_with("<!--")) return skipTo("-->");
    if (m_rest.starts_with("<![CDATA[")) return m_depth > 0 && skipTo("]]>");
    if (m_rest.starts_with("<!")) return skipDocumentType();
    return skipTag();
  }

  bool skipText() {
    const std::string_view text = m_rest.substr(0, m_rest.find('<'));
    m_rest.remove_prefix(text.size());
    return m_depth > 0 || text.find_first_not_of(" \t\r\n") == std::string_view::npos;
  }

  bool skipTo(std::string_view end) {
    const std::size_t at = m_rest.find(end);
    if (at == std::string_view::npos) return false;
    m_rest.remove_prefix(at + end.size());
    return true;
  }

  bool skipDocumentType() {
    if (m_hadRoot || m_rest.substr(0, m_rest.find('>')).find('[') != std::string_view::npos) return false;
    return skipTo(">");
  }

  bool skipTag() {
    const std::size_t end = m_rest.find('>');
    if (end == std::string_view::npos) return false;
    const bool isEnd = m_rest.starts_with("</");
    const bool isEmpty = m_rest[end - 1] == '/';
    m_rest.remove_prefix(end + 1);
    if (isEnd) return --m_depth >= 0;
    if (m_depth == 0 && m_hadRoot) return false;
    m_hadRoot = true;
    if (m_depth == kDeepestPropertyList) return false;
    if (!isEmpty) ++m_depth;
    return true;
  }

  std::string_view m_rest;
  int m_depth = 0;
  bool m_hadRoot = false;
};

locale_t cNumbers() {
  static const locale_t locale = newlocale(LC_NUMERIC_MASK, "C", static_cast<locale_t>(nullptr));
  return locale;
}

}  // namespace

bool isPlainPropertyList(const QByteArray& xml) {
  if (xml.contains('\0') || !QByteArrayView(xml).isValidUtf8()) return false;
  return MarkupScan(std::string_view(xml.constData(), static_cast<std::size_t>(xml.size()))).isPlain();
}

CNumericLocale::CNumericLocale() : m_before(uselocale(cNumbers())) {}
CNumericLocale::~CNumericLocale() {
  uselocale(m_before);
}
