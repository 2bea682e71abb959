// Prints the tables of the host guide, each under the mark at which it belongs.

#include <cstdio>
#include <string>

#include "host/KZFoundation/KZCommands.h"

namespace {

void beginTable(const char* mark, const char* first) {
  std::printf("<!-- table: %s -->\n| %s | Name | Meaning | Content |\n|---|---|---|---|\n", mark, first);
}

// A bar would end the cell.
std::string cell(const char* text) {
  std::string escaped;
  for (const char* at = text; *at != '\0'; ++at) {
    if (*at == '|') escaped += '\\';
    escaped += *at;
  }
  return escaped;
}

void printRow(quint64 number, const char* name, const char* meaning, const char* content) {
  std::printf("| %llu | `%s` | %s | %s |\n", static_cast<unsigned long long>(number), name,
              cell(meaning).c_str(), cell(content).c_str());
}

void printCommands(const char* mark, KZDirection direction) {
  beginTable(mark, "No.");
  for (const KZCommandRow& row : kzCommandTable()) {
    if (row.direction == direction)
      printRow(static_cast<quint64>(row.number), row.name, row.meaning, row.content);
  }
}

void printNotifications() {
  beginTable("notifications", "Index");
  for (const KZNotifyRow& row : kzNotifyTable())
    printRow(static_cast<quint64>(row.index), row.name, row.meaning, row.content);
}

}  // namespace

int main() {
  printCommands("commands to the plug-in", KZDirection::ToPlugin);
  printCommands("commands to the host", KZDirection::ToHost);
  printNotifications();
  return 0;
}
