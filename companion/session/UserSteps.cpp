#include "companion/session/UserSteps.h"

#include <QAction>
#include <QLineEdit>
#include <optional>

#include "companion/format/ControlFinder.h"
#include "companion/format/KeyNames.h"
#include "companion/runtime/PreferencesWindow.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"

namespace {

Qt::KeyboardModifiers readModifiers(StepArguments& step) {
  Qt::KeyboardModifiers modifiers;
  for (const QString& name : step.textsOr("modifiers", {})) {
    const auto modifier = keynames::modifierNamed(name);
    if (!modifier) step.fail(QStringLiteral("there is no modifier %1").arg(name));
    modifiers |= modifier.value_or(Qt::NoModifier);
  }
  return modifiers;
}

Qt::KeyboardModifiers readShift(StepArguments& step) {
  return step.flagOr("shift", false) ? Qt::ShiftModifier : Qt::NoModifier;
}

int readKey(StepArguments& step) {
  const QString name = step.text("key");
  const std::optional<int> key = keynames::keyNamed(name);
  if (!key) step.fail(QStringLiteral("there is no key %1").arg(name));
  return key.value_or(Qt::Key_unknown);
}

bool isCapital(const QString& key) {
  return key.size() == 1 && key.front().isUpper();
}

// The control that the step names, as that kind of control; the step fails when there is none.
template <typename Control>
Control* findControl(StepArguments& step, const char* key, const char* kind) {
  const QString name = step.text(key);
  const Window* window = findPreferencesWindow();
  if (!step.isGood()) return nullptr;
  const ControlFinder::Found found = ControlFinder(window ? contentViewOf(*window) : nullptr).find(name);
  if (!found.control) step.fail(found.error);
  auto* control = qobject_cast<Control*>(found.control);
  if (!control) step.fail(QStringLiteral("%1 is not %2").arg(name, QLatin1String(kind)));
  return control;
}

}  // namespace

void UserSteps::addTo(StepTable* table) {
  table->insert("click", [this](StepArguments& step) { return click(step); });
  table->insert("type", [this](StepArguments& step) { return type(step); });
  table->insert("key", [this](StepArguments& step) { return key(step); });
  table->insert("choose", [this](StepArguments& step) { return choose(step); });
  table->insert("pane", [this](StepArguments& step) { return pane(step); });
  table->insert("close", [this](StepArguments& step) { return close(step); });
  table->insert("activate", [this](StepArguments& step) { return activate(step); });
}

StepOutcome UserSteps::click(StepArguments& step) {
  auto* control = findControl<QWidget>(step, "click", "a control");
  const Qt::KeyboardModifiers modifiers = readShift(step);
  return step.isGood() ? done(m_input.click(control, modifiers)) : step.outcome();
}

StepOutcome UserSteps::type(StepArguments& step) {
  auto* field = findControl<QLineEdit>(step, "type", "a text field");
  const QString text = step.text("text");
  return step.isGood() ? done(m_input.type(field, text)) : step.outcome();
}

StepOutcome UserSteps::key(StepArguments& step) {
  const int key = readKey(step);
  Qt::KeyboardModifiers modifiers = readModifiers(step);
  if (isCapital(step.raw("key").toString())) modifiers |= Qt::ShiftModifier;
  QWidget* target = findPreferencesWindow();
  if (step.has("in")) target = findControl<QWidget>(step, "in", "a control");
  if (!step.isGood()) return step.outcome();
  return done(target ? m_input.press(target, key, modifiers) : QStringLiteral("no window is open"));
}

StepOutcome UserSteps::choose(StepArguments& step) {
  auto* button = findControl<PopUpButton>(step, "choose", "a pop-up");
  const QString title = step.text("item");
  const int item = button ? button->findText(title) : -1;
  if (item < 0) step.fail(QStringLiteral("there is no item %1").arg(title));
  return step.isGood() ? done(m_input.choose(button, item)) : step.outcome();
}

StepOutcome UserSteps::pane(StepArguments& step) {
  const QString label = step.text("pane");
  const Qt::KeyboardModifiers modifiers = readShift(step);
  const Window* window = findPreferencesWindow();
  QAction* item = window ? paneItemNamed(*window, label) : nullptr;
  if (!item) step.fail(QStringLiteral("there is no pane %1").arg(label));
  return step.isGood() ? done(m_input.clickPane(*window, item, modifiers)) : step.outcome();
}

StepOutcome UserSteps::close(StepArguments& step) {
  if (!step.flag("close")) step.fail(QStringLiteral("\"close\" is not true"));
  return step.isGood() ? done(m_input.close(findPreferencesWindow())) : step.outcome();
}

StepOutcome UserSteps::activate(StepArguments& step) {
  const bool isToBeKey = step.flag("activate");
  return step.isGood() ? done(m_input.activate(findPreferencesWindow(), isToBeKey)) : step.outcome();
}

StepOutcome UserSteps::done(const QString& refused) {
  if (!refused.isNull()) m_writer->print({{"refused", refused}});
  return StepOutcome::played();
}
