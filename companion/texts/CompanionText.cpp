#include "companion/texts/CompanionText.h"

#include "host/KZUtility/KZStringTable.h"

namespace {

KZStringTable& companionTable() {
  static KZStringTable table(QStringLiteral(":/companion/translations"), QStringLiteral("companion"));
  return table;
}

}  // namespace

QString companionText(const char* english) {
  return companionTable().text(english);
}

QString companionLanguage() {
  return companionTable().language();
}
