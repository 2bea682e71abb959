#pragma once

#include <QString>
#include <QStringList>
#include <Qt>
#include <optional>

// The words that scripts have for keys.
namespace keynames {

// Nothing when there is no such key, or modifier.
std::optional<int> keyNamed(const QString& name);
std::optional<Qt::KeyboardModifier> modifierNamed(const QString& name);

// A name that `keyNamed` knows; null for a key without one. A letter is capital only with Shift.
QString nameOf(int key, Qt::KeyboardModifiers modifiers);
QStringList namesOf(Qt::KeyboardModifiers modifiers);

}  // namespace keynames
