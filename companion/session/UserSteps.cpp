#include <QAction>
#include <QLineEdit>
#include <optional>

#include "companion/format/ControlFinder.h"
#include "companion/format/KeyNames.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/Steps.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

namespace {

Qt::KeyboardModifiers readModifiers(Step& step) {
  Qt::KeyboardModifiers modifiers;
  if (!step.has("modifiers")) return modifiers;
  for (const QJsonValue& element : step.list("modifiers")) {
    const QString name = element.toString();
    const auto modifier = keynames::modifierNamed(name);
    if (!modifier) step.fail(QStringLiteral("there is no modifier %1").arg(name));
    modifiers |= modifier.value_or(Qt::NoModifier);
  }
  return modifiers;
}

Qt::KeyboardModifiers readShift(Step& step) {
  return step.optionalFlag("shift") ? Qt::ShiftModifier : Qt::NoModifier;
}

// The control that the step names, as that kind of control; the step fails when there is none.
template <typename Control>
Control* findControl(Step& step, const char* key, const char* kind) {
  const QString name = step.text(key);
  const Window* window = findPreferencesWindow();
  if (!step.isGood()) return nullptr;
  const ControlFinder finder(window ? contentViewOf(*window) : nullptr, findSignInWindows());
  const ControlFinder::Found found = finder.find(name);
  if (!found.control) step.fail(found.error);
  auto* control = qobject_cast<Control*>(found.control);
  if (!control) step.fail(QStringLiteral("%1 is not %2").arg(name, QLatin1String(kind)));
  return control;
}

}  // namespace

StepResult steps::click(Step& step, StepContext& context) {
  auto* control = findControl<QWidget>(step, "click", "a control");
  const Qt::KeyboardModifiers modifiers = readShift(step);
  if (!step.isGood()) return step.result();
  return StepResult::refused(context.input.click(control, modifiers));
}

StepResult steps::type(Step& step, StepContext& context) {
  auto* field = findControl<QLineEdit>(step, "type", "a text field");
  const QString text = step.text("text");
  if (!step.isGood()) return step.result();
  return StepResult::refused(context.input.type(field, text));
}

StepResult steps::key(Step& step, StepContext& context) {
  const QString name = step.text("key");
  const std::optional<int> key = keynames::keyNamed(name);
  if (!key) step.fail(QStringLiteral("there is no key %1").arg(name));
  Qt::KeyboardModifiers modifiers = readModifiers(step);
  if (name.size() == 1 && name.front().isUpper()) modifiers |= Qt::ShiftModifier;
  QWidget* target = findPreferencesWindow();
  if (step.has("in")) target = findControl<QWidget>(step, "in", "a control");
  if (!step.isGood()) return step.result();
  return StepResult::refused(target ? context.input.press(target, *key, modifiers)
                                    : QStringLiteral("no window is open"));
}

StepResult steps::choose(Step& step, StepContext& context) {
  auto* button = findControl<PopUpButton>(step, "choose", "a pop-up");
  const QString title = step.text("item");
  const int item = button ? button->findText(title) : -1;
  if (item < 0) step.fail(QStringLiteral("there is no item %1").arg(title));
  if (!step.isGood()) return step.result();
  return StepResult::refused(context.input.choose(button, item));
}

StepResult steps::pane(Step& step, StepContext& context) {
  const QString label = step.text("pane");
  const Qt::KeyboardModifiers modifiers = readShift(step);
  const Window* window = findPreferencesWindow();
  QAction* item = window ? paneItemNamed(*window, label) : nullptr;
  if (!item) step.fail(QStringLiteral("there is no pane %1").arg(label));
  if (!step.isGood()) return step.result();
  return StepResult::refused(context.input.clickPane(*window, item, modifiers));
}

StepResult steps::close(Step& step, StepContext& context) {
  if (!step.flag("close")) step.fail(QStringLiteral("\"close\" is not true"));
  if (!step.isGood()) return step.result();
  return StepResult::refused(context.input.close(findPreferencesWindow()));
}

StepResult steps::activate(Step& step, StepContext& context) {
  const bool isToBeKey = step.flag("activate");
  if (!step.isGood()) return step.result();
  return StepResult::refused(context.input.activate(findPreferencesWindow(), isToBeKey));
}
