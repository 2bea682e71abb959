#include "companion/exchange/HttpFailure.h"

DiscoveryFailureKind failureOf(const HttpAnswer& answer) {
  using Kind = DiscoveryFailureKind;
  switch (answer.trouble) {
    case HttpAnswer::Trouble::HostUnknown:
      return Kind::HostUnknown;
    case HttpAnswer::Trouble::Unreachable:
      return Kind::Unreachable;
    case HttpAnswer::Trouble::TooSlow:
      return Kind::TooSlow;
    case HttpAnswer::Trouble::TooLong:
    case HttpAnswer::Trouble::NotTaken:
      return Kind::BadAnswer;
    case HttpAnswer::Trouble::Certificate:
      return Kind::Certificate;
    case HttpAnswer::Trouble::CertificateOfOtherName:
      return Kind::CertificateOfOtherName;
    case HttpAnswer::Trouble::None:
      if (answer.status == 403) return Kind::Forbidden;
      return answer.status >= 500 ? Kind::ServerError : Kind::NotFound;
  }
  return Kind::NotFound;
}
