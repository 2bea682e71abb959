#include "companion/network/WebTrouble.h"

namespace {

constexpr int kFirstRedirect = 300;
constexpr int kFirstRefusal = 400;
constexpr int kFirstServerError = 500;

WebTrouble troubleOfStatus(const HttpAnswer& answer) {
  if (answer.status >= kFirstServerError) return WebTrouble::ServerError;
  const bool isRedirect = answer.status >= kFirstRedirect && answer.status < kFirstRefusal;
  if (isRedirect && !answer.location.isEmpty()) return WebTrouble::None;
  return answer.status == 200 ? WebTrouble::None : WebTrouble::NotFound;
}

QString webPatternOf(WebTrouble trouble) {
  switch (trouble) {
    case WebTrouble::None:
      return {};
    case WebTrouble::HostUnknown:
      return QStringLiteral("%1 was not found. Check its name and your network connection.");
    case WebTrouble::Unreachable:
      return QStringLiteral("%1 cannot be reached. Check your network connection and try again.");
    case WebTrouble::TooSlow:
      return QStringLiteral("%1 did not answer in time. Try again later.");
    case WebTrouble::TooLong:
      return QStringLiteral("%1 sent more than it announced, so nothing was kept. Tell your administrator.");
    case WebTrouble::Certificate:
      return QStringLiteral("The certificate of %1 is not trusted. Ask your administrator before you go on.");
    case WebTrouble::CertificateOfOtherName:
      return QStringLiteral(
          "The certificate of %1 belongs to another name. Ask your administrator to mend it.");
    case WebTrouble::NotTaken:
      return QStringLiteral("What %1 sent could not be kept. Free some space and try again.");
    case WebTrouble::NotFound:
      return QStringLiteral(
          "%1 does not have what was asked of it. Check the name of the site, or tell your administrator.");
    case WebTrouble::ServerError:
      return QStringLiteral("%1 has a problem of its own. Try again later, or tell your administrator.");
    case WebTrouble::TooManyRedirects:
      return QStringLiteral("%1 keeps leading to other addresses. Tell your administrator.");
    case WebTrouble::Unsafe:
      return QStringLiteral("%1 leads to an address that is not safe to use. Tell your administrator.");
    case WebTrouble::BadAnswer:
      return QStringLiteral("%1 gave no usable answer. Check its name, or tell your administrator.");
  }
  return {};
}

}  // namespace

WebTrouble webTroubleOf(const HttpAnswer& answer) {
  switch (answer.trouble) {
    case HttpAnswer::Trouble::None:
      return troubleOfStatus(answer);
    case HttpAnswer::Trouble::HostUnknown:
      return WebTrouble::HostUnknown;
    case HttpAnswer::Trouble::Unreachable:
      return WebTrouble::Unreachable;
    case HttpAnswer::Trouble::TooSlow:
      return WebTrouble::TooSlow;
    case HttpAnswer::Trouble::TooLong:
      return WebTrouble::TooLong;
    case HttpAnswer::Trouble::Certificate:
      return WebTrouble::Certificate;
    case HttpAnswer::Trouble::CertificateOfOtherName:
      return WebTrouble::CertificateOfOtherName;
    case HttpAnswer::Trouble::NotTaken:
      return WebTrouble::NotTaken;
  }
  return WebTrouble::BadAnswer;
}

QString messageOf(WebTrouble trouble, const QString& host) {
  const QString pattern = webPatternOf(trouble);
  return pattern.isEmpty() ? pattern : pattern.arg(host);
}
