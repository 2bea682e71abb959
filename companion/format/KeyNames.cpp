#include "companion/format/KeyNames.h"

#include <QKeySequence>
#include <algorithm>
#include <array>
#include <utility>

namespace keynames {
namespace {

// Command is the platform's main modifier, which is Control here.
constexpr auto kModifiers = std::to_array<std::pair<const char*, Qt::KeyboardModifier>>({
    {"command", Qt::ControlModifier},
    {"shift", Qt::ShiftModifier},
    {"option", Qt::AltModifier},
    {"control", Qt::MetaModifier},
});

}  // namespace

std::optional<int> keyNamed(const QString& name) {
  const QKeySequence sequence = QKeySequence::fromString(name, QKeySequence::PortableText);
  const bool isKey = sequence.count() == 1 && sequence[0].key() != Qt::Key_unknown &&
                     sequence[0].keyboardModifiers() == Qt::NoModifier;
  return isKey ? std::optional<int>(sequence[0].key()) : std::nullopt;
}

std::optional<Qt::KeyboardModifier> modifierNamed(const QString& name) {
  const auto* const known =
      std::ranges::find_if(kModifiers, [&](const auto& entry) { return name == QLatin1String(entry.first); });
  return known == kModifiers.end() ? std::nullopt : std::optional(known->second);
}

QString nameOf(int key, Qt::KeyboardModifiers modifiers) {
  const QString name = QKeySequence(key).toString(QKeySequence::PortableText);
  if (keyNamed(name) != key) return {};
  return name.size() == 1 && !modifiers.testFlag(Qt::ShiftModifier) ? name.toLower() : name;
}

QStringList namesOf(Qt::KeyboardModifiers modifiers) {
  QStringList names;
  for (const auto& [name, modifier] : kModifiers) {
    if (modifiers.testFlag(modifier)) names.append(QLatin1String(name));
  }
  return names;
}

}  // namespace keynames
