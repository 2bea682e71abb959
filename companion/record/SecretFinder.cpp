#include "companion/record/SecretFinder.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

namespace {

constexpr qsizetype kShortestFoundAnywhere = 4;
constexpr int kBase64Group = 4;

// The length of the name that begins there; 0 for none.
qsizetype secretNameLengthAt(const QString& text, qsizetype place) {
  static const QRegularExpression pattern(QStringLiteral("secret-[1-9][0-9]{0,5}"));
  if (text.at(place) != u's') return 0;
  return pattern
      .match(text, place, QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption)
      .capturedLength();
}

QString withSmallHexDigits(QString percentEncoded) {
  for (qsizetype at = percentEncoded.indexOf(u'%'); at >= 0; at = percentEncoded.indexOf(u'%', at + 1))
    percentEncoded.replace(at, 3, percentEncoded.mid(at, 3).toLower());
  return percentEncoded;
}

// As the secret may stand in another text.
QStringList formsOfSecret(const QString& secret) {
  const QByteArray bytes = secret.toUtf8();
  const QString json =
      QString::fromUtf8(QJsonDocument(QJsonObject{{"", secret}}).toJson(QJsonDocument::Compact));
  const QString percent = QString::fromLatin1(QUrl::toPercentEncoding(secret));
  QString formEncoded = percent;
  formEncoded.replace(QLatin1String("%20"), QLatin1String("+"));
  QStringList forms = {
      secret,
      json.mid(5, json.size() - 7),
      secret.toHtmlEscaped(),
      percent,
      formEncoded,
      withSmallHexDigits(percent),
      QString::fromLatin1(QUrl::toPercentEncoding(percent)),
      QString::fromLatin1(bytes.toBase64(QByteArray::OmitTrailingEquals)),
      QString::fromLatin1(bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals))};
  forms.removeDuplicates();
  return forms;
}

}  // namespace

bool SecretFinder::isName(const QString& text) {
  return !text.isEmpty() && secretNameLengthAt(text, 0) == text.size();
}

void SecretFinder::add(const QString& secret, const QString& name) {
  if (secret.size() < kShortestFoundAnywhere || isName(secret)) return;
  m_secrets.append(secret.toUtf8());
  const QStringList forms = formsOfSecret(secret);
  for (const QString& form : forms) {
    m_forms.append({form, name});
    m_firstSigns.insert(form.front());
  }
  std::ranges::stable_sort(m_forms, std::ranges::greater(),
                           [](const Form& form) { return form.text.size(); });
}

const SecretFinder::Form* SecretFinder::formAt(const QString& text, qsizetype place) const {
  if (!m_firstSigns.contains(text.at(place))) return nullptr;
  const QStringView rest = QStringView(text).mid(place);
  const auto found =
      std::ranges::find_if(m_forms, [rest](const Form& form) { return rest.startsWith(form.text); });
  return found == m_forms.end() ? nullptr : &*found;
}

QString SecretFinder::replaced(const QString& text) const {
  if (m_forms.isEmpty()) return text;
  QString open;
  for (qsizetype place = 0; place < text.size();) {
    const Form* form = formAt(text, place);
    const qsizetype nameLength = secretNameLengthAt(text, place);
    if (form && form->text.size() > nameLength) {
      open += form->name;
      place += form->text.size();
      continue;
    }
    const qsizetype kept = std::max<qsizetype>(nameLength, 1);
    open += QStringView(text).mid(place, kept);
    place += kept;
  }
  return open;
}

bool SecretFinder::isInBase64(const QString& word) const {
  if (m_secrets.isEmpty()) return false;
  const QByteArray encoded = word.toLatin1();
  // What stands before it without a border moves the groups.
  for (int begin = 0; begin < kBase64Group; ++begin) {
    const QByteArray rest = encoded.mid(begin);
    if (isIn(QByteArray::fromBase64(rest)) ||
        isIn(QByteArray::fromBase64(rest, QByteArray::Base64UrlEncoding)))
      return true;
  }
  return false;
}

bool SecretFinder::isIn(const QByteArray& bytes) const {
  return std::ranges::any_of(m_secrets, [&](const QByteArray& secret) { return bytes.contains(secret); });
}
