#include "host/KZUtility/KZApplicationHelper.h"

KZApplicationHelper& KZApplicationHelper::sharedInstance() {
  static KZApplicationHelper helper;
  return helper;
}
